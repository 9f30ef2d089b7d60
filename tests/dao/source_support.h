// What the tests of table sources share.
#pragma once

#include <ostream>

#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "platform/dao/file_source.h"
#include "tests/support/error_of.h"

using Rows = QVector<QVector<QVariant>>;

inline QString samplePath(const QString &name) {
    return QStringLiteral(SOURCE_FOLDER "/sample/") + name;
}

inline QString helperPath() {
    return QStringLiteral(BINARY_FOLDER "/table_reader");
}

inline const QString SamplePassword = QStringLiteral("rolvek");

/// Knows the password of the samples; one without takes any.
class SampleSource : public FileSource {
public:
    explicit SampleSource(const QString &path, const QString &helper = helperPath(),
                          const WaitsOn &waitsOn = {}, int patience = Patience)
        : FileSource(path, helper, waitsOn, patience, SamplePassword) {}
};

/// The process of the one helper that runs, -1 without one. One that has ended and was not waited for is
/// none.
inline pid_t helperProcess() {
    const QStringList entries = QDir("/proc").entryList({"[0-9]*"}, QDir::Dirs);
    for (const QString &entry : entries) {
        QFile file("/proc/" + entry + "/stat");
        if (!file.open(QIODevice::ReadOnly)) continue;
        const QByteArray stat = file.readAll(); // "12 (name) S 11 ...": state and parent
        const QList<QByteArray> fields = stat.mid(stat.lastIndexOf(')') + 2).split(' ');
        if (fields.value(0) != "Z" && fields.value(1).toInt() == getpid()) return entry.toInt();
    }
    return -1;
}

inline Rows rowsOf(const TableColumns &columns) {
    Rows rows;
    for (int row = 0; row < columns.rowCount(); ++row) {
        rows.append(QVector<QVariant>());
        for (int column = 0; column < columns.fields().size(); ++column)
            rows.last().append(columns.cell(row, column));
    }
    return rows;
}

inline Rows allRows(TableSource &source, const QString &table) {
    TableColumns columns(source.fields(table));
    source.readAll(table, columns);
    return rowsOf(columns);
}

inline Rows matchingRows(TableSource &source, const QString &table,
                         const QVector<ColumnCondition> &conditions) {
    TableColumns columns(source.fields(table));
    source.readMatching(table, conditions, columns);
    return rowsOf(columns);
}

inline QByteArray fileBytes(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline QString writeFile(const QTemporaryDir &folder, const QString &name, const QByteArray &bytes) {
    QFile file(folder.filePath(name));
    file.open(QIODevice::WriteOnly);
    file.write(bytes);
    return file.fileName();
}

/// A cell with its type, so that 1 and 1.0 and "1" differ, and Null and "".
inline std::string cellText(const QVariant &cell) {
    return std::string(cell.isValid() ? cell.typeName() : "Null") + ":" +
           (cell.typeId() == QMetaType::QDateTime ? cell.toDateTime().toString(Qt::ISODateWithMs)
                                                  : cell.toString())
               .toStdString();
}

inline std::string rowText(const QVector<QVariant> &row) {
    std::string text;
    for (const QVariant &cell : row)
        text += cellText(cell) + "|";
    return text;
}

inline std::vector<std::string> rowTexts(const Rows &rows) {
    std::vector<std::string> texts;
    for (const QVector<QVariant> &row : rows)
        texts.push_back(rowText(row));
    return texts;
}

/// What a search must find, from all rows.
inline std::vector<std::string> expectedRows(const Rows &rows, const QVector<int> &columns,
                                             const QVector<QVariant> &key) {
    Rows found;
    for (const QVector<QVariant> &row : rows) {
        bool isMeant = true;
        for (int i = 0; i < columns.size(); ++i) {
            const QVariant &cell = row[columns[i]];
            isMeant = isMeant && cell.isValid() &&
                      cell.toString().compare(key[i].toString(), Qt::CaseInsensitive) == 0;
        }
        if (isMeant) found.append(row);
    }
    return rowTexts(found);
}
