// Real Access files against their texts.
#include <gtest/gtest.h>

#include <csignal>
#include <utility>

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QMap>
#include <QProcess>
#include <QThread>

#include <sys/resource.h>
#include <sys/wait.h>

#include "tests/dao/source_support.h"
#include "tests/dao/sql_support.h"
#include "tests/support/csv_table.h"

namespace {

struct Sample {
    const char *file;
    const char *folder;
    int tables;
};
const Sample Samples[] = {{"Velmar_PED.mdb", "csv", 27}, {"PMA_Index.mdb", "pma-csv", 1}};

/// Every key reads what the whole table has of it: the first search of a table and the later ones differ in
/// what they look at.
void expectKeysAgree(FileSource &source, const QString &table, qsizetype column) {
    const Rows rows = allRows(source, table);
    const QString name = source.fields(table)[column].name;
    QMap<QString, Rows> byKey;
    for (const QVector<QVariant> &row : rows)
        if (row[column].isValid()) byKey[row[column].toString().toCaseFolded()].append(row);
    for (const Rows &expected : std::as_const(byKey)) {
        const QVariant key = expected.first()[column];
        const QVariant asked = key.typeId() == QMetaType::QString ? QVariant(key.toString().toUpper()) : key;
        ASSERT_EQ(rowTexts(matchingRows(source, table, {{name.toUpper(), asked}})), rowTexts(expected))
            << table.toStdString() << "." << name.toStdString() << " = " << cellText(asked);
    }
    EXPECT_TRUE(matchingRows(source, table, {{name, QVariant()}}).isEmpty());
}

QString writeScript(const QTemporaryDir &folder, const QByteArray &script) {
    const QString path = writeFile(folder, "helper", "#!/bin/sh\n" + script + "\n");
    QFile::setPermissions(path, QFile::ReadOwner | QFile::ExeOwner);
    return path;
}

} // namespace

TEST(FileSource, EveryTableEqualsItsText) {
    for (const Sample &sample : Samples) {
        SampleSource source(samplePath(sample.file));
        EXPECT_EQ(source.tableNames().size(), sample.tables);
        for (const QString &table : source.tableNames()) {
            const CsvTable expected = CsvTable::read(samplePath(sample.folder) + "/" + table + ".csv");
            EXPECT_EQ(source.fields(table), expected.fields) << table.toStdString();
            EXPECT_EQ(source.rowCount(table), expected.rows.size()) << table.toStdString();
            EXPECT_EQ(rowTexts(allRows(source, table)), rowTexts(expected.rows)) << table.toStdString();
        }
    }
}

TEST(FileSource, KeyReadsEqualFilteredFullReads) {
    for (const Sample &sample : Samples) {
        SampleSource source(samplePath(sample.file));
        for (const QString &table : source.tableNames()) {
            const FieldDefinitions fields = source.fields(table);
            for (qsizetype i = 0; i < fields.size(); ++i)
                if (isIntegerType(fields[i].type) || fields[i].type == FieldType::Text)
                    expectKeysAgree(source, table, i);
        }
    }
}

TEST(FileSource, SeveralConditionsMustAllHold) {
    SampleSource source(samplePath("Velmar_PED.mdb"));
    const QVector<ColumnCondition> grade = {
        {"standard", "en 10028-2"}, {"name", "p265gh"}, {"numbr", "1.0425"}, {"elemID", 101}};
    for (int i = 0; i < 2; ++i) {
        const Rows rows = matchingRows(source, "Chemical", grade);
        ASSERT_EQ(rows.size(), 1);
        EXPECT_EQ(rows[0][1], "P265GH");
        EXPECT_EQ(rows[0][3], 101);
        EXPECT_TRUE(matchingRows(source, "Chemical", {{"name", "P265GH"}, {"numbr", "1.0345"}}).isEmpty());
    }
}

TEST(FileSource, RefusesConditionsThatMakeNoSense) {
    SampleSource source(samplePath("Velmar_PED.mdb"));
    const auto ask = [&](const QString &column, const QVariant &value) {
        return errorOf([&] { matchingRows(source, "Rp02", {{column, value}}); });
    };
    EXPECT_EQ(ask("missing", 1), 3265);
    EXPECT_EQ(ask("matID", "1"), 3421);
    EXPECT_EQ(ask("temp", 50), 3421); // a Single
    EXPECT_EQ(ask("Rp02", 227), 3421);
    EXPECT_EQ(ask("matID", qint64(1) << 40), 0);
    EXPECT_TRUE(matchingRows(source, "Rp02", {{"matID", (qint64(1) << 32) + 1}}).isEmpty());
}

