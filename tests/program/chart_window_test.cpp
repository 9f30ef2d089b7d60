// Graphs in real material windows, and the enlarged graph.
#include <gtest/gtest.h>

#include <QTest>

#include "material/frmChart.h"
#include "material/frmMaterial2.h"
#include "platform/forms/colours.h"
#include "platform/forms/status_bar.h"
#include "shell/mdiVelmar.h"
#include "tests/support/gui.h"
#include "tests/support/program.h"
#include "tests/support/small_database.h"

namespace {

const QStringList ChartRows = {
    "Rp02 values (1, 100, 16, 1, '220'), (1, 200, 16, 2, '(200)'), (1, 100, 40, 1, '210'), (1, 300, 40, 3, "
    "'150')",
    "Rm values (1, 20, 60, 1, '410'), (2, 20, -1, 1, '400'), (2, 100, -1, 2, '380')",
    "SpecElecRes values (1, 20, '0,18'), (1, 100, 'none')",
    "ThermExp values (1, 20, null, '11,4'), (1, 100, '12,0', '12,3')",
    "ImpEnergy values (1, 20, '40', null, null)",
    "Units values (1, '[°C]'), (2, '[MPa]')",
    "Columns values (1, 'Temperature', 1), (2, 'A', 2), (3, 'B', 2), (4, 'C', 2), (5, 'ReH', 2)",
    "CreepPropTable values (1, 1, 1, null, null, 1000), (1, 2, 2, null, null, 900), (1, 3, 3, null, null, "
    "0), "
    "(1, 4, 4, null, null, 0)",
    "CreepProperties values (1, 1, 1, 1, '400'), (1, 1, 2, 2, '-'), (1, 1, 3, 3, '90 *'), (1, 1, 4, 4, "
    "'80'), "
    "(1, 2, 1, 1, '450'), (1, 2, 2, 2, '-'), (1, 2, 3, 3, '70'), (1, 2, 4, 4, null)",
    "MechMatTable values (1, 5, 1, null, null, 900)",
    "MechPropData values (1, 1, 1, 5, '235'), (1, 2, 1, 5, '225')",
};

// "100;220|200;200" : the cells of a row parted by semicolons.
QString points(const MSChart &chart) {
    QStringList rows;
    const XArrayDB &cells = chart.ChartData();
    for (int row = 1; row <= cells.UpperBound(1); ++row) {
        QStringList texts;
        for (int column = 0; column <= cells.UpperBound(2); ++column)
            texts << cells.Get(row, column).toString();
        rows << texts.join(';');
    }
    return rows.join('|');
}

// Title, axes, legend, and the labels of the curves.
QString dress(MSChart &chart) {
    QStringList texts{chart.TitleText(), chart.AxisTitle(0), chart.AxisTitle(1),
                      chart.ShowLegend() ? "legend" : "no legend"};
    for (int column = 1; chart.ShowLegend() && column <= chart.ColumnCount(); column += 2) {
        chart.setColumn(column);
        texts << chart.ColumnLabel();
    }
    return texts.join(" / ");
}

class ChartWindowTest : public ::testing::Test {
protected:
    TestProgram program{smallDatabase(ChartRows), u',', u'.'};
    frmMaterial2 &window = program.open(program.material(1));

