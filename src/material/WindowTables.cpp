#include "material/WindowTables.h"

#include "platform/runtime/runtime_error.h"

LoadedTable WindowTables::load(Material &material, const QString &key) {
    if (!m_tables) throw RuntimeError(91);
    LoadedTable table = m_tables->load(material, key);
    values.take(table);
    return table;
}

std::shared_ptr<Recordset> WindowTables::graphColumns(const Material &material, const QString &key, int x,
                                                      int y) {
    if (!m_tables) throw RuntimeError(91);
    return m_tables->graphColumns(material, key, x, y);
}
