// Design values in real material windows, typed into the real box.
#include <gtest/gtest.h>

#include <QAbstractItemModel>
#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>

#include "material/frmMaterial2.h"
#include "shell/mdiVelmar.h"
#include "tests/support/gui.h"
#include "tests/support/program.h"
#include "tests/support/small_database.h"

namespace {

/// Under a decimal comma unless told otherwise.
class SmallProgram : public TestProgram {
public:
    explicit SmallProgram(const QStringList &inserts, char16_t decimalSign = u',', char16_t groupSign = u'.')
        : TestProgram(smallDatabase(inserts), decimalSign, groupSign) {}
    frmMaterial2 &open(int matID) { return TestProgram::open(material(matID)); }
};

const QString Rp02 = "Rp02 (matID, temp, thickness, ordering, Rp02) values ";
const QString Rm = "Rm (matID, temp, thickness, ordering, Rm) values ";
const QString PlainRm = Rm + "(1, 20, -1, 1, '410'), (1, 100, -1, 2, '390')";

void type(frmMaterial2 &window, const QString &keys) {
    QTest::keyClick(window.txtDesignTemp, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(window.txtDesignTemp, keys);
}

// "220;200|-" : the values of each table, parted by strokes, as far as its captions go.
QString values(const frmMaterial2 &window) {
    const TDBGrid &grid = *window.tdbDesign;
    QStringList tables;
    for (int row = 1; row < grid.RowCount(); row += 3) {
        QStringList cells;
        for (int column = 1; column < grid.ColumnCount() && !grid.CellText(row - 1, column).isEmpty();
             ++column)
            cells << grid.CellText(row, column);
        tables << cells.join(';');
    }
    return tables.join('|');
}

QString captions(const frmMaterial2 &window) {
    const TDBGrid &grid = *window.tdbDesign;
    QStringList tables;
    for (int row = 0; row < grid.RowCount(); row += 3) {
        QStringList cells;
        for (int column = 0; column < grid.ColumnCount(); ++column)
            cells << grid.CellText(row, column).replace('\n', ' ').simplified();
        tables << cells.join(';');
    }
    return tables.join('|');
}

// How often the values were computed: each time the grid is bound anew.
class Recomputations {
public:
    explicit Recomputations(frmMaterial2 &window)
        : m_resets(window.tdbDesign->findChild<QAbstractItemModel *>(), &QAbstractItemModel::modelReset) {}
    qsizetype take() {
        const qsizetype count = m_resets.count();
        m_resets.clear();
        return count;
    }

private:
    QSignalSpy m_resets;
};

const QStringList NineTables = {
    Rp02 + "(1, 100, 16, 1, '220'), (1, 200, 16, 2, '(200)'), (1, 100, 40, 1, '210'), (1, 300, 40, 3, '150')",
    "Rp10 (matID, temp, thickness, ordering, Rp10) values (1, 50, -1, 1, '250'), (1, 150, -1, 2, '240,5')",
    Rm + "(1, 20, 60, 1, '410')",
    "Units values (1, '[NoUnit]'), (2, '[MPa]')",
    "Columns values (1, 'Temperature', 1), (2, 'Creep A', 2), (3, 'Creep B', 2), (4, 'Creep C', 2)",
    "CreepPropTable values (1, 1, 1, null, null, 1000), (1, 2, 2, null, 'min', 900), (1, 3, 3, null, null, "
    "0), "
    "(1, 4, 4, null, null, 0)",
    "CreepProperties values (1, 1, 1, 1, '400'), (1, 1, 2, 2, '164'), (1, 1, 3, 3, '-'), (1, 1, 4, 4, '80'), "
    "(1, 2, 1, 1, '450'), (1, 2, 2, 2, '118 *'), (1, 2, 3, 3, ' '), (1, 2, 4, 4, null)",
    "ModElast values (1, 20, 212), (1, 100, 206)",
    "ThermExp values (1, 20, null, '11,4'), (1, 100, '12,0', '12,3')",
    "ThermCond values (1, 20, '55'), (1, 100, '53,5')",
    "SpecThermCap values (1, 20, '460', '455'), (1, 100, '480', '490')",
    "SpecElecRes values (1, 20, '0,18'), (1, 100, '0,25')",
};

TEST(DesignWindowTest, AreCopiedWithTheCaptionsOfTheirTables) {
    SmallProgram program(NineTables);
    frmMaterial2 &window = program.open(1);
    window.ShowTable("Design");
    type(window, "100");
    auto *view = window.tdbDesign->findChild<QTableView *>();
    const auto cell = [view](int row, int column) { return view->model()->index(row, column); };
    view->selectionModel()->select({cell(1, 1), cell(4, 1)}, QItemSelectionModel::ClearAndSelect);
    auto *copy = view->findChild<QAction *>("CopyWithHeadings");
    ASSERT_NE(copy, nullptr);
    copy->trigger();
    EXPECT_EQ(QGuiApplication::clipboard()->text(),
              "Rp0,2 [MPa]\t(  ) - 16mm\n\t(220)\n\t\nRp1,0 [MPa]\t[MPa]\n\t245,25");
}

TEST(DesignWindowTest, AllTablesStandUnderTheirCaptions) {
    SmallProgram program(NineTables);
    frmMaterial2 &window = program.open(1);
    window.ShowTable("Design");
    EXPECT_EQ(window.strCurrentTable, QStringLiteral("Design"));
    EXPECT_EQ(captions(window).toStdString(),
              "Rp0,2 [MPa];( ) - 16mm;(16) - 40mm|Rp1,0 [MPa];[MPa];|Rm [MPa];( ) - 60mm;|"
              "Creep Properties;Creep A [MPa] min;Creep C [MPa]|ModElast;[kN/mm];|"
              "ThermExp;ß20, t [E-6/K];ßdiff, t [E-6/K]|ThermCond;[W/m*K];|"
              "SpecThermCap;Cp20, t [J/kgK];Cp diff, t [J/kgK]|Ohm x mm² / m;[MPa];");
    EXPECT_EQ(window.tdbDesign->CellText(0, 1), QStringLiteral("(  ) - 16mm"));
    EXPECT_EQ(window.xDesignDB()->UpperBound(1), 27);
    EXPECT_EQ(window.xDesignDB()->UpperBound(2), 2);
    EXPECT_EQ(values(window), QStringLiteral(";|||;||;||;|")) << "nothing computed yet";
    const struct {
        const char *keys, *values;
    } cases[] = {
        {"20", "-;-|-|410|-;-|212|x;11,4|55|460;455|0,18"},
        {"60", "-;-|249,05|+|-;-|209,00|x;11,85|54,25|470,00;472,50|0,22"},
        {"100", "(220);210|245,25|+|-;-|206|12,0;12,3|53,5|480;490|0,25"},
        {"150", "(210,00);x|240,5|+|-;-|+|+;+|+|+;+|+"},
        {"150,0", "(210,00);x|240,50|+|-;-|+|+;+|+|+;+|+"},
        {"425", "+;+|+|+|141,00 *;x|+|+;+|+|+;+|+"},
        {"-3", "-;-|-|-|-;-|-|-;-|-|-;-|-"},
    };
    for (const auto &item : cases) {
        type(window, item.keys);
        EXPECT_EQ(values(window).toStdString(), item.values) << item.keys;
    }
    type(window, "-");
    EXPECT_EQ(values(window).toStdString(), cases[6].values) << "a sign alone leaves the old values";
}

TEST(DesignWindowTest, EverySettingOfTheSystemShowsADecimalComma) {
    const struct {
        char16_t decimalSign, groupSign;
        const char *values;
    } countries[] = {
        {u'.', u',', "409.5|409,13"}, {u',', u'.', "409,5|409,13"}, {u',', u' ', "409,5|409,13"}};
    for (const auto &country : countries) {
        SmallProgram program({Rm + "(1, 20, -1, 1, '409.5'), (1, 60, -1, 2, '409')"}, country.decimalSign,
                             country.groupSign);
        frmMaterial2 &window = program.open(1);
        window.ShowTable("Design");
        type(window, "20");
        QString shown = values(window);
        type(window, "49.6"); // 409,5 - 29,6 / 80
        EXPECT_EQ(window.txtDesignTemp->text(), QStringLiteral("49,6"));
        EXPECT_EQ((shown + '|' + values(window)).toStdString(), country.values);
    }
    SmallProgram swiss({Rm + "(1, 20, -1, 1, '409.5'), (1, 60, -1, 2, '409')"}, u'.', u'\'');
    frmMaterial2 &window = swiss.open(1);
    window.ShowTable("Design");
    type(window, "30");
    EXPECT_EQ(values(window), QStringLiteral("409,38")); // 409,375
    modal().answerMsgBox(1);
    type(window, "30,");
    EXPECT_EQ(modal().lastAsked().text, QStringLiteral("Type mismatch"));
    EXPECT_EQ(window.txtDesignTemp->text(), QString());
    EXPECT_EQ(values(window), QStringLiteral("409,38"));
}

TEST(DesignWindowTest, OneTemperatureHoldsForAllWindows) {
    QStringList rows;
    for (int matID = 1; matID <= 10; ++matID)
        rows << Rm + QStringLiteral("(%1, 20, -1, 1, '%2'), (%1, 100, -1, 2, '390')")
                         .arg(matID)
                         .arg(400 + matID);
    SmallProgram program(rows);
    QList<frmMaterial2 *> windows;
    std::vector<std::unique_ptr<Recomputations>> counts;
    for (int matID = 1; matID <= 10; ++matID) {
        windows << &program.open(matID);
        windows.last()->ShowTable("Design");
        counts.push_back(std::make_unique<Recomputations>(*windows.last()));
    }
    const auto spread = [&](const QString &temperature, qsizetype times) {
        for (int i = 0; i < 10; ++i) {
            const auto &window = *windows[i];
            EXPECT_EQ(window.txtDesignTemp->text(), temperature) << i;
            EXPECT_EQ(counts[static_cast<std::size_t>(i)]->take(), times) << i;
        }
    };
    type(*windows[3], "2");
    spread("2", 1);
    QTest::keyClick(windows[3]->txtDesignTemp, '0');
    spread("20", 1);
    EXPECT_EQ(values(*windows[9]), QStringLiteral("410"));
    QTest::keyClick(windows[7]->txtDesignTemp, Qt::Key_Backspace);
    spread("2", 1);

    // Delete is no typed key: a window that does not lead keeps its change to itself
    QTest::keyClick(windows[0]->txtDesignTemp, Qt::Key_Home);
    QTest::keyClick(windows[0]->txtDesignTemp, Qt::Key_Delete);
    EXPECT_EQ(windows[0]->txtDesignTemp->text(), QString());
    EXPECT_EQ(windows[1]->txtDesignTemp->text(), QStringLiteral("2"));

    // Enter computes in its own window only
    QTest::keyClick(windows[1]->txtDesignTemp, Qt::Key_Return);
    EXPECT_EQ(counts[1]->take(), 1);
    EXPECT_EQ(counts[2]->take(), 0);

    QGuiApplication::clipboard()->setText("55");
    QTest::mousePress(windows[2]->txtDesignTemp, Qt::RightButton);
    windows[2]->txtDesignTemp->selectAll();
    windows[2]->txtDesignTemp->paste();
    spread("55", 1);
}

TEST(DesignWindowTest, ADecimalSignThatIsLeftAloneIsForgottenWithTheText) {
    SmallProgram program({PlainRm});
    frmMaterial2 &window = program.open(1);
    window.ShowTable("Design");
    type(window, "5,");
    QTest::keyClick(window.txtDesignTemp, Qt::Key_Home);
    QTest::keyClick(window.txtDesignTemp, Qt::Key_Delete);
    EXPECT_EQ(window.txtDesignTemp->text(), "");
    QTest::keyClicks(window.txtDesignTemp, "62,5");
    EXPECT_EQ(window.txtDesignTemp->text(), "62,5") << "and not 625";
}

TEST(DesignWindowTest, WindowsOfTheSameCaptionAndDisabledBoxesAreLeftOut) {
    SmallProgram program({PlainRm, Rm + "(2, 20, -1, 1, '420')"});
    frmMaterial2 &first = program.open(1);
    frmMaterial2 &twin = program.open(2);
    frmMaterial2 &bare = program.open(3);
    twin.setCaption(first.Caption());
    for (frmMaterial2 *window : {&first, &twin, &bare})
        window->ShowTable("Design");
    EXPECT_FALSE(bare.txtDesignTemp->isEnabled());
    EXPECT_FALSE(bare.cmdPrintSave(3)->isEnabled());
    EXPECT_FALSE(bare.cmdPrintSave(4)->isEnabled());
    type(first, "20");
    EXPECT_EQ(values(first), QStringLiteral("410"));
    EXPECT_EQ(twin.txtDesignTemp->text(), QString());
    EXPECT_EQ(bare.txtDesignTemp->text(), QString());
}

TEST(DesignWindowTest, AWindowWithoutDesignTableFailsAndEmptiesItsOwnBox) {
    SmallProgram program({PlainRm, Rm + "(2, 20, -1, 1, '420')"});
    frmMaterial2 &built = program.open(1);
    frmMaterial2 &unbuilt = program.open(2);
    built.ShowTable("Design");
    modal().answerMsgBox(1);
    type(built, "2");
    EXPECT_EQ(modal().lastAsked().text, QStringLiteral("Subscript out of range"));
    EXPECT_EQ(unbuilt.txtDesignTemp->text(), QString());
    EXPECT_EQ(built.txtDesignTemp->text(), QStringLiteral("2"));
    EXPECT_EQ(values(built), QStringLiteral("-"));

    unbuilt.txtDesignTemp->setEnabled(false);
    type(built, "60");
    EXPECT_EQ(values(built), QStringLiteral("400,00"));
}

TEST(DesignWindowTest, AFailureIsToldAndLeavesWhatWasWritten) {
    const struct {
        const char *badRows, *message, *values; // of Rp02, Rm and ModElast
    } cases[] = {
        {"(1, 20, 16, 1, '7'), (1, 80, 16, 2, '9'), (1, 20, 40, 1, '-'), (1, 80, 40, 2, '6'), (1, 20, 60, 1, "
         "'3')",
         "Type mismatch", "201,00|8,00;;|"}, // the bands before it are written
        {"(1, 20, -1, 1, '1'), (1, 80, -1, 2, '3-4')", "Type mismatch", "201,00||"},
        {"(1, null, -1, 1, '1'), (1, 80, -1, 2, '3')", "Type mismatch", "201,00||"},
    };
    for (const auto &item : cases) {
        SmallProgram program({Rp02 + "(1, 0, -1, 1, '202'), (1, 100, -1, 2, '200')", Rm + item.badRows,
                              "ModElast values (1, 0, 212), (1, 100, 200)"});
        frmMaterial2 &window = program.open(1);
        window.ShowTable("Design");
        modal().answerMsgBox(1);
        window.txtDesignTemp->setText("50");
        EXPECT_EQ(modal().lastAsked().text, QString(item.message));
        EXPECT_EQ(modal().lastAsked().style, 0);
        EXPECT_EQ(window.txtDesignTemp->text(), QString());
        EXPECT_EQ(values(window).toStdString(), item.values);
    }
}

TEST(DesignWindowTest, ATableWiderThanTheArrayFailsWhereItEnds) {
    const QStringList allEmptyCreep = {
        "Columns values (1, 'Temperature', 1), (2, 'A', 1)",
        "CreepPropTable values (1, 1, 1, null, null, 0), (1, 2, 2, null, null, 0)",
        "CreepProperties values (1, 1, 1, 1, '-'), (1, 1, 2, 2, '-'), (1, 2, 1, 1, '-'), (1, 2, 2, 2, null)",
    };
    const QStringList rows = {
        Rp02 + "(1, 0, 16, 1, '202'), (1, 100, 16, 2, '200'), (1, 0, 40, 1, '192'), (1, 100, 40, 2, '190')",
        "ModElast values (1, 0, 212), (1, 100, 200), (2, 0, 210), (2, 100, 200)",
        "ThermExp values (2, 50, '12', '13')",
    };
    SmallProgram program(allEmptyCreep + rows);
    // No creep column is kept, and the width is forgotten with them.
    frmMaterial2 &creep = program.open(1);
    creep.ShowTable("Design");
    EXPECT_EQ(captions(creep).toStdString(), "Rp0,2 [MPa];( ) - 16mm|Creep Properties;|ModElast;[kN/mm]");
    modal().answerMsgBox(1);
    creep.txtDesignTemp->setText("50");
    EXPECT_EQ(modal().lastAsked().text, QStringLiteral("Subscript out of range"));
    EXPECT_EQ(values(creep), QStringLiteral("201,00||"));

    // One row of thermal expansion makes room for one of its two columns.
    frmMaterial2 &expansion = program.open(2);
    expansion.ShowTable("Design");
    modal().answerMsgBox(1);
    expansion.txtDesignTemp->setText("50");
    EXPECT_EQ(values(expansion), QStringLiteral("205,00|12"));
}

TEST(DesignWindowTest, ACreepTableOfEmptyColumnsHasNoValues) {
    SmallProgram program({"Columns values (1, 'Temperature', 1)",
                          "CreepPropTable values (1, 1, 1, null, null, 0)",
                          "CreepProperties values (1, 1, 1, 1, '-'), (1, 2, 1, 1, '-')",
                          "ModElast values (1, 0, 212), (1, 100, 200)"});
    frmMaterial2 &window = program.open(1);
    window.ShowTable("Design");
    type(window, "5");
    EXPECT_EQ(values(window), QStringLiteral("|211,40"));
}

} // namespace
