// Runs a report with its sub-reports and lays its sections out on an endless page.
#pragma once

#include "platform/dao/field_type.h"
#include "platform/printing/band.h"
#include "platform/printing/report.h"
#include "platform/printing/section_layout.h"

namespace Printing {

class Composer {
public:
    /// Raises the report's events up to the last Format before the page headers; ReportEnd is left to the
    /// caller.
    static Bands compose(Report &report);

    /// Binds the fields of the section and raises its Format.
    static void format(Report &report, Section &section);

private:
    explicit Composer(Report &report)
        : m_report(report) {}

    void run();
    void addFieldsOfDataSource();
    bool isRead(const FieldDefinition &definition) const;
    bool fetch(bool firstRow);
    void addSections(SectionType type);
    void addSection(Section &section);
    void addBands(const Section &section, const SectionLayout &layout,
                  const QHash<const Control *, Bands> &subReports);
    void keepTogether(std::size_t first, int height);
    void append(const std::shared_ptr<Band> &band);

    Report &m_report;
    Bands m_bands;
    bool m_pageBreakPending = false;
    std::vector<std::shared_ptr<const Band>> m_headings;
};

} // namespace Printing
