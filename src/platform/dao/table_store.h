// The tables of one open file: rows come into memory when they are first needed.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <vector>

#include <QHash>
#include <QSet>

#include "platform/dao/file_lock.h"
#include "platform/dao/jet_syntax.h"
#include "platform/dao/jet_table.h"
#include "platform/dao/key_condition.h"
#include "platform/dao/row_cells.h"
#include "platform/dao/table_source.h"
#include "platform/runtime/runtime_error.h"

class MemoryDatabase;

/// What one SELECT needs of a table: its rows in memory once load() has brought them.
struct TableAccess {
    JetTable table;
    int storedTable;
    /// Nothing for the whole table.
    std::optional<KeyCondition> keys;
};

/// The rows in memory outlive the store as long as somebody holds a table; the file is let go with the store.
class TableStore {
public:
    /// A table of more rows than this is read by key where a statement gives one.
    static constexpr qint64 WholeTableLimit = 2000;

    /// `lock` is held as long as the file is open.
    explicit TableStore(std::unique_ptr<TableSource> source, std::unique_ptr<FileLock> lock = nullptr,
                        qint64 wholeTableLimit = WholeTableLimit);
    ~TableStore();

    /// Capitals do not count.
    bool contains(const QString &table) const;
    /// 3078, with the reason where one is known.
    RuntimeError unknownTable(const QString &name) const;

    /// Raises 3078 for an unknown table.
    TableAccess access(const JetSelect &select);
    void load(const TableAccess &access);
    /// Raises 3078 for an unknown table.
    void expect(const JetSelect &select);

    /// See Database::ReadRows.
    void readRows(const QString &table, const QStringList &columns, const RowSink &sink);
    qint64 rowCount(const QString &table);

    /// A table for the rows of a result.
    std::shared_ptr<MemoryTable> newResult(const FieldDefinitions &fields);
    const std::shared_ptr<MemoryDatabase> &database() const { return m_database; }

private:
    struct KeyedTable {
        std::shared_ptr<MemoryTable> table;
        QSet<QString> keys;
    };

    struct StoredTable {
        QString name;
        std::optional<FieldDefinitions> fields;
        std::shared_ptr<MemoryTable> whole;
        bool isLoaded = false;
        // By the columns of the key, so that no row comes twice into one of them.
        std::map<QVector<int>, KeyedTable> byKey;
    };

    StoredTable &find(const QString &table);
    QVector<int> places(StoredTable &stored, const QStringList &columns) const;
    void loadKey(StoredTable &stored, const KeyCondition &keys);

    std::unique_ptr<FileLock> m_lock;
    std::unique_ptr<TableSource> m_source;
    qint64 m_wholeTableLimit;
    std::shared_ptr<MemoryDatabase> m_database;
    std::vector<StoredTable> m_tables;
    QHash<QString, int> m_indexOfName;
    int m_results = 0;
};
