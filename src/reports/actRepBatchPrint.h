// All selected materials in one document, a main report each.
#pragma once

#include <optional>

#include "data/Materials.h"
#include "platform/forms/step_progress.h"
#include "platform/printing/report.h"

class QWidget;

class actRepBatchPrint : public Printing::Report {
    Q_OBJECT
public:
    /// The one global instance, made on first use, and made anew after a preview has closed.
    static actRepBatchPrint &instance();

    actRepBatchPrint();

    /// The materials whose reports have not started yet: each main report takes the first and removes it.
    Materials colBatchMaterials;
    /// The first report of those that were waiting has started.
    void ReportStarted();

    /// Shows the report in a modal window above `owner`.
    void ShowModal(QWidget *owner);

protected:
    void ReportStart() override;

private:
    std::optional<StepProgress> m_progress;
};
