// From an expression of the engine's dialect to SQL over the tables in memory.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "platform/dao/jet_syntax.h"
#include "platform/dao/jet_table.h"

/// SQL calls the table of the outermost SELECT t0, that of a SELECT inside it t1, and so on. Names that no
/// table knows are collected, so that a message can count them; whoever translates looks at them at the end.
class JetExpressionSql {
public:
    /// Where an expression stands: an aggregate has no place in a condition nor inside another one.
    enum class Place { Anywhere, Where, Inside };
    /// The table of a SELECT; raises 3078.
    using Resolve = std::function<JetTable(const JetSelect &select)>;

    struct Column {
        QString tableName;
        FieldDefinition field;
        std::shared_ptr<MemoryTable> table;
        int columnInMemory;
        QByteArray sql;
    };

    /// Translates what stands in `table`'s scope; a SELECT inside finds its table through `resolve`.
    JetExpressionSql(JetTable table, Resolve resolve);

    /// Of the innermost SELECT.
    const JetTable &table() const { return m_scopes.back().table; }
    std::optional<Column> find(const JetExpression &column) const;
    FieldType type(const JetExpression &expression) const;

    SqlText condition(const JetExpression &expression, Place place);
    SqlText value(const JetExpression &expression);
    /// A value that is compared or sorted: a text comes with the engine's collation.
    SqlText key(const JetExpression &expression);
    /// The aggregate `call` over the rows that meet `test`, a condition in SQL, or over all.
    SqlText aggregate(const JetExpression &call, const SqlText &test = {});

    /// Groups or counts: a row stands for many of the table's.
    static bool isAggregate(const JetSelect &select);
    /// Raises 3095 for an aggregate among the keys.
    std::vector<SqlText> groupKeys(const JetSelect &select);
    /// Raises 3122 for a column that is neither among the keys nor in an aggregate.
    void checkGrouped(const JetExpression &expression, const std::vector<SqlText> &keys);
    /// " from ... where ... group by ... having ..."
    SqlText body(const JetSelect &select);

    /// As they are written, each once.
    const QStringList &unknownNames() const { return m_unknownNames; }
    void addUnknownName(const QString &name);

    /// Raises 3259 where SQL that was made here reads a column of no type that can be read, 3343 where it
    /// reads one with a value that cannot. Whoever runs the SQL asks once the tables' rows are there.
    void checkReadable() const;
    /// Of a column that is read without its SQL.
    void addRead(const Column &column) { m_read.push_back(column); }

private:
    struct Scope {
        JetTable table;
        QByteArray alias;
    };

    void enter(JetTable table);
    SqlText condition(const JetExpression &expression);
    SqlText text(const JetExpression &expression);
    SqlText comparand(const JetExpression &expression, bool asText);
    SqlText all(const JetExpression &expression, const char *separator);
    SqlText comparison(const JetExpression &left, const QByteArray &symbol, const JetExpression &right);
    SqlText like(const JetExpression &expression);
    SqlText between(const JetExpression &expression);
    SqlText in(const JetExpression &expression);
    SqlText inSelect(const JetExpression &expression);

    std::vector<Scope> m_scopes;
    Resolve m_resolve;
    Place m_place = Place::Anywhere;
    QStringList m_unknownNames;
    std::vector<Column> m_read;
    int m_tables = 0;
};

/// The parts of a list with commas between them.
SqlText joined(const std::vector<SqlText> &items);
