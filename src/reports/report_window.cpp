#include "reports/report_window.h"

#include "platform/printing/report.h"
#include "platform/printing/viewer.h"
#include "reports/report_export.h"
#include "shell/mdiVelmar.h"

void ReportWindow::showModal(Printing::Report &report, const QString &name, QWidget *owner) {
    auto *window = new ReportWindow(report, name);
    window->ShowModal(owner);
    window->Unload();
}

ReportWindow::ReportWindow(Printing::Report &report, const QString &name)
    : Form(name)
    , m_report(report)
    , m_viewer(new Printing::Viewer(report.document(), this)) {
    setCaption(report.Caption);
    setScaleSize(15000, 13500);
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

void ReportWindow::save() {
    constexpr int Pdf = 0;
    ReportExport::saveAsking(m_report.document(), Pdf, m_report.DocumentName, mdiVelmar::instance().comDlg);
}
