// Find by Value in its real window: what is found against a calculation of its own from the sample's texts,
// and what keys, headings and a stopped reading do.
#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QTimer>

#include "platform/forms/msg_box.h"
#include "search/frmSearch.h"
#include "shell/main_menu.h"
#include "tests/values/plain_sample.h"
#include "tests/workbench/workbench_fixture.h"
#include "workbench/frmFindValue.h"
#include "workbench/PropertyPlot.h"
#include "workbench/TableReading.h"

namespace {

struct Wanted {
    const char *property;
    int celsius;
    std::optional<double> thickness;
    int least;
};

class FindValue : public WorkbenchFixture {
protected:
    frmFindValue &window() { return open<frmFindValue>(ToolsEntry::FindByValue); }

    static void choose(frmFindValue &window, int condition, const QString &label) {
        auto *list = window.cboProperty(condition);
        ASSERT_GE(list->findText(label), 0);
        list->setCurrentIndex(list->findText(label));
    }
    static void typeCondition(frmFindValue &window, int condition, const QStringList &texts) {
        const QList<QLineEdit *> boxes = window.boxesOf(condition);
        for (int i = 0; i < texts.size(); ++i)
            retype(boxes[i], texts[i]);
    }

    /// The best value of each grade in thousandths, of those that have one at least as great.
    std::map<int, qint64> found(const Wanted &wanted) {
        std::map<int, qint64> best;
        for (int grade = 1; grade <= 38; ++grade)
            for (const auto &value :
                 m_sample.at(wanted.property, grade, wanted.celsius * 10, wanted.thickness).values)
                if (value.number >= wanted.least * 1000 &&
                    (!best.contains(grade) || value.number > best[grade]))
                    best[grade] = value.number;
        return best;
    }

    /// Standard and name, by the identity.
    static QString title(int grade) {
        static const CsvTable materials = CsvTable::read(SOURCE_FOLDER "/sample/csv/materials.csv");
        for (const auto &row : materials.rows)
            if (row[0].toInt() == grade) return row[6].toString() + " " + row[1].toString();
        return {};
    }
    static QStringList titles(const TDBGrid &grid) {
        QStringList titles;
        for (int row = 0; row < grid.RowCount(); ++row)
            titles << grid.CellText(row, 0) + " " + grid.CellText(row, 1);
        return titles;
    }
    static qint64 thousandths(const QString &text) {
        QString digits = text;
        digits.remove(QRegularExpression("[^0-9,]"));
        return qRound64(digits.replace(',', '.').toDouble() * 1000);
    }

    PlainSample m_sample;
};

} // namespace

TEST_F(FindValue, FindsWhatAPlainCalculationFindsBestFirst) {
    frmFindValue &find = window();
    EXPECT_EQ(find.tdbFound->RowCount(), 0);
    EXPECT_EQ(find.lblLeft(0)->text(), "Type a temperature in °C.");
    typeCondition(find, 0, {"310", "40", "150"});
    ASSERT_EQ(find.tdbFound->RowCount(), std::ssize(found({"Rp02", 310, 40, 150})));
    qint64 before = std::numeric_limits<qint64>::max();
    for (int row = 0; row < find.tdbFound->RowCount(); ++row) {
        const qint64 value = thousandths(find.tdbFound->CellText(row, 5));
        EXPECT_LE(value, before);
        before = value;
    }
    EXPECT_TRUE(find.lblSummary->text().startsWith(
        QString("%1 of 38 grades; no value at 310 °C in ").arg(find.tdbFound->RowCount())));
}

TEST_F(FindValue, EachConditionShowsWhatItLeaves) {
    frmFindValue &find = window();
    typeCondition(find, 0, {"310", "40", "150"});
    click(find.cmdAdd);
    EXPECT_EQ(find.txtTemperature(1)->text(), "310"); // that of the one before
    choose(find, 1, "Modulus of elasticity");
    typeCondition(find, 1, {"200", "", "200"});
    const auto first = found({"Rp02", 310, 40, 150});
    const auto second = found({"ModElast", 200, {}, 200});
    const auto both = std::count_if(first.begin(), first.end(),
                                    [&](const auto &each) { return second.contains(each.first); });
    ASSERT_GT(both, 0);
    ASSERT_LT(both, std::ssize(first));
    EXPECT_EQ(find.lblLeft(0)->text(), QString("leaves %1 grades").arg(first.size()));
    EXPECT_EQ(find.lblLeft(1)->text(), QString("leaves %1 grades").arg(both));
    click(find.cmdRemove(0));
    EXPECT_EQ(find.cboProperty(0)->currentText(), "Modulus of elasticity");
    EXPECT_EQ(find.tdbFound->RowCount(), std::ssize(second));
    EXPECT_FALSE(find.cmdRemove(0)->isEnabled());
    type(find.txtStandard, "10216");
    const auto ofStandard = std::count_if(
        second.begin(), second.end(), [](const auto &each) { return title(each.first).contains("10216"); });
    EXPECT_EQ(find.tdbFound->RowCount(), ofStandard);
    for (int i = 1; i < 5; ++i)
        click(find.cmdAdd);
    EXPECT_FALSE(find.cmdAdd->isEnabled());
}

