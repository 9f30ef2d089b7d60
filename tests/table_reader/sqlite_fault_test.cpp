// Faults of SQLite files that are met twice.
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include <fcntl.h>
#include <unistd.h>

#include "table_reader/damaged.h"
#include "table_reader/sqlite_file.h"
#include "table_reader/sqlite_refused.h"
#include "table_reader/sqlite_search.h"
#include "tests/dao/sqlite_file.h"

namespace {

template <typename Call>
bool isRefused(Call call) {
    try {
        call();
        return false;
    } catch (const SqliteRefused &) {
    } catch (const Damaged &) {
    }
    return true;
}

/// With rows enough for a page or for a tree of pages of 512 bytes. Its second page is the table's first.
QString tableFile(const QTemporaryDir &folder, int rows) {
    return makeSqliteFile(
        folder, QString::number(rows),
        "pragma page_size = 512; create table T (k Integer, name Text(20));"
        "insert into T with recursive n(i) as (values (2) union all select i + 1 from n where i <= " +
            QByteArray::number(rows) + ") select i, printf('row %03d', i) from n;");
}

template <typename Edit>
void change(const QString &path, Edit edit) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    QByteArray bytes = file.readAll();
    edit(bytes);
    ASSERT_TRUE(file.seek(0));
    ASSERT_EQ(file.write(bytes), bytes.size());
}

void expectRefusals(const QString &path, const char *fault) {
    const int descriptor = open(path.toUtf8().constData(), O_RDONLY | O_CLOEXEC);
    const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
    {
        Reply reply(nowhere);
        SqliteFile file(descriptor, reply);
        SqliteSearch search(file.database(), file.table(0));
        EXPECT_TRUE(isRefused([&] { search.lookAhead({1}); })) << fault;
        EXPECT_TRUE(isRefused([&] { search.run({{1, true, 0, u"row 007"}}, reply); })) << fault;
        EXPECT_TRUE(isRefused([&] { search.run({}, reply); })) << fault;
    }
    close(nowhere);
    close(descriptor);
}

} // namespace

// Nobody is told of what a look ahead comes upon.
TEST(SqliteFault, IsMetAgainBehindALookAhead) {
    const QTemporaryDir folder;
    const QString page = tableFile(folder, 8);
    // Before a text there are its row's number, three bytes that tell the types, and k.
    change(page, [](QByteArray &bytes) { bytes[bytes.indexOf("row 005") - 5] = 1; });
    expectRefusals(page, "a row's number comes twice");

    const QString tree = tableFile(folder, 60);
    change(tree, [](QByteArray &bytes) { bytes[1023] = static_cast<char>(bytes[1023] | 0x80); });
    expectRefusals(tree, "a page's last number has no end in it");
}
