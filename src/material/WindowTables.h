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
    /// As GradeTables::graphColumns.
    std::shared_ptr<Recordset> graphColumns(const Material &material, const QString &key, int x, int y);

    DesignValues values;

private:
    std::optional<GradeTables> m_tables;
};
