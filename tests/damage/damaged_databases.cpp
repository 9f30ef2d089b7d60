// damaged_databases [--sqlite] [COUNT] [SEED]: opens COUNT damaged copies of the sample database, reads every
// table of each, by a key and whole, and tells what came of it. A copy ends in rows or in an error that tells
// of a damaged file; nothing takes more than five seconds or a gigabyte. Rows are compared with those of the
// sound file: none has changed but those on a page whose bytes have, and there are as many of them, of an
// Access file; an SQLite file, which is made of the same tables, does not tell how many there are.
#include <algorithm>
#include <cstdio>
#include <map>
#include <memory>
#include <optional>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <sys/resource.h>
#include <unistd.h>

#include "platform/dao/database.h"
#include "platform/dao/db_engine.h"
#include "platform/dao/file_source.h"
#include "platform/dao/recordset.h"
#include "platform/runtime/runtime_error.h"
#include "tests/damage/damage.h"
#include "tests/damage/sqlite_page_owners.h"

namespace {

constexpr int WrongPassword = 3031;
constexpr int NoSuchColumn = 3061;
constexpr int UnreadColumn = 3259;
constexpr int NoSuchTable = 3078;
constexpr int WrongFormat = 3343;
constexpr int CutOff = 3049;

constexpr qint64 LongestWait = 5000; // milliseconds
constexpr long MostMemory = 1 << 20; // kilobytes
constexpr unsigned Stuck = 60;       // seconds after which the system ends this program

const QString Password = QStringLiteral("rolvek");
const QString Connect = ";Pwd=" + Password;

/// Rows in an order of their own, since a file may give them in any.
using Rows = QList<QByteArray>;

QByteArray rowText(const Recordset &recordset, int row) {
    QByteArray text;
    for (int column = 0; column < recordset.fieldDefinitions().size(); ++column) {
        const QVariant cell = recordset.value(row, column);
        text += cell.isValid() ? cell.toString().toUtf8() : QByteArray("\1null");
        text += '\0';
    }
    return text;
}

/// The columns are named, as a program does that knows its tables.
QString statementFor(const QString &table, const FieldDefinitions &fields) {
    QStringList columns;
    for (const FieldDefinition &field : fields)
        columns += '[' + field.name + ']';
    return "SELECT " + columns.join(", ") + " FROM [" + table + "]";
}

Rows rowsOf(Database &database, const QString &statement) {
    const auto recordset = database.OpenRecordset(statement);
    Rows rows;
    for (int row = 0; row < recordset->RecordCount(); ++row)
        rows.append(rowText(*recordset, row));
    std::sort(rows.begin(), rows.end());
    return rows;
}

qsizetype changedRows(const Rows &good, const Rows &read) {
    Rows same;
    std::set_intersection(good.begin(), good.end(), read.begin(), read.end(), std::back_inserter(same));
    return std::max(good.size(), read.size()) - same.size();
}

/// What the sanitizers have to say of the helper, whose own output goes nowhere, where it was built with
/// them.
class SanitizerReports {
public:
    SanitizerReports() {
        // The helper is ended in the middle of whatever it does, a look for leaks among it.
        const QByteArray options = "detect_leaks=0:log_path=" + m_folder.filePath("report").toUtf8();
        for (const char *name : {"ASAN_OPTIONS", "UBSAN_OPTIONS"})
            qputenv(name, qgetenv(name) + ':' + options);
    }

