// The design values of one grade: what its tables hold at one temperature.
#pragma once

#include <functional>
#include <memory>

#include <QStringList>
#include <QVector>

#include "data/CreepColumns.h"
#include "design/number_flags.h"
#include "design/SourceArrays.h"
#include "platform/runtime/x_array_db.h"

class Material;
struct LoadedTable;

/// One value of a table at the temperature of the last compute().
struct DesignCell {
    QString heading;
    /// As the table's heading tells it; empty without one.
    QString unit;
    /// With its decoration; "-" below and "+" above the table's temperatures, "x" without a value.
    QString text;
};

struct DesignTable {
    QString key;
    QString label;
    QVector<DesignCell> cells;
};

class DesignValues {
public:
    /// Captions, values and an empty row.
    static constexpr int RowsPerTable = 3;

    /// Each table of the grade that is loaded goes through here, in any order and as often as it is loaded.
    void take(const LoadedTable &table);

    /// Has `load` load every table that may have design values and was not looked at yet, and makes xDesignDB
    /// with all its captions and no value. False where no table has any; xDesignDB stays as it was then.
    bool build(Material &material, const std::function<void(const QString &key)> &load);

    /// Writes the values at the temperature `text` in °C, which is neither empty nor a sign alone. Reads
    /// nothing but the arrays in memory.
    ///
    /// Raises 13 for a text or a cell that is no number, 6 and 11 (see Interpolation::designValues), and 9
    /// before build() found a table; the cells before the failing one are written then.
    void compute(const QString &text, const NumberFlags &flags);

    /// Three rows a table: captions, values and an empty one. Rows from 1, columns from 0, where the tables'
    /// labels stand.
    std::shared_ptr<XArrayDB> xDesignDB = std::make_shared<XArrayDB>();
    /// The keys of the tables with data, in their order; none before build().
    QStringList strDesignTables;

    /// The same by table.
    QVector<DesignTable> tables() const;

    const CreepColumns &creep() const { return m_creep; }

private:
    void writeCaptions(const Material &material);
    const SourceArray &sourceOf(const QString &key) const;
    QString unitOf(const QString &key, int column) const;

    SourceArrays m_sources;
    CreepColumns m_creep;
    /// Of the creep columns kept.
    QStringList m_creepUnits;
};
