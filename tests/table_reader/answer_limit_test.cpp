// Small files that would make answers without end.
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include "table_reader/damaged.h"
#include "table_reader/sqlite_file.h"
#include "table_reader/sqlite_refused.h"
#include "table_reader/sqlite_search.h"
#include "table_reader/table_search.h"
#include "tests/dao/jet_file.h"
#include "tests/dao/sqlite_file.h"

namespace {

constexpr off_t Most = 20 << 20; // of an answer over a file of less than 200 kB

/// Where answers go, and what they come to.
class Answer {
public:
    ~Answer() { close(m_file); }
    Reply &reply() { return m_reply; }
    off_t size() const { return lseek(m_file, 0, SEEK_END); }

private:
    int m_file = memfd_create("answer", MFD_CLOEXEC);
    Reply m_reply = Reply(m_file);
};

constexpr quint32 RowsPage = 5; // of the table in a JetFile

QByteArray pageOfMovedRows(int rows) {
    QByteArray page(mdbPages::Size, '\0');
    page.replace(0, 5, QByteArray("\1\1\0\0\4", 5));
    mdbPages::put(page, 12, quint16(rows));
    for (int i = 0; i < rows; ++i) {
        const auto offset = static_cast<quint16>(mdbPages::Size - 4 * (i + 1));
        mdbPages::put(page, 14 + 2 * i, static_cast<quint16>(offset | 0x4000));
        mdbPages::put(page, offset, RowsPage << 8);
    }
    return page;
}

} // namespace

TEST(AnswerLimit, EndsAViewThatGivesOutATextOverAndOver) {
    const QTemporaryDir folder;
    const QString path =
        makeSqliteFile(folder, "again.db",
                       "create table T (name Text); insert into T values (printf('%.*c', 100000, 'x'));"
                       "create view Again as with recursive n(i) as (select 1 union all select i + 1 from n"
                       " where i < 1000) select name from T, n;");
    const int descriptor = open(path.toUtf8().constData(), O_RDONLY | O_CLOEXEC);
    Answer answer;
    {
        SqliteFile file(descriptor, answer.reply());
        SqliteSearch search(file.database(), file.table(1));
        EXPECT_THROW(search.run({}, answer.reply()), SqliteRefused);
    }
    EXPECT_LT(answer.size(), Most);
    close(descriptor);
}

TEST(AnswerLimit, EndsRowsThatHaveAllMovedToOnePlace) {
    constexpr int Pages = 39;
    constexpr int RowsOfPage = 680;
    QByteArray bytes = JetFile(JetFile::Version::Access2000)
                           .make("T", {{"note", JetFile::Type::Memo}}, {{QString(1900, 'x')}});
    ASSERT_EQ(bytes.size(), (RowsPage + 1) * mdbPages::Size);
    const qsizetype map = mdbPages::rowStart(bytes, mdbPages::Size, 1);
    bytes.replace(map + 5, 5, QByteArray(5, '\xff'));
    mdbPages::setRowCount(bytes, (RowsPage - 1) * mdbPages::Size, 1 + Pages * RowsOfPage);
    for (int i = 0; i < Pages; ++i)
        bytes += pageOfMovedRows(RowsOfPage);

    const int descriptor = memfd_create("moved", MFD_CLOEXEC);
    ASSERT_EQ(write(descriptor, bytes.constData(), std::size_t(bytes.size())), bytes.size());
    Answer answer;
    const AccessFile file(descriptor, {});
    TableSearch search(file, file.tables()[0]);
    EXPECT_THROW(search.run({}, answer.reply()), Damaged);
    EXPECT_GT(answer.size(), 0);
    EXPECT_LT(answer.size(), Most);
    close(descriptor);
}