    /// The summary of each since the last call.
    QStringList take() const {
        QStringList summaries;
        for (const QFileInfo &report : QDir(m_folder.path()).entryInfoList(QDir::Files)) {
            QFile file(report.filePath());
            if (!file.open(QIODevice::ReadOnly)) continue;
            const QString text = QString::fromUtf8(file.readAll());
            summaries += text.mid(text.indexOf("SUMMARY:")).section('\n', 0, 0);
            file.remove();
        }
        return summaries;
    }

private:
    QTemporaryDir m_folder;
};

/// In kilobytes.
long peakMemory(__rusage_who who) {
    rusage used = {};
    getrusage(who, &used);
    return used.ru_maxrss;
}

/// What came of the files of one kind of damage.
struct Tally {
    int files = 0;
    int refused = 0; // not opened
    int whole = 0;   // every table right
    // Of the tables of the others:
    int tablesRefused = 0;
    int tablesRight = 0;
    int tablesChanged = 0; // a row on a damaged page has other values in it, and the file no means to tell
    int rowsChanged = 0;
};

class Run {
public:
    Run(unsigned seed, bool sqlite)
        : m_damager(seed) {
        QFile sample(sqlite ? madeSqliteFile() : SOURCE_FOLDER "/sample/Velmar_PED.mdb");
        if (!sample.open(QIODevice::ReadOnly)) qFatal("no sample");
        m_good = sample.readAll();
        const auto database = DBEngine::instance().OpenDatabase(sample.fileName(), true, true, Connect);
        FileSource source(sample.fileName(), FileSource::helperProgram(), {}, FileSource::Patience, Password);
        if (sqlite)
            m_owners = std::make_unique<SqlitePageOwners>(sample.fileName());
        else
            m_owners = std::make_unique<AccessPageOwners>(m_good, source.tableNames());
        for (const QString &name : source.tableNames())
            m_tables.append(goodTable(*database, name, source.fields(name)));
    }

    void next() {
        const auto kind = static_cast<Damage::Kind>(m_count % Damage::Kinds);
        const Damage damage = m_damager.damaged(m_good, kind);
        QFile file(m_folder.filePath("damaged.mdb"));
        if (!file.open(QIODevice::WriteOnly) || file.write(damage.file) != damage.file.size())
            qFatal("cannot write the damaged file");
        file.close();
        Tally &tally = m_tallies[kind];
        ++tally.files;
        alarm(Stuck);
        read(file.fileName(), damage, tally);
        alarm(0);
        for (const QString &summary : m_sanitizers.take()) {
            std::printf("file %d, %s: %s\n", m_count, damage.name(), qPrintable(summary));
            fault(damage, "", "a fault of the helper");
        }
        ++m_count;
    }

    /// False where something was wrong.
    bool report() const {
        std::printf("%-16s %6s %8s %6s | %14s %6s %8s %13s\n", "damage", "files", "refused", "whole",
                    "tables refused", "right", "changed", "rows changed");
        for (const auto &[kind, tally] : m_tallies)
            std::printf("%-16s %6d %8d %6d | %14d %6d %8d %13d\n", Damage{{}, kind, {}}.name(), tally.files,
                        tally.refused, tally.whole, tally.tablesRefused, tally.tablesRight,
                        tally.tablesChanged, tally.rowsChanged);
        for (const auto &[number, times] : m_errors)
            std::printf("error %d: %d times\n", number, times);
        const long own = peakMemory(RUSAGE_SELF);
        const long helper = peakMemory(RUSAGE_CHILDREN);
        std::printf("longest step: %lld ms; memory: %ld MB, the helper %ld MB; faults: %d\n", m_longest,
                    own / 1024, helper / 1024, m_faults);
        return m_faults == 0 && own < MostMemory && helper < MostMemory;
    }

private:
    struct Reading {
        QString statement;
        Rows rows;
    };
    struct Table {
        QString name;
        bool hasMemos = false;
        qsizetype rows = 0;
        /// Of the rows of a key first, which are looked for in the file as long as not all have been read.
        QList<Reading> readings;
    };

    QString madeSqliteFile() const {
        const QString path = m_folder.filePath("good.db");
        QProcess script;
        script.start("python3", {SOURCE_FOLDER "/tools/make_database", SOURCE_FOLDER "/sample/csv", path});
        if (!script.waitForFinished() || script.exitCode() != 0) qFatal("the sample cannot be made");
        return path;
    }

    static Table goodTable(Database &database, const QString &name, const FieldDefinitions &fields) {
        Table table{name, false, 0, {}};
        const QString all = statementFor(name, fields);
        const auto recordset = database.OpenRecordset(all);
        table.rows = recordset->RecordCount();
        for (const FieldDefinition &field : fields) {
            if (field.type == FieldType::Memo) table.hasMemos = true;
            if (!table.readings.isEmpty() || table.rows == 0) continue;
            if (field.type != FieldType::Integer && field.type != FieldType::Long) continue;
            const QVariant key =
                recordset->value(static_cast<int>(table.rows / 2), recordset->fieldIndex(field.name));
            if (!key.isValid()) continue;
            const QString statement = all + " WHERE [" + field.name + "] = " + key.toString();
            table.readings.append({statement, rowsOf(database, statement)});
        }
        table.readings.append({all, rowsOf(database, all)});
        return table;
    }

