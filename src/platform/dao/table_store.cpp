#include "platform/dao/table_store.h"

#include "platform/dao/jet_errors.h"
#include "platform/dao/memory_database.h"

TableStore::TableStore(std::unique_ptr<TableSource> source, std::unique_ptr<FileLock> lock,
                       qint64 wholeTableLimit)
    : m_lock(std::move(lock))
    , m_source(std::move(source))
    , m_wholeTableLimit(wholeTableLimit)
    , m_database(std::make_shared<MemoryDatabase>()) {
    for (const QString &name : m_source->tableNames()) {
        m_indexOfName.insert(name.toCaseFolded(), static_cast<int>(m_tables.size()));
        StoredTable stored;
        stored.name = name;
        m_tables.push_back(std::move(stored));
    }
}

TableStore::~TableStore() = default;

bool TableStore::contains(const QString &table) const {
    return m_indexOfName.contains(table.toCaseFolded());
}

RuntimeError TableStore::unknownTable(const QString &name) const {
    return JetErrors::unknownTable(name, m_source->whatElse(name));
}

TableStore::StoredTable &TableStore::find(const QString &table) {
    const int index = m_indexOfName.value(table.toCaseFolded(), -1);
    if (index < 0) throw unknownTable(table);
    StoredTable &stored = m_tables[static_cast<std::size_t>(index)];
    if (!stored.fields) stored.fields = m_source->fields(stored.name);
    return stored;
}

TableAccess TableStore::access(const JetSelect &select) {
    StoredTable &stored = find(select.table);
    const int index = static_cast<int>(&stored - m_tables.data());
    const QString name = select.alias.isEmpty() ? stored.name : select.alias;
    const QByteArray number = QByteArray::number(index);

    if (!stored.isLoaded && m_source->rowCount(stored.name) > m_wholeTableLimit) {
        if (std::optional<KeyCondition> keys = keyCondition(select, *stored.fields)) {
            KeyedTable &keyed = stored.byKey[keys->columns];
            if (!keyed.table) {
                const QByteArray sqlName = "k" + number + "_" + QByteArray::number(stored.byKey.size());
                keyed.table = std::make_shared<MemoryTable>(m_database, sqlName, *stored.fields,
                                                            MemoryTable::Kind::Growing);
                keyed.table->setKey(keys->columns);
            }
            return {JetTable::whole(name, keyed.table), index, std::move(keys)};
        }
    }
    if (!stored.whole)
        stored.whole = std::make_shared<MemoryTable>(m_database, "w" + number, *stored.fields,
                                                     MemoryTable::Kind::Complete);
    return {JetTable::whole(name, stored.whole), index, std::nullopt};
}

void TableStore::load(const TableAccess &access) {
    StoredTable &stored = m_tables[static_cast<std::size_t>(access.storedTable)];
    if (access.keys) {
        loadKey(stored, *access.keys);
    } else if (!stored.isLoaded) {
        stored.whole->load([&](TableColumns &rows) { m_source->readAll(stored.name, rows); });
        stored.isLoaded = true;
    }
}

void TableStore::expect(const JetSelect &select) {
    StoredTable &stored = find(select.table);
    if (stored.isLoaded || m_source->rowCount(stored.name) <= m_wholeTableLimit) return;
    if (const std::optional<KeyCondition> keys = keyCondition(select, *stored.fields))
        m_source->lookAhead(stored.name, keys->columns);
}

void TableStore::loadKey(StoredTable &stored, const KeyCondition &keys) {
    KeyedTable &keyed = stored.byKey.at(keys.columns);
    for (const QVector<QVariant> &key : keys.keys) {
        QString mark;
        QVector<ColumnCondition> conditions;
        for (int i = 0; i < key.size(); ++i) {
            // The length keeps two texts from looking like two others.
            const QString value = key[i].toString().toCaseFolded();
            mark += QString::number(value.size()) + ':' + value;
            conditions += {(*stored.fields)[keys.columns[i]].name, key[i]};
        }
        if (keyed.keys.contains(mark)) continue;
        keyed.table->load([&](TableColumns &rows) { m_source->readMatching(stored.name, conditions, rows); });
        keyed.keys.insert(mark);
    }
}

QVector<int> TableStore::places(StoredTable &stored, const QStringList &columns) const {
    QVector<int> places;
    for (const QString &column : columns) {
        const int place = fieldIndex(*stored.fields, column);
        if (place < 0) throw RuntimeError(3265);
        const FieldDefinition &field = (*stored.fields)[place];
        if (field.type == FieldType::Unsupported) throw JetErrors::unsupportedColumn(stored.name, field.name);
        places << place;
    }
    return places;
}

void TableStore::readRows(const QString &table, const QStringList &columns, const RowSink &sink) {
    StoredTable &stored = find(table);
    const QVector<int> wanted = places(stored, columns);
    TableColumns rows(*stored.fields);
    const auto handOver = [&] {
        for (const int column : wanted)
            if (const QString reason = rows.unreadable(column); !reason.isEmpty())
                throw RuntimeError(3343, reason);
        for (int row = 0; row < rows.rowCount(); ++row)
            sink(RowCells(rows, wanted, row));
        rows.truncate(0);
    };
    m_source->readAll(stored.name, rows, handOver);
    handOver();
}

qint64 TableStore::rowCount(const QString &table) {
    return m_source->rowCount(find(table).name);
}

std::shared_ptr<MemoryTable> TableStore::newResult(const FieldDefinitions &fields) {
    const QByteArray name = "r" + QByteArray::number(++m_results);
    return std::make_shared<MemoryTable>(m_database, name, fields, MemoryTable::Kind::Result);
}
