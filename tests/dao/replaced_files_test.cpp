// A file that another program puts something else in the place of, while it is open here.
#include <gtest/gtest.h>

#include <csignal>

#include <sys/wait.h>

#include "tests/dao/source_support.h"
#include "tests/dao/sqlite_file.h"

namespace {

constexpr int Damaged = 3343;

QString putAccess(const QTemporaryDir &folder, const QString &name) {
    return writeFile(folder, name, fileBytes(samplePath("Velmar_PED.mdb")));
}

QString putSqlite(const QTemporaryDir &folder, const QString &name) {
    return makeSqliteFile(folder, name,
                          "create table Units (id Integer); insert into Units values (1), (2);");
}

constexpr auto Kinds = {putAccess, putSqlite};

} // namespace

TEST(ReplacedFiles, TheFileThatWasOpenedIsReadOn) {
    for (const auto &put : Kinds) {
        const QTemporaryDir folder;
        const QString path = put(folder, "open");
        SampleSource source(path);
        const qsizetype rows = source.rowCount("Units");
        ASSERT_EQ(::rename(qPrintable(writeFile(folder, "new", "something else")), qPrintable(path)), 0);
        EXPECT_EQ(allRows(source, "Units").size(), rows);
        QFile::remove(path);
        EXPECT_EQ(allRows(source, "Units").size(), rows);
    }
}

TEST(ReplacedFiles, AFileThatIsWrittenOverGivesNoMoreRows) {
    for (const auto &put : Kinds) {
        const QTemporaryDir folder;
        const QString path = put(folder, "open");
        SampleSource source(path);
        const QByteArray before = fileBytes(path);
        EXPECT_GT(allRows(source, "Units").size(), 0);
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite)); // the same bytes might be others at the next look
        file.write(before);
        file.close();
        EXPECT_EQ(errorOf([&] { allRows(source, "Units"); }), Damaged);
        EXPECT_EQ(errorOf([&] { allRows(source, "Units"); }), Damaged);
        EXPECT_EQ(errorOf([&] {
                      SampleSource again(path);
                      allRows(again, "Units");
                  }),
                  0);
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
