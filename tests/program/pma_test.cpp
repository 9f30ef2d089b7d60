// The index of particular material appraisals, and the opening of documents.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>

#include "platform/desktop/shell_execute.h"
#include "platform/forms/colours.h"
#include "platform/forms/data_control.h"
#include "platform/forms/default_instance.h"
#include "platform/forms/grid_footer.h"
#include "platform/forms/msg_box.h"
#include "platform/forms/tdb_grid.h"
#include "platform/runtime/text_file.h"
#include "pma/frmPmaIndex.h"
#include "pma/modDocument.h"
#include "search/frmSearch.h"
#include "shell/mdiVelmar.h"
#include "tests/support/gui.h"
#include "tests/support/program.h"
#include "tests/support/small_database.h"

namespace {

class PmaTest : public ::testing::Test {
protected:
    QString file(const QString &name) const { return program.folder() + '/' + name; }

    /// Presses the button of the search window and works in what opens.
    void open(const std::function<void(frmPmaIndex &)> &work) {
        modal().driveForm([&](Form &form) {
            work(*form.as<frmPmaIndex>());
            form.Unload();
        });
        QTest::mouseClick(DefaultInstance<frmSearch>().cmdShowPmaIndex, Qt::LeftButton);
        deleteUnloaded();
    }

    static QTableView &view(const frmPmaIndex &window) { return *window.tdbIndex->findChild<QTableView *>(); }
    static void clickHeading(const frmPmaIndex &window, int column) {
        const QHeaderView *headings = view(window).horizontalHeader();
        const QPoint at(headings->sectionViewportPosition(column) + 20, headings->height() / 2);
        QTest::mouseClick(headings->viewport(), Qt::LeftButton, {}, at);
    }
    static void clickFooter(const frmPmaIndex &window, int column) {
        auto *footer = window.tdbIndex->findChild<GridFooter *>();
        QTest::mouseClick(footer, Qt::LeftButton, {}, footer->columnRect(column).center());
    }
    static void doubleClick(const frmPmaIndex &window, int row) {
        QTableView &table = view(window);
        const QPoint at = table.visualRect(table.model()->index(row, 0)).center();
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, at);
    }
    static void retype(const frmPmaIndex &window, const QString &text) {
        window.txtSearchString->selectAll();
        QTest::keyClick(window.txtSearchString, Qt::Key_Delete);
        QTest::keyClicks(window.txtSearchString, text);
    }

    TestProgram program;
    ShellSeam shell;
};

TEST_F(PmaTest, OpensOnTheWholeIndexInTheSizeThatItsCallerGives) {
    open([](frmPmaIndex &window) {
        EXPECT_EQ(window.Caption(), "PMA Index");
        EXPECT_EQ(window.focusWidget(), window.txtSearchString);
        EXPECT_NEAR(window.Width(), 12800, 15);
        EXPECT_NEAR(window.Height(), 8500, 15);
        EXPECT_EQ(window.tdbIndex->RowCount(), 12);
        EXPECT_EQ(window.tdbIndex->CellText(4, 1), "F316L");
        EXPECT_EQ(window.tdbIndex->CellText(4, 4), "2021-01-15");
        const QStringList captions = {"Specification", "Name", "Number", "Product", "Date", "Revision"};
        ASSERT_EQ(window.tdbIndex->ColumnCount(), captions.size());
        for (int i = 0; i < captions.size(); ++i)
            EXPECT_EQ(window.tdbIndex->Columns(i).Caption(), captions[i]);

        const QImage picture = view(window).viewport()->grab().toImage();
        const auto colourOf = [&](int row) {
            const QRect cell = view(window).visualRect(view(window).model()->index(row, 5));
            return picture.pixelColor(cell.bottomRight() - QPoint(4, 4));
        };
        EXPECT_EQ(colourOf(2), toQColor(mdiVelmar::instance().cInfoBack)) << "the third row";
        EXPECT_EQ(colourOf(3), toQColor(mdiVelmar::instance().cBlue)) << "the fourth row";
    });
}

TEST_F(PmaTest, SearchesWhenAskedAndSortsTheWholeIndex) {
    open([](frmPmaIndex &window) {
        const auto rows = [&] { return window.tdbIndex->RowCount(); };
        const auto enter = [&] { QTest::keyClick(window.txtSearchString, Qt::Key_Return); };
        retype(window, "s31603");
        EXPECT_EQ(rows(), 12) << "typing alone does not search";
        QTest::mouseClick(window.cmdSearch, Qt::LeftButton);
        EXPECT_EQ(rows(), 2);
        retype(window, "2021-01");
        enter();
        EXPECT_EQ(rows(), 2) << "a date is searched as text";
        retype(window, "bolts");
        enter();
        EXPECT_EQ(window.tdbIndex->CellText(0, 1), "B7") << "by a column that is not shown";

        clickHeading(window, 1);
        EXPECT_EQ(window.dtaPmaIndex->RecordSource(), "SELECT * FROM PMA_Index ORDER BY Designationname ASC");
        EXPECT_EQ(rows(), 12);
        EXPECT_EQ(window.tdbIndex->CellText(0, 1), "316L");
        EXPECT_EQ(window.txtSearchString->text(), "bolts");
        clickFooter(window, 4);
        EXPECT_EQ(window.dtaPmaIndex->RecordSource(), "SELECT * FROM PMA_Index ORDER BY RevisionDate DESC");
        EXPECT_EQ(window.tdbIndex->CellText(0, 4), "2023-05-11");

        retype(window, "  ");
        EXPECT_EQ(window.dtaPmaIndex->RecordSource(), "SELECT * FROM PMA_Index") << "blanks bring all back";
        enter();
        EXPECT_TRUE(window.dtaPmaIndex->RecordSource().contains("LIKE '*  *'"))
            << "and are searched as they are";
        EXPECT_EQ(rows(), 0);
        retype(window, "");
        enter();
        EXPECT_TRUE(window.dtaPmaIndex->RecordSource().startsWith(
            "SELECT * FROM PMA_Index WHERE Specification LIKE '**' OR Designationname LIKE '**' OR "));
        EXPECT_EQ(rows(), 12);
    });
}