    void expectChart(const char *expectedDress, const char *expectedPoints) {
        EXPECT_FALSE(window.MSChart1->isHidden());
        EXPECT_EQ(dress(*window.MSChart1).toStdString(), expectedDress);
        EXPECT_EQ(points(*window.MSChart1).toStdString(), expectedPoints);
        for (int index : {0, 1, 2})
            EXPECT_TRUE(window.cmdPrintSave(index)->isEnabled());
    }
};

TEST_F(ChartWindowTest, EachTableOverTemperatureHasItsGraph) {
    window.ShowTable("Rp02");
    expectChart("Minimum values for Rp0,2 [MPa] at elevated temperature / Temperature [°C] /  / legend / "
                "(   ) - 16mm / (16) - 40mm",
                "100;220;100;210|200;200;200;|300;;300;150");
    window.ShowTable("Rm");
    expectChart("Minimum values for Rm [MPa] at elevated temperature / Temperature [°C] /  / legend / "
                "(   ) - 60mm",
                "20;410");
    window.ShowTable("SpecElecRes");
    expectChart("Specific electrical resistance / Temperature [°C] / [MPa] / no legend", "20;0,18|100;");
    window.ShowTable("ThermExp");
    expectChart("Thermal expansion / Temperature [°C] / [E-6/K] / legend / ThermExp / ThermExpDiff",
                "20;;20;11,4|100;12,0;100;12,3");
    window.ShowTable("ModElast"); // has no rows
    EXPECT_TRUE(window.MSChart1->isHidden());
    for (int index : {0, 1, 2})
        EXPECT_FALSE(window.cmdPrintSave(index)->isEnabled());

    frmMaterial2 &other = program.open(program.material(2));
    other.ShowTable("Rm");
    EXPECT_EQ(dress(*other.MSChart1), QStringLiteral("Minimum values for Rm [MPa] at elevated temperature / "
                                                     "Temperature [°C] / Rm  [MPa] / no legend"));
}

TEST_F(ChartWindowTest, CreepColumnsArePickedByName) {
    window.ShowTable("CreepProp");
    EXPECT_EQ(window.lblXAxis->text(), QStringLiteral("Temperature [°C]"));
    ASSERT_EQ(window.cboColumnList->count(), 2); // the empty column is not offered
    expectChart("Creep properties / Temperature [°C] / B [MPa] / no legend", "400;90|450;70");
    window.cboColumnList->setCurrentIndex(1);
    expectChart("Creep properties / Temperature [°C] / C [MPa] / no legend", "400;80|450;");
    window.cboColumnList->setCurrentIndex(-1);
    expectChart("Creep properties / Temperature [°C] / C [MPa] / no legend", "400;80|450;");

    // The chart of mechanical properties is never seen, and is titled as creep.
    window.ShowTable("MechProp");
    EXPECT_EQ(window.MSChart1->TitleText(), QStringLiteral("Creep properties"));
    EXPECT_TRUE(window.cmdUnBoundGraph->isHidden());
    EXPECT_EQ(points(*window.MSChart1).toStdString(), ";|;");
}

TEST_F(ChartWindowTest, TableAndGraphChangePlaces) {
    window.ShowTable("Rp02");
    window.CommandShowGraph->click();
    EXPECT_TRUE(window.framChart->isVisible());
    EXPECT_FALSE(window.tdbBoundTable->isVisible());
    EXPECT_TRUE(window.CommandShowTable->isVisible());
    EXPECT_FALSE(window.CommandShowGraph->isVisible());
    window.optMechProp(2)->click(); // the choice goes on to the next table, with its own graph
    EXPECT_TRUE(window.framChart->isVisible());
    EXPECT_EQ(points(*window.MSChart1), QStringLiteral("20;410"));
    window.CommandShowTable->click();
    EXPECT_FALSE(window.framChart->isVisible());
    EXPECT_TRUE(window.tdbBoundTable->isVisible());

    // Looking through all tables passes some without data, after which tables show as tables.
    window.CommandShowGraph->click();
    window.CheckTablesForRecords();
    EXPECT_FALSE(window.framChart->isVisible());
    EXPECT_TRUE(window.tdbBoundTable->isVisible());

    window.ShowTable("CreepProp");
    window.cmdUnBoundGraph->click();
    EXPECT_TRUE(window.framChart->isVisible());
    EXPECT_TRUE(window.framAxisCols->isVisible());
    EXPECT_FALSE(window.tdbTable->isVisible());
    window.cmdUnBoundTable->click();
    EXPECT_FALSE(window.framChart->isVisible());
    EXPECT_TRUE(window.tdbTable->isVisible());
}

TEST_F(ChartWindowTest, ByKeysTheFocusGoesToTheButtonThatLeadsBack) {
    const auto expectFocus = [&](QPushButton *pressed, QPushButton *counterpart) {
        pressed->setFocus();
        QTest::keyClick(pressed, Qt::Key_Space);
        EXPECT_EQ(window.focusWidget(), counterpart) << pressed->objectName().toStdString();
    };
    window.ShowTable("Rp02");
    expectFocus(window.CommandShowGraph, window.CommandShowTable);
    expectFocus(window.CommandShowTable, window.CommandShowGraph);
    window.ShowTable("CreepProp");
    expectFocus(window.cmdUnBoundGraph, window.cmdUnBoundTable);
    expectFocus(window.cmdUnBoundTable, window.cmdUnBoundGraph);
}

TEST_F(ChartWindowTest, TheEnlargedGraphIsACopy) {
    mdiVelmar &main = mdiVelmar::instance();
    main.ShowStatus(1);
    const auto status = [&main] { return main.stbStatus->PanelText(1); };
    const QString before = status();
    for (const char *key : {"Rp02", "CreepProp"}) {
        window.ShowTable(key);
        modal().driveForm([&](Form &form) {
            auto &enlarged = dynamic_cast<frmChart &>(form);
            EXPECT_EQ(dress(*enlarged.MSChart1), dress(*window.MSChart1));
            EXPECT_EQ(points(*enlarged.MSChart1), points(*window.MSChart1));
            EXPECT_EQ(enlarged.Caption(), window.Caption());
            EXPECT_EQ(enlarged.strCurrentTable, QString(key));
            EXPECT_NE(status(), before);
            for (int index : {2, 0, 1}) {
                EXPECT_EQ(enlarged.focusWidget(), enlarged.cmdGraph(index));
                QTest::keyClick(enlarged.focusWidget(), Qt::Key_Tab);
            }
            const QSize small = enlarged.MSChart1->size();
            enlarged.setWidth(enlarged.Width() + 1500);
            EXPECT_EQ(enlarged.MSChart1->width(), small.width() + 100);
            enlarged.cmdGraph(2)->click();
        });
        window.cmdPrintSave(2)->click();
        EXPECT_EQ(status(), before);
    }
}

TEST_F(ChartWindowTest, TheEnlargedGraphFollowsTheSettings) {
    window.ShowTable("Rp02");
    mdiVelmar &main = mdiVelmar::instance();
    for (bool on : {true, false}) {
        main.bToolTips = on;
        main.menu.mnuSettingsElem(2).setChecked(on);
        modal().driveForm([&](Form &form) {
            auto &enlarged = dynamic_cast<frmChart &>(form);
            EXPECT_EQ(enlarged.cmdGraph(1)->toolTip(), on ? QString("Print Graph") : QString());
            EXPECT_EQ(enlarged.framChart->palette().color(QPalette::Window) == Qt::white, !on);
            QTest::keyClick(&enlarged, Qt::Key_Escape);
        });
        window.cmdPrintSave(2)->click();
    }
}

} // namespace
