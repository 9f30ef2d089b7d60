// The criteria of the search window: what a person types and clicks, and the statements that come of it.
#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>

#include "platform/forms/colours.h"
#include "platform/forms/status_bar.h"
#include "search/frmSelect.h"
#include "search/frmSelectStand.h"
#include "shell/mdiVelmar.h"
#include "tests/program/search_statement_log.h"
#include "tests/support/gui.h"
#include "tests/support/program_fixture.h"
#include "tests/support/raising_through_qt.h"

namespace {

const QString All = "select * from materials order by standard,name";
const QString Standards = "select * from standard order by standard";

QString byName(const QString &text) {
    return "select * from materials where  name like '*" + text + "*' order by standard,name";
}

class SearchCriteriaTest : public ProgramFixture {
protected:
    void pasteInto(int box, const QString &text) {
        QApplication::clipboard()->setText(text);
        search().txtSearch(box)->setFocus();
        QTest::keyClick(search().txtSearch(box), Qt::Key_V, Qt::ControlModifier);
    }
    QString box(int index) { return search().txtSearch(index)->text(); }
    QStringList boxes() {
        QStringList texts;
        for (const auto &[index, box] : search().txtSearch)
            texts << box->text();
        return texts;
    }
    /// The indices of what is enabled, or visible.
    QList<int> enabledBoxes() {
        QList<int> result;
        for (const auto &[index, box] : search().txtSearch) {
            EXPECT_EQ(box->isEnabled(), search().cmdSelect(index)->isEnabled());
            if (box->isEnabled()) result << index;
        }
        return result;
    }
    QList<int> columns() {
        QList<int> result;
        for (int i = 0; i < search().tdbMaterials->ColumnCount(); ++i)
            if (search().tdbMaterials->Columns(i).Visible()) result << i;
        return result;
    }
    void choose(const QString &kind) { search().cmbChooseStd->setCurrentText(kind); }
};

TEST_F(SearchCriteriaTest, EveryLetterRunsTheStandardsTwiceAndThenTheList) {
    StatementLog log(search());
    type(search().txtSearch(0), "E");
    EXPECT_EQ(log.taken(),
              QStringList({"select * from standard where standard like '*E**' order by standard", Standards,
                           "select * from materials where  standard like '*E*' order by standard,name"}));
    EXPECT_FALSE(search().chkListAll->isChecked());
    press(search().txtSearch(0), Qt::Key_Backspace);
    EXPECT_EQ(log.taken(), QStringList({Standards, Standards, All}));
    EXPECT_TRUE(search().chkListAll->isChecked());

    type(search().txtSearch(1), "P2");
    EXPECT_EQ(log.taken(),
              QStringList({Standards, Standards, byName("P"), Standards, Standards, byName("P2")}));
    type(search().txtSearch(2), "1,04");
    type(search().txtSearch(6), "Plate");
    EXPECT_EQ(box(2), "1.04");
    EXPECT_EQ(
        log.last(),
        "select * from materials where  name like '*P2*' and  numbr like '*1.04*' and  "
        "materials.standard in (select standard from StandardProdForm where productForm like '*Plate*') "
        "order by standard,name");
}

TEST_F(SearchCriteriaTest, ListAndCountFollowTheBoxes) {
    const struct {
        int box;
        const char *text, *count;
    } cases[] = {{1, "P265", "3"}, {0, "EN 10028-2", "7"}, {6, "Plate", "16"}, {1, "no such", "0"}};
    EXPECT_EQ(search().lblMatCount->text(), "38");
    for (const auto &item : cases) {
        type(search().txtSearch(item.box), item.text);
        EXPECT_EQ(search().lblMatCount->text(), item.count) << item.text;
        EXPECT_EQ(search().tdbMaterials->RowCount(), QString(item.count).toInt());
        search().txtSearch(item.box)->clear();
    }
}

TEST_F(SearchCriteriaTest, OnlyTypedCharactersAreFiltered) {
    type(search().txtSearch(1), "P'[2]*");
    EXPECT_EQ(box(1), "P2*");
    pasteInto(2, "1,0");
    EXPECT_EQ(box(2), "1,0");
    raisingThroughQt([&] { pasteInto(4, "'"); });
    const QList<RuntimeError> faults = takeFaults();
    ASSERT_EQ(faults.size(), 1);
    EXPECT_EQ(faults.first().number(), 3075);
}

TEST_F(SearchCriteriaTest, TickingListAllEmptiesTheBoxesOneByOne) {
    type(search().txtSearch(1), "P");
    type(search().txtSearch(4), "1");
    StatementLog log(search());
    click(search().chkListAll);
    EXPECT_EQ(boxes().join(""), "");
    EXPECT_TRUE(search().chkListAll->isChecked());
    EXPECT_EQ(log.taken(),
              QStringList({Standards, Standards,
                           "select * from materials where  groups like '*1*' order by standard,name",
                           Standards, Standards, All}));
    click(search().chkListAll);
    EXPECT_TRUE(search().chkListAll->isChecked()) << "it cannot be unticked without criteria";
    EXPECT_EQ(log.taken(), QStringList());
}

TEST_F(SearchCriteriaTest, EachStandardsSystemHasItsBoxesColumnsAndFields) {
    const struct {
        const char *kind;
        QList<int> boxes, columns;
        const char *firstColumn, *secondColumn;
    } cases[] = {
        {"ASME", {0, 1, 6}, {0, 1, 2, 7, 8}, "asmestandard", "asmegrade"},
        {"SS", {1, 6}, {0, 1, 2, 9}, "asmestandard", "ss"},
        {"EN", {0, 1, 2, 3, 4, 5, 6}, {0, 1, 2, 3, 4, 5, 7, 8, 9}, "standard", "name"},
    };
    StatementLog log(search());
    for (const auto &item : cases) {
        type(search().txtSearch(1), "x");
        log.taken();
        choose(item.kind);
        EXPECT_EQ(log.last(), All) << item.kind;
        EXPECT_EQ(boxes().join(""), "");
        EXPECT_EQ(enabledBoxes(), item.boxes) << item.kind;
        EXPECT_EQ(columns(), item.columns) << item.kind;
        for (const auto &[index, box] : search().txtSearch)
            EXPECT_EQ(box->palette().color(QPalette::Base),
                      toQColor(box->isEnabled() ? vbInfoBackground : vbButtonFace));
        const bool en = item.kind == QString("EN");
        EXPECT_EQ(placeOf(search().tdbMaterials).top(), en ? 615 : 915);
        EXPECT_EQ(placeOf(search().tdbMaterials).height(), en ? 3615 : 3315);
        EXPECT_EQ(placeOf(search().lblBack(2)).top(), en ? 480 : 780);
        EXPECT_EQ(search().lblStdInfo->isHidden(), en);
        Q_EMIT search().tdbMaterials->HeadClick(0);
        EXPECT_EQ(log.last(), QString("select * from materials order by %1 ASC").arg(item.firstColumn));
        Q_EMIT search().tdbMaterials->FootClick(1);
        EXPECT_EQ(log.last(), QString("select * from materials order by %1 DESC").arg(item.secondColumn));
    }
}

TEST_F(SearchCriteriaTest, TheSameSystemChosenAgainByHandRunsOnce) {
    type(search().txtSearch(1), "x");
    StatementLog log(search());
    const auto pick = [this](int row) {
        search().cmbChooseStd->showPopup();
        QAbstractItemView *list = search().cmbChooseStd->view();
        QTest::qWait(QApplication::doubleClickInterval() + 50); // the list takes no click right after opening
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualRect(list->model()->index(row, 0)).center());
    };
    pick(0);
    EXPECT_EQ(box(1), "");
    EXPECT_EQ(log.taken(), QStringList({Standards, Standards, All, Standards, Standards, All}))
        << "one for the emptied box, one for the choice";
    pick(1);
    EXPECT_EQ(log.taken(), QStringList({Standards, Standards, All}));
    EXPECT_EQ(enabledBoxes(), QList<int>({1, 6}));
}

