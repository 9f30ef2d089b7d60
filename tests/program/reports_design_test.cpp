// The sub-report of design values.
#include <QRegularExpression>

#include "platform/printing/text_output.h"
#include "reports/actRepDesign.h"
#include "tests/program/reports_fixture.h"
#include "tests/support/small_database.h"

using namespace Printing;

namespace {

class DesignReport : public Reports {
protected:
    void run(int matID, const QString &temperature) {
        frmMaterial2 &window = open(matID);
        window.ShowTable("Design");
        window.txtDesignTemp->setText(temperature);
        report.Run();
    }
    QString text(const char *section, const char *control) const {
        return controlOf(report, section, QLatin1String(control)).Text;
    }

    actRepDesign report;
};

} // namespace

TEST_F(DesignReport, ShowsTheTablesTheTemperatureAndTheKey) {
    run(SampleGrades::P265GH, "100");
    EXPECT_EQ(text("ghDesignTemp", "txtDesignTemp"), "100 °C");
    EXPECT_FALSE(report.Sections("gfExtended").Visible);
    const QString lines = gridText(report.document());
    EXPECT_EQ(lines.count(QRegularExpression("\n-[-+]+\n")), 5)
        << "between six tables: " << qPrintable(lines);
    EXPECT_TRUE(lines.contains("(  ) - 16mm")) << qPrintable(lines);
    const QString printed = lines.simplified();
    EXPECT_TRUE(printed.contains("(16) - 40mm")) << qPrintable(printed);
    EXPECT_TRUE(printed.contains("| 241 | 232 | 223 | 196 | 182 | 169 |")) << qPrintable(printed);
    EXPECT_EQ(printed.count("KEY"), 1);
    EXPECT_TRUE(
        printed.endsWith("KEY '-' = Below Temperature Range of this table '+' = Above Temperature Range "
                         "of this table 'x' = No value given for this temperature"));
}

TEST_F(DesignReport, LaysRowsOutByTheirKind) {
    run(SampleGrades::P265GH, "100");
    // the creep table's column is narrower than the smallest
    EXPECT_EQ(controlOf(report, "Detail", "txtField1").Width, 1155);
    const auto &second = controlOf(report, "Detail", "txtField2");
    EXPECT_EQ(second.Left, controlOf(report, "Detail", "txtField1").Left + 1155);
    EXPECT_EQ(second.Width, 1155);

    QList<int> heights;
    const auto &rows = report.document().blocks;
    for (const Block &block : rows)
        for (const Row &row : block.rows)
            if (block.kind == Block::Kind::Table) heights << row.bottom() - row.top();
    ASSERT_EQ(heights.size(), 12); // the seventh table is not printed
    for (int i = 0; i < heights.size(); ++i) {
        if (i % 2 == 0)
            EXPECT_GE(heights[i], 851) << i;
        else
            EXPECT_EQ(heights[i], 283) << i;
    }
}

TEST_F(DesignReport, ColumnsBeyondThePageStandInASecondBlock) {
    run(SampleGrades::TubeMo3, "500");
    ASSERT_TRUE(report.Sections("gfExtended").Visible);
    const int creep = 4; // behind Rp0,2
    const auto cell = [&](int row, int column) -> const TextControl & {
        return controlOf(report, "gfExtended", QStringLiteral("txtFieldExt%1_%2").arg(row).arg(column));
    };
    EXPECT_EQ(cell(creep, 0).Text, "Creep Properties");
    EXPECT_EQ(cell(creep, 8).Text.simplified(), "Delivery");
    EXPECT_EQ(cell(creep, 9).Text.simplified(), "Direction");
    EXPECT_EQ(cell(creep + 1, 8).Text, "x");
    EXPECT_EQ(cell(creep, 8).Left, cell(creep, 0).Left + cell(creep, 0).Width);
    EXPECT_EQ(cell(creep, 9).Left, cell(creep, 8).Left + cell(creep, 8).Width);
    EXPECT_EQ(cell(creep, 8).Width, 1500);
    EXPECT_EQ(cell(creep + 1, 8).Top, cell(creep, 8).Top + 851 + 70);
    EXPECT_EQ(cell(creep, 8).Border.LeftStyle, 1);
    EXPECT_EQ(cell(creep, 9).Border.LeftStyle, 0);
    EXPECT_FALSE(cell(creep + 1, 0).Visible);
    EXPECT_FALSE(cell(creep + 2, 8).Visible);
    expectOnPaper(report.document());
}

TEST_F(DesignReport, WhateverATablesWidthNoValueLeavesThePage) {
    frmMaterial2 &window = open(SampleGrades::P265GH); // its creep table fits
    window.ShowTable("Design");
    for (int lastColumn : {6, 7, 8, 9, 10, 20}) {
        XArrayDB &values = *window.xDesignDB();
        values.ReDim(1, 6, 0, 30); // the rest is empty
        for (int column = 0; column <= lastColumn; ++column) {
            values.Set(1, column, QStringLiteral("band%1").arg(column));
            values.Set(2, column, QStringLiteral("value%1").arg(column));
        }
        values.Set(4, 0, "creep");
        values.Set(4, 1, "hours");
        actRepDesign wide;
        wide.Run();
        const QStringList printed = gridText(wide.document()).simplified().split(' ');
        EXPECT_EQ(printed.count("band0"), lastColumn < 8 ? 1 : lastColumn == 20 ? 3 : 2);
        for (int column = 1; column <= lastColumn; ++column)
            for (const char *kind : {"band", "value"})
                EXPECT_EQ(printed.count(kind + QString::number(column)), 1) << kind << column;
        expectOnPaper(wide.document());
    }
}

TEST_F(DesignReport, ACreepColumnWiderThanThePageStaysOnIt) {
    frmMaterial2 &window = open(SampleGrades::P265GH);
    window.ShowTable("Design");
    window.txtDesignTemp->setText("100");
    for (int wide : {0, 1, 3}) {
        QVector<float> sizes(5, 1250);
        sizes[wide] = 30000;
        material->setMechCreepColSize("CreepProp", sizes);
        actRepDesign made;
        made.Run();
        const QString printed = gridText(made.document());
        for (const char *value : {"241", "232", "223", "196", "182", "169"})
            EXPECT_EQ(printed.count(value), 1) << value << ' ' << wide;
        expectOnPaper(made.document());
    }
}

TEST_F(DesignReport, ABlockThatBeginsAPageTellsTheTemperature) {
    const int row = 283;
    run(SampleGrades::TubeMo3, "500");
    actRepDesign pushed;
    pushed.PageSetup.PaperHeight = pushed.PageSetup.TopMargin + pushed.PageSetup.BottomMargin + 13 * row;
    pushed.Run();
    ASSERT_GT(pushed.document().pages.size(), 1U);
    for (const Page &page : pushed.document().pages)
        EXPECT_TRUE(std::any_of(page.elements.begin(), page.elements.end(),
                                [](const Element &element) { return element.text == "500 °C"; }));
}
