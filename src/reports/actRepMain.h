// The one printable document of a material: a header, a fixed row of places for tables, a page footer.
#pragma once

#include <memory>

#include "platform/printing/report.h"
#include "reports/ReportSource.h"

class Material;
class QWidget;

/// The queues colUnBoundTables and colBoundTables of the material hand the tables' keys to the sub-reports,
/// which are started in the order of the sections. Set the members, then Run or Show.
class actRepMain : public Printing::Report {
    Q_OBJECT
public:
    /// The one global instance, made on first use, and made anew after a run.
    static actRepMain &instance();

    actRepMain();

    bool bSaveToFile = false;
    /// 0 PDF, 1 RTF, 2 text.
    qint16 iSaveFormat = 0;
    /// The save was asked for in the enlarged chart's window.
    bool bFromChart = false;

    /// Of the global instance. Runs the report for a file, which its end asks for.
    void RunToFile();
    /// Of the global instance. Shows the report in a modal window above `owner`.
    void ShowModal(QWidget *owner);

protected:
    void ReportStart() override;
    void ReportEnd() override;

private:
    void chooseMaterial();
    void choosePictures();
    void fillHeader();
    void nameBatchSections();
    ReportKind reportKind() const;
    void chooseContent();
    void selectTables();
    void nextElevatedSlot();
    void nextPhysicalSlot();
    void placeReport(const QString &section, const QString &control,
                     std::shared_ptr<Printing::Report> report);
    void hide(const QString &section);
    void setText(const QString &section, const QString &control, const QString &text);
    bool prints(const QString &key) const;

    std::shared_ptr<Material> mMaterial;
    QString strReportKey;
    qint16 iElevatedSlot = 0;
    qint16 iPhysSlot = 0;
};