TEST_F(SearchCriteriaTest, AnOrderLastsToTheNextChangeOfABox) {
    StatementLog log(search());
    type(search().txtSearch(1), "P2");
    Q_EMIT search().tdbMaterials->FootClick(5);
    EXPECT_EQ(log.last(), "select * from materials where  name like '*P2*' order by revision_date DESC");
    EXPECT_EQ(box(1), "P2");
    type(search().txtSearch(1), "6");
    EXPECT_EQ(log.last(), byName("P26"));
}

TEST_F(SearchCriteriaTest, AColumnBoxKeepsItsStateAndClearsTheCriteria) {
    type(search().txtSearch(1), "P");
    StatementLog log(search());
    click(search().chkSearch(3));
    EXPECT_EQ(log.last(), All);
    EXPECT_EQ(boxes().join(""), "");
    EXPECT_FALSE(search().chkSearch(3)->isChecked());
    EXPECT_FALSE(main().ColumnVisible(3));
    EXPECT_EQ(search().chkSearch(3)->toolTip(), "Show 'Description' Column");
    EXPECT_TRUE(search().txtSearch(3)->isEnabled()) << "the standards system enables its boxes again";
    EXPECT_TRUE(search().tdbMaterials->Columns(3).Visible());
    EXPECT_FALSE(search().tdbSelected->Columns(3).Visible());
    choose("SS");
    click(search().chkSearch(3));
    EXPECT_TRUE(main().ColumnVisible(3));
    EXPECT_FALSE(search().tdbMaterials->Columns(3).Visible());
    EXPECT_EQ(search().chkSearch(3)->toolTip(), "Hide 'Description' Column");
}

