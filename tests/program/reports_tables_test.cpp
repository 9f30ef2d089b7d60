// The sub-reports of tables: columns, headings, names and places of what is made at run time.
#include "platform/printing/text_output.h"
#include "reports/actRepBound.h"
#include "reports/actRepUnBound.h"
#include "tests/program/reports_fixture.h"

using namespace Printing;

namespace {

using TableReports = Reports;

/// A grade whose unbound table the test writes down: `columns` wide, the cell of row r and column c is "r.c".
class MadeTables : public Reports {
protected:
    void make(const QString &key, int rows, int columns, const QVector<float> &widths = {}) {
        if (!material) {
            material = program.material(SampleGrades::X5CrNi);
            main().mCurrent = material;
        }
        cells.ReDim(1, rows, 0, columns - 1);
        for (int row = 1; row <= rows; ++row)
            for (int column = 0; column < columns; ++column)
                cells.Set(row, column, QStringLiteral("%1.%2").arg(row).arg(column));
        for (int column = key == QLatin1String("ChemComp") ? 1 : 0; column < columns; ++column)
            material->AddColCaption(key, "H" + QString::number(column));
        material->setMechCreepColSize(key, widths);
    }
    void run(const QString &key) {
        material->SetUnboundArrayData(key, cells);
        report = runAlone<actRepUnBound>(key);
    }

    XArrayDB cells;
    std::unique_ptr<actRepUnBound> report;
};

} // namespace

TEST_F(TableReports, ImpactColumnsWithDataStandSideBySide) {
    open(SampleGrades::P265GH);
    const QStringList expected[] = {{},      {"KV"},        {"KVL"},        {"KV", "KVL"},
                                    {"KVT"}, {"KV", "KVT"}, {"KVL", "KVT"}, {"KV", "KVL", "KVT"}};
    const QStringList fields[] = {{},
                                  {"kv"},
                                  {"kvLong"},
                                  {"kv", "kvLong"},
                                  {"kvTrans"},
                                  {"kv", "kvTrans"},
                                  {"kvLong", "kvTrans"},
                                  {"kv", "kvLong", "kvTrans"}};
    for (qint16 columns = 0; columns <= 7; ++columns) {
        material->setImpEnergyCols(columns);
        const auto report = runAlone<actRepBound>("ImpEnergy");
        QStringList headings("Temperature||[°C]");
        for (const QString &name : expected[columns])
            headings << name + "||[Joule]";
        EXPECT_EQ(textsOf(*report, "ghTitle", "lblCol"), headings) << columns;
        QStringList bound;
        for (int i = 2; i <= 4; ++i) {
            const auto &field = controlOf<Field>(*report, "Detail", "txtField" + QString::number(i));
            if (field.Visible) bound << field.DataField;
        }
        EXPECT_EQ(bound, fields[columns]) << columns;
    }
}

TEST_F(TableReports, BandsBeyondTheThirdAreMadeAtRunTimeWithANarrowerSeparator) {
    open(SampleGrades::P265GH);
    const auto report = runAlone<actRepBound>("Rp02");
    for (int i = 5; i <= 7; ++i) {
        const QString number = QString::number(i);
        const QString before = QString::number(i - 1);
        for (const auto &[section, name] :
             {std::pair("ghTitle", "lblCol"), std::pair("Detail", "txtField")}) {
            const auto &made = controlOf<Field>(*report, section, name + number);
            const auto &preceding = controlOf(*report, section, name + before);
            EXPECT_EQ(made.Left, preceding.Left + preceding.Width);
            EXPECT_EQ(made.Width, preceding.Width);
            EXPECT_EQ(made.Height, preceding.Height);
            EXPECT_EQ(made.Font.Size, preceding.Font.Size);
            EXPECT_TRUE(made.Border.TopStyle == 1 && made.Border.RightStyle == 1 &&
                        made.Border.BottomStyle == 1);
        }
    }
}

TEST_F(TableReports, ManyBandsShareThePage) {
    open(SampleGrades::P265GH);
    // the first six have values
    material->setElevatedColumns("Rp02", {0, 16, 40, 60, 100, 150, 250, 300, 400, 500, 600});
    const auto report = runAlone<actRepBound>("Rp02");
    const auto &last = controlOf<Field>(*report, "Detail", "txtField11");
    EXPECT_EQ(last.Left + last.Width, 10200);
    EXPECT_EQ(controlOf(*report, "ghTitle", "lblCol11").Left, last.Left);
    EXPECT_EQ(controlOf(*report, "Detail", "txtField2").Width, last.Width);
}