#ifndef __SANITIZE_ADDRESS__
TEST(FileSource, HelperIsBounded) {
    SampleSource source(samplePath("Velmar_PED.mdb"));
    rlimit memory = {};
    rlimit seconds = {};
    ASSERT_EQ(prlimit(helperProcess(), RLIMIT_AS, nullptr, &memory), 0);
    ASSERT_EQ(prlimit(helperProcess(), RLIMIT_CPU, nullptr, &seconds), 0);
    EXPECT_LE(memory.rlim_cur, rlim_t(1) << 30);
    EXPECT_LE(seconds.rlim_cur, 20u);
}
#endif

TEST(FileSource, HelperThatHasGoneIsStartedAgain) {
    SampleSource source(samplePath("Velmar_PED.mdb"));
    const Rows before = allRows(source, "Units");
    const pid_t first = helperProcess();
    kill(first, SIGKILL);
    siginfo_t end;
    waitid(P_PID, static_cast<id_t>(first), &end, WEXITED | WNOWAIT);
    EXPECT_EQ(rowTexts(allRows(source, "Units")), rowTexts(before));
    EXPECT_NE(helperProcess(), first);
}

TEST(FileSource, FileThatDoesNotAnswerIsWaitedForAsLongAsSomebodyWants) {
    const QString path = samplePath("Velmar_PED.mdb");
    constexpr int Patience = 200;
    int patient = 0; // so many times
    int asked = 0;
    pid_t helper = -1;
    const auto waitsOn = [&](const QString &silent) {
        EXPECT_EQ(silent, path);
        ++asked;
        if (--patient == 0) kill(helper, SIGCONT);
        return patient >= 0;
    };
    SampleSource source(path, helperPath(), waitsOn, Patience);
    helper = helperProcess();
    kill(helper, SIGSTOP);
    patient = 3;
    EXPECT_EQ(allRows(source, "Units").size(), 7);
    EXPECT_EQ(asked, 3);

    kill(helper, SIGSTOP);
    patient = 0;
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(errorText([&] { allRows(source, "Columns"); }),
              "3043: Disk or network error: the file '" + path.toStdString() + "' does not answer.");
    EXPECT_LT(clock.elapsed(), 1000);
    EXPECT_EQ(allRows(source, "Units").size(), 7);

    const QTemporaryDir folder;
    const QString slow = writeScript(folder, "sleep 1; exec " + helperPath().toUtf8());
    patient = 100;
    constexpr int PatienceWithStart = 600; // of which starting two programs is no twentieth
    EXPECT_EQ(SampleSource(path, slow, waitsOn, PatienceWithStart).tableNames().size(), 27);
    EXPECT_EQ(errorOf([&] { SampleSource(path, slow, {}, PatienceWithStart); }), 3043);
}

TEST(FileSource, QuestionThatReadsTheSameFileGetsNoRows) {
    FileSource *asking = nullptr;
    int inner = 0;
    SampleSource source(
        samplePath("Velmar_PED.mdb"), helperPath(),
        [&](const QString &) {
            inner = errorOf([&] { allRows(*asking, "Columns"); });
            kill(helperProcess(), SIGCONT);
            return true;
        },
        200);
    asking = &source;
    kill(helperProcess(), SIGSTOP);
    EXPECT_EQ(allRows(source, "Units").size(), 7);
    EXPECT_EQ(inner, 3043);
}

TEST(FileSource, HelperThatCannotBeRunIsTold) {
    const QTemporaryDir folder;
    const QString path = samplePath("Velmar_PED.mdb");
    const auto errorWith = [&](const QString &helper) {
        return errorText([&] { SampleSource(path, helper); });
    };
    const QString helper = writeFile(folder, "helper", "no program");
    const std::string quoted = ": '" + helper.toStdString() + "'";
    EXPECT_EQ(errorWith(helper), "70: Permission denied" + quoted);
    QFile::setPermissions(helper, QFile::ReadOwner | QFile::ExeOwner);
    EXPECT_EQ(errorWith(helper), "75: Path/File access error" + quoted);
    QFile::remove(helper);
    writeScript(folder, "");
    EXPECT_EQ(errorWith(writeFile(folder, "helper", "#!/no/such/shell")),
              "75: Path/File access error" + quoted);
    QFile::remove(helper);
    EXPECT_EQ(errorWith(helper), "53: File not found" + quoted);
}