TEST_F(FindValue, WhatIsWrongStandsBesideItsCondition) {
    frmFindValue &find = window();
    const std::pair<QStringList, QString> faults[] = {
        {{"30x", "", ""}, "'30x' is no temperature."},
        {{"300", "0", ""}, "A thickness is greater than 0 mm."},
        {{"300", "40", "15o", "1 2"}, "'15o' is no number. '1 2' is no number."},
        {{"300", "40", "200", "150"}, "No number is at least the one and at most the other."}};
    for (const auto &[texts, sentence] : faults) {
        typeCondition(find, 0, {"300", "40", "150", ""});
        EXPECT_GT(find.tdbFound->RowCount(), 0);
        typeCondition(find, 0, texts);
        EXPECT_EQ(find.lblLeft(0)->text().toStdString(), sentence.toStdString());
        EXPECT_EQ(find.txtTemperature(0)->accessibleDescription(), sentence);
        EXPECT_EQ(find.tdbFound->RowCount(), 0);
        EXPECT_FALSE(find.cmdSelect->isEnabled() || find.cmdCopy->isEnabled() || find.cmdSave->isEnabled());
    }
}

TEST_F(FindValue, HeadingsSortAndTurnRound) {
    frmFindValue &find = window();
    typeCondition(find, 0, {"300", "40", "", ""});
    const QStringList bestFirst = titles(*find.tdbFound);
    Q_EMIT find.tdbFound->HeadClick(1);
    QStringList names = columnTexts(*find.tdbFound, 1);
    QStringList sorted = names;
    sorted.sort(Qt::CaseInsensitive);
    EXPECT_EQ(names, sorted);
    EXPECT_NE(titles(*find.tdbFound), bestFirst);
    Q_EMIT find.tdbFound->HeadClick(1);
    std::reverse(sorted.begin(), sorted.end());
    EXPECT_EQ(columnTexts(*find.tdbFound, 1), sorted);
    retype(find.txtTemperature(0), "250"); // the order stays
    names = columnTexts(*find.tdbFound, 1);
    sorted = names;
    sorted.sort(Qt::CaseInsensitive);
    std::reverse(sorted.begin(), sorted.end());
    EXPECT_EQ(names, sorted);
    retype(find.txtTemperature(0), "300");
    Q_EMIT find.tdbFound->HeadClick(5);
    EXPECT_EQ(titles(*find.tdbFound).first(), bestFirst.first());
    Q_EMIT find.tdbFound->HeadClick(4);
    EXPECT_EQ(find.tdbFound->CellText(0, 4), ""); // without bands
    EXPECT_NE(find.tdbFound->CellText(find.tdbFound->RowCount() - 1, 4), "");
}

TEST_F(FindValue, EnterSelectsAsTheSearchWindowDoes) {
    frmFindValue &find = window();
    typeCondition(find, 0, {"300", "40", "", ""});
    auto *view = find.tdbFound->findChild<QTableView *>();
    press(view, Qt::Key_Return);
    ASSERT_EQ(main().colMaterials.Count(), 1);
    EXPECT_EQ(main().colMaterials.Item(1)->Name(), find.tdbFound->CellText(0, 1));
    EXPECT_EQ(main().colMaterials.Item(1)->Standard(), find.tdbFound->CellText(0, 0));
    EXPECT_EQ(search().lblSelCount->text(), "1 Material Currently Selected");
    EXPECT_EQ(find.lblSelected->text(), search().lblSelCount->text());
    EXPECT_EQ(search().tdbSelected->RowCount(), 1);
    EXPECT_EQ(tipOf(*find.tdbFound, 0, 1), "This material is selected.");
    EXPECT_EQ(tipOf(*find.tdbFound, 1, 1), "");

    modal().answerMsgBox(vbOK);
    click(find.cmdSelect);
    EXPECT_EQ(modal().lastAsked().text, "This Material is already selected!");
    for (int row = 1; row < 10; ++row) {
        press(view, Qt::Key_Down);
        press(view, Qt::Key_Return);
    }
    EXPECT_EQ(main().colMaterials.Count(), 10);
    EXPECT_FALSE(search().cmdSelectMat->isEnabled());
    press(view, Qt::Key_Down);
    modal().answerMsgBox(vbOK);
    press(view, Qt::Key_Return);
    EXPECT_EQ(modal().lastAsked().text, "You have already selected the Maximum Number of Materials");
    EXPECT_EQ(main().colMaterials.Count(), 10);
}

