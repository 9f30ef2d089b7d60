// make_seeds FOLDER: writes small files of tables for the fuzz targets to begin with, into FOLDER/access and
// FOLDER/sqlite.
#include <cstdio>

#include <QDir>
#include <QFile>

#include <sqlite3.h>

#include "tests/dao/jet_file.h"

namespace {

using Type = JetFile::Type;
using Version = JetFile::Version;

const JetFile::Columns KeyColumns = {{"id", Type::Long}, {"name", Type::Text}, {"note", Type::Memo}};

JetFile::Rows keyRows(int count) {
    JetFile::Rows rows;
    for (int i = 0; i < count; ++i)
        rows.append({i % 5, i % 3 == 0 ? QVariant("Bolt") : QVariant(QString::fromUtf8("É%1").arg(i)),
                     i % 4 == 0 ? QVariant() : QVariant("a longer text")});
    return rows;
}

JetFile::Columns columnsOfAllTypes(Version version) {
    JetFile::Columns columns = {{"b", Type::Boolean}, {"y", Type::Byte},   {"i", Type::Integer},
                                {"l", Type::Long},    {"c", Type::Money},  {"s", Type::Single},
                                {"d", Type::Double},  {"t", Type::Date},   {"x", Type::Text},
                                {"m", Type::Memo},    {"o", Type::Binary}, {"g", Type::Guid}};
    if (version != Version::Access97) columns.append({"n", Type::Decimal, 18, 4});
    return columns;
}

JetFile::Rows rowsOfAllTypes(Version version) {
    const QDateTime date(QDate(2017, 9, 30), QTime(12, 0));
    JetFile::Rows rows = {{true, 2, 2, 2, 12.5, 0.5f, 1e300, date, "Bolt", "a note", QByteArray("\1\2", 2),
                           QByteArray(16, 'g')},
                          {false, 255, -2, 1 << 30, -1.0, -2.5f, 0.1, date, QString(), QString(100, 'n'),
                           QByteArray(), QByteArray()},
                          {true, {}, {}, {}, {}, {}, {}, {}, {}, {}, {}, {}}};
    if (version == Version::Access97) return rows;
    rows[0].append("-12345.6789");
    rows[1].append("0");
    rows[2].append(QVariant());
    return rows;
}

/// A definition that goes on over several pages.
QByteArray wideTable(Version version) {
    JetFile::Columns columns = {{"id", Type::Long}};
    QVector<QVariant> row = {2};
    for (int i = 0; i < 120; ++i) {
        columns.append({"a column " + QByteArray::number(i), i % 2 == 0 ? Type::Text : Type::Integer});
        row.append(i % 2 == 0 ? QVariant("Bolt") : QVariant(i));
    }
    return JetFile(version).make("Wide", columns, {row}, {{"A query", 5}, {"A link", 6}});
}

/// Points the memo whose text is given at a place elsewhere in the file.
void pointMemo(QByteArray &file, const QString &memo, quint32 size, quint32 flags, quint32 place) {
    const QByteArray text(reinterpret_cast<const char *>(memo.utf16()), memo.size() * 2);
    const qsizetype head = file.indexOf(text) - 12;
    if (head < 0) qFatal("no memo");
    mdbPages::put(file, head, size | flags);
    mdbPages::put(file, head + 4, place);
}

/// Memos in pieces, rows that have moved or are no more.
QByteArray scatteredTable() {
    JetFile::Rows rows = keyRows(8);
    rows[1][2] = "in one piece";
    rows[2][2] = "in a chain";
    QByteArray file = JetFile(Version::Access2000).make("Scattered", KeyColumns, rows);
    const quint32 whole = mdbPages::addLongValuePage(file, QByteArray("\xff\xfe"
                                                                      "compressed \0é\1\0 and on",
                                                                      24));
    const quint32 last = mdbPages::addLongValuePage(file, QByteArray(4, '\0') + QByteArray(200, 'y'));
    QByteArray piece(4, '\0');
    mdbPages::put(piece, 0, last);
    const quint32 first = mdbPages::addLongValuePage(file, piece + QByteArray(100, 'x'));
    pointMemo(file, "in one piece", 24, 0x40000000, whole);
    pointMemo(file, "in a chain", 300, 0, first);
    const qsizetype page = mdbPages::Size * 5;
    mdbPages::put(file, mdbPages::rowStart(file, page, 3), quint32(5 << 8 | 6));
    mdbPages::flagSlot(file, page, 3, 0x4000);
    mdbPages::flagSlot(file, page, 6, 0x8000);
    mdbPages::flagSlot(file, page, 7, 0xc000);
    mdbPages::setRowCount(file, mdbPages::definitionOf(file, page), 6);
    return file;
}

void write(const QString &path, const QByteArray &content) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write a seed");
}

