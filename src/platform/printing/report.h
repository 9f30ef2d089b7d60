// A report: sections of controls, filled row by row by code or from a recordset.
#pragma once

#include <memory>
#include <vector>

#include <QObject>

#include "platform/printing/document.h"
#include "platform/printing/field_list.h"
#include "platform/printing/section.h"

class Recordset;

namespace Printing {

/// One instance serves one run. The events come in this order: ReportStart, DataInitialize, FetchData before
/// each row, Format before each instance of a section (also a hidden one), ReportEnd. The first FetchData
/// comes before the report header. Formats of page headers and page footers come when the pages are made up,
/// after those of all other sections.
class Report : public QObject {
    Q_OBJECT
public:
    explicit Report(QObject *parent = nullptr);
    ~Report() override;

    /// Raises 457 for a name that is there already.
    Section &AddSection(SectionType type, const QString &name);
    /// Raises 5 for an unknown name.
    Section &Sections(const QString &name) const;
    const std::vector<std::unique_ptr<Section>> &sections() const { return m_sections; }

    FieldList Fields;
    PageSettings PageSetup;
    /// What a viewer's window bears.
    QString Caption;
    /// The title of the outputs and of the print job.
    QString DocumentName;
    QString Author;
    /// Gives a row for each of its records; its columns become Fields. May be set as late as DataInitialize.
    std::shared_ptr<Recordset> DataSource;

    /// Runs the report. What an event raises comes out of here.
    const Document &Run();
    /// Empty before the pages are made up; complete at ReportEnd.
    const Document &document() const { return m_document; }

    /// What the paper leaves between the margins.
    int PrintWidth() const;

protected:
    virtual void ReportStart() {}
    virtual void DataInitialize() {}
    /// `eof` comes in as what the report knows: True when the recordset has ended, or, without one, when the
    /// one row that a report has of itself is printed. Set to True it ends the rows.
    virtual void FetchData(bool &eof) { Q_UNUSED(eof) }
    virtual void Format(Section &section) { Q_UNUSED(section) }
    virtual void ReportEnd() {}

private:
    friend class Composer;
    friend class Paginator;

    std::vector<std::unique_ptr<Section>> m_sections;
    Document m_document;
};

} // namespace Printing
