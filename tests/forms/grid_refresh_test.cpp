// A data control over a real database file.
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <sqlite3.h>

#include "platform/forms/db_list.h"
#include "platform/runtime/runtime_error.h"
#include "tests/forms/grid_fixture.h"

namespace {

class RefreshedControl : public ::testing::Test {
protected:
    RefreshedControl() {
        const QString path = folder.filePath("small.db");
        sqlite3 *file = nullptr;
        EXPECT_EQ(sqlite3_open(path.toUtf8().constData(), &file), SQLITE_OK);
        EXPECT_EQ(sqlite3_exec(file,
                               "CREATE TABLE part (name TEXT(50), number TEXT(50));"
                               "INSERT INTO part VALUES ('bolt', '3'), ('nut', '1'), ('Axle', '2')",
                               nullptr, nullptr, nullptr),
                  SQLITE_OK);
        sqlite3_close(file);
        source.setDatabaseName(path);
        source.setRecordSource("select * from part order by name");
    }

    QTemporaryDir folder;
    DataControl source;
};

} // namespace

TEST_F(RefreshedControl, ShowsItsSourcesRowsInTheGrid) {
    TDBGrid grid;
    addThreeColumns(grid);
    grid.setDataSource(&source);
    EXPECT_EQ(grid.RowCount(), 0);
    source.Refresh();
    ASSERT_EQ(grid.RowCount(), 3);
    EXPECT_EQ(grid.CellText(0, 0), "Axle");
    source.recordset()->FindFirst("number = '1'");
    EXPECT_EQ(grid.Row(), 2);

    source.setRecordSource("select * from part where name like '*B*'");
    EXPECT_EQ(grid.RowCount(), 3); // until it is refreshed
    source.Refresh();
    EXPECT_EQ(grid.RowCount(), 1);
    EXPECT_EQ(grid.CellText(0, 1), "3");
}

TEST_F(RefreshedControl, KeepsItsRowsWhenTheNewSourceFails) {
    source.Refresh();
    const std::shared_ptr<Recordset> before = source.recordset();
    source.setRecordSource("select * from nothing");
    EXPECT_THROW(source.Refresh(), RuntimeError);
    EXPECT_EQ(source.recordset(), before);
    source.setDatabaseName(folder.filePath("missing.db"));
    EXPECT_THROW(source.Refresh(), RuntimeError);
    EXPECT_EQ(source.recordset()->RecordCount(), 3);
}

TEST_F(RefreshedControl, FillsAListWithTheChosenField) {
    DBList list;
    list.setDataSource(&source);
    list.setListField("name");
    list.ReFill();
    EXPECT_EQ(list.model()->rowCount(), 3);
    EXPECT_EQ(list.Text(), "Axle");
}
