#include "platform/dao/database.h"

#include "platform/dao/jet_query.h"
#include "platform/dao/recordset.h"
#include "platform/dao/table_store.h"
#include "platform/runtime/runtime_error.h"

Database::Database(QString name, std::shared_ptr<TableStore> store)
    : m_name(std::move(name))
    , m_store(std::move(store)) {}

std::shared_ptr<Recordset> Database::OpenRecordset(const QString &sql) {
    return std::make_shared<Recordset>(openRows(*open(), sql));
}

void Database::Expect(const QString &sql) {
    expectRows(*open(), sql);
}

void Database::ReadRows(const QString &table, const QStringList &columns, const RowSink &sink) {
    // Held while it is read, whatever the sink does.
    const std::shared_ptr<TableStore> store = open();
    store->readRows(table, columns, sink);
}

qint64 Database::RowCount(const QString &table) {
    return open()->rowCount(table);
}

std::shared_ptr<TableStore> Database::open() const {
    if (!m_store) throw RuntimeError(3420);
    return m_store;
}

void Database::Close() {
    m_store.reset();
}
