#include "platform/dao/jet_query.h"

#include <algorithm>

#include "platform/dao/jet_errors.h"
#include "platform/dao/jet_parser.h"
#include "platform/dao/jet_translator.h"
#include "platform/dao/memory_database.h"
#include "platform/dao/table_rows.h"
#include "platform/dao/table_store.h"
#include "platform/runtime/conversions.h"

namespace {

// What the engine's own tables can have, and its crosstabs too.
constexpr int MaximumFields = 255;

class Query {
public:
    Query(TableStore &store, JetStatement statement)
        : m_store(store)
        , m_statement(std::move(statement))
        , m_table(resolve(m_statement.select))
        , m_translator(m_table, [this](const JetSelect &select) { return resolve(select); }) {}

    std::shared_ptr<RecordsetRows> run() {
        const JetSelect &select = m_statement.select;
        m_columns = m_translator.columns(select);
        if (m_statement.transform) return crosstab();
        const auto isColumn = [this](const JetColumn &column) {
            return m_translator.find(column.expression).has_value();
        };
        if (JetTranslator::isSummary(select) || !std::all_of(m_columns.begin(), m_columns.end(), isColumn))
            return result(m_translator.query(select, m_columns));
        return tableRows();
    }

private:
    JetTable resolve(const JetSelect &select) {
        m_accesses.push_back(m_store.access(select));
        return m_accesses.back().table;
    }

    void load() {
        if (const qsizetype unknown = m_translator.unknownNames().size(); unknown > 0)
            throw JetErrors::missingParameters(static_cast<int>(unknown));
        for (const TableAccess &access : m_accesses)
            m_store.load(access);
        m_translator.checkReadable();
    }

    FieldDefinitions fields() const {
        FieldDefinitions fields;
        for (const JetColumn &column : m_columns)
            fields += column.field;
        return fields;
    }

    std::shared_ptr<RecordsetRows> tableRows() {
        const JetSelect &select = m_statement.select;
        const RowFilter filter = m_translator.filter(select.where ? &*select.where : nullptr);
        const RowOrder order = m_translator.order(select, m_columns);
        load();
        JetTable seen{m_table.name, m_table.table, fields(), {}};
        for (const JetColumn &column : m_columns)
            seen.columns += m_translator.find(column.expression)->columnInMemory;
        return std::make_shared<TableRows>(seen, m_table.table->rows(filter, order));
    }

    std::shared_ptr<RecordsetRows> result(const SqlText &query) {
        load();
        return filled(query, fields());
    }

    std::shared_ptr<RecordsetRows> filled(const SqlText &query, const FieldDefinitions &resultFields) {
        if (resultFields.size() > MaximumFields) throw JetErrors::tooManyFields();
        const std::shared_ptr<MemoryTable> rows = m_store.newResult(resultFields);
        rows->fill(query);
        return std::make_shared<TableRows>(JetTable::whole(m_table.name, rows), rows->rows({}, {}));
    }

    std::shared_ptr<RecordsetRows> crosstab() {
        // Once without its columns: a statement that is refused reads no rows.
        m_translator.crosstab(m_statement, m_columns, {QVariant()});
        const SqlText valuesQuery = m_translator.pivotValues(m_statement);
        load();
        const FieldType pivotType = m_translator.type(*m_statement.pivot);
        FieldDefinitions resultFields = fields();
        QVector<QVariant> values;
        const auto statement = m_store.database()->prepare(valuesQuery);
        while (statement->step()) {
            const QVariant value = statement->cell(0, pivotType);
            values += storedValue(value, pivotType);
            const QString name = IsNull(value) ? QString("<>") : CStr(value);
            resultFields += {name, m_translator.type(*m_statement.transform), 0};
        }
        return filled(m_translator.crosstab(m_statement, m_columns, values), resultFields);
    }

    TableStore &m_store;
    JetStatement m_statement;
    std::vector<TableAccess> m_accesses;
    JetTable m_table;
    JetTranslator m_translator;
    std::vector<JetColumn> m_columns;
};

JetStatement statementOf(const TableStore &store, const QString &text) {
    const std::vector<JetToken> tokens = jetTokens(text);
    const JetToken &first = tokens.front();
    QString name = text.trimmed();
    if (tokens.size() == 2 && first.kind == JetToken::Kind::BracketedName) name = first.text;
    if (store.contains(name)) {
        JetStatement statement;
        statement.select.items = {JetSelectItem{true, {}, {}, {}}};
        statement.select.table = name;
        return statement;
    }
    if (!first.isKeyword("select") && !first.isKeyword("transform")) throw store.unknownTable(name);
    return JetParser::statement(text);
}

} // namespace

std::shared_ptr<RecordsetRows> openRows(TableStore &store, const QString &statement) {
    return Query(store, statementOf(store, statement)).run();
}

void expectRows(TableStore &store, const QString &statement) {
    store.expect(statementOf(store, statement).select);
}
