#include "reports/report_window.h"

#include <QPointer>

#include "platform/forms/help_context.h"
#include "platform/forms/msg_box.h"
#include "platform/printing/report.h"
#include "platform/printing/viewer.h"
#include "platform/runtime/runtime_error.h"
#include "reports/report_export.h"
#include "shell/mdiVelmar.h"

namespace {

// A page can be read as a whole in its width.
constexpr int WishedWidth = 15000;
constexpr int WishedHeight = 13800;

constexpr int CancelSelected = 32755;

} // namespace

void ReportWindow::showModal(Printing::Report &report, const QString &name, QWidget *owner) {
    const QPointer<ReportWindow> window = new ReportWindow(report, name);
    window->ShowModal(owner);
    if (window) window->Unload();
}

ReportWindow::ReportWindow(Printing::Report &report, const QString &name)
    : Form(name)
    , m_report(report)
    , m_viewer(new Printing::Viewer(report.document(), this)) {
    setCaption(report.Caption);
    HelpContext::set(*this, "Reports.htm");
    setIcon(QIcon(":/velmar/app/velmar-ped.svg"));
    setScaleSize(WishedWidth, WishedHeight);
    m_viewer->setWindowFlags(Qt::Widget);
    m_viewer->setSaveHandler([this] { save(); });
    connect(m_viewer, &QDialog::finished, this, [this] { Unload(); });
}

void ReportWindow::Form_Resize() {
    if (WindowState() == vbMinimized) {
        setWindowState(vbNormal);
        return;
    }
    m_viewer->setGeometry(rect());
}

/// What is seen, as a PDF.
void ReportWindow::save() {
    try {
        ReportExport::saveAsking(m_report.document(), ReportExport::Pdf, m_report.DocumentName,
                                 mdiVelmar::instance().comDlg);
    } catch (const RuntimeError &error) {
        if (error.number() != CancelSelected) MsgBox(error.description(), vbExclamation, Caption());
    }
}
