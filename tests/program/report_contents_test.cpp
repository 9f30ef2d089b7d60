// What stands on the pages of the reports, in reading order, as tests/program/contents tells it.
#include <QImage>
#include <QRegularExpression>

#include "reports/actRepMain.h"
#include "tests/program/contents.h"
#include "tests/program/reports_fixture.h"

namespace {

bool isDrawn(const Printing::Element &element) {
    const QImage image = element.picture.toImage(element.pictureSize, 24);
    QImage empty = image;
    empty.fill(Qt::white);
    return image != empty;
}

QString contentsOf(const Printing::Document &document) {
    static const QRegularExpression now("^\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d$");
    QString lines;
    int number = 0;
    for (const Printing::Page &page : document.pages) {
        lines += QStringLiteral("page %1\n").arg(++number);
        for (const Printing::Element &element : page.elements) {
            QString text = element.text;
            text.replace(now, "(now)");
            if (!element.pictureSize.isEmpty())
                text += (isDrawn(element) ? "(picture) " : "(no picture) ") + element.alternativeText;
            if (element.Font.Bold && !text.isEmpty()) text.prepend("(bold) ");
            if (element.HeadingLevel > 0)
                text.prepend(QStringLiteral("(heading %1) ").arg(element.HeadingLevel));
            if (!text.isEmpty()) lines += "  " + text.replace("\r\n", "\\n").replace('\n', "\\n") + '\n';
        }
    }
    return lines;
}

} // namespace

TEST_F(Reports, OfAGradeHaveTheseContents) {
    open(SampleGrades::P265GH);
    tickAll();
    actRepMain report;
    report.Run();
    EXPECT_EQ(report.document().title, "Velmar-PED_P265GH_1.0425");
    Contents::expect(contentsOf(report.document()), "report of a grade");
}
