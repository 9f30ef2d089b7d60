// The help file of the program, the ways that lead to it, and the about window.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QHelpContentModel>
#include <QHelpEngine>
#include <QHelpIndexModel>
#include <QHelpLink>
#include <QHelpSearchEngine>
#include <QHelpSearchQueryWidget>
#include <QPushButton>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTest>
#include <QTextBrowser>
#include <QTextEdit>
#include <QToolButton>
#include <QWindow>

#include "material/frmMaterial2.h"
#include "platform/desktop/help_viewer.h"
#include "platform/forms/default_instance.h"
#include "platform/forms/forms.h"
#include "platform/forms/msg_box.h"
#include "platform/forms/status_bar.h"
#include "platform/forms/toolbar.h"
#include "reports/frmSave.h"
#include "search/frmSearch.h"
#include "shell/HTMLHelp.h"
#include "shell/mdiVelmar.h"
#include "start/frmAbout.h"
#include "tests/support/gui.h"
#include "tests/support/program.h"

namespace {

HelpViewer *viewer() {
    for (QWidget *widget : QApplication::topLevelWidgets())
        if (auto *found = qobject_cast<HelpViewer *>(widget)) return found;
    return nullptr;
}

class HelpFile : public ::testing::Test {
protected:
    HelpFile() {
        QFile::copy(BINARY_FOLDER "/Velmar_PED_HELP.qch", program.folder() + "/Velmar_PED_HELP.qch");
    }
    ~HelpFile() override { delete viewer(); }

    static QString page() {
        const auto *pages = viewer()->findChild<QTabWidget *>("HelpPages");
        return pages->tabText(pages->currentIndex()).remove('&');
    }
    static QString topic() { return viewer()->findChild<QTextBrowser *>("HelpText")->source().fileName(); }
    static QHelpEngine &engine() { return *viewer()->findChild<QHelpEngine *>(); }

    mdiVelmar &main() const { return mdiVelmar::instance(); }
    TestProgram program;
};

TEST_F(HelpFile, EveryWayLeadsToItsPage) {
    main().menu.mnuHelpElem(1).trigger();
    ASSERT_NE(viewer(), nullptr);
    EXPECT_EQ(page(), "Index");
    main().menu.mnuHelpElem(2).trigger();
    EXPECT_EQ(page(), "Search");
    main().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&main()));
    QTest::keyClick(&main(), Qt::Key_F1);
    EXPECT_EQ(page(), "Contents");
    ASSERT_TRUE(QTest::qWaitFor([] { return !topic().isEmpty(); }));

    QTest::mouseClick(DefaultInstance<frmSearch>().imgIcon, Qt::LeftButton);
    EXPECT_EQ(topic(), "How_To_Contact_Us.htm");
    main().menu.mnuFileElem(5).trigger();
    EXPECT_EQ(topic(), "General_Information.htm");
    HTMLHelp::ShowHelpTopic(1, "How_To_Contact_Us.htm");
    main().Toolbar1->Buttons("GenInfo").widget()->click();
    EXPECT_EQ(topic(), "General_Information.htm");
}

/// Every topic stands in the contents, and nothing points to what is not there.
TEST_F(HelpFile, ContentsIndexAndTopicsHoldTogether) {
    main().menu.mnuHelpElem(0).trigger();
    const QList<QUrl> files = engine().files(engine().registeredDocumentations().first(), QString());
    const auto fileOf = [&](const QUrl &url) {
        return engine().findFile(url.adjusted(QUrl::RemoveFragment));
    };

    QStringList sections;
    QStringList shown;
    const auto walk = [&](const auto &self, const QModelIndex &parent, const QString &above) -> void {
        const QHelpContentModel &contents = *engine().contentModel();
        for (int row = 0; row < contents.rowCount(parent); ++row) {
            const QModelIndex index = contents.index(row, 0, parent);
            const QHelpContentItem &item = *contents.contentItemAt(index);
            sections << above + item.title();
            shown << item.url().fileName();
            EXPECT_TRUE(fileOf(item.url()).isValid()) << qPrintable(item.title());
            self(self, index, item.title() + '/');
        }
    };
    ASSERT_TRUE(QTest::qWaitFor([] { return engine().contentModel()->rowCount() > 0; }));
    walk(walk, {}, {});
    EXPECT_TRUE(sections.contains("How To Use Velmar-PED/Can't Start Velmar-PED?"));

    ASSERT_TRUE(QTest::qWaitFor([] { return engine().indexModel()->rowCount() > 0; }));
    for (int row = 0; row < engine().indexModel()->rowCount(); ++row) {
        const QString keyword = engine().indexModel()->index(row).data().toString();
        for (const QHelpLink &link : engine().documentsForKeyword(keyword))
            EXPECT_TRUE(fileOf(link.url).isValid()) << qPrintable(keyword);
    }

    static const QRegularExpression pointers("(?:href|src)=\"([^\"]+)\"");
    for (const QUrl &file : files) {
        if (!file.fileName().endsWith(".htm")) continue;
        EXPECT_TRUE(shown.contains(file.fileName())) << qPrintable(file.fileName());
        const QString text = QString::fromUtf8(engine().fileData(file));
        for (auto match = pointers.globalMatch(text); match.hasNext();) {
            const QString target = match.next().captured(1);
            EXPECT_TRUE(fileOf(file.resolved(target)).isValid())
                << qPrintable(file.fileName()) << ": " << qPrintable(target);
        }
    }
}