TEST_F(TableReports, FormulasStandInThePlaceOfTheirHeadings) {
    open(SampleGrades::P265GH);
    const auto report = runAlone<actRepBound>("ThermExp");
    for (const auto &[image, label] : {std::pair("imgPhysA", "lblCol2"), std::pair("imgPhysB", "lblCol3")}) {
        const auto &picture = controlOf<Image>(*report, "ghTitle", image);
        const auto &heading = controlOf(*report, "ghTitle", label);
        EXPECT_FALSE(picture.Content.isNull());
        EXPECT_EQ(QRect(picture.Left, picture.Top, picture.Width, picture.Height),
                  QRect(heading.Left, heading.Top, heading.Width, heading.Height));
    }
}

TEST_F(TableReports, NotesAreHiddenWhereThereAreNone) {
    open(SampleGrades::P265GH);
    for (const auto &[notes, shown] :
         {std::pair("", false), std::pair("-", false), std::pair("a) note", true)}) {
        material->setTableNotes(main().GetTableIndex("Rp02"), notes);
        material->setTableNotes(main().GetTableIndex("MechProp"), notes);
        EXPECT_EQ(runAlone<actRepBound>("Rp02")->Sections("gfNotes").Visible, shown) << notes;
        EXPECT_EQ(runAlone<actRepUnBound>("MechProp")->Sections("gfNotes").Visible, shown) << notes;
    }
}

TEST_F(MadeTables, ACompositionOfTwelveColumnsFillsThePage) {
    make("ChemComp", 2, 12);
    run("ChemComp");
    EXPECT_FALSE(report->Sections("gfExtended").Visible);
    EXPECT_FALSE(controlOf(*report, "ghTitle", "lblTitle").Visible);
    const auto &last = controlOf<Field>(*report, "Detail", "Field11");
    EXPECT_EQ(last.Left + last.Width, 10200);
    EXPECT_EQ(last.Font.Size, 8);
    EXPECT_EQ(controlOf(*report, "ghTitle", "lblCaption0").Text, QString());
    EXPECT_EQ(controlOf(*report, "ghTitle", "lblCaption11").Text, "H11");
}

TEST_F(MadeTables, FurtherElementsStandInABlockOfTwoLines) {
    make("ChemComp", 2, 15);
    run("ChemComp");
    EXPECT_TRUE(report->Sections("gfExtended").Visible);
    EXPECT_FALSE(controlOf(*report, "gfExtended", "lblX_0").Visible);
    const auto &minimum = controlOf(*report, "gfExtended", "FieldExt");
    const auto &maximum = controlOf(*report, "gfExtended", "FieldExt0");
    int left = maximum.Left + maximum.Width;
    for (int column = 12; column <= 14; ++column) {
        const QString number = QString::number(column);
        const auto &upper = controlOf<Field>(*report, "gfExtended", "Field" + number);
        const auto &lower = controlOf<Field>(*report, "gfExtended", "FieldExt" + number);
        EXPECT_EQ(controlOf(*report, "gfExtended", "lblCaption" + number).Text, "H" + number);
        EXPECT_EQ(upper.Text, "1." + number);
        EXPECT_EQ(lower.Text, "2." + number);
        EXPECT_EQ(upper.Top, minimum.Top);
        EXPECT_EQ(lower.Top, maximum.Top);
        EXPECT_TRUE(upper.Left == left && lower.Left == left);
        left += upper.Width;
    }
}

TEST_F(MadeTables, OtherElementsArePrintedWhereThereAreAny) {
    make("ChemComp", 2, 3); // of a standard with other elements
    for (const auto &[text, shown] :
         {std::pair("", false), std::pair("-", false), std::pair("Ti 5 x C", true)}) {
        material->setOthersText(text);
        run("ChemComp");
        EXPECT_EQ(report->Sections("gfOther").Visible, shown) << text;
    }
}

