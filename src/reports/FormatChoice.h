// The file formats of a report to choose from.
#pragma once

#include <QGroupBox>
#include <QRadioButton>

#include "platform/forms/control_array.h"

/// Portable Document Format at first.
class FormatChoice {
public:
    explicit FormatChoice(QWidget *window);

    /// 3000 twips wide and 1650 high.
    QGroupBox *framSave;
    ControlArray<QRadioButton> optFormat{"optFormat"};

    /// As ReportExport::Format.
    int chosen() const;
};
