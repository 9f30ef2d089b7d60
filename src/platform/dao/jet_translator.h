// From the tree of a statement to SQL over the tables in memory.
#pragma once

#include "platform/dao/jet_expression_sql.h"

/// A column of a result: "*" is taken apart, every column has its name.
struct JetColumn {
    JetExpression expression;
    FieldDefinition field;
};

/// Whoever translates looks at unknownNames() at the end.
class JetTranslator {
public:
    /// Translates what stands in `table`'s scope; a SELECT inside finds its table through `resolve`.
    JetTranslator(JetTable table, JetExpressionSql::Resolve resolve);

    /// Groups, counts or leaves out repetitions: its rows are no rows of the table.
    static bool isSummary(const JetSelect &select);

    std::vector<JetColumn> columns(const JetSelect &select);
    std::optional<JetExpressionSql::Column> find(const JetExpression &column) const {
        return m_sql.find(column);
    }

    /// Null for no condition. Takes the LIKEs apart that a table can answer for all its rows at once.
    RowFilter filter(const JetExpression *where);
    /// The terms behind ORDER BY; a number is the position of one of `columns`.
    RowOrder order(const JetSelect &select, const std::vector<JetColumn> &columns);

    /// A whole SELECT. Raises 3122 for a column that is neither grouped nor in an aggregate, 3093 for an
    /// order that distinct rows do not have.
    SqlText query(const JetSelect &select, const std::vector<JetColumn> &columns);

    /// The values that a crosstab's columns are made from, in ascending order, one a row.
    SqlText pivotValues(const JetStatement &statement);
    /// `columns`, and behind them one for each of `values`, as SqlText keeps them.
    SqlText crosstab(const JetStatement &statement, const std::vector<JetColumn> &columns,
                     const QVector<QVariant> &values);

    FieldType type(const JetExpression &expression) const { return m_sql.type(expression); }
    const QStringList &unknownNames() const { return m_sql.unknownNames(); }
    /// Raises 3343 for a column that cannot be read, once the tables' rows are there.
    void checkReadable() const { m_sql.checkReadable(); }

private:
    std::vector<SqlText> values(const std::vector<JetColumn> &columns);
    SqlText groupedOrder(const JetSelect &select, const std::vector<JetColumn> &columns);
    SqlText distinctOrder(const JetSelect &select, const std::vector<JetColumn> &columns);

    JetExpressionSql m_sql;
};