TEST_F(MadeTables, ColumnsBeyondThePageStandBelowWithTheFirstColumnAgain) {
    make("MechProp", 3, 6, {1250, 3000, 3000, 2950, 1000, 900});
    run("MechProp");
    const auto &last = controlOf<Field>(*report, "Detail", "Field3");
    EXPECT_EQ(last.Left + last.Width, 10200);
    EXPECT_EQ(textsOf(*report, "ghTitle", "lblCaption"), QStringList({"H0", "H1", "H2", "H3"}));
    EXPECT_EQ(textsOf(*report, "gfExtended", "lblX_"), QStringList({"H0", "H4", "H5"}));
    const int widths[] = {1250, 1000, 900};
    for (int row = 1; row <= 3; ++row) {
        const QString name = QStringLiteral("FieldX%1_").arg(row);
        EXPECT_EQ(textsOf(*report, "gfExtended", name),
                  QStringList({QStringLiteral("%1.0").arg(row), QStringLiteral("%1.4").arg(row),
                               QStringLiteral("%1.5").arg(row)}));
        int left = 0;
        for (int i = 0; i < 3; ++i) {
            const auto &cell =
                controlOf<Field>(*report, "gfExtended", name + QString::number(i == 0 ? 0 : i + 3));
            EXPECT_EQ(cell.Left, left);
            EXPECT_EQ(cell.Width, widths[i]);
            EXPECT_EQ(cell.Top, controlOf(*report, "gfExtended", name + '0').Top);
            left += cell.Width;
        }
    }
    const auto &first = controlOf(*report, "gfExtended", "FieldX1_0");
    EXPECT_EQ(controlOf(*report, "gfExtended", "FieldX2_4").Top, first.Top + first.Height);
}

TEST_F(MadeTables, ABlockWiderThanThePageHasFurtherLines) {
    const struct {
        const char *key;
        int columns;
        int firstInBlock;
        const char *captionOfFirst;
        int lines;
    } cases[] = {{"MechProp", 8, 2, "lblX_0", 3}, {"ChemComp", 25, 12, "lblCapExt", 2}};
    for (const auto &item : cases) {
        make(item.key, 2, item.columns, QVector<float>(item.columns, 3400.4F));
        run(item.key);
        EXPECT_EQ(textsOf(*report, "gfExtended", item.captionOfFirst).size(), item.lines);
        expectOnPaper(report->document());
        const QStringList words = gridText(report->document()).simplified().split(' ');
        for (int column = item.firstInBlock; column < item.columns; ++column) {
            EXPECT_EQ(words.count('H' + QString::number(column)), 1) << item.key << column;
            for (int row : {1, 2})
                EXPECT_EQ(words.count(QStringLiteral("%1.%2").arg(row).arg(column)), 1)
                    << item.key << row << '.' << column;
        }
    }
}

TEST_F(MadeTables, ATableOfExactlyThePagesWidthHasNoBlock) {
    make("MechProp", 1, 3, {3400, 3400, 3400});
    run("MechProp");
    EXPECT_FALSE(report->Sections("gfExtended").Visible);
}

TEST_F(MadeTables, AColumnWiderThanThePageLeavesRoomForTheOthers) {
    make("MechProp", 1, 2);
    for (const QVector<float> &widths :
         {QVector<float>{10201, 780}, {9800, 780}, {30000, 30000}, {1250, 30000}}) {
        material->setMechCreepColSize("MechProp", widths);
        run("MechProp");
        EXPECT_EQ(textsOf(*report, "Detail", "Field"), QStringList("1.0"));
        EXPECT_EQ(textsOf(*report, "gfExtended", "FieldX"), QStringList({"1.0", "1.1"}));
        expectOnPaper(report->document());
    }
}

TEST_F(MadeTables, EmptyCreepColumnsTakeNoPlace) {
    make("CreepProp", 2, 6, {1250, 4000, 4000, 4000, 900, 4000});
    for (int row : {1, 2}) {
        cells.Set(row, 2, row == 1 ? "-" : " ");
        cells.Set(row, 5, QString());
    }
    run("CreepProp");
    EXPECT_EQ(textsOf(*report, "ghTitle", "lblCaption"), QStringList({"H0", "H1", "H3", "H4"}));
    EXPECT_FALSE(report->Sections("gfExtended").Visible);
    EXPECT_EQ(textsOf(*report, "Detail", "Field"), QStringList({"2.0", "2.1", "2.3", "2.4"}));

    material->setMechCreepColSize("CreepProp", {1250, 4000, 4000, 4000, 951, 4000});
    run("CreepProp");
    EXPECT_EQ(textsOf(*report, "gfExtended", "lblX_"), QStringList({"H0", "H4"}));
}
