// What the windows of the tools are to the rest of the program.
#include <QFile>
#include <QSettings>

#include "material/frmMaterial2.h"
#include "platform/forms/forms.h"
#include "search/frmSearch.h"
#include "tests/workbench/workbench_fixture.h"
#include "workbench/frmCompare.h"
#include "workbench/frmValueSheet.h"

namespace {

class ToolWindows : public WorkbenchFixture {
protected:
    void SetUp() override {
        select({2, 11});
        compare = &open<frmCompare>(ToolsEntry::CompareGrades);
        sheet = &open<frmValueSheet>(ToolsEntry::ValuesOverTemperature);
        compare->setGeometry(70, 80, 600, 400);
    }
    QSettings remembered() {
        return QSettings(program().userFolder() + "Workbench.ini", QSettings::IniFormat);
    }

    frmCompare *compare = nullptr;
    frmValueSheet *sheet = nullptr;
};

} // namespace

TEST_F(ToolWindows, CommandsForTheWindowsInsideTheMainOneLeaveThemAlone) {
    main().menu.mnuFileElem(FileEntry::ShowOrSelect).trigger();
    const QRect place = compare->geometry();
    main().menu.mnuViewPhysElem(1).trigger();
    main().menu.mnuViewElem(6).trigger();
    main().menu.mnuWindowElem(WindowEntry::TileHorizontal).trigger();
    main().menu.mnuWindowElem(WindowEntry::Cascade).trigger();
    EXPECT_EQ(compare->geometry(), place);
    EXPECT_TRUE(compare->isVisible());
    EXPECT_TRUE(sheet->isVisible());
    EXPECT_EQ(main().iMaterialsOpen, 2);
}

TEST_F(ToolWindows, OpenOnceAndComeBackToTheFront) {
    main().SetFocus();
    EXPECT_EQ(&open<frmCompare>(ToolsEntry::CompareGrades), compare);
    EXPECT_EQ(Forms::active(), compare);
    open<frmValueSheet>(ToolsEntry::ValuesOverTemperature);
    QTest::keyClick(sheet, Qt::Key_Escape);
    deleteUnloaded();
    EXPECT_EQ(LoadedInstance<frmValueSheet>(), nullptr);
    EXPECT_TRUE(compare->isVisible());
}

TEST_F(ToolWindows, LeaveWithTheProgramAndRemember) {
    retype(compare->txtTemperature, "125");
    retype(sheet->txtStep, "12,5");
    main().menu.mnuFileElem(FileEntry::Exit).trigger();
    EXPECT_EQ(Forms::Count(), 0);
    EXPECT_EQ(remembered().value("frmCompare/temperature"), "125");
    EXPECT_EQ(remembered().value("frmCompare/place"), QRect(70, 80, 600, 400));
    EXPECT_EQ(remembered().value("frmValueSheet/step"), "12,5");
}

TEST_F(ToolWindows, TheCloseBoxOfTheMainWindowEndsThemToo) {
    main().close();
    EXPECT_EQ(Forms::Count(), 0);
    EXPECT_EQ(LoadedInstance<frmCompare>(), nullptr);
    EXPECT_TRUE(remembered().contains("frmValueSheet/from"));
}

TEST_F(ToolWindows, ToolTipsFollowTheSetting) {
    const bool shown = !compare->txtTemperature->toolTip().isEmpty();
    EXPECT_EQ(shown, main().bToolTips);
    main().menu.mnuSettingsElem(SettingsEntry::ToolTips).trigger();
    EXPECT_NE(!compare->txtTemperature->toolTip().isEmpty(), shown);
    EXPECT_NE(!sheet->txtStep->toolTip().isEmpty(), shown);
}