TEST_F(FindValue, AStoppedReadingLeavesTheWindowInUse) {
    frmFindValue &find = window();
    bool wasShown = false;
    QTimer::singleShot(0, &find, [&] {
        wasShown = find.reading->isReading() && find.reading->prgReading->isVisible();
        QTest::keyClick(&find, Qt::Key_Escape);
    });
    find.txtTemperature(0)->setText("300");
    EXPECT_TRUE(wasShown);
    EXPECT_TRUE(find.isLoaded());
    EXPECT_EQ(find.tdbFound->RowCount(), 0);
    EXPECT_EQ(find.reading->lblReading->text(),
              "The reading was stopped. The values of Rp0,2 are not there yet.");
    type(find.txtLeast(0), "1"); // reads nothing of itself
    EXPECT_EQ(find.tdbFound->RowCount(), 0);
    QTimer::singleShot(0, &find, [&] { QTest::keyClicks(find.txtLeast(0), "50"); });
    click(find.reading->cmdReading);
    QCoreApplication::processEvents();
    EXPECT_EQ(find.txtLeast(0)->text(), "150"); // typed meanwhile
    EXPECT_EQ(find.tdbFound->RowCount(), std::ssize(found({"Rp02", 300, {}, 150})));
    EXPECT_TRUE(find.lblSummary->isVisible());
    QTest::keyClick(&find, Qt::Key_Escape);
    EXPECT_TRUE(find.isUnloaded());
}

TEST_F(FindValue, TheDiagramDrawsAllThatHaveBothValues) {
    frmFindValue &find = window();
    typeCondition(find, 0, {"300", "40", "150", ""});
    find.tabPages->setCurrentWidget(find.plot);
    const auto x = found({"Rp02", 300, 40, 0});
    const auto y = found({"ModElast", 300, 40, 0});
    const auto emphasised = found({"Rp02", 300, 40, 150});
    const auto hasBoth = [&](const auto &each) { return y.contains(each.first); };
    const auto dots = std::count_if(x.begin(), x.end(), hasBoth);
    ScatterPlot &plot = *find.plot->plot;
    EXPECT_EQ(plot.DotCount(), dots);
    const auto out = std::count_if(emphasised.begin(), emphasised.end(), hasBoth);
    EXPECT_TRUE(plot.accessibleDescription().endsWith(QString("emphasised: %1.").arg(out)));
    retype(find.txtLeast(0), "200");
    click(find.cmdCopy);
    EXPECT_EQ(QGuiApplication::clipboard()->text().count('\n'), std::ssize(found({"Rp02", 300, 40, 200})) + 1)
        << "with headings, though the list is behind the diagram";
    retype(find.txtLeast(0), "150");
    EXPECT_FALSE(find.cmdSelect->isEnabled());
    plot.setFocus();
    press(&plot, Qt::Key_End);
    const auto best = std::max_element(x.begin(), x.end(), [&](const auto &a, const auto &b) {
        return std::pair(hasBoth(a), a.second) < std::pair(hasBoth(b), b.second);
    });
    EXPECT_TRUE(find.plot->lblDot->text().contains(QString("Rp0,2 %1 MPa").arg(best->second / 1000)))
        << find.plot->lblDot->text().toStdString();
    press(&plot, Qt::Key_Return);
    ASSERT_EQ(main().colMaterials.Count(), 1);
    EXPECT_TRUE(find.plot->lblDot->text().startsWith(main().colMaterials.Item(1)->Name() + " "));
    press(&plot, Qt::Key_End);
    find.plot->cboAxis(0)->setCurrentIndex(find.plot->cboAxis(0)->findText("Rp1,0"));
    EXPECT_LT(plot.DotCount(), dots);
    EXPECT_EQ(plot.current() < 0, find.plot->lblDot->text().isEmpty());
    retype(find.plot->txtAxisTemperature(1), "2oo");
    EXPECT_EQ(plot.DotCount(), 0);
    EXPECT_EQ(find.plot->lblAxis(1)->text(), "'2oo' is no temperature.");
}

TEST_F(FindValue, RemembersWhatWasTypedAndIsNotHurtByAnythingElse) {
    {
        frmFindValue &find = window();
        typeCondition(find, 0, {"310", "40", "150", ""});
        click(find.cmdAdd);
        choose(find, 1, "Thermal conductivity");
        find.Unload();
        deleteUnloaded();
    }
    {
        frmFindValue &find = window();
        EXPECT_EQ(find.cboProperty(1)->currentText(), "Thermal conductivity");
        EXPECT_EQ(find.txtLeast(0)->text(), "150");
        EXPECT_GT(find.tdbFound->RowCount(), 0);
        EXPECT_FALSE(find.cboProperty(2)->isVisible());
        find.Unload();
        deleteUnloaded();
    }
    QFile file(program().userFolder() + "Workbench.ini");
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[frmFindValue]\nplace=@Rect(-9999 0 5 99999999)\nconditions=4000000000\n"
               "condition1\\property=Nonsense\ncondition1\\temperature=" +
               QByteArray(9000, '3') +
               "\ncondition2\\property=@Invalid()\ncondition2\\least=@ByteArray(\\x1)\n"
               "axis1\\property=x, y, z\nstandard=\"'\"\n");
    file.close();
    frmFindValue &find = window();
    EXPECT_EQ(find.cboProperty(0)->currentIndex(), 0);
    EXPECT_EQ(find.tdbFound->RowCount(), 0);
    retype(find.txtStandard, "");
    EXPECT_NE(find.lblLeft(0)->text(), "");
}
