#include "platform/dao/database.h"

#include "platform/dao/jet_query.h"
#include "platform/dao/recordset.h"
#include "platform/dao/table_store.h"
#include "platform/runtime/runtime_error.h"

Database::Database(QString name, std::shared_ptr<TableStore> store)
    : m_name(std::move(name))
    , m_store(std::move(store)) {}

std::shared_ptr<Recordset> Database::OpenRecordset(const QString &sql) {
    if (!m_store) throw RuntimeError(3420);
    return std::make_shared<Recordset>(openRows(*m_store, sql));
}

void Database::Close() {
    m_store.reset();
}
