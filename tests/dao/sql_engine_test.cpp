// Opening files: what is told apart, what is refused, what is shared.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <unistd.h>

#include "platform/dao/db_engine.h"
#include "tests/dao/source_support.h"
#include "tests/dao/sql_support.h"

namespace {

class Engine : public testing::Test {
protected:
    QString copy(const QString &sample) {
        const QString path = m_folder.filePath(sample);
        EXPECT_TRUE(QFile::copy(QString(SOURCE_FOLDER "/sample/") + sample, path));
        return path;
    }
    QString file(const QString &name, const QByteArray &content) {
        QFile file(m_folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        return file.fileName();
    }
    static std::shared_ptr<Database> open(const QString &path, const QString &connect = "Access 2000;") {
        return DBEngine::instance().OpenDatabase(path, true, true, connect);
    }
    static std::string error(const QString &path, const QString &connect = {}) {
        return errorText([&] { open(path, connect); });
    }

    QTemporaryDir m_folder;
};

TEST_F(Engine, RefusesWhatIsNoDatabase) {
    const auto text = [](const QString &message, const QString &path) {
        return message.arg(path).toStdString();
    };
    const QString missing = m_folder.filePath("none.mdb");
    EXPECT_EQ(error(missing), text("3024: Could not find file '%1'.", missing));
    EXPECT_EQ(error(""), "3024: Could not find file ''.");
    const QString elsewhere = m_folder.filePath("no/where.mdb");
    EXPECT_EQ(
        error(elsewhere),
        text(
            "3044: '%1' is not a valid path.  Make sure that the path name is spelled correctly and that you "
            "are connected to the server on which the file resides.",
            elsewhere));
    for (const QString &path :
         {m_folder.path(), file("text.mdb", "no database"), file("empty.mdb", ""), QString("/dev/null")})
        EXPECT_EQ(error(path), text("3343: Unrecognized database format '%1'.", path));
}

TEST_F(Engine, FileThatMayNotBeReadIsTold) {
    const QString hidden = m_folder.filePath("hidden");
    ASSERT_TRUE(QDir().mkdir(hidden));
    const QString paths[] = {file("unreadable.mdb", "Standard Jet DB"), hidden + "/in.mdb"};
    QFile::setPermissions(m_folder.path(),
                          QFile::ReadOwner | QFile::ReadOther | QFile::ExeOwner | QFile::ExeOther);
    QFile::setPermissions(paths[0], {});
    QFile::setPermissions(hidden, {});
    const bool isRoot = geteuid() == 0; // who may read everything
    constexpr uid_t Nobody = 65534;
    const auto become = [&](uid_t user) { return isRoot ? setresuid(user, user, 0) : 0; };
    ASSERT_EQ(become(Nobody), 0);
    for (const QString &path : paths)
        EXPECT_EQ(error(path), "70: Permission denied: '" + path.toStdString() + "'");
    ASSERT_EQ(become(0), 0);
    QFile::setPermissions(m_folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QFile::setPermissions(hidden, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

TEST_F(Engine, AsksForThePasswordOnceAndSharesTheRows) {
    const QString path = copy("Velmar_PED.mdb");
    EXPECT_EQ(error(path), "3031: Not a valid password.");
    EXPECT_EQ(error(path, ";Pwd=" + SamplePassword.toUpper()), "3031: Not a valid password.");

    auto first = open(path, ";Pwd=" + SamplePassword);
    EXPECT_EQ(first->Name(), path);
    ASSERT_TRUE(QFile::link(path, m_folder.filePath("link.mdb")));
    auto second = open(m_folder.filePath("link.mdb"));
    auto third = open(path);
    EXPECT_EQ(shownRows(*second, "select count(*) from materials"), std::vector<std::string>{"38"});
    first->Close();
    third.reset();
    EXPECT_EQ(error(path), "no error") << "one of them still holds the file";
    const auto rows = second->OpenRecordset("standard");
    second.reset();
    EXPECT_EQ(error(path), "3031: Not a valid password.") << "recordsets do not";
    EXPECT_EQ(rows->RecordCount(), 11);
}

TEST_F(Engine, HoldsTheFileAgainstAnotherRun) {
    const QString path = copy("PMA_Index.mdb");
    auto database = open(path);
    // A lock of its own stands for the other run.
    EXPECT_EQ(errorText([&] { FileLock other(path, FileLock::Kind::Shared); }).substr(0, 5), "3356:");
    database->Close();
    auto other = std::make_unique<FileLock>(path, FileLock::Kind::Shared);
    EXPECT_EQ(error(path),
              "3356: You attempted to open a database that is already opened exclusively by another "
              "user. Try again when the database is available.");
    database = DBEngine::instance().OpenDatabase(path, false, true, "");
    EXPECT_EQ(shownRows(*database, "select * from PMA_Index").size(), 12u);
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList{"PMA_Index.mdb"});
}

TEST_F(Engine, KeyByKeyTheSampleIsTheSame) {
    Database keyed = sampleDatabase("Velmar_PED.mdb", 0);
    Database whole = sampleDatabase();
    for (int id = 1; id <= 38; ++id) {
        for (const char *sql : {"select * from Rp02 where matID = %1 order by thickness, ordering",
                                "select * from ImpEnergy where matID=%1 order by temp",
                                "select * from MechPropData where matID = %1 order by rowNo, ordering",
                                "select * from Materials where matId = %1 or matId = 5"}) {
            const QString statement = QString(sql).arg(id);
            EXPECT_EQ(shownRows(keyed, statement), shownRows(whole, statement)) << statement.toStdString();
        }
    }
    const auto grades = whole.OpenRecordset("materials");
    for (; !grades->Eof(); grades->MoveNext()) {
        const QString statement =
            QString("select * from Chemical where standard = '%1' and name = '%2' and numbr = "
                    "'%3' order by elemID")
                .arg(grades->Fields("standard").toString(), grades->Fields("name").toString(),
                     grades->Fields("numbr").toString());
        EXPECT_EQ(shownRows(keyed, statement), shownRows(whole, statement)) << statement.toStdString();
    }
}

} // namespace
