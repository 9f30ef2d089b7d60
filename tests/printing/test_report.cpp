#include "tests/printing/test_report.h"

using namespace Printing;

void TestReport::note(const QString &event) {
    if (log) *log += name + event;
}

void TestReport::ReportStart() {
    note(QStringLiteral("ReportStart"));
    if (onStart) onStart();
}

void TestReport::DataInitialize() {
    note(QStringLiteral("DataInitialize"));
    if (onInitialize) onInitialize();
}

void TestReport::FetchData(bool &eof) {
    note(QStringLiteral("FetchData"));
    if (onFetch) onFetch(eof);
}

void TestReport::Format(Section &section) {
    note(QStringLiteral("Format ") + section.Name);
    if (onFormat) onFormat(section);
}

void TestReport::ReportEnd() {
    note(QStringLiteral("ReportEnd"));
    if (onEnd) onEnd();
}

void TestReport::countRows(int count) {
    Fields.Add(QStringLiteral("n"));
    onFetch = [this, count, row = 0](bool &eof) mutable {
        eof = row == count;
        if (!eof) Fields(QStringLiteral("n")) = ++row;
    };
}

namespace {

constexpr char Logo[] =
    "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 48 48'>"
    "<circle cx='24' cy='24' r='22' fill='#2a6fb0'/>"
    "<path d='M8 30 Q16 14 24 26 T40 22' stroke='white' stroke-width='4' fill='none'/></svg>";

void addStationHeader(TestReport &report) {
    Section &header = report.AddSection(SectionType::ReportHeader, "ReportHeader");
    header.Height = 2300;
    auto &title =
        place<Label>(header, "lblTitle", {700, 0, 6000, 450}, QStringLiteral("Wetterstation Großer Sand"));
    title.Font.Size = 18;
    title.Font.Bold = true;
    title.HeadingLevel = 1;
    auto &logo = header.Controls.Add<Image>("imgLogo");
    logo.Width = logo.Height = 500;
    logo.Content = Picture::fromSvg(Logo);
    const QStringList captions = {"Place", "Height", "Description", "Keeper"};
    const QStringList texts = {
        QStringLiteral("53° 52′ N, 8° 42′ E"), QStringLiteral("≤ 12 m"),
        QStringLiteral(
            "Stands on a sand bank in the estuary and can be reached on foot at low water only; the "
            "instruments are read by radio every ten minutes and checked by hand twice a year."),
        QStringLiteral("Harbour office {north} \\ pilot station")};
    for (int i = 0; i < captions.size(); ++i) {
        place<Label>(header, "lbl" + captions[i], {0, 700 + 300 * i, 1700, 260}, captions[i]);
        place<Field>(header, "txt" + captions[i], {1800, 700 + 300 * i, 8300, 260}, texts[i]).Font.Bold =
            true;
    }
}

std::shared_ptr<TestReport> readings(int rows) {
    auto table = std::make_shared<TestReport>();
    Section &head = table->AddSection(SectionType::GroupHeader, "ghReadings");
    head.RepeatOnNewPage = true;
    head.Height = 1250;
    auto &title = place<Label>(head, "lblReadings", {0, 0, 6000, 300}, "Readings of the year");
    title.Font.Bold = true;
    title.HeadingLevel = 3;
    const QStringList captions = {QStringLiteral("Day"), QStringLiteral("Temperature\r\n\r\n[°C]"),
                                  QStringLiteral("Pressure\r\n\r\n[N / m²]"), QStringLiteral("Remark")};
    const int widths[] = {1155, 1500, 1800, 4000};
    Section &detail = table->AddSection(SectionType::Detail, "Detail");
    detail.Height = 283;
    int left = 0;
    for (int i = 0; i < captions.size(); ++i) {
        auto &caption =
            place<Label>(head, QStringLiteral("lblCol%1").arg(i), {left, 400, widths[i], 851}, captions[i]);
        auto &field = place<Field>(detail, QStringLiteral("txtField%1").arg(i), {left, 0, widths[i], 283});
        field.DataField = QStringLiteral("f%1").arg(i);
        caption.Alignment = 2;
        caption.BackStyle = 1;
        caption.BackColor = QColor(225, 232, 240);
        caption.Border = BorderStyles::all();
        field.Alignment = i < 3 ? 2 : 0;
        field.VerticalAlignment = 1;
        field.Border = {0, 1, 1, i == 0 ? 1 : 0};
        left += widths[i];
    }
    table->onInitialize = [table = table.get()] {
        for (int i = 0; i < 4; ++i)
            table->Fields.Add(QStringLiteral("f%1").arg(i));
    };
    table->onFetch = [table = table.get(), rows, row = 0](bool &eof) mutable {
        eof = row == rows;
        if (eof) return;
        ++row;
        table->Fields("f0") = row;
        table->Fields("f1") = QStringLiteral("%1,%2").arg(row % 30).arg(row % 10);
        table->Fields("f2") = QStringLiteral("(%1 x 10²)").arg(990 + row % 40);
        table->Fields("f3") = row % 7 == 0
                                  ? QStringLiteral("gale ≥ 8 Bft, the reading was taken twice and the "
                                                   "mean of both is what stands here")
                                  : QString();
    };
    Section &notes = table->AddSection(SectionType::GroupFooter, "gfNotes");
    notes.Height = 700;
    place<Label>(notes, "lblNotes", {0, 120, 2000, 250}, "Notes").Font.Bold = true;
    place<Field>(notes, "txtNotes", {0, 380, 10200, 250},
                 QStringLiteral("All temperatures in the shade.\r\nPressures are not reduced to sea level."))
        .Font.Size = 9;
    return table;
}

void drawCurve(QPainter &painter, const QSizeF &size) {
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF plot(60, 30, size.width() - 90, size.height() - 80);
    painter.setFont(QFont("Arial", 11, QFont::Bold));
    painter.drawText(QRectF(0, 0, size.width(), 28), Qt::AlignCenter, "Mean temperature");
    painter.setFont(QFont("Arial", 8));
    painter.drawRect(plot);
    for (int i = 0; i <= 10; ++i) {
        const double x = plot.left() + plot.width() * i / 10;
        painter.drawLine(QPointF(x, plot.bottom()), QPointF(x, plot.bottom() + 5));
        painter.drawText(QRectF(x - 20, plot.bottom() + 8, 40, 16), Qt::AlignCenter, QString::number(i * 36));
    }
    QPolygonF curve;
    for (int i = 0; i <= 100; ++i)
        curve << QPointF(plot.left() + plot.width() * i / 100, plot.center().y() - 90 * std::sin(i / 16.0));
    painter.setPen(QPen(QColor(200, 30, 30), 1.5));
    painter.drawPolyline(curve);
}

void addPageSections(TestReport &report) {
    Section &header = report.AddSection(SectionType::PageHeader, "PageHeader");
    header.Height = 400;
    auto &office =
        place<Label>(header, "lblOffice", {0, 0, 10200, 250}, QStringLiteral("Weather office – yearbook"));
    office.Alignment = 1;
    office.Font.Size = 8;
    auto &rule = header.Controls.Add<Line>("rule");
    rule.Top = 280;
    rule.Width = 10200;

    Section &footer = report.AddSection(SectionType::PageFooter, "PageFooter");
    footer.Height = 400;
    place<Label>(footer, "lblDocName", {0, 150, 4000, 250}, "Yearbook_7").Font.Size = 8;
    const auto addPageText = [&footer](const QString &name, int left, int width, const QString &text,
                                       PageValue value) {
        auto &field = place<Field>(footer, name, {left, 150, width, 250}, text);
        field.Font.Size = 8;
        field.Alignment = value == PageValue::None ? 0 : 2;
        field.Summary = value;
    };
    addPageText("lblPage", 8400, 450, "Page", PageValue::None);
    addPageText("txtPage", 8850, 350, {}, PageValue::PageNumber);
    addPageText("lblOf", 9200, 250, "of", PageValue::None);
    addPageText("txtPageTotal", 9450, 350, {}, PageValue::PageTotal);
}

} // namespace

