#include "material/WindowTables.h"

#include "platform/runtime/runtime_error.h"

LoadedTable WindowTables::load(Material &material, const QString &key) {
    if (!m_tables) throw RuntimeError(91);
    m_last = nullptr; // where the loading fails
    m_last = std::make_shared<const LoadedTable>(m_tables->load(material, key));
    values.take(*m_last);
    return *m_last;
}

std::shared_ptr<Recordset> WindowTables::graphColumns(const Material &material, const QString &key, int x,
                                                      int y) {
    if (!m_tables) throw RuntimeError(91);
    return m_tables->graphColumns(material, key, x, y);
}