TEST_F(PmaTest, AQuotationMarkGoesTheWayOfEveryError) {
    open([](frmPmaIndex &window) {
        retype(window, "d'or");
        QTest::keyClick(window.txtSearchString, Qt::Key_Return);
    });
    const QList<RuntimeError> faults = takeFaults();
    ASSERT_EQ(faults.size(), 1);
    EXPECT_EQ(faults.first().number(), 3075);
}

TEST_F(PmaTest, ADoubleClickOpensTheDocumentThatIsThere) {
    QDir(program.folder()).mkdir("PMA");
    TextFile::writeLines(file("PMA/a b.pdf"), {"text"});
    QFile::remove(file("PMA_Index.mdb"));
    const struct {
        QString path;
        QString opened;
    } cases[] = {
        {"'PMA/a b.pdf'", file("PMA/a b.pdf")},
        {"'PMA\\a b.pdf'", file("PMA/a b.pdf")},
        {'\'' + file("PMA_Index.mdb") + '\'', file("PMA_Index.mdb")},
        {"'PMA/none.pdf'", {}},
        {"'PMA'", {}},
        {"''", {}},
        {"null", {}},
    };
    QStringList statements = {
        "create table PMA_Index (Specification TEXT, Designationname TEXT, Designationnumber TEXT, "
        "Product TEXT, RevisionDate TEXT, Revision TEXT, Place TEXT, Searchstring TEXT)"};
    for (const auto &item : cases)
        statements << "insert into PMA_Index values ('a', 'b', 'c', 'd', 'e', 'f', " + item.path + ", 'g')";
    makeDatabase(file("PMA_Index.mdb"), statements);

    open([&](frmPmaIndex &window) {
        int row = 0;
        for (const auto &item : cases) {
            shell.opened.clear();
            doubleClick(window, row++);
            EXPECT_EQ(shell.opened.join(""), item.opened) << qPrintable(item.path);
            EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
        }
        shell.result = 5;
        modal().answerMsgBox([](const ModalSeam::Request &request) {
            EXPECT_EQ(request.text, "Access denied");
            EXPECT_NE(QGuiApplication::overrideCursor(), nullptr);
            return vbOK;
        });
        doubleClick(window, 0);
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    });
}

TEST_F(PmaTest, TheInformationIsAskedForWithoutALook) {
    open([&](frmPmaIndex &window) {
        shell.result = ShellFileNotFound;
        modal().answerMsgBox(vbOK);
        QTest::mouseClick(window.cmdInfo, Qt::LeftButton);
    });
    EXPECT_EQ(shell.opened, QStringList{file("morepmainfo.pdf")});
    EXPECT_EQ(modal().lastAsked().text, "File not found");
    EXPECT_EQ(modal().lastAsked().style, vbOKOnly);
}

TEST_F(PmaTest, AnIndexThatHasGoneBadSinceTheStartIsAnErrorAndNoCrash) {
    const QString index = file("PMA_Index.mdb");
    const struct {
        const char *what;
        std::function<void()> spoil;
        int error;
    } cases[] = {
        {"gone", [] {}, 3024},
        {"a text", [&] { TextFile::writeLines(index, {"no index"}); }, 3343},
        {"cut off",
         [&] {
             QFile::copy(SOURCE_FOLDER "/sample/PMA_Index.mdb", index);
             QFile::resize(index, 8192);
         },
         3343},
        {"another database", [&] { makeDatabase(index, {"create table Other (a TEXT)"}); }, 3078},
    };
    for (const auto &item : cases) {
        QFile::remove(index);
        item.spoil();
        open([](frmPmaIndex &window) { QTest::keyClick(window.tdbIndex, Qt::Key_Down); });
        const QList<RuntimeError> faults = takeFaults();
        ASSERT_EQ(faults.size(), 1) << item.what;
        EXPECT_EQ(faults.first().number(), item.error) << item.what;
    }
}

TEST(Documents, ResultsHaveTheirTexts) {
    ShellSeam shell;
    const QList<std::pair<int, QString>> cases = {{0, "Unknown error"},
                                                  {2, "File not found"},
                                                  {3, "Path not found"},
                                                  {5, "Access denied"},
                                                  {8, "Out of memory"},
                                                  {11, "Invalid EXE file or error in EXE image"},
                                                  {26, "A sharing violation occurred"},
                                                  {27, "Incomplete or invalid file association"},
                                                  {28, "DDE Time out"},
                                                  {29, "DDE transaction failed"},
                                                  {30, "DDE busy"},
                                                  {32, "DLL not found"}};
    for (const auto &[result, text] : cases) {
        shell.result = result;
        modal().answerMsgBox(vbOK);
        EXPECT_EQ(modDocument::OpenDocument(nullptr, "a.pdf"), text);
        EXPECT_EQ(modal().lastAsked().text, text);
    }
    for (const int result : {31, 33, 42}) {
        shell.result = result;
        EXPECT_EQ(modDocument::OpenDocument(nullptr, "a.pdf"), "");
    }
    EXPECT_EQ(shell.openedAs, QStringList{"a.pdf"});
    EXPECT_EQ(modal().asked().size(), cases.size());
}

} // namespace
