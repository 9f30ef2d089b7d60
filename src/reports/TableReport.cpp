#include "reports/TableReport.h"

#include "platform/runtime/app.h"
#include "platform/runtime/regional_settings.h"
#include "reports/report_layout.h"
#include "reports/table_parts.h"

using namespace Printing;
using namespace ReportLayout;

namespace {

constexpr int HeadHeight = 870;
constexpr int FactHeight = 285;
constexpr int FactNameWidth = 2100;
constexpr int PartCaptionHeight = 600;
constexpr int PartDistance = 240;

QString fieldName(int place) {
    return QStringLiteral("Field%1").arg(place);
}

QString captionOf(const TakenColumn &column) {
    return column.unit.isEmpty() ? column.heading : column.heading + "\r\n[" + column.unit + ']';
}

/// Some columns of the table beside each other, under their captions.
class PartReport : public Report {
public:
    PartReport(const TakenTable &table, TablePart part)
        : m_table(table)
        , m_part(std::move(part)) {
        Section &captions = AddSection(SectionType::GroupHeader, "ghCaptions");
        captions.RepeatOnNewPage = true;
        Section &detail = AddSection(SectionType::Detail, "Detail");
        int left = 0;
        for (int place = 0; place < m_part.columns.size(); ++place) {
            const int width = m_part.widths[place];
            Label &caption =
                addLabel(captions, QStringLiteral("lblCol%1").arg(place),
                         captionOf(table.columns[m_part.columns[place]]), left, 0, width, PartCaptionHeight);
            asCaption(caption);
            caption.VerticalAlignment = 1;
            Field &cell = addField(detail, "txt" + fieldName(place), left, 0, width, RowHeight);
            asCell(cell);
            cell.DataField = fieldName(place);
            if (place < table.keyColumns) cell.Alignment = 0;
            left += width;
        }
    }

protected:
    void DataInitialize() override {
        for (int place = 0; place < m_part.columns.size(); ++place)
            Fields.Add(fieldName(place));
    }
    void FetchData(bool &eof) override {
        eof = m_row >= m_table.rows.size();
        if (eof) return;
        for (int place = 0; place < m_part.columns.size(); ++place)
            Fields.set(fieldName(place), m_table.rows[m_row][m_part.columns[place]]);
        ++m_row;
    }

private:
    TakenTable m_table;
    TablePart m_part;
    qsizetype m_row = 0;
};

void addFact(Section &section, const TakenFact &fact) {
    addLabel(section, "lblFact", fact.name, 0, 0, FactNameWidth, FactHeight);
    Label &texts = addLabel(section, "lblFactText", fact.texts.join("; "), FactNameWidth, 0,
                            PageWidth - FactNameWidth, FactHeight);
    texts.Font.Bold = true;
}

} // namespace

TableReport::TableReport(const TakenTable &table, const QVector<TakenFact> &facts) {
    const App &app = App::current();
    DocumentName = Caption = app.title + '_' + QString(table.title).replace(' ', '_');
    Author = app.title;
    setPage(PageSetup);
    Section &head = AddSection(SectionType::ReportHeader, "ReportHeader");
    addProgramHead(head, RegionalSettings::current().dateText(QDateTime::currentDateTime()));
    Label &title = addLabel(head, "lblTitle", table.title, 0, HeadHeight, PageWidth, TitleHeight);
    asHeading(title, 1);
    AddSection(SectionType::PageHeader, "PageHeader");
    int number = 0;
    for (const TakenFact &fact : facts)
        addFact(AddSection(SectionType::GroupHeader, QStringLiteral("ghFact%1").arg(++number)), fact);
    for (const TablePart &part : partsOf(table, PageWidth)) {
        Section &place = AddSection(SectionType::GroupHeader, QStringLiteral("ghPart%1").arg(++number));
        place.KeepWithNext = false;
        addSubReport(place, "subRepPart", PartDistance).Object = std::make_shared<PartReport>(table, part);
    }
    AddSection(SectionType::Detail, "Detail");
    Section &footer = AddSection(SectionType::PageFooter, "PageFooter");
    addPageFooter(footer);
    footer.Controls.Item<Label>("lblDocName").Text = DocumentName;
    Label &copyright = footer.Controls.Add<Label>("lblCopyright");
    asFootnote(copyright);
    copyright.Text = app.legalCopyright;
}
