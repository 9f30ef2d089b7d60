// damaged_databases [COUNT] [SEED]: opens COUNT damaged copies of the sample database, reads every table of
// each, and tells what came of it. A copy ends in rows or in an error that tells of a damaged file; nothing
// takes more than five seconds or a gigabyte. Rows are the right ones wherever the file has a way to tell.
#include <algorithm>
#include <cstdio>
#include <map>
#include <memory>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <sys/resource.h>
#include <unistd.h>

#include "platform/dao/access_source.h"
#include "platform/dao/database.h"
#include "platform/dao/db_engine.h"
#include "platform/dao/recordset.h"
#include "platform/runtime/runtime_error.h"
#include "tests/damage/damage.h"

namespace {

constexpr int WrongPassword = 3031;
constexpr int NoSuchColumn = 3061;
constexpr int NoSuchTable = 3078;
constexpr int WrongFormat = 3343;

constexpr qint64 LongestWait = 5000; // milliseconds
constexpr long MostMemory = 1 << 20; // kilobytes
constexpr unsigned Stuck = 60;       // seconds after which the system ends this program

const char *const Connect = ";Pwd=rolvek";

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

long peakMemory(__rusage_who who) {
    rusage used = {};
    getrusage(who, &used);
    return used.ru_maxrss;
}

/// What came of the files of one kind of damage.
struct Tally {
    int files = 0;
    int refused = 0;       // not opened
    int partlyRefused = 0; // opened, but not every table
    int right = 0;
    int changed = 0; // some row has other values in it, and the file no means to tell
    qsizetype rowsChanged = 0;
};

class Run {
public:
    explicit Run(unsigned seed)
        : m_damager(seed) {
        QFile sample(SOURCE_FOLDER "/sample/Velmar_PED.mdb");
        if (!sample.open(QIODevice::ReadOnly)) qFatal("no sample");
        m_good = sample.readAll();
        const auto database = DBEngine::instance().OpenDatabase(sample.fileName(), true, true, Connect);
        AccessSource source(sample.fileName());
        for (const QString &name : source.tableNames()) {
            const QString statement = statementFor(name, source.fields(name));
            m_tables.append({name, statement, rowsOf(*database, statement)});
        }
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
        ++m_count;
    }

    /// False where something was wrong.
    bool report() const {
        std::printf("%-16s %6s %8s %14s %6s %8s %13s\n", "damage", "files", "refused", "partly refused",
                    "right", "changed", "rows changed");
        for (const auto &[kind, tally] : m_tallies)
            std::printf("%-16s %6d %8d %14d %6d %8d %13d\n", Damage{{}, kind, {}}.name(), tally.files,
                        tally.refused, tally.partlyRefused, tally.right, tally.changed,
                        static_cast<int>(tally.rowsChanged));
        for (const auto &[number, times] : m_errors)
            std::printf("error %d: %d times\n", number, times);
        const long own = peakMemory(RUSAGE_SELF);
        const long helper = peakMemory(RUSAGE_CHILDREN);
        std::printf("longest step: %lld ms; memory: %ld MB, the helper %ld MB; faults: %d\n", m_longest,
                    own / 1024, helper / 1024, m_faults);
        return m_faults == 0 && m_longest <= LongestWait && own < MostMemory && helper < MostMemory;
    }

private:
    struct Table {
        QString name;
        QString statement;
        Rows rows;
    };

    /// The error of a call, 0 for none. No call may take too long.
    template <typename Call>
    int step(Call call) {
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
        return number;
    }

    void read(const QString &path, const Damage &damage, Tally &tally) {
        std::shared_ptr<Database> database;
        if (const int error =
                step([&] { database = DBEngine::instance().OpenDatabase(path, true, true, Connect); })) {
            if (error != WrongFormat && error != WrongPassword) fault(damage, "", error);
            ++tally.refused;
            return;
        }
        int refused = 0;
        qsizetype changed = 0;
        for (const Table &table : m_tables) {
            Rows rows;
            const int error = step([&] { rows = rowsOf(*database, table.statement); });
            refused += error != 0;
            const bool allowed = error == WrongFormat || error == NoSuchTable || error == NoSuchColumn;
            if (error != 0 && !allowed) fault(damage, table.name, error);
            if (error != 0) continue;
            const qsizetype different = changedRows(table.rows, rows);
            // Bytes within a value can be anything; rows that are lost, or another table's, show.
            if (rows.size() != table.rows.size() || (different > 0 && !mayChangeValues(damage)))
                fault(damage, table.name, 0);
            changed += different;
        }
        ++(refused > 0 ? tally.partlyRefused : changed > 0 ? tally.changed : tally.right);
        if (refused == 0) tally.rowsChanged += changed;
    }

    /// Whether there are values, or what says how they are to be read, where the damage is.
    bool mayChangeValues(const Damage &damage) const {
        if (damage.kind != Damage::Kind::Bytes && damage.kind != Damage::Kind::Run) return false;
        return std::any_of(damage.pages.begin(), damage.pages.end(), [this](qsizetype page) {
            const char kind = m_good[page * Damager::PageSize];
            return kind == 1 || kind == 2;
        });
    }

    void fault(const Damage &damage, const QString &table, int error) {
        ++m_faults;
        const QString kept = QStringLiteral("faulty_%1.mdb").arg(m_count);
        QFile::remove(kept);
        QFile::copy(m_folder.filePath("damaged.mdb"), kept);
        std::printf("file %d, %s, table %s: %s; kept as %s\n", m_count, damage.name(), qPrintable(table),
                    error != 0 ? qPrintable("error " + QString::number(error)) : "wrong rows",
                    qPrintable(kept));
    }

    Damager m_damager;
    QTemporaryDir m_folder;
    QByteArray m_good;
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
    const QStringList arguments = application.arguments();
    const int count = arguments.value(1, "1000").toInt();
    Run run(arguments.value(2, "20260131").toUInt());
    for (int i = 0; i < count; ++i)
        run.next();
    return run.report() ? 0 : 1;
}
