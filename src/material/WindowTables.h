// The tables of one window's grade: read when a page asks for one, and kept of them what design values need.
#pragma once

#include <optional>

#include "data/GradeTables.h"
#include "design/DesignValues.h"

class WindowTables {
public:
    /// Before the first load. `database` outlives the object.
    void open(Database &database) { m_tables.emplace(database); }

    /// As GradeTables::load.
    LoadedTable load(Material &material, const QString &key);
    /// The one that was loaded last; null before the first, and after a failure.
    const std::shared_ptr<const LoadedTable> &last() const { return m_last; }
    /// As GradeTables::graphColumns.
    std::shared_ptr<Recordset> graphColumns(const Material &material, const QString &key, int x, int y);

    DesignValues values;

private:
    std::optional<GradeTables> m_tables;
    std::shared_ptr<const LoadedTable> m_last;
};
