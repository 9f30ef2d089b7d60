// Tool bar, status line and menus.
#include <gtest/gtest.h>

#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QToolButton>

#include "platform/forms/default_instance.h"
#include "platform/forms/image_list.h"
#include "platform/forms/menu_entry.h"
#include "platform/forms/status_bar.h"
#include "platform/forms/toolbar.h"
#include "tests/forms/recording_form.h"
#include "tests/support/error_of.h"
#include "tests/support/gui.h"
#include "tests/support/pinned_settings.h"

namespace {

class ToolbarTest : public ::testing::Test {
protected:
    void SetUp() override {
        main = NewForm<RecordingMain>();
        bar = new Toolbar("Toolbar1", main);
        bar->Add("Open", tbrDefault, "Open...");
        bar->Add("S1", tbrSeparator);
        bar->Add("Ref", tbrCheck, "References");
        ToolbarButton &mech = bar->Add("Mech", tbrDropdown, "Mechanical...");
        mech.AddMenu("Room", "At &Room Temperature");
        mech.AddMenu("Hot", "At &Elevated Temperature");
        bar->Add("S2", tbrSeparator);
        bar->Add("Cascade", tbrButtonGroup);
        bar->Add("Tile", tbrButtonGroup);
        bar->setAlign(vbAlignTop);
        main->Show();
        QObject::connect(bar, &Toolbar::ButtonClick, [this](ToolbarButton *button) {
            clicks.append(button->Key() + QString::number(button->Value()));
        });
        QObject::connect(bar, &Toolbar::ButtonMenuClick,
                         [this](ButtonMenu *entry) { clicks.append(entry->Key()); });
    }

    void click(const QString &key) { QTest::mouseClick(bar->Buttons(key).widget(), Qt::LeftButton); }