TEST_F(HelpFile, AWordIsFoundInTheTopicsThatHoldIt) {
    main().menu.mnuHelpElem(2).trigger();
    auto *query = viewer()->findChild<QHelpSearchQueryWidget *>();
    ASSERT_TRUE(QTest::qWaitFor([&] {
        query->setSearchInput("interpolation");
        Q_EMIT query->search();
        QTest::qWait(100);
        return engine().searchEngine()->searchResultCount() > 0;
    }));
    EXPECT_EQ(engine().searchEngine()->searchResults(0, 1).value(0).title(), "Design values");
}

TEST_F(HelpFile, ItsKeysDoWhatTheKeyboardTopicSays) {
    HTMLHelp::ShowHelpTopic(1, "Start.htm");
    HTMLHelp::ShowHelpTopic(1, "Keyboard.htm");
    ASSERT_TRUE(QTest::qWaitForWindowActive(viewer()));
    const auto press = [](Qt::Key key, Qt::KeyboardModifiers held = Qt::AltModifier) {
        QTest::keyClick(viewer()->windowHandle(), key, held);
    };
    press(Qt::Key_Left);
    EXPECT_EQ(topic(), "Start.htm");
    press(Qt::Key_Right);
    EXPECT_EQ(topic(), "Keyboard.htm");
    const std::pair<Qt::Key, const char *> pages[] = {
        {Qt::Key_I, "Index"}, {Qt::Key_S, "Search"}, {Qt::Key_C, "Contents"}};
    for (const auto &[letter, name] : pages) {
        press(letter);
        EXPECT_EQ(page(), name);
        if (letter == Qt::Key_I) {
            EXPECT_EQ(viewer()->focusWidget()->objectName(), "HelpIndexFilter");
        }
    }
    press(Qt::Key_Escape, Qt::NoModifier);
    EXPECT_FALSE(viewer() != nullptr && viewer()->isVisible());
}

TEST_F(HelpFile, F1InADialogOpensItsTopicWhichCanBeReadBesideIt) {
    program.open(program.material(2)).ShowTable("ModElast");
    auto &search = DefaultInstance<frmSearch>();
    const auto button = [](const char *name) {
        return [name] {
            Forms::byName("frmMaterial2")->asWidget()->findChild<QAbstractButton *>(name)->click();
        };
    };
    const struct {
        const char *window, *topic;
        std::function<void()> open;
    } dialogs[] = {
        {"frmAbout", "How_To_Contact_Us.htm", [&] { main().ShowAbout(); }},
        {"frmPmaIndex", "PMA.htm", [&] { search.cmdShowPmaIndex->click(); }},
        {"frmSelectStand", "Searching.htm", [&] { search.cmdSelect(0)->click(); }},
        {"frmSelect", "Searching.htm", [&] { search.cmdSelect(1)->click(); }},
        {"frmSelData", "Reports.htm",
         [&] { main().menu.mnuFileElem(3).setEnabled(true), main().menu.mnuFileElem(3).trigger(); }},
        {"frmSave", "Reports.htm", [] { DefaultInstance<frmSave>().ShowModal(); }},
        {"actRepMain", "Reports.htm", button("cmdPrintSave(1)")},
        {"frmChart", "Graphs.htm", button("cmdPrintSave(2)")},
    };
    for (const auto &dialog : dialogs) {
        HTMLHelp::ShowHelpTopic(1, "Start.htm");
        modal().driveForm([&](Form &form) {
            EXPECT_EQ(form.Name(), dialog.window);
            QTest::keyClick(form.focusWidget() != nullptr ? form.focusWidget() : &form, Qt::Key_F1);
            EXPECT_EQ(topic(), dialog.topic) << dialog.window;
            QTest::keyClick(viewer()->windowHandle(), Qt::Key_S, Qt::AltModifier);
            EXPECT_EQ(page(), "Search") << dialog.window;
            QTest::keyClick(viewer()->windowHandle(), Qt::Key_C, Qt::AltModifier);
            form.Unload();
        });
        dialog.open();
        deleteUnloaded();
    }
}

TEST_F(HelpFile, AMissingFileIsToldWithItsNameAndNothingElseHappens) {
    QFile::remove(program.folder() + "/Velmar_PED_HELP.qch");
    modal().answerMsgBox(vbOK);
    main().menu.mnuHelpElem(0).trigger();
    EXPECT_TRUE(modal().lastAsked().text.contains(program.folder() + "/Velmar_PED_HELP.chm"));
    modal().answerMsgBox(vbOK);
    main().menu.mnuFileElem(5).trigger(); // a topic of it
    EXPECT_EQ(modal().asked().size(), 2);
    EXPECT_EQ(viewer(), nullptr);
    EXPECT_EQ(HTMLHelp::HelpFilePath(2), "");
}

TEST_F(HelpFile, TheAboutWindowGivesTheAddressOfTheHelp) {
    HTMLHelp::ShowHelpTopic(1, "How_To_Contact_Us.htm");
    const QString help = viewer()->findChild<QTextBrowser *>("HelpText")->toPlainText();
    const QString standing = main().stbStatus->PanelText(1);
    modal().driveForm([&](Form &form) {
        EXPECT_EQ(main().stbStatus->PanelText(1), "About Velmar-PED");
        auto &about = *form.as<frmAbout>();
        EXPECT_EQ(about.Caption(), "About Velmar-PED");
        const QString makerAndAddress = about.txtContact->toPlainText().section('\n', 0, 1);
        EXPECT_TRUE(help.contains(makerAndAddress + '\n')) << qPrintable(makerAndAddress);
        QTest::mouseClick(about.cmdOK, Qt::LeftButton);
        EXPECT_TRUE(about.isUnloaded());
    });
    main().menu.mnuHelpElem(4).trigger();
    EXPECT_EQ(main().stbStatus->PanelText(1), standing);
}

} // namespace
