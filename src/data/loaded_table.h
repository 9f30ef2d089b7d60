// One table of one grade, as it was read: what windows, design values, reports and other programs show of it.
#pragma once

#include <optional>

#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

#include "data/CreepColumns.h"
#include "data/source_array.h"
#include "platform/runtime/x_array_db.h"

struct TableColumn {
    /// The field of the database that the cells come from; empty where the columns are rows of the database.
    QString field = {};
    /// Several lines, parted by CR LF.
    QString heading = {};
    /// The unit that the heading tells, in brackets; empty without one.
    QString unit = {};
    /// The formula that stands for the heading, by its name among the pictures; empty without one.
    QString picture = {};
    /// In twips; 0 leaves the width to the grid.
    float width = 0;
    /// It holds no value in any row, or only fills a place.
    bool hidden = false;
};

struct LoadedTable {
    QString key;
    /// The table's long name.
    QString caption;
    QVector<TableColumn> columns;
    /// Texts: rows from 1, columns from 0.
    XArrayDB cells;
    /// What Material::TableHasData says after the loading.
    bool hasData = false;
    /// The message in the place of a table without rows; empty where the table shows all the same.
    QString noData;

    bool hasNotes = false;
    /// Each note on a line of its own. The additional information is such a text too.
    QString notes;
    /// The further elements of a composition; empty without any.
    QString others;

    /// The upper limits of the thickness bands in mm, the first at index 1; empty without bands.
    QVector<qint16> bands;
    /// Of a table over temperature with rows: what design values and graphs are made from, and the
    /// temperatures as they are in the database, a row each.
    std::optional<SourceArray> source;
    QVector<QVariant> temperatures;

    /// The colID of each column that is a row of the database, and one element more, 0; empty without any.
    QVector<qint16> colIDs;
    /// The rows that the number of cells gives, before an empty table gets one to show.
    int rowCount = 0;
    /// Of a creep table with cells.
    std::optional<CreepColumns> creep;
};
