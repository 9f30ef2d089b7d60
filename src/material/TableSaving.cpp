#include "material/TableSaving.h"

#include "data/loaded_table.h"
#include "data/Material.h"
#include "data/table_vocabulary.h"
#include "exchange/value_tables.h"
#include "material/DesignPage.h"
#include "material/MaterialControls.h"
#include "material/WindowTables.h"
#include "reports/save_taken.h"

namespace {

/// Null for a page that is no table.
TDBGrid *gridOf(const QString &key, const MaterialControls &controls) {
    if (TableVocabulary::isUnbound(key)) return controls.tdbTable;
    const TableVocabulary::Table *table = TableVocabulary::find(key);
    return table && !table->columns.empty() ? controls.tdbBoundTable : nullptr;
}

} // namespace

TableSaving::TableSaving(MaterialControls &controls, const WindowTables &tables, const DesignPage &design)
    : m_controls(controls)
    , m_tables(tables)
    , m_design(design) {}

void TableSaving::Offer(const Material &material, const QString &key) {
    Withdraw();
    if (key == QLatin1String("Design"))
        offerDesignValues(material);
    else
        offerTable(material, key);
}

void TableSaving::Withdraw() {
    for (TDBGrid *grid : {m_controls.tdbTable, m_controls.tdbBoundTable, m_controls.tdbDesign})
        grid->setSaver({});
}

void TableSaving::offerTable(const Material &material, const QString &key) {
    TDBGrid *grid = gridOf(key, m_controls);
    const auto &table = m_tables.last();
    if (!grid || !table || table->key != key || !table->hasData) return;
    grid->setSaver([table, grade = Grades::of(material)] {
        SaveTaken::saveOfGrade(grade, TakenTables::of(*table), {}, "Material_Window.htm");
    });
}

void TableSaving::offerDesignValues(const Material &material) {
    if (m_tables.values.strDesignTables.isEmpty() || !m_design.hasTemperature()) return;
    m_controls.tdbDesign->setSaver([this, grade = Grades::of(material)] {
        SaveTaken::saveOfGrade(grade, ValueTables::designValues(m_tables.values),
                               ValueTables::atFacts(m_controls.txtDesignTemp->text(), std::nullopt),
                               "Design_Values.htm");
    });
}
