// A database made from the sample's texts, without Access, against the sample's Access files.
#include <gtest/gtest.h>

#include <QProcess>

#include "platform/dao/database.h"
#include "platform/dao/db_engine.h"
#include "platform/dao/recordset.h"
#include "tests/dao/source_support.h"

namespace {

struct MadeSample {
    const char *texts;
    const char *file;
};

class MadeDatabase : public ::testing::TestWithParam<MadeSample> {
protected:
    MadeDatabase() {
        QProcess script;
        script.setProcessChannelMode(QProcess::MergedChannels);
        script.start("python3", {SOURCE_FOLDER "/tools/make_database", samplePath(GetParam().texts), path()});
        script.waitForFinished();
        output = script.readAll().toStdString();
    }

    QString path() const { return m_folder.filePath(GetParam().file); }

    std::string output;

private:
    QTemporaryDir m_folder;
};

} // namespace

TEST_P(MadeDatabase, EqualsTheAccessFileCellByCell) {
    ASSERT_TRUE(fileBytes(path()).startsWith("SQLite format 3")) << output;
    FileSource made(path(), helperPath());
    SampleSource access(samplePath(GetParam().file));
    QStringList names = access.tableNames();
    QStringList madeNames = made.tableNames();
    names.sort();
    madeNames.sort();
    ASSERT_EQ(madeNames, names);
    for (const QString &table : names) {
        EXPECT_EQ(made.fields(table), access.fields(table)) << table.toStdString();
        EXPECT_EQ(rowTexts(allRows(made, table)), rowTexts(allRows(access, table))) << table.toStdString();
    }
}

TEST_P(MadeDatabase, OpensInTheEngineUnderTheNameOfTheAccessFile) {
    const auto database = DBEngine::instance().OpenDatabase(path(), true, true, ";Pwd=any");
    SampleSource access(samplePath(GetParam().file));
    for (const QString &table : access.tableNames()) {
        const auto rows = database->OpenRecordset("select * from " + table);
        if (!rows->Eof()) rows->MoveLast();
        EXPECT_EQ(rows->RecordCount(), access.rowCount(table)) << table.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Samples, MadeDatabase,
                         ::testing::Values(MadeSample{"csv", "Velmar_PED.mdb"},
                                           MadeSample{"pma-csv", "PMA_Index.mdb"}),
                         [](const auto &each) {
                             return std::string(each.index == 0 ? "Materials" : "PmaIndex");
                         });
