// The two windows in which a value is picked from a list.
#include "data/modDBase.h"
#include "data/queries.h"
#include "platform/dao/recordset.h"
#include "platform/forms/db_list.h"
#include "search/frmSelect.h"
#include "search/frmSelectStand.h"
#include "search/modDBase_picks.h"
#include "shell/mdiVelmar.h"
#include "tests/support/gui.h"
#include "tests/support/program_fixture.h"
#include "tests/support/raising_through_qt.h"

namespace {

/// The next control that Tab stops at.
QWidget *afterTab(QWidget *control) {
    QWidget *next = control->nextInFocusChain();
    while (next != control && !(next->focusPolicy() & Qt::TabFocus))
        next = next->nextInFocusChain();
    return next;
}

class SearchPickTest : public ProgramFixture {
protected:
    /// What the pick returns when `drive` is done with the window.
    QString pickName(std::function<void(frmSelect &)> drive) {
        main();
        modal().driveForm([drive](Form &form) {
            drive(dynamic_cast<frmSelect &>(form));
            form.Unload(vbFormControlMenu);
        });
        return modDBase::SelectFromList("select distinct name from materials order by name", "name",
                                        "Material Name", "DatabaseName");
    }
    QString pickStandard(const QString &sql, std::function<void(frmSelectStand &)> drive) {
        main();
        modal().driveForm([drive](Form &form) {
            drive(dynamic_cast<frmSelectStand &>(form));
            form.Unload(vbFormControlMenu);
        });
        return modDBase::SelectStandard(sql, "DatabaseName");
    }
};

TEST_F(SearchPickTest, TabGoesFromTheListToTheBoxAndItsButtons) {
    pickStandard(Queries::sqlAllStandards(), [](frmSelectStand &list) {
        EXPECT_EQ(afterTab(list.lstSelect), list.txtSearch);
        EXPECT_EQ(afterTab(list.txtSearch), list.cmdFind(0));
    });
}

TEST_F(SearchPickTest, FindingAndMovingInAList) {
    pickName([](frmSelect &list) {
        EXPECT_EQ(list.Caption(), "Select 'Material Name'");
        EXPECT_EQ(list.dblSelect->Text(), "10CrMo9-10");
        type(list.txtSearch, "p2");
        EXPECT_EQ(list.dblSelect->Text(), "GP240GH");
        const struct {
            int button;
            const char *found;
        } finds[] = {{2, "P235GH"}, {2, "P265GH"}, {1, "P235GH"},
                     {3, "P295GH"}, {2, "P295GH"}, {0, "GP240GH"}};
        for (const auto &item : finds) {
            click(list.cmdFind(item.button));
            EXPECT_EQ(list.dblSelect->Text(), item.found) << item.button;
        }
        EXPECT_EQ(list.cmdFind(1)->toolTip(), "Find Previous 'p2'");
        type(list.txtSearch, "'");
        EXPECT_EQ(list.dblSelect->Text(), "GP240GH") << "a quote finds nothing and says nothing";
        press(list.txtSearch, Qt::Key_Backspace);
        click(list.cmdSelNav(3));
        click(list.cmdSelNav(2));
        EXPECT_EQ(list.dtaSelect->recordset()->AbsolutePosition(),
                  list.dtaSelect->recordset()->RecordCount() - 1);
        click(list.cmdSelNav(1));
        click(list.cmdSelNav(0));
        EXPECT_EQ(list.dblSelect->Text(), "10CrMo9-10");
    });
}

TEST_F(SearchPickTest, OnlyAChoiceReturnsAValue) {
    const auto onSecond = [](const std::function<void(frmSelect &)> &then) {
        return [then](frmSelect &list) {
            press(list.dblSelect, Qt::Key_Down);
            then(list);
        };
    };
    const QString second = "13CrMo4-5";
    EXPECT_EQ(pickName(onSecond([](frmSelect &list) { click(list.cmdSelect); })), second);
    EXPECT_EQ(pickName(onSecond([](frmSelect &) {})), "") << "closed by its box";
    EXPECT_EQ(pickName(onSecond([](frmSelect &list) { press(list.dblSelect, Qt::Key_Return); })), second);
    EXPECT_EQ(pickName(onSecond([](frmSelect &list) { press(list.dblSelect, Qt::Key_Escape); })), "");
    EXPECT_EQ(pickName(onSecond([](frmSelect &list) { Q_EMIT list.dblSelect->DblClick(); })), second);
    EXPECT_EQ(pickName(onSecond([](frmSelect &list) { click(list.cmdCancel); })), "");
    EXPECT_EQ(pickStandard(
                  "select * from standard where stID = 0",
                  [](frmSelectStand &list) {
                      EXPECT_EQ(list.lstSelect->count(), 0);
                      EXPECT_EQ(list.txtDescription->toPlainText() + list.txtProductForms->toPlainText(), "");
                      click(list.cmdSelNav(2));
                      click(list.cmdSelect);
                  }),
              "");
}

TEST_F(SearchPickTest, TheListTakesTheGrowthAndTheWindowKeepsItsLeastSize) {
    pickName([](frmSelect &list) {
        const int width = list.Width();
        const int height = list.Height();
        const QRect rows = placeOf(list.dblSelect);
        const QRect choice = placeOf(list.framSelect(2));
        list.setWidth(width + 1500);
        list.setHeight(height + 750);
        EXPECT_EQ(placeOf(list.dblSelect).size(), rows.size() + QSize(1500, 750));
        EXPECT_EQ(placeOf(list.framSelect(2)), choice.translated(1500, 750));
        list.setWidth(width - 1500);
        list.setHeight(height - 750);
        EXPECT_EQ(QSize(list.Width(), list.Height()), QSize(width, height));
        EXPECT_EQ(placeOf(list.dblSelect), rows);
    });
}

TEST_F(SearchPickTest, AStandardShowsItsDescriptionDateAndForms) {
    const QString chosen = pickStandard("select * from standard order by standard", [](frmSelectStand &list) {
        EXPECT_EQ(list.Caption(), "Select 'Standard'");
        EXPECT_EQ(list.lstSelect->count(), 11);
        EXPECT_EQ(list.txtRevisionDate->text(), "2017-09-30");
        EXPECT_EQ(list.txtProductForms->toPlainText(), "Plate, Sheet, Strip");
        click(list.cmdSelNav(3));
        EXPECT_EQ(list.lstSelect->currentItem()->text(), "EN 10273");
        EXPECT_EQ(list.txtProductForms->toPlainText(), "Bar");
        type(list.txtSearch, "216");
        EXPECT_EQ(list.lstSelect->currentItem()->text(), "EN 10216-2");
        EXPECT_TRUE(list.txtDescription->toPlainText().startsWith("Seamless steel tubes"));
        click(list.cmdFind(2));
        EXPECT_EQ(list.lstSelect->currentItem()->text(), "EN 10216-5");
        list.lstSelect->setFocus();
        press(list.lstSelect, Qt::Key_Up);
        EXPECT_EQ(list.dtaSelect->recordset()->Fields("standard").toString(), "EN 10216-2");
        click(list.cmdSelect);
    });
    EXPECT_EQ(chosen, "EN 10216-2");

    pickStandard("select * from standard order by standard", [](frmSelectStand &list) {
        raisingThroughQt([&] { type(list.txtSearch, "'"); });
        const QList<RuntimeError> faults = takeFaults();
        ASSERT_EQ(faults.size(), 1) << "nothing catches a broken criterion here";
        EXPECT_EQ(faults.first().number(), 3077);
    });
}

TEST_F(SearchPickTest, ErrorsGoUpWithTheRoutinesSource) {
    main();
    const struct {
        const char *sql, *database;
        int number;
    } cases[] = {{"select * from nowhere", "DatabaseName", 3078},
                 {"select * from materials", "/nowhere/another.mdb", 3044}};
    for (const auto &item : cases) {
        for (const bool standard : {false, true}) {
            try {
                if (standard)
                    modDBase::SelectStandard(item.sql, item.database);
                else
                    modDBase::SelectFromList(item.sql, "name", "Name", item.database);
                FAIL();
            } catch (const RuntimeError &error) {
                EXPECT_EQ(error.number(), item.number);
                EXPECT_EQ(error.source(), "velmar-pedmodDBase.SelectFromList");
            }
        }
    }
}

} // namespace
