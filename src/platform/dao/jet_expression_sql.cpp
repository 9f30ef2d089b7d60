#include "platform/dao/jet_expression_sql.h"

#include "platform/dao/jet_errors.h"
#include "platform/dao/like_pattern.h"
#include "platform/dao/memory_database.h"

namespace {

using Kind = JetExpression::Kind;
using Place = JetExpressionSql::Place;

QVariant numberParameter(const QString &written) {
    bool isInteger = false;
    const qlonglong integer = written.toLongLong(&isInteger);
    return isInteger ? QVariant(integer) : QVariant(written.toDouble());
}

SqlText enclosed(const SqlText &sql) {
    return "(" + sql + ")";
}

bool hasAggregate(const JetExpression &expression) {
    return expression.kind == Kind::Call ||
           std::any_of(expression.operands.begin(), expression.operands.end(), hasAggregate);
}

class HeldPlace {
public:
    HeldPlace(Place &place, Place now)
        : m_place(place)
        , m_before(std::exchange(place, now)) {}
    ~HeldPlace() { m_place = m_before; }
    HeldPlace(const HeldPlace &) = delete;
    HeldPlace &operator=(const HeldPlace &) = delete;

private:
    Place &m_place;
    Place m_before;
};

} // namespace

SqlText joined(const std::vector<SqlText> &items) {
    SqlText list;
    for (const SqlText &item : items) {
        if (!list.text.isEmpty() && !item.text.isEmpty()) list += ", ";
        list += item;
    }
    return list;
}

JetExpressionSql::JetExpressionSql(JetTable table, Resolve resolve)
    : m_resolve(std::move(resolve)) {
    enter(std::move(table));
}

void JetExpressionSql::enter(JetTable table) {
    m_scopes.push_back({std::move(table), "t" + QByteArray::number(m_tables++)});
}

void JetExpressionSql::addUnknownName(const QString &name) {
    if (!m_unknownNames.contains(name, Qt::CaseInsensitive)) m_unknownNames += name;
}

void JetExpressionSql::checkReadable() const {
    for (const Column &column : m_read) {
        if (column.field.type == FieldType::Unsupported)
            throw JetErrors::unsupportedColumn(column.tableName, column.field.name);
        column.table->checkReadable(column.columnInMemory);
    }
}

std::optional<JetExpressionSql::Column> JetExpressionSql::find(const JetExpression &column) const {
    if (column.kind != Kind::Column) return std::nullopt;
    for (auto scope = m_scopes.rbegin(); scope != m_scopes.rend(); ++scope) {
        if (!column.qualifier.isEmpty() && !isSameName(column.qualifier, scope->table.name)) continue;
        const int field = fieldIndex(scope->table.fields, column.text);
        if (field < 0) continue;
        const int inMemory = scope->table.columns[field];
        return Column{scope->table.name, scope->table.fields[field], scope->table.table, inMemory,
                      scope->alias + "." + MemoryTable::columnName(inMemory)};
    }
    return std::nullopt;
}

FieldType JetExpressionSql::type(const JetExpression &expression) const {
    switch (expression.kind) {
    case Kind::Null:
    case Kind::Text:
        return FieldType::Text;
    case Kind::Number: {
        bool isLong = false;
        expression.text.toInt(&isLong);
        return isLong ? FieldType::Long : FieldType::Double;
    }
    case Kind::Date:
        return FieldType::Date;
    case Kind::Column: {
        const std::optional<Column> column = find(expression);
        return column ? column->field.type : FieldType::Text;
    }
    case Kind::Call: {
        if (isSameName(expression.text, "count") || expression.operands.empty()) return FieldType::Long;
        const FieldType operand = type(expression.operands.front());
        const bool picks = isSameName(expression.text, "min") || isSameName(expression.text, "max");
        return picks || operand == FieldType::Single ? operand : FieldType::Double;
    }
    default:
        return FieldType::Boolean;
    }
}

SqlText JetExpressionSql::condition(const JetExpression &expression, Place place) {
    const HeldPlace held(m_place, place);
    return condition(expression);
}

