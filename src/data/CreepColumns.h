// The creep table without its empty columns: what design values, graphs and reports are made from.
#pragma once

#include <functional>
#include <optional>

#include <QStringList>
#include <QVector>

#include "data/source_array.h"
#include "platform/runtime/x_array_db.h"

/// What is known of the columns of the creep table as loaded, each from 0.
struct CreepTable {
    /// Rows from 1, columns from 0.
    const XArrayDB &cells;
    /// The heading of a column.
    std::function<QString(int column)> caption;
    /// In twips.
    const QVector<float> &widths;
    const QVector<qint16> &colIDs;
    /// Column text and unit in one line.
    const QStringList &names;
};

/// Column 0 is expected to be the temperature. Should it be empty, the first column kept takes its place in
/// aCreepData.
struct CreepColumns {
    /// One flag a column of the table: no value in any row.
    QVector<bool> EmptyCreepCols;
    /// The columns kept.
    SourceArray aCreepData;
    /// For each column kept.
    QStringList aCreepCaptions;
    QVector<float> aCreepWidths;
    /// For each column kept but column 0 of the table, from 0; the names stand for the same columns.
    QVector<qint16> aCreepColIDs;
    QStringList columnNames;
    /// The name of column 0, where that is kept.
    std::optional<QString> xAxisName;

    /// The greatest number of value columns, when it was `maxDesignCols` before: it grows to the columns
    /// kept, and is 0 where none was.
    qint16 maxDesignCols(qint16 before) const;
};

/// A cell "", " " or "-" holds no value.
bool isEmptyCreepCell(const QString &text);
/// One flag a column.
QVector<bool> emptyCreepColumns(const XArrayDB &cells);

CreepColumns BuildCreepColumns(const CreepTable &table);
