// The window that previews a report.
#pragma once

#include "platform/forms/form.h"

namespace Printing {
class Report;
class Viewer;
} // namespace Printing

/// Modal. It cannot stay minimised.
class ReportWindow : public Form {
    Q_OBJECT
public:
    /// `name` is the form's name. Returns when the user has closed the window.
    static void showModal(Printing::Report &report, const QString &name, QWidget *owner);

protected:
    void Form_Resize() override;

private:
    ReportWindow(Printing::Report &report, const QString &name);
    void save();

    Printing::Report &m_report;
    Printing::Viewer *m_viewer;
};