SqlText JetExpressionSql::condition(const JetExpression &expression) {
    switch (expression.kind) {
    case Kind::And:
        return all(expression, " and ");
    case Kind::Or:
        return all(expression, " or ");
    case Kind::Not:
        return enclosed("not " + condition(expression.operands[0]));
    case Kind::Compare:
        return comparison(expression.operands[0], expression.text.toLatin1(), expression.operands[1]);
    case Kind::IsNull:
        return enclosed(value(expression.operands[0]) + (expression.negated ? " is not null" : " is null"));
    case Kind::Like:
        return like(expression);
    case Kind::Between:
        return between(expression);
    case Kind::In:
        return in(expression);
    case Kind::InSelect:
        return inSelect(expression);
    default:
        break;
    }
    const SqlText truth = value(expression);
    const bool isKnown = expression.kind != Kind::Column || find(expression);
    if (isKnown && expression.kind != Kind::Null && isTextType(type(expression)))
        throw JetErrors::typeMismatch();
    return truth;
}

SqlText JetExpressionSql::value(const JetExpression &expression) {
    switch (expression.kind) {
    case Kind::Null:
        return "null";
    case Kind::Boolean:
        return {"?", {qlonglong(expression.number)}};
    case Kind::Number:
        return {"?", {numberParameter(expression.text)}};
    case Kind::Text:
        return {"?", {expression.text}};
    case Kind::Date:
        return {"?", {expression.number}};
    case Kind::Column:
        if (const std::optional<Column> column = find(expression)) {
            addRead(*column);
            return column->sql;
        }
        addUnknownName(expression.source);
        return "null";
    case Kind::Call:
        return aggregate(expression);
    default:
        break;
    }
    // True is -1 wherever it is a value.
    return enclosed("-" + condition(expression));
}

SqlText JetExpressionSql::key(const JetExpression &expression) {
    return comparand(expression, isTextType(type(expression)));
}

SqlText JetExpressionSql::text(const JetExpression &expression) {
    if (expression.kind == Kind::Number) return {"?", {expression.text}};
    const SqlText sql = value(expression);
    return {textExpression(sql.text, type(expression)), sql.parameters};
}

// A column of texts brings the collation along by itself, and can then be looked up in an index.
SqlText JetExpressionSql::comparand(const JetExpression &expression, bool asText) {
    if (!asText) return value(expression);
    const bool isColumn = expression.kind == Kind::Column && isTextType(type(expression));
    return isColumn ? value(expression) : text(expression) + MemoryDatabase::JetCollation;
}

SqlText JetExpressionSql::all(const JetExpression &expression, const char *separator) {
    SqlText sql = condition(expression.operands.front());
    for (std::size_t i = 1; i < expression.operands.size(); ++i)
        sql += separator + condition(expression.operands[i]);
    return enclosed(sql);
}

SqlText JetExpressionSql::comparison(const JetExpression &left, const QByteArray &symbol,
                                     const JetExpression &right) {
    const bool asText = isTextType(type(left)) || isTextType(type(right));
    return enclosed(comparand(left, asText) + (" " + symbol + " ") + comparand(right, asText));
}

SqlText JetExpressionSql::like(const JetExpression &expression) {
    const JetExpression &pattern = expression.operands[1];
    // Refused here, where it does not hold together: jet_like() would only let it fit no text.
    if (pattern.kind == Kind::Text) LikePattern refused(pattern.text);
    const SqlText sought = text(expression.operands[0]);
    const SqlText sql = "jet_like(" + text(pattern) + ", " + sought + ")";
    return expression.negated ? enclosed("not " + sql) : sql;
}

SqlText JetExpressionSql::between(const JetExpression &expression) {
    const std::vector<JetExpression> &operands = expression.operands;
    const SqlText sql =
        comparison(operands[0], ">=", operands[1]) + " and " + comparison(operands[0], "<=", operands[2]);
    return enclosed(expression.negated ? "not " + enclosed(sql) : sql);
}