TEST(FileSource, WhatIsReadAheadChangesNoAnswer) {
    SampleSource ahead(samplePath("Velmar_PED.mdb"));
    SampleSource plain(samplePath("Velmar_PED.mdb"));
    const QVector<QVariant> chemical = allRows(plain, "Chemical").at(100);
    const QVector<ColumnCondition> texts = {
        {"name", chemical[1]}, {"standard", chemical[0]}, {"numbr", chemical[2]}};
    for (const int pause : {0, 1, 50}) { // in milliseconds: none, some and all of it is done then
        ahead.lookAhead("Rp02", {0});
        ahead.lookAhead("Chemical", {2, 0, 1});
        ahead.lookAhead("Rp02", {0});
        QThread::msleep(static_cast<unsigned long>(pause));
        for (int grade = 0; grade <= 39; ++grade) {
            const QVector<ColumnCondition> key = {{"matID", grade}};
            EXPECT_EQ(rowTexts(matchingRows(ahead, "Rp02", key)), rowTexts(matchingRows(plain, "Rp02", key)));
        }
        EXPECT_EQ(rowTexts(matchingRows(ahead, "Chemical", texts)),
                  rowTexts(matchingRows(plain, "Chemical", texts)));
        EXPECT_EQ(rowTexts(allRows(ahead, "Rp02")), rowTexts(allRows(plain, "Rp02")));
    }
}

TEST(FileSource, SinkThatRaisesLeavesTheSourceUsable) {
    SampleSource source(samplePath("Velmar_PED.mdb"));
    EXPECT_EQ(errorOf([&] {
                  TableColumns rows(source.fields("Chemical"));
                  source.readAll("Chemical", rows, [] { throw RuntimeError(6); });
              }),
              6);
    EXPECT_EQ(allRows(source, "Units").size(), 7);
}

TEST(FileSource, HelperHasNobodyToComplainTo) {
    const QTemporaryDir folder;
    const QString helper = writeScript(
        folder, "[ \"$(readlink /proc/$$/fd/2)\" = /dev/null ] || exit 1\nexec " + helperPath().toUtf8());
    EXPECT_EQ(SampleSource(samplePath("Velmar_PED.mdb"), helper).tableNames().size(), 27)
        << "what the helper says of a damaged file would stand in the user's terminal";
}

TEST(FileSource, HelperLeavesARequestThatIsTooLong) {
    QProcess helper;
    helper.start(helperPath(), {});
    ASSERT_TRUE(helper.waitForStarted());
    helper.write("\001\0\020\0", 4); // a megabyte and one, of which nothing comes
    EXPECT_TRUE(helper.waitForFinished(5000));
}

TEST(FileSource, HelperThatTalksNonsenseIsADamagedFile) {
    const QTemporaryDir folder;
    const char *const scripts[] = {
        "exit 1",
        "kill -SEGV $$",
        "while :; do :; done",
        "exec yes",
        "exec cat /dev/zero",
        "printf '\\377\\377\\377\\377\\001'",                     // a frame of 4 GB
        "printf '\\377\\377\\377\\007\\001'",                     // one of 128 MB that never comes
        "printf '\\003\\0\\0\\0\\001\\001\\0'",                   // a catalog cut off
        "printf '\\003\\0\\0\\0\\001\\377\\377'",                 // 65535 tables, none there
        "printf '\\003\\0\\0\\0\\002\\0\\0'",                     // rows nobody asked for
        "printf '\\011\\0\\0\\0\\001\\001\\0\\001\\0T\\0\\0\\0'", // a table's rows cut off
        "printf '\\065\\0\\0\\0\\001'; head -c 41 /dev/zero;"
        "printf '\\001\\0\\001\\0T\\0\\0\\0\\0\\0\\0'; exec sleep 30", // one that ends within itself
    };
    const auto unasked = [](const QString &) {
        ADD_FAILURE() << "asked to wait on";
        return false;
    };
    for (const char *script : scripts) {
        const QString helper = writeScript(folder, script);
        QElapsedTimer clock;
        clock.start();
        EXPECT_EQ(errorOf([&] { SampleSource(samplePath("Velmar_PED.mdb"), helper, unasked, 300); }), 3343)
            << script;
        EXPECT_LT(clock.elapsed(), 2000) << script;
        QFile::remove(helper);
    }
}