    RecordingMain *main = nullptr;
    Toolbar *bar = nullptr;
    QStringList clicks;
};

TEST_F(ToolbarTest, ValuesChangeBeforeTheHandlerByTheButtonsStyle) {
    bar->Buttons("Mech").setValue(tbrPressed);
    for (const char *key : {"Open", "Ref", "Ref", "Mech", "Cascade", "Cascade", "Tile"})
        click(key);
    EXPECT_EQ(clicks, QStringList({"Open0", "Ref1", "Ref0", "Mech1", "Cascade1", "Cascade1", "Tile1"}));
    EXPECT_EQ(bar->Buttons("Cascade").Value(), tbrUnpressed);
    EXPECT_EQ(bar->Buttons("Ref").Value(), tbrUnpressed) << "another group";
    for (int i = 1; i <= bar->Count(); ++i)
        if (bar->Buttons(i).widget() != nullptr) {
            EXPECT_EQ(bar->Buttons(i).widget()->isChecked(), bar->Buttons(i).Value() == tbrPressed) << i;
        }
}

TEST_F(ToolbarTest, AHandlerMayPressItAgain) {
    QObject::connect(bar, &Toolbar::ButtonClick, [](ToolbarButton *button) {
        if (button->Value() == tbrUnpressed) button->setValue(tbrPressed);
    });
    bar->Buttons("Ref").setValue(tbrPressed);
    click("Ref");
    EXPECT_EQ(clicks, QStringList({"Ref0"}));
    EXPECT_TRUE(bar->Buttons("Ref").widget()->isChecked());
}

TEST_F(ToolbarTest, DropDownEntriesTellTheirKeyWhileEnabled) {
    ToolbarButton &mech = bar->Buttons("Mech");
    mech.ButtonMenus(1).setEnabled(false);
    for (QAction *action : mech.widget()->menu()->actions())
        action->trigger();
    EXPECT_EQ(clicks, QStringList({"Hot"}));
    EXPECT_EQ(&mech.ButtonMenus("Hot"), &mech.ButtonMenus(2));
    EXPECT_EQ(errorOf([&] { mech.ButtonMenus(3); }), 35600);
}

TEST_F(ToolbarTest, NamesIndicesAndPlaces) {
    EXPECT_EQ(bar->Buttons(3).Key(), "Ref");
    EXPECT_EQ(bar->Buttons("Tile").Index(), 7);
    EXPECT_EQ(errorOf([&] { bar->Buttons(0); }), 35600);
    EXPECT_EQ(errorOf([&] { bar->Buttons("None"); }), 35601);
    auto *widget = main->findChild<QToolButton *>("Toolbar1(Ref)");
    ASSERT_NE(widget, nullptr);
    EXPECT_EQ(widget->accessibleName(), "References");
    bar->Buttons("Ref").setToolTipText("");
    EXPECT_EQ(widget->accessibleName(), "References") << "tips taken away leave the name";
    bar->Buttons("Ref").setVisible(false);
    QCoreApplication::processEvents();
    EXPECT_FALSE(widget->isVisible());
    EXPECT_FALSE(bar->Buttons("Ref").Visible());
    bar->setVisible(false);
    bar->setAlign(vbAlignBottom);
    EXPECT_EQ(main->toolBarArea(bar), Qt::BottomToolBarArea);
    EXPECT_FALSE(bar->Visible()) << "a hidden bar stays hidden when it moves";
}

TEST_F(ToolbarTest, PicturesComeByNumber) {
    ImageList images;
    const QString picture = QStringLiteral(SOURCE_FOLDER) + "/tests/forms/square.svg";
    EXPECT_EQ(images.Add(picture), 1);
    EXPECT_EQ(images.Source(1), picture);
    EXPECT_EQ(errorOf([&] { images.ListImages(2); }), 35600);
    EXPECT_EQ(errorOf([&] { images.Add("nowhere.svg"); }), 53);
    bar->setImageList(&images);
    bar->Buttons("Open").setImage(1);
    bar->setButtonSize(450);
    EXPECT_EQ(bar->Buttons("Open").widget()->iconSize(), QSize(30, 30));
    const QColor middle = bar->Buttons("Open").widget()->icon().pixmap(30, 30).toImage().pixelColor(15, 15);
    EXPECT_EQ(middle, QColor(255, 0, 0));
}

TEST(StatusBarTest, ALongMessageIsCutAndStaysWholeInTheTip) {
    auto *main = NewForm<RecordingMain>();
    auto *bar = new StatusBar("stbStatus", main);
    main->setStatusBar(bar);
    bar->AddPanel(sbrText);
    bar->AddPanel(sbrDate);
    bar->AddPanel(sbrTime);
    const QString text = QString("Select a table from the menu. ").repeated(20);
    bar->setPanelText(1, text);
    main->resize(600, 400);
    main->Show();
    QCoreApplication::processEvents();
    EXPECT_EQ(main->width(), 600);
    EXPECT_EQ(bar->PanelText(1), text);
    auto *label = main->findChild<QLabel *>("stbStatus(1)");
    EXPECT_TRUE(label->text().endsWith(QChar(0x2026)));
    EXPECT_EQ(label->toolTip(), text);
    for (int width = 500; width < 510; ++width) {
        label->resize(width, label->height());
        EXPECT_LE(label->sizeHint().width(), width) << "the dots are cut off";
    }
    bar->setPanelText(1, "Short");
    EXPECT_EQ(label->text(), "Short");
    EXPECT_EQ(label->toolTip(), "");
    EXPECT_EQ(errorOf([&] { bar->setPanelText(4, "x"); }), 35600);
    QList<int> panels;
    QObject::connect(bar, &StatusBar::PanelDblClick, [&](int index) { panels.append(index); });
    QTest::mouseDClick(main->findChild<QLabel *>("stbStatus(2)"), Qt::LeftButton);
    EXPECT_EQ(panels, QList<int>({2}));
}

TEST(StatusBarTest, DateAndTimeStandInTheRegionalForm) {
    const PinnedSettings german(RegionalSettings{',', '.', "dd.MM.yyyy", "HH:mm:ss"});
    StatusBar bar("stbStatus");
    bar.AddPanel(sbrDate);
    bar.AddPanel(sbrTime);
    EXPECT_EQ(QDate::fromString(bar.PanelText(1), "dd.MM.yyyy"), QDate::currentDate());
    const QTime shown = QTime::fromString(bar.PanelText(2), "HH:mm");
    EXPECT_TRUE(shown.isValid()) << bar.PanelText(2).toStdString();
    EXPECT_LE(shown.secsTo(QTime::currentTime()), 61);
}

TEST(MenuTest, AClickTellsTheIndexAndLeavesTheCheckMark) {
    auto *main = NewForm<RecordingMain>();
    auto *file = new MenuEntry("mnuFile", "&File", main);
    main->menuBar()->addAction(file);
    auto *elements = new MenuArray("mnuFileElem", main);
    elements->add(file, 0, "Show &Material(s)", QKeySequence("Ctrl+M"));
    file->addSeparator();
    elements->add(file, 2, "&Save...");
    MenuEntry &sub = elements->add(file, 3, "&More");
    auto *more = new MenuArray("mnuMoreElem", main);
    more->add(&sub, 0, "&Deep");
    main->Show();
    QCoreApplication::processEvents();
    QStringList clicks;
    QObject::connect(elements, &MenuArray::Click, [&](int index) { clicks.append(QString::number(index)); });
    QObject::connect(more, &MenuArray::Click,
                     [&](int index) { clicks.append(QStringLiteral("more%1").arg(index)); });

    (*elements)(2).setChecked(true);
    (*elements)(2).trigger();
    EXPECT_TRUE((*elements)(2).Checked());
    EXPECT_TRUE((*elements)(2).isChecked());
    (*elements)(2).setChecked(false);
    (*elements)(2).trigger();
    EXPECT_FALSE((*elements)(2).isChecked());
    (*more)(0).trigger();
    QTest::keyClick(main, Qt::Key_M, Qt::ControlModifier);
    (*elements)(0).setEnabled(false);
    QTest::keyClick(main, Qt::Key_M, Qt::ControlModifier);
    EXPECT_EQ(clicks, QStringList({"2", "2", "more0", "0"}));
    EXPECT_EQ((*elements)(0).objectName(), "mnuFileElem(0)");
    EXPECT_EQ(errorOf([&] { (*elements)(1); }), 340);
    sub.setEnabled(false);
    EXPECT_FALSE(sub.SubMenu()->menuAction()->isEnabled());
}

} // namespace