void writeAccess(const QString &folder) {
    for (const Version version : {Version::Access97, Version::Access2000, Version::Access2007}) {
        const QString name = folder + '/' + QString::number(int(version));
        write(name + "-types",
              JetFile(version).make("Types", columnsOfAllTypes(version), rowsOfAllTypes(version)));
        write(name + "-wide", wideTable(version));
        write(name + "-map", JetFile(version, {1250, {}, 0, 8, true}).make("Keys", KeyColumns, keyRows(20)));
        write(name + "-ciphered",
              JetFile(version, {1252, "Bolt", 0x12345678, 0, false}).make("Keys", KeyColumns, keyRows(20)));
    }
    write(folder + "/scattered", scatteredTable());
}

void writeSqlite(const QString &folder, const QString &name, const QByteArray &head, const QByteArray &sql) {
    const QString path = folder + '/' + name;
    QFile::remove(path);
    sqlite3 *database = nullptr;
    char *message = nullptr;
    sqlite3_open(path.toUtf8().constData(), &database);
    if (sqlite3_exec(database, (head + sql).constData(), nullptr, nullptr, &message) != SQLITE_OK)
        qFatal("%s", message);
    sqlite3_close(database);
}

/// Of small pages, so that few rows make a tree of them.
void writeSqlite(const QString &folder) {
    const QByteArray numbers =
        "with recursive n(i) as (values (1) union all select i + 1 from n where i < 60) ";
    const QByteArray tables =
        "create table Part (id integer primary key, owner Integer, name Text(20), note Memo, made Date,"
        " mass Single, stock Boolean, price Currency, twice as (owner * 2));"
        "insert into Part (id, owner, name, note, made, mass, stock, price) " +
        numbers +
        "select i, i % 5, case i % 3 when 0 then 'Bolt' when 1 then char(201) || i end, 'a note',"
        " '2017-09-30', i / 4.0, i % 2, '12.50' from n;"
        "create table Size (a Long, b Text, c Double, primary key (a, b)) without rowid;"
        "insert into Size " +
        numbers +
        "select i % 7, 'size ' || i, i * 1e100 from n;"
        "create table Odd (v, w Text, x Byte);"
        "insert into Odd values (2, 'Bolt', 2), ('2', x'00ff', 300), (1e999, 2, 'two'), (null, null, null),"
        " (zeroblob(700), replace(hex(zeroblob(500)), '0', 'ab'), 255);"
        "create view Joined as select p.id, s.b, p.mass * 2 as m from Part p join Size s on s.a = p.owner;";
    writeSqlite(folder, "plain", "pragma page_size = 512;", tables);
    writeSqlite(folder, "indexed", "pragma page_size = 512; pragma auto_vacuum = full;",
                tables + "create index ByOwner on Part (owner); create index ByName on Part (name, owner);"
                         "delete from Part where id % 9 = 0;");
    writeSqlite(folder, "wide-texts", "pragma page_size = 1024; pragma encoding = 'UTF-16le';", tables);
    writeSqlite(folder, "swapped-texts", "pragma page_size = 1024; pragma encoding = 'UTF-16be';", tables);
    writeSqlite(folder, "free-pages", "pragma page_size = 512;", tables + "delete from Part where id > 20;");
    writeSqlite(folder, "small", "pragma page_size = 512;",
                "create table T (k Integer, n Text); insert into T values (2, 'Bolt'), (3, 'Nut');");
}

} // namespace

int main(int argc, char **argv) {
    if (argc != 2) {
        std::fprintf(stderr, "make_seeds FOLDER\n");
        return 1;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    for (const char *kind : {"access", "sqlite"})
        if (!folder.mkpath(kind)) qFatal("no folder for the seeds");
    writeAccess(folder.filePath("access"));
    writeSqlite(folder.filePath("sqlite"));
    return 0;
}
