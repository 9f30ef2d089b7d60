// The help window over a help file made for the test.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QHelpContentWidget>
#include <QHelpIndexWidget>
#include <QHelpSearchEngine>
#include <QHelpSearchQueryWidget>
#include <QHelpSearchResultWidget>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QProcess>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QThread>

#include "platform/desktop/help.h"
#include "platform/desktop/help_viewer.h"
#include "tests/support/gui.h"

namespace {

class HelpTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        write("help.qhp", "<QtHelpProject version='1.0'><namespace>test.help</namespace>"
                          "<virtualFolder>doc</virtualFolder><filterSection>"
                          "<toc><section title='Start' ref='Start.htm'>"
                          "<section title='Contact' ref='How_To.htm'/></section></toc>"
                          "<keywords><keyword name='telephone' ref='How_To.htm'/></keywords>"
                          "<files><file>Start.htm</file><file>How_To.htm</file><file>help.css</file></files>"
                          "</filterSection></QtHelpProject>");
        write("help.css", "p { color: #123456; }");
        write("Start.htm",
              "<html><head><title>Start</title><link rel='stylesheet' type='text/css' href='help.css'></head>"
              "<body><p>Welcome. "
              "<a href='How_To.htm'>Contact</a></body></html>");
        write("How_To.htm", "<html><head><title>Contact</title></head><body>Call us about "
                            "crankshafts.</body></html>");
        QProcess generator;
        generator.start(QLibraryInfo::path(QLibraryInfo::LibraryExecutablesPath) + "/qhelpgenerator",
                        {folder().filePath("help.qhp"), "-o", folder().filePath("Manual_HELP.qch")});
        ASSERT_TRUE(generator.waitForFinished());
        ASSERT_EQ(generator.exitCode(), 0) << generator.readAllStandardError().toStdString();
    }

    void TearDown() override { delete viewer(); }

    static QTemporaryDir &folder() {
        static QTemporaryDir made;
        return made;
    }

    static void write(const QString &name, const QByteArray &text) {
        QFile file(folder().filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    static HelpViewer *viewer() {
        for (QWidget *widget : QApplication::topLevelWidgets())
            if (auto *found = qobject_cast<HelpViewer *>(widget)) return found;
        return nullptr;
    }

    static QString shownText() { return viewer()->findChild<QTextBrowser *>("HelpText")->toPlainText(); }

    static void show(HelpCommand command, const QString &topic = {}) {
        HtmlHelp(folder().filePath("Manual_Help.chm"), command, topic);
    }
};

TEST_F(HelpTest, ATopicIsFoundByItsFileName) {
    show(HelpTopic, "HOW_TO.htm");
    EXPECT_TRUE(shownText().contains("Call us"));
    HelpViewer *first = viewer();
    show(HelpTopic, "Start.htm");
    EXPECT_EQ(viewer(), first) << "one window for all calls";
    EXPECT_TRUE(shownText().contains("Welcome"));
    viewer()->findChild<QTextBrowser *>("HelpText")->anchorClicked(QUrl("How_To.htm"));
    EXPECT_TRUE(shownText().contains("Call us"));
}

TEST_F(HelpTest, TheFirstPageHasItsStyleAsAnyOther) {
    const auto colour = [] {
        const auto *browser = viewer()->findChild<QTextBrowser *>("HelpText");
        return browser->document()->begin().begin().fragment().charFormat().foreground().color().name();
    };
    show(HelpTopic, "Start.htm");
    EXPECT_EQ(colour().toStdString(), "#123456");
    show(HelpTopic, "How_To.htm");
    show(HelpTopic, "Start.htm");
    EXPECT_EQ(colour().toStdString(), "#123456");
}

TEST_F(HelpTest, ContentsIndexAndSearchLeadToTheTopic) {
    show(HelpContents);
    auto *pages = viewer()->findChild<QTabWidget *>("HelpPages");
    EXPECT_EQ(pages->currentIndex(), 0);
    auto *contents = viewer()->findChild<QHelpContentWidget *>();
    ASSERT_TRUE(QTest::qWaitFor([&] { return contents->model()->rowCount() == 1; }));
    EXPECT_EQ(contents->model()->index(0, 0).data().toString(), "Start");
    EXPECT_TRUE(QTest::qWaitFor([] { return shownText().contains("Welcome"); })) << "no empty window";

    show(HelpIndex);
    EXPECT_EQ(pages->currentIndex(), 1);
    auto *index = viewer()->findChild<QHelpIndexWidget *>();
    ASSERT_TRUE(QTest::qWaitFor([&] { return index->model()->rowCount() == 1; }));
    auto *filter = viewer()->findChild<QLineEdit *>("HelpIndexFilter");
    QTest::keyClicks(filter, "tele");
    QTest::keyClick(filter, Qt::Key_Return);
    EXPECT_TRUE(shownText().contains("Call us"));

    show(HelpSearch);
    EXPECT_EQ(pages->currentIndex(), 2);
    auto *query = viewer()->findChild<QHelpSearchQueryWidget *>();
    auto *search = viewer()->findChild<QHelpSearchEngine *>();
    const auto findsSomething = [&] {
        query->setSearchInput("crankshafts");
        Q_EMIT query->search();
        QTest::qWait(100);
        return search->searchResultCount() > 0;
    };
    ASSERT_TRUE(QTest::qWaitFor(findsSomething, 60000)) << "the texts are read first";
    EXPECT_EQ(search->searchResults(0, 1).value(0).title(), "Contact");
}

TEST_F(HelpTest, KeysLeadIntoAPageAndTheContentsFollowTheTopic) {
    show(HelpContents);
    auto *contents = viewer()->findChild<QHelpContentWidget *>();
    const auto marked = [&] { return contents->currentIndex().data().toString(); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return marked() == "Start"; }));
    viewer()->findChild<QTextBrowser *>("HelpText")->anchorClicked(QUrl("How_To.htm"));
    EXPECT_EQ(marked(), "Contact");

    viewer()->findChild<QTextBrowser *>("HelpText")->setFocus();
    QTest::keyClick(viewer(), Qt::Key_S, Qt::AltModifier);
    QTest::keyClicks(viewer()->focusWidget(), "pipe");
    EXPECT_EQ(viewer()->findChild<QHelpSearchQueryWidget *>()->findChild<QLineEdit *>()->text(), "pipe");
}