    /// The error of a call, 0 for none. No call may take too long.
    template <typename Call>
    int step(const Damage &damage, const QString &table, Call call) {
        QElapsedTimer clock;
        clock.start();
        int number = 0;
        try {
            call();
        } catch (const RuntimeError &error) {
            number = error.number();
            ++m_errors[number];
        }
        m_longest = std::max(m_longest, clock.elapsed());
        if (clock.elapsed() > LongestWait) fault(damage, table, "took too long");
        return number;
    }

    void read(const QString &path, const Damage &damage, Tally &tally) {
        std::shared_ptr<Database> database;
        if (const int error = step(damage, "", [&] {
                database = DBEngine::instance().OpenDatabase(path, true, true, Connect);
            })) {
            if (error != WrongFormat && error != WrongPassword && error != CutOff)
                fault(damage, "", errorText(error));
            ++tally.refused;
            return;
        }
        int refused = 0;
        int right = 0;
        int rowsChanged = 0;
        for (const Table &table : m_tables) {
            const std::optional<qsizetype> changed = changedRowsOf(*database, table, damage);
            refused += !changed;
            right += changed == 0;
            rowsChanged += static_cast<int>(changed.value_or(0));
        }
        const int tables = static_cast<int>(m_tables.size());
        if (right == tables) {
            ++tally.whole;
            return;
        }
        tally.tablesRefused += refused;
        tally.tablesRight += right;
        tally.tablesChanged += tables - refused - right;
        tally.rowsChanged += rowsChanged;
    }

    /// Nothing where the table could not be read.
    std::optional<qsizetype> changedRowsOf(Database &database, const Table &table, const Damage &damage) {
        const qsizetype reach = m_owners->rowsInReach(table.name, table.hasMemos, table.rows, damage);
        bool isRefused = false;
        qsizetype changed = 0;
        for (const Reading &reading : table.readings) {
            Rows rows;
            const int error = step(damage, table.name, [&] { rows = rowsOf(database, reading.statement); });
            const bool allowed = error == WrongFormat || error == NoSuchTable || error == NoSuchColumn ||
                                 error == UnreadColumn;
            if (error != 0 && !allowed) fault(damage, table.name, errorText(error));
            isRefused = isRefused || error != 0;
            if (error != 0) continue;
            changed = changedRows(reading.rows, rows);
            // A changed key puts a row under another one, but no reading of a whole table may lose one.
            const bool isWhole = &reading == &table.readings.back();
            const bool isShort = isWhole && m_owners->tellsRowCount() && rows.size() != table.rows;
            if (changed > reach || isShort) fault(damage, table.name, "wrong rows");
        }
        return isRefused ? std::nullopt : std::optional(changed);
    }

    static QString errorText(int error) { return "error " + QString::number(error); }

    void fault(const Damage &damage, const QString &table, const QString &what) {
        ++m_faults;
        const QString kept = QStringLiteral("faulty_%1.mdb").arg(m_count);
        QFile::remove(kept);
        QFile::copy(m_folder.filePath("damaged.mdb"), kept);
        std::printf("file %d, %s, table '%s': %s; kept as %s\n", m_count, damage.name(), qPrintable(table),
                    qPrintable(what), qPrintable(kept));
    }

    const SanitizerReports m_sanitizers; // before the first helper starts
    Damager m_damager;
    QTemporaryDir m_folder;
    QByteArray m_good;
    std::unique_ptr<PageOwners> m_owners;
    QList<Table> m_tables;
    int m_count = 0;
    std::map<Damage::Kind, Tally> m_tallies;
    std::map<int, int> m_errors;
    qint64 m_longest = 0;
    int m_faults = 0;
};

} // namespace

int main(int argc, char **argv) {
    QCoreApplication application(argc, argv);
    QStringList arguments = application.arguments();
    const bool sqlite = arguments.removeAll("--sqlite") > 0;
    const int count = arguments.value(1, "1000").toInt();
    Run run(arguments.value(2, "20260131").toUInt(), sqlite);
    for (int i = 0; i < count; ++i)
        run.next();
    return run.report() ? 0 : 1;
}
