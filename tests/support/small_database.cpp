#include "tests/support/small_database.h"

#include <stdexcept>

#include <QDir>
#include <QFile>
#include <sqlite3.h>

namespace {

/// The sample's tables, without its rows.
QStringList tableDefinitions() {
    QStringList definitions;
    for (const QFileInfo &file : QDir(SOURCE_FOLDER "/sample/csv").entryInfoList({"*.csv"})) {
        QFile text(file.filePath());
        if (!text.open(QIODevice::ReadOnly)) throw std::runtime_error("a sample table cannot be read");
        const QString heads = QString::fromUtf8(text.readLine()).trimmed().replace(':', ' ');
        definitions << QStringLiteral("create table %1 (%2)").arg(file.baseName(), heads);
    }
    return definitions;
}

void run(sqlite3 *database, const QString &statement) {
    if (sqlite3_exec(database, statement.toUtf8().constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(database) + (": " + statement).toStdString());
}

} // namespace

void makeDatabase(const QString &path, const QStringList &statements) {
    sqlite3 *database = nullptr;
    if (sqlite3_open(path.toUtf8().constData(), &database) != SQLITE_OK)
        throw std::runtime_error("no database");
    run(database, "begin");
    for (const QString &statement : statements)
        run(database, statement);
    run(database, "commit");
    sqlite3_close(database);
}

std::function<void(const QString &)> smallDatabase(const QStringList &inserts) {
    QStringList statements = tableDefinitions();
    statements << "insert into standard values (1, 'S', 'd', '2020-01-01', 0)";
    for (int matID = 1; matID <= 10; ++matID)
        statements << QStringLiteral("insert into materials values (%1, 'Grade %1', '1.%1', null, null, "
                                     "'2020-01-01', 'S', null, null, null)")
                          .arg(matID);
    for (const QString &insert : inserts)
        statements << "insert into " + insert;
    return [statements](const QString &path) { makeDatabase(path, statements); };
}
