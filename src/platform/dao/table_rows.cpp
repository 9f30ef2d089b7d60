#include "platform/dao/table_rows.h"

#include "platform/dao/jet_errors.h"
#include "platform/dao/jet_parser.h"
#include "platform/dao/jet_translator.h"

TableRows::TableRows(JetTable table, std::vector<int> rows)
    : m_table(std::move(table))
    , m_rows(std::move(rows)) {}

QVariant TableRows::value(int row, int column) const {
    checkReadable(column);
    return m_table.table->cell(m_rows[static_cast<std::size_t>(row)], m_table.columns[column]);
}

void TableRows::checkReadable(int column) const {
    const FieldDefinition &field = m_table.fields[column];
    if (field.type == FieldType::Unsupported) throw JetErrors::unsupportedColumn(m_table.name, field.name);
    m_table.table->checkReadable(m_table.columns[column]);
}

int TableRows::find(const QString &criterion, int from, int step) const {
    const JetExpression condition = JetParser::criterion(criterion);
    JetTranslator translator(m_table, {});
    const RowFilter filter = translator.filter(&condition);
    if (!translator.unknownNames().isEmpty())
        throw JetErrors::unknownCriterionName(translator.unknownNames().first());
    translator.checkReadable();
    const RowMarks marks = m_table.table->marks(filter);
    for (int row = from; row >= 0 && row < count(); row += step)
        if (marks[static_cast<std::size_t>(m_rows[static_cast<std::size_t>(row)])]) return row;
    return -1;
}