TEST_F(HelpTest, MayBeClosedWhileItReadsOrSearches) {
    for (int i = 0; i < 40; ++i) {
        show(HelpSearch);
        auto *query = viewer()->findChild<QHelpSearchQueryWidget *>();
        query->setSearchInput("crankshafts");
        if (i % 2 == 0) Q_EMIT query->search();
        delete viewer();
    }
}

/// The engine cannot be closed in the second of two searches at a time: the end of the first looks like
/// both's.
TEST_F(HelpTest, ASearchWaitsForTheOneBefore) {
    show(HelpSearch);
    auto *query = viewer()->findChild<QHelpSearchQueryWidget *>();
    int ended = 0;
    QObject::connect(viewer()->findChild<QHelpSearchEngine *>(), &QHelpSearchEngine::searchingFinished,
                     [&] { ++ended; });
    query->setSearchInput("crankshafts");
    for (int i = 0; i < 3; ++i) {
        Q_EMIT query->search();
        QThread::msleep(20); // long enough for a search
    }
    EXPECT_TRUE(QTest::qWaitFor([&] { return ended == 2; })) << "the first and the last";
    QTest::qWait(50);
    EXPECT_EQ(ended, 2);
}

TEST_F(HelpTest, AMissingOrDamagedFileIsToldAndNothingElseHappens) {
    write("damaged.qch", "no help");
    for (const char *name : {"none.chm", "damaged.chm"}) {
        modal().answerMsgBox(1);
        HtmlHelp(folder().filePath(name), HelpContents);
        EXPECT_TRUE(modal().lastAsked().text.contains(name));
        EXPECT_EQ(viewer(), nullptr);
    }
}

} // namespace