TEST_F(SearchCriteriaTest, AListIsNarrowedByAllCriteriaAndItsValueIsWritten) {
    type(search().txtSearch(1), "P2");
    type(search().txtSearch(6), "Plate");
    StatementLog log(search());
    modal().driveForm([this](Form &form) {
        auto &list = dynamic_cast<frmSelect &>(form);
        EXPECT_EQ(list.Caption(), "Select 'Material Name'");
        EXPECT_EQ(list.dtaSelect->RecordSource(),
                  "select distinct name from materials  where  name like '*P2*' and  standard in (select "
                  "standard from StandardProdForm where productForm like '*Plate*') order by name");
        EXPECT_TRUE(main().stbStatus->PanelText(1).startsWith("Mark the required item in list"));
        press(list.dblSelect, Qt::Key_Down);
        EXPECT_EQ(list.dblSelect->Text(), "P265GH");
        click(list.cmdSelect);
    });
    click(search().cmdSelect(1));
    EXPECT_EQ(box(1), "P265GH");
    EXPECT_TRUE(log.last().startsWith("select * from materials where  name like '*P265GH*' and  materials."));
    EXPECT_TRUE(main().stbStatus->PanelText(1).startsWith("You can search Materials"));

    modal().driveForm([](Form &form) { click(dynamic_cast<frmSelect &>(form).cmdCancel); });
    click(search().cmdSelect(2));
    EXPECT_EQ(log.taken(), QStringList());
    EXPECT_EQ(box(2), "");
}

TEST_F(SearchCriteriaTest, TheStandardsButtonPicksAStandardUnderEnAndAnAsmeStandardElsewhere) {
    type(search().txtSearch(1), "P265");
    modal().driveForm([](Form &form) {
        auto &list = dynamic_cast<frmSelectStand &>(form);
        EXPECT_EQ(list.dtaSelect->RecordSource(),
                  "select * from standard where standard in (select standard from materials where  name like "
                  "'*P265*') order by standard");
        EXPECT_EQ(list.strStandards, QStringList({"EN 10028-2", "EN 10216-2", "EN 10217-2"}));
        const QPoint second = list.lstSelect->visualItemRect(list.lstSelect->item(1)).center();
        QTest::mouseClick(list.lstSelect->viewport(), Qt::LeftButton, {}, second);
        QTest::mouseDClick(list.lstSelect->viewport(), Qt::LeftButton, {}, second);
    });
    click(search().cmdSelect(0));
    EXPECT_EQ(box(0), "EN 10216-2");

    choose("ASME");
    modal().driveForm([](Form &form) {
        EXPECT_EQ(form.Caption(), "Select 'ASME Standard'");
        click(dynamic_cast<frmSelect &>(form).cmdSelect);
    });
    click(search().cmdSelect(0));
    EXPECT_EQ(search().lblMatCount->text(), "38") << "the first value is empty, which is no choice";
}

TEST_F(SearchCriteriaTest, TheCodeWordOffersBatchPrinting) {
    const auto offered = [this] {
        return QList<bool>{!search().cmdBatch(0)->isHidden(), !search().cmdBatch(1)->isHidden()};
    };
    const auto enter = [this](int box, const QString &word) {
        type(search().txtSearch(box), word);
        click(search().chkListAll);
        EXPECT_EQ(boxes().join(""), "");
    };
    enter(1, "zorbaltikremo");
    enter(0, "ZORBALTIKREMO");
    EXPECT_EQ(offered(), QList<bool>({false, false}));
    enter(1, "ZORBALTIKREMO");
    EXPECT_EQ(offered(), QList<bool>({true, false}));

    TestProgram::Given small;
    small.screen = {800, 600};
    start(small);
    EXPECT_EQ(offered(), QList<bool>({false, false}));
    enter(1, "ZORBALTIKREMO");
    EXPECT_EQ(offered(), QList<bool>({true, true}));
}

} // namespace