SqlText JetExpressionSql::in(const JetExpression &expression) {
    const std::vector<JetExpression> &operands = expression.operands;
    const bool asText = std::any_of(operands.begin(), operands.end(), [this](const JetExpression &operand) {
        return isTextType(type(operand));
    });
    std::vector<SqlText> values;
    for (std::size_t i = 1; i < operands.size(); ++i)
        values.push_back(comparand(operands[i], asText));
    return enclosed(comparand(operands[0], asText) + (expression.negated ? " not in (" : " in (") +
                    joined(values) + ")");
}

SqlText JetExpressionSql::inSelect(const JetExpression &expression) {
    const JetSelect &select = *expression.select;
    const JetExpression &left = expression.operands[0];
    const bool leftIsText = isTextType(type(left));
    if (select.items.size() != 1 || select.items[0].all) throw JetErrors::subqueryColumns();

    enter(m_resolve(select));
    const JetExpression &column = select.items[0].expression;
    const bool asText = leftIsText || isTextType(type(column));
    const SqlText values = [&] {
        const HeldPlace held(m_place, Place::Anywhere);
        if (isAggregate(select)) checkGrouped(column, groupKeys(select));
        return "select " + comparand(column, asText) + body(select);
    }();
    m_scopes.pop_back();
    return enclosed(comparand(left, asText) + (expression.negated ? " not in (" : " in (") + values + ")");
}

SqlText JetExpressionSql::aggregate(const JetExpression &call, const SqlText &test) {
    static const QStringList names = {"count", "min", "max", "sum", "avg"};
    const QString name = call.text.toLower();
    if (!names.contains(name)) throw JetErrors::unknownFunction(call.text);
    if (m_place == Place::Where) throw JetErrors::aggregateInWhere(call.source);
    if (m_place == Place::Inside) throw JetErrors::aggregateInExpression(call.source);
    const bool isCount = name == "count";
    if (call.operands.size() > 1 || (call.operands.empty() && !isCount))
        throw JetErrors::syntax("Wrong number of arguments used with function", call.source);

    const HeldPlace held(m_place, Place::Inside);
    SqlText argument = "1";
    if (!call.operands.empty()) {
        const JetExpression &operand = call.operands.front();
        const bool adds = name == "sum" || name == "avg";
        if (adds && find(operand) && isTextType(type(operand))) throw JetErrors::typeMismatch();
        argument = key(operand);
    }
    if (!test.text.isEmpty()) argument = "case when " + test + " then " + argument + " end";
    const SqlText sql = name.toLatin1() + "(" + argument + ")";
    // A crosstab shows nothing where no row falls into a column.
    return isCount && !test.text.isEmpty() ? "nullif(" + sql + ", 0)" : sql;
}

bool JetExpressionSql::isAggregate(const JetSelect &select) {
    const auto itemHas = [](const JetSelectItem &item) { return !item.all && hasAggregate(item.expression); };
    const auto orderHas = [](const JetOrderItem &item) { return hasAggregate(item.expression); };
    return !select.groupBy.empty() || select.having ||
           std::any_of(select.items.begin(), select.items.end(), itemHas) ||
           std::any_of(select.orderBy.begin(), select.orderBy.end(), orderHas);
}

std::vector<SqlText> JetExpressionSql::groupKeys(const JetSelect &select) {
    const HeldPlace held(m_place, Place::Inside);
    std::vector<SqlText> keys;
    for (const JetExpression &expression : select.groupBy)
        keys.push_back(key(expression));
    return keys;
}

SqlText JetExpressionSql::body(const JetSelect &select) {
    SqlText sql = " from " + table().table->sqlName() + " as " + m_scopes.back().alias;
    if (select.where) sql += " where " + condition(*select.where, Place::Where);
    if (!select.groupBy.empty()) sql += " group by " + joined(groupKeys(select));
    if (select.having) sql += " having " + condition(*select.having, Place::Anywhere);
    return sql;
}

void JetExpressionSql::checkGrouped(const JetExpression &expression, const std::vector<SqlText> &keys) {
    if (expression.kind == Kind::Call || std::find(keys.begin(), keys.end(), key(expression)) != keys.end())
        return;
    if (find(expression)) throw JetErrors::notGrouped(expression.source);
    for (const JetExpression &operand : expression.operands)
        checkGrouped(operand, keys);
}
