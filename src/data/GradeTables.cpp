#include "data/GradeTables.h"

#include "data/cell_values.h"
#include "data/composition.h"
#include "data/Material.h"
#include "data/material_texts.h"
#include "data/modDBase.h"
#include "data/queries.h"
#include "data/table_notes.h"
#include "data/table_vocabulary.h"
#include "data/temperature_tables.h"
#include "data/unbound_tables.h"
#include "platform/dao/database.h"
#include "platform/dao/recordset.h"

GradeTables::GradeTables(Database &database)
    : m_database(database)
    , dtaUnits(database.OpenRecordset(QStringLiteral("Units"))) {}

LoadedTable GradeTables::load(Database &database, Material &material, const QString &key) {
    return GradeTables(database).load(material, key);
}

LoadedTable GradeTables::load(Material &material, const QString &key) {
    LoadedTable table;
    table.key = key;
    table.caption = TableVocabulary::GetTableName(TableVocabulary::GetTableIndex(key));
    if (key == QLatin1String("Ref"))
        loadReferences(material, table);
    else if (key == QLatin1String("ChemComp"))
        loadComposition(m_database, material, table);
    else if (TableVocabulary::isUnbound(key))
        loadUnboundTable(m_database, *dtaUnits, material, table);
    else if (key == QLatin1String("AddInfo"))
        loadAdditionalInfo(material, table);
    else
        loadTemperatureTable(m_database, material, table);
    table.hasData = material.TableHasData(key);
    return table;
}

std::shared_ptr<Recordset> GradeTables::graphColumns(const Material &material, const QString &key, int x,
                                                     int y) {
    return m_database.OpenRecordset(
        Queries::sqlGraphColumnRows(Queries::cellTable(key), material.ID(), x, y));
}

void GradeTables::LoadProductForms(Material &material) {
    auto rows = m_database.OpenRecordset(Queries::sqlStandardProdForms(material.StandardID()));
    QVector<int> ids;
    for (; !rows->Eof(); rows->MoveNext())
        ids << CInt(rows->Fields("prodFID"));
    if (ids.isEmpty()) return;
    rows = m_database.OpenRecordset(Queries::sqlProdFormNames(ids));
    material.setProductForms(readProductForms(*rows, static_cast<int>(ids.size())));
}

/// A row a property: what it is, and its text.
void GradeTables::loadReferences(Material &material, LoadedTable &table) {
    LoadProductForms(material);
    const std::pair<const char *, QString> properties[] = {
        {"Standard", material.Standard()},
        {"Description of the standard", material.StandardDescription()},
        {"Name", material.Name()},
        {"Description", material.Description()},
        {"Number", material.Number()},
        {"Group", material.Group()},
        {"Last updated", CStr(material.RevisionDate())},
        {"Product form(s)", material.ProductForms().join(QStringLiteral(", "))},
        {"Standard last updated", CStr(material.StandardRevisionDate())}};
    table.columns = {TableColumn{}, TableColumn{}};
    table.cells.ReDim(1, static_cast<int>(std::size(properties)), 0, 1);
    int row = 0;
    for (const auto &[property, text] : properties) {
        table.cells.Set(++row, 0, QString::fromLatin1(property));
        table.cells.Set(row, 1, text);
    }
}

void GradeTables::loadAdditionalInfo(Material &material, LoadedTable &table) {
    const auto dtaTable = m_database.OpenRecordset(Queries::sqlAdditionalInfo(material.ID()));
    const auto dtaOther = m_database.OpenRecordset(Queries::sqlInfoTitles());
    material.setTableHasData(table.key, !dtaTable->Eof());
    if (dtaTable->Eof()) return;

    QVector<InfoParagraph> paragraphs;
    for (; !dtaTable->Eof(); dtaTable->MoveNext())
        paragraphs << InfoParagraph{CInt(dtaTable->Fields("titleID")),
                                    cellText(dtaTable->Fields("InfoText"))};
    table.notes = additionalInfoText(paragraphs, [&dtaOther](int titleID) {
        return modDBase::GetText(*dtaOther, titleID, "titleID", "titleText");
    });
    material.setAddInfo(table.notes);
}
