// The program by keys alone, sent to whatever window has the focus.
#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

#include "data/modDBase.h"
#include "material/frmMaterial2.h"
#include "platform/forms/default_instance.h"
#include "platform/forms/forms.h"
#include "search/frmSearch.h"
#include "shell/mdiVelmar.h"
#include "start/frmSplash.h"
#include "tests/support/gui.h"
#include "tests/support/program.h"

namespace {

void key(Qt::Key key, Qt::KeyboardModifiers held = {}) {
    QCoreApplication::processEvents(); // a window that has just shown takes the focus by an event
    ASSERT_NE(QGuiApplication::focusWindow(), nullptr);
    QTest::keyClick(QGuiApplication::focusWindow(), key, held);
}

/// The first letter with Alt, which opens a menu, then the others.
void menuKeys(const QString &letters) {
    for (qsizetype i = 0; i < letters.size(); ++i)
        key(static_cast<Qt::Key>(letters[i].unicode()),
            i == 0 ? Qt::KeyboardModifiers(Qt::AltModifier) : Qt::KeyboardModifiers());
}

void type(const QString &text) {
    for (const QChar character : text)
        QTest::keyClick(QGuiApplication::focusWindow(), character.toLatin1());
}

} // namespace

TEST(KeysOnly, FromTheStartWindowToAComposition) {
    const TestProgram program;
    mdiVelmar::instance().Unload(); // for a start of its own over the same files
    deleteUnloaded();
    modDBase::reset();
    DefaultInstance<frmSplash>();

    key(Qt::Key_Space);
    deleteUnloaded();
    ASSERT_NE(LoadedInstance<mdiVelmar>(), nullptr);
    const auto &search = DefaultInstance<frmSearch>();
    EXPECT_TRUE(search.txtSearch(0)->hasFocus());
    key(Qt::Key_Tab); // the product form
    key(Qt::Key_Tab);
    type("P355");
    key(Qt::Key_Tab);
    type("1.0473");
    EXPECT_EQ(search.lblMatCount->text(), "1");
    key(Qt::Key_Return);
    EXPECT_EQ(search.lblSelCount->text(), "1 Material Currently Selected");
    key(Qt::Key_O, Qt::AltModifier);

    const auto shown = [] { return Forms::byName("frmMaterial2") != nullptr; };
    ASSERT_TRUE(QTest::qWaitFor(shown)); // a button lets itself be seen pressed for a moment
    auto *window = Forms::byName("frmMaterial2")->as<frmMaterial2>();
    EXPECT_EQ(window->txtMainData(2)->toPlainText(), " P355GH");
    menuKeys("VC");
    EXPECT_EQ(window->strCurrentTable, "ChemComp");
    EXPECT_TRUE(window->tdbTable->isVisible());
    EXPECT_EQ(window->tdbTable->Columns(1).Caption().left(1), "C");
    menuKeys("VMC");
    EXPECT_EQ(window->strCurrentTable, "CreepProp");
    menuKeys("VD"); // the page that had the focus goes, and the box for the temperature takes it
    type("100");
    EXPECT_EQ(window->txtDesignTemp->text(), "100");

    key(Qt::Key_M, Qt::ControlModifier);
    deleteUnloaded();
    EXPECT_EQ(Forms::byName("frmMaterial2"), nullptr);
    EXPECT_TRUE(search.Visible());
    menuKeys("FX");
    EXPECT_EQ(Forms::Count(), 0);
}

TEST(KeysOnly, ATemperatureIsTypedWithoutLookingForItsBox) {
    const TestProgram program;
    DefaultInstance<frmSearch>().Hide();
    frmMaterial2 &first = program.open(program.material(1));
    frmMaterial2 &second = program.open(program.material(2));
    mdiVelmar::instance().menu.mnuView->setVisible(true);
    menuKeys("VC");
    EXPECT_TRUE(second.tdbTable->isAncestorOf(QApplication::focusWidget()));
    menuKeys("VD");
    type("30");
    EXPECT_EQ(second.txtDesignTemp->text(), "30");
    key(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_TRUE(first.txtDesignTemp->hasFocus());
    type("0");
    EXPECT_EQ(second.txtDesignTemp->text(), "300");
}

TEST(KeysOnly, EveryMenuEntryHasItsLettersAndShortCut) {
    const TestProgram program;
    MainMenu &menu = mdiVelmar::instance().menu;
    QString triggered;
    for (QAction *entry : mdiVelmar::instance().findChildren<QAction *>()) {
        if (entry->objectName().isEmpty()) continue;
        QObject::connect(entry, &QAction::triggered, entry, [&, entry] { triggered = entry->objectName(); });
        entry->setEnabled(true);
    }
    menu.mnuView->setVisible(true);
    // only the road to the command is tried here
    for (MenuArray *array :
         {&menu.mnuFileElem, &menu.mnuViewElem, &menu.mnuViewMechElem, &menu.mnuViewPhysElem,
          &menu.mnuSettingsElem, &menu.mnuSettingsToolElem, &menu.mnuWindowElem, &menu.mnuHelpElem})
        array->blockSignals(true);

    const std::pair<const char *, const char *> roads[] = {
        {"FM", "mnuFileElem(0)"},          {"FS", "mnuFileElem(2)"},
        {"FP", "mnuFileElem(3)"},          {"FG", "mnuFileElem(5)"},
        {"FX", "mnuFileElem(7)"},          {"VR", "mnuViewElem(0)"},
        {"VC", "mnuViewElem(1)"},          {"VMR", "mnuViewMechElem(0)"},
        {"VME", "mnuViewMechElem(1)"},     {"VMC", "mnuViewMechElem(3)"},
        {"VI", "mnuViewElem(3)"},          {"VPM", "mnuViewPhysElem(0)"},
        {"VPE", "mnuViewPhysElem(1)"},     {"VPC", "mnuViewPhysElem(2)"},
        {"VPT", "mnuViewPhysElem(3)"},     {"VPR", "mnuViewPhysElem(4)"},
        {"VA", "mnuViewElem(5)"},          {"VD", "mnuViewElem(6)"},
        {"STS", "mnuSettingsToolElem(0)"}, {"STH", "mnuSettingsToolElem(1)"},
        {"STT", "mnuSettingsToolElem(2)"}, {"STB", "mnuSettingsToolElem(3)"},
        {"SB", "mnuSettingsElem(1)"},      {"SC", "mnuSettingsElem(2)"},
        {"SP", "mnuSettingsElem(3)"},      {"SH", "mnuSettingsElem(4)"},
        {"WC", "mnuWindowElem(0)"},        {"WH", "mnuWindowElem(1)"},
        {"W1", "mnuWindowList(1)"},        {"HC", "mnuHelpElem(0)"},
        {"HI", "mnuHelpElem(1)"},          {"HS", "mnuHelpElem(2)"},
        {"HA", "mnuHelpElem(4)"}};
    for (const auto &[letters, entry] : roads) {
        triggered.clear();
        menuKeys(letters);
        EXPECT_EQ(triggered.toStdString(), entry) << letters;
    }
    const std::pair<Qt::Key, int> shortCuts[] = {
        {Qt::Key_M, 0}, {Qt::Key_S, 2}, {Qt::Key_P, 3}, {Qt::Key_G, 5}, {Qt::Key_Q, 7}};
    for (const auto &[letter, index] : shortCuts) {
        triggered.clear();
        key(letter, Qt::ControlModifier);
        EXPECT_EQ(triggered, menu.mnuFileElem(index).objectName());
    }
    key(Qt::Key_F1);
    EXPECT_EQ(triggered, "mnuHelpElem(0)");
}
