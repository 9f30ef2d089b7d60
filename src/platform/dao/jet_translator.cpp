#include "platform/dao/jet_translator.h"

#include "platform/dao/jet_errors.h"
#include "platform/dao/like_pattern.h"

namespace {

using Kind = JetExpression::Kind;

// An integer behind ORDER BY is the position of a column.
const JetExpression &sortExpression(const JetOrderItem &item, const std::vector<JetColumn> &columns) {
    if (item.expression.kind != Kind::Number) return item.expression;
    const int position = item.expression.text.toInt();
    if (position < 1 || position > static_cast<int>(columns.size()))
        throw JetErrors::clauseSyntax("ORDER BY");
    return columns[static_cast<std::size_t>(position - 1)].expression;
}

bool contains(const std::vector<SqlText> &list, const SqlText &item) {
    return std::find(list.begin(), list.end(), item) != list.end();
}

} // namespace

JetTranslator::JetTranslator(JetTable table, JetExpressionSql::Resolve resolve)
    : m_sql(std::move(table), std::move(resolve)) {}

bool JetTranslator::isSummary(const JetSelect &select) {
    return select.distinct || JetExpressionSql::isAggregate(select);
}

std::vector<JetColumn> JetTranslator::columns(const JetSelect &select) {
    const JetTable &table = m_sql.table();
    std::vector<JetColumn> columns;
    int nameless = 1000;
    for (const JetSelectItem &item : select.items) {
        if (!item.all) {
            const JetExpression &expression = item.expression;
            FieldDefinition field{item.alias, m_sql.type(expression), 0};
            if (const auto column = m_sql.find(expression)) field.size = column->field.size;
            if (field.name.isEmpty())
                field.name =
                    expression.kind == Kind::Column ? expression.text : QString("Expr%1").arg(nameless++);
            columns.push_back({expression, field});
            continue;
        }
        if (!item.qualifier.isEmpty() && item.qualifier.compare(table.name, Qt::CaseInsensitive) != 0)
            m_sql.addUnknownName(item.qualifier + ".*");
        for (const FieldDefinition &field : table.fields) {
            JetExpression expression;
            expression.kind = Kind::Column;
            expression.text = expression.source = field.name;
            columns.push_back({expression, field});
        }
    }
    return columns;
}

RowFilter JetTranslator::filter(const JetExpression *where) {
    RowFilter filter;
    if (!where) return filter;
    const bool answersLikes = m_sql.table().table->kind() != MemoryTable::Kind::Growing;
    const bool isAnd = where->kind == Kind::And;
    const std::size_t count = isAnd ? where->operands.size() : 1;
    for (std::size_t i = 0; i < count; ++i) {
        const JetExpression &term = isAnd ? where->operands[i] : *where;
        if (answersLikes && term.kind == Kind::Like && !term.negated && term.operands[1].kind == Kind::Text) {
            if (const auto column = m_sql.find(term.operands[0])) {
                m_sql.addRead(*column);
                filter.likes.push_back({column->columnInMemory, LikePattern(term.operands[1].text)});
                continue;
            }
        }
        if (!filter.condition.text.isEmpty()) filter.condition += " and ";
        filter.condition += m_sql.condition(term, JetExpressionSql::Place::Where);
    }
    return filter;
}

RowOrder JetTranslator::order(const JetSelect &select, const std::vector<JetColumn> &columns) {
    std::vector<SqlText> terms;
    RowOrder order{{}, std::vector<ColumnOrder>()};
    for (const JetOrderItem &item : select.orderBy) {
        const JetExpression &expression = sortExpression(item, columns);
        SqlText term = m_sql.key(expression);
        if (item.descending) term += " desc";
        terms.push_back(std::move(term));
        const auto column = m_sql.find(expression);
        if (!column) order.columns.reset();
        if (order.columns) order.columns->push_back({column->columnInMemory, item.descending});
    }
    order.sql = joined(terms);
    return order;
}

SqlText JetTranslator::query(const JetSelect &select, const std::vector<JetColumn> &columns) {
    SqlText sql = select.distinct ? "select distinct " : "select ";
    sql += joined(values(columns)) + m_sql.body(select);
    SqlText order = JetExpressionSql::isAggregate(select) ? groupedOrder(select, columns)
                                                          : this->order(select, columns).sql;
    if (select.distinct) order = distinctOrder(select, columns);
    if (!isSummary(select)) order = joined({order, "t0.rowid"});
    return order.text.isEmpty() ? sql : sql + " order by " + order;
}

SqlText JetTranslator::pivotValues(const JetStatement &statement) {
    JetSelect rows = statement.select;
    rows.groupBy = {*statement.pivot};
    rows.having.reset();
    return "select " + m_sql.key(*statement.pivot) + m_sql.body(rows) + " order by 1";
}

SqlText JetTranslator::crosstab(const JetStatement &statement, const std::vector<JetColumn> &columns,
                                const QVector<QVariant> &pivoted) {
    const JetSelect &select = statement.select;
    if (statement.transform->kind != Kind::Call || select.groupBy.empty()) throw JetErrors::transformSyntax();
    std::vector<SqlText> cells = values(columns);
    for (const QVariant &value : pivoted) {
        const SqlText test = m_sql.key(*statement.pivot) + SqlText(" is ?", {value});
        cells.push_back(m_sql.aggregate(*statement.transform, test));
    }
    return "select " + joined(cells) + m_sql.body(select) + " order by " + groupedOrder(select, columns);
}

std::vector<SqlText> JetTranslator::values(const std::vector<JetColumn> &columns) {
    std::vector<SqlText> values;
    for (const JetColumn &column : columns)
        values.push_back(m_sql.value(column.expression));
    return values;
}

// Where a statement leaves the order open, groups come in the order of their keys, as if sorted to be found.
SqlText JetTranslator::groupedOrder(const JetSelect &select, const std::vector<JetColumn> &columns) {
    const std::vector<SqlText> keys = m_sql.groupKeys(select);
    for (const JetColumn &column : columns)
        m_sql.checkGrouped(column.expression, keys);
    if (select.having) m_sql.checkGrouped(*select.having, keys);
    for (const JetOrderItem &item : select.orderBy)
        m_sql.checkGrouped(sortExpression(item, columns), keys);
    std::vector<SqlText> terms = keys;
    if (!select.orderBy.empty()) terms.insert(terms.begin(), order(select, columns).sql);
    return joined(terms);
}

SqlText JetTranslator::distinctOrder(const JetSelect &select, const std::vector<JetColumn> &columns) {
    std::vector<SqlText> terms;
    for (const JetColumn &column : columns)
        terms.push_back(m_sql.key(column.expression));
    for (const JetOrderItem &item : select.orderBy)
        if (!contains(terms, m_sql.key(sortExpression(item, columns))))
            throw JetErrors::orderConflictsWithDistinct(item.expression.source);
    if (!select.orderBy.empty()) terms.insert(terms.begin(), order(select, columns).sql);
    return joined(terms);
}
