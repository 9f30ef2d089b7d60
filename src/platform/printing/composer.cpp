#include "platform/printing/composer.h"

#include <utility>

#include "platform/dao/recordset.h"
#include "platform/printing/rows.h"
#include "platform/runtime/conversions.h"

namespace Printing {

namespace {

bool breaksSection(const Control &control) {
    return dynamic_cast<const SubReport *>(&control) || dynamic_cast<const PageBreak *>(&control);
}

bool isRowOfCells(const Band &band) {
    return std::any_of(band.elements.begin(), band.elements.end(),
                       [](const Element &element) { return element.Border.any(); });
}

int heightOf(const Bands &bands) {
    int height = 0;
    for (const auto &band : bands)
        height += band->height;
    return height;
}

} // namespace

Bands Composer::compose(Report &report) {
    Composer composer(report);
    composer.run();
    return std::move(composer.m_bands);
}

void Composer::run() {
    m_report.ReportStart();
    m_report.DataInitialize();
    addFieldsOfDataSource();
    bool eof = fetch(true);
    addSections(SectionType::ReportHeader);
    addSections(SectionType::GroupHeader);
    while (!eof) {
        addSections(SectionType::Detail);
        eof = fetch(false);
    }
    // Notes that go over to a new page do so without the heading of the rows.
    const auto headings = std::exchange(m_headings, {});
    for (const auto &section : m_report.m_sections) {
        if (section->Type != SectionType::GroupFooter) continue;
        if (section->BelowHeadings) m_headings = headings;
        addSection(*section);
        m_headings.clear();
    }
    addSections(SectionType::ReportFooter);
}

void Composer::addFieldsOfDataSource() {
    if (!m_report.DataSource) return;
    for (const FieldDefinition &column : m_report.DataSource->fieldDefinitions())
        if (!m_report.Fields.contains(column.name)) m_report.Fields.Add(column.name);
}

// True at the end of the rows.
bool Composer::fetch(bool firstRow) {
    Recordset *rows = m_report.DataSource.get();
    bool eof = rows ? rows->Eof() : !firstRow;
    if (rows && !eof) {
        int column = 0;
        for (const FieldDefinition &definition : rows->fieldDefinitions()) {
            try {
                m_report.Fields.set(definition.name, rows->Fields(column++));
            } catch (const RuntimeError &error) {
                m_report.Fields.fail(definition.name, error); // the report may never ask for it
            }
        }
        rows->MoveNext();
    }
    m_report.FetchData(eof);
    return eof;
}

void Composer::format(Report &report, Section &section) {
    for (const auto &control : section.Controls) {
        auto *field = dynamic_cast<Field *>(control.get());
        if (!field || field->DataField.isEmpty()) continue;
        const QVariant value =
            report.Fields.contains(field->DataField) ? report.Fields(field->DataField) : QVariant();
        field->Text = IsNull(value) ? QString() : CStr(value);
    }
    report.Format(section);
}

void Composer::addSections(SectionType type) {
    for (const auto &section : m_report.m_sections)
        if (section->Type == type) addSection(*section);
}

void Composer::addSection(Section &section) {
    format(m_report, section);
    if (!section.Visible) return;

    QHash<const Control *, Bands> subReports;
    QHash<const Control *, int> heights;
    for (const auto &control : section.Controls) {
        auto *subReport = dynamic_cast<SubReport *>(control.get());
        if (!subReport || !subReport->Visible || !subReport->Object) continue;
        Bands bands = compose(*subReport->Object);
        subReport->Object->ReportEnd();
        // Its controls take more room than what they have shown, and a batch has hundreds of reports.
        subReport->Object.reset();
        for (const auto &band : bands)
            for (Element &element : band->elements)
                element.box.translate(subReport->Left, 0);
        heights.insert(subReport, heightOf(bands));
        subReports.insert(subReport, std::move(bands));
    }

    const std::size_t first = m_bands.size();
    const SectionLayout layout = layOutSection(section, heights);
    addBands(section, layout, subReports);
    if (m_bands.size() == first) return;
    if (section.KeepTogether) keepTogether(first, layout.height);
    if (section.Type == SectionType::GroupHeader && section.RepeatOnNewPage) {
        for (std::size_t i = first; i < m_bands.size(); ++i) {
            m_bands[i]->isRepeatedHeading = true;
            m_headings.push_back(m_bands[i]);
        }
    }
}

// From the first band that shows something: a distance above it may be lost.
void Composer::keepTogether(std::size_t first, int height) {
    for (std::size_t i = first; i < m_bands.size(); ++i) {
        if (!m_bands[i]->elements.empty()) {
            m_bands[i]->keepHeight = height;
            return;
        }
        height -= m_bands[i]->height;
    }
}

// Cuts the instance at its sub-reports and page breaks.
void Composer::addBands(const Section &section, const SectionLayout &layout,
                        const QHash<const Control *, Bands> &subReports) {
    std::vector<const PlacedControl *> breaks;
    for (const PlacedControl &placed : layout.controls)
        if (breaksSection(*placed.control)) breaks.push_back(&placed);

    int top = 0;
    const auto addBand = [&](std::size_t part, int bottom) {
        auto band = std::make_shared<Band>();
        if (breaks.empty()) band->elements.reserve(layout.controls.size());
        for (const PlacedControl &placed : layout.controls) {
            if (breaksSection(*placed.control)) continue;
            const auto isAbove = [&placed](const PlacedControl *cut) {
                return placed.control->Top >= cut->control->Top + cut->control->Height;
            };
            if (std::size_t(std::count_if(breaks.begin(), breaks.end(), isAbove)) != part) continue;
            band->elements.push_back(placed.element);
            band->elements.back().box.translate(0, -top);
        }
        sortForReading(band->elements);
        band->height = std::max(0, bottom - top);
        band->headings = m_headings;
        band->isBreakable = !section.KeepTogether && !isRowOfCells(*band);
        band->keepWithNext =
            part < breaks.size() ? !band->elements.empty() : section.KeepWithNext && part == 0;
        append(band);
    };
    for (std::size_t part = 0; part < breaks.size(); ++part) {
        const PlacedControl &cut = *breaks[part];
        addBand(part, cut.element.box.top());
        top = cut.element.box.top() + cut.element.box.height();
        if (dynamic_cast<const PageBreak *>(cut.control)) m_pageBreakPending = true;
        for (const auto &band : subReports.value(cut.control)) {
            band->headings.insert(band->headings.begin(), m_headings.begin(), m_headings.end());
            append(band);
        }
    }
    addBand(breaks.size(), layout.height);
}

void Composer::append(const std::shared_ptr<Band> &band) {
    if (band->height == 0 && band->elements.empty()) return;
    if (m_pageBreakPending) band->pageBreakBefore = true;
    m_pageBreakPending = false;
    m_bands.push_back(band);
}

} // namespace Printing
