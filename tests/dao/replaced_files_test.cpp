// A file that another program puts something else in the place of, while it is open here.
#include <gtest/gtest.h>

#include <csignal>

#include <sqlite3.h>
#include <sys/wait.h>

#include "platform/dao/sqlite_source.h"
#include "tests/dao/source_support.h"

namespace {

constexpr int Damaged = 3343;

QString putAccess(const QTemporaryDir &folder, const QString &name) {
    return writeFile(folder, name, fileBytes(samplePath("Velmar_PED.mdb")));
}

QString putSqlite(const QTemporaryDir &folder, const QString &name) {
    const QString path = folder.filePath(name);
    sqlite3 *database = nullptr;
    sqlite3_open(path.toUtf8().constData(), &database);
    sqlite3_exec(database, "create table Units (id Integer); insert into Units values (1), (2);", nullptr,
                 nullptr, nullptr);
    sqlite3_close(database);
    return path;
}

struct Kind {
    QString (*put)(const QTemporaryDir &folder, const QString &name);
    std::unique_ptr<TableSource> (*open)(const QString &path);
};

const Kind kinds[] = {{putAccess,
                       [](const QString &path) -> std::unique_ptr<TableSource> {
                           return std::make_unique<SampleSource>(path);
                       }},
                      {putSqlite, [](const QString &path) -> std::unique_ptr<TableSource> {
                           return std::make_unique<SqliteSource>(path);
                       }}};

} // namespace

TEST(ReplacedFiles, TheFileThatWasOpenedIsReadOn) {
    for (const Kind &kind : kinds) {
        const QTemporaryDir folder;
        const QString path = kind.put(folder, "open");
        const auto source = kind.open(path);
        const qsizetype rows = source->rowCount("Units");
        ASSERT_EQ(::rename(qPrintable(writeFile(folder, "new", "something else")), qPrintable(path)), 0);
        EXPECT_EQ(allRows(*source, "Units").size(), rows);
        QFile::remove(path);
        EXPECT_EQ(allRows(*source, "Units").size(), rows);
    }
}

TEST(ReplacedFiles, AFileThatIsWrittenOverGivesNoMoreRows) {
    for (const Kind &kind : kinds) {
        const QTemporaryDir folder;
        const QString path = kind.put(folder, "open");
        const auto source = kind.open(path);
        const QByteArray before = fileBytes(path);
        EXPECT_GT(allRows(*source, "Units").size(), 0);
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite)); // the same bytes might be others at the next look
        file.write(before);
        file.close();
        EXPECT_EQ(errorOf([&] { allRows(*source, "Units"); }), Damaged);
        EXPECT_EQ(errorOf([&] { allRows(*source, "Units"); }), Damaged);
        EXPECT_EQ(errorOf([&] { allRows(*kind.open(path), "Units"); }), 0);
    }
}

TEST(ReplacedFiles, AHelperThatIsStartedAgainReadsTheSameFileOn) {
    const QTemporaryDir folder;
    const QString path = putAccess(folder, "open");
    SampleSource source(path);
    const std::vector<std::string> before = rowTexts(allRows(source, "Units"));
    ASSERT_EQ(::rename(qPrintable(writeFile(folder, "new", "something else")), qPrintable(path)), 0);
    const pid_t helper = helperProcess();
    kill(helper, SIGKILL);
    siginfo_t end;
    waitid(P_PID, static_cast<id_t>(helper), &end, WEXITED | WNOWAIT);
    EXPECT_EQ(rowTexts(allRows(source, "Units")), before);
    EXPECT_NE(helperProcess(), helper);
}
