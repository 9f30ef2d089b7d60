#include "design/DesignValues.h"

#include "data/loaded_table.h"
#include "data/Material.h"
#include "data/table_vocabulary.h"
#include "design/design_headings.h"
#include "design/interpolation.h"
#include "platform/runtime/runtime_error.h"

namespace {

const QString CreepKey = QStringLiteral("CreepProp");

} // namespace

void DesignValues::take(const LoadedTable &table) {
    if (table.source) m_sources.of(table.key) = *table.source;
    if (!table.creep) return;
    m_creep = *table.creep;
    m_creepUnits.clear();
    for (const TableColumn &column : table.columns)
        if (!column.hidden) m_creepUnits << column.unit;
}

bool DesignValues::build(Material &material, const std::function<void(const QString &)> &load) {
    for (const QString &key : TableVocabulary::designKeys()) {
        if (!material.TableChecked(key)) load(key);
        if (material.TableHasData(key)) strDesignTables << key;
    }
    if (strDesignTables.isEmpty()) return false;
    if (material.MaxDesignCols() == 0) material.setMaxDesignCols(1);
    xDesignDB->ReDim(1, static_cast<int>(strDesignTables.size()) * RowsPerTable, 0, material.MaxDesignCols());
    writeCaptions(material);
    return true;
}

void DesignValues::writeCaptions(const Material &material) {
    int row = 1;
    for (const QString &key : strDesignTables) {
        const QVector<qint16> bands =
            material.ElevatedMultiCol(key) ? material.ElevatedColumns(key) : QVector<qint16>();
        const DesignHeadings headings = designHeadings(key, bands, m_creep.aCreepCaptions);
        xDesignDB->Set(row, 0, headings.label);
        const int count = std::min(static_cast<int>(headings.columns.size()), xDesignDB->UpperBound(2));
        for (int column = 1; column <= count; ++column)
            xDesignDB->Set(row, column, headings.columns[column - 1]);
        row += RowsPerTable;
    }
}

void DesignValues::compute(const QString &text, const NumberFlags &flags) {
    const auto temperature = Interpolation::typedTemperature(text, flags.bCommaGroup);
    if (strDesignTables.isEmpty()) throw RuntimeError(9);
    int row = 2;
    for (const QString &key : strDesignTables) {
        const SourceArray &source = sourceOf(key);
        const auto set = [&](int column, const QString &cell) { xDesignDB->Set(row, column, cell); };
        // A creep table may have rows and yet no column with a value.
        if (source.lastColumn() >= 0)
            Interpolation::designValues(source, temperature, flags.bDecimalPoint, set);
        row += RowsPerTable;
    }
}

QVector<DesignTable> DesignValues::tables() const {
    QVector<DesignTable> tables;
    int row = 1;
    for (const QString &key : strDesignTables) {
        const auto text = [&](int line, int column) { return xDesignDB->Get(row + line, column).toString(); };
        DesignTable table{key, text(0, 0), {}};
        const int last = std::min(sourceOf(key).lastColumn(), xDesignDB->UpperBound(2));
        for (int column = 1; column <= last; ++column)
            table.cells << DesignCell{text(0, column), unitOf(key, column), text(1, column)};
        tables << table;
        row += RowsPerTable;
    }
    return tables;
}

QString DesignValues::unitOf(const QString &key, int column) const {
    if (key == CreepKey) return m_creepUnits.value(column);
    const auto columns = TableVocabulary::find(key)->columns;
    // All thickness bands have the unit of the table's one column.
    const auto at = std::min(static_cast<std::size_t>(column), columns.size()) - 1;
    return QString::fromUtf16(columns[at].unit);
}

const SourceArray &DesignValues::sourceOf(const QString &key) const {
    return key == CreepKey ? m_creep.aCreepData : m_sources.of(key);
}
