// The sample as a database, and its texts.
#pragma once

#include "data/database_names.h"
#include "platform/dao/database.h"
#include "platform/dao/db_engine.h"
#include "tests/support/csv_table.h"

inline const QString SampleFile = QStringLiteral(SOURCE_FOLDER "/sample/Velmar_PED.mdb");
constexpr qint16 LastGrade = 38;

inline std::shared_ptr<Database> openDatabase(const QString &path = SampleFile) {
    return DBEngine::instance().OpenBeside(path, ";Pwd=" + DatabasePassword);
}

/// The rows of one grade in a table's text, as it was when the database was made of it.
inline QVector<QVector<QVariant>> sampleRows(const QString &table, int matID) {
    QVector<QVector<QVariant>> rows;
    for (const QVector<QVariant> &row : CsvTable::read(SOURCE_FOLDER "/sample/csv/" + table + ".csv").rows)
        if (row[0].toInt() == matID) rows << row;
    return rows;
}