std::shared_ptr<TestReport> stationReport(int rows) {
    auto report = std::make_shared<TestReport>();
    report->DocumentName = QStringLiteral("Yearbook 7 – Großer Sand");
    report->Author = QStringLiteral("Weather office (north)");
    report->Caption = QStringLiteral("Yearbook");
    addStationHeader(*report);
    addPageSections(*report);

    Section &group = report->AddSection(SectionType::GroupHeader, "ghReadings");
    group.Height = 900;
    auto &heading = place<Label>(group, "lblReadings", {0, 0, 6000, 350}, "Readings");
    heading.Font.Size = 14;
    heading.Font.Bold = true;
    heading.HeadingLevel = 2;
    auto &table = group.Controls.Add<SubReport>("subReadings");
    table.Top = 450;
    table.Width = 10200;
    table.Height = 300;
    table.Object = readings(rows);

    Section &curve = report->AddSection(SectionType::GroupHeader, "ghCurve");
    curve.Height = 5400;
    curve.KeepTogether = true;
    auto &curveHeading = place<Label>(curve, "lblCurve", {0, 0, 6000, 350}, "Course of the year");
    curveHeading.Font = heading.Font;
    curveHeading.HeadingLevel = 2;
    auto &chart = curve.Controls.Add<Chart>("chart");
    chart.Top = 450;
    chart.Width = 9000;
    chart.Height = 4800;
    chart.Paint = drawCurve;
    return report;
}
