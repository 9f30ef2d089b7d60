#include "data/composition.h"

#include "data/cell_values.h"
#include "data/loaded_table.h"
#include "data/Material.h"
#include "data/queries.h"
#include "data/table_notes.h"
#include "platform/dao/database.h"
#include "platform/dao/recordset.h"

namespace {
constexpr int Minima = 1;
constexpr int Maxima = 2;

void readElements(Recordset &limits, Material &material, LoadedTable &table) {
    const Composition composition = readComposition(limits, table.hasNotes);
    table.cells = composition.cells;
    const bool firstTime = !material.TableHasData(table.key);
    for (const QString &heading : composition.headings) {
        table.columns << TableColumn{{}, heading};
        if (firstTime) material.AddColCaption(table.key, heading);
    }
    material.setTableHasData(table.key, true);
}

} // namespace

Composition readComposition(Recordset &limits, bool withMarkers) {
    const int elements = CInt(limits.RecordCount() / 2.0);
    Composition result;
    result.cells.ReDim(Minima, Maxima, 0, elements);
    result.cells.Set(Minima, 0, QStringLiteral("min"));
    result.cells.Set(Maxima, 0, QStringLiteral("max"));
    for (int i = 1; i <= elements; ++i) {
        if (i > 1) limits.MoveNext();
        result.cells.Set(Minima, i, cellValue(limits.Fields("val")));
        limits.MoveNext();
        result.cells.Set(Maxima, i, cellValue(limits.Fields("val")));
        const QString marker = withMarkers ? cellText(limits.Fields("note")) : QString();
        result.headings << cellText(limits.Fields("element")) + LineEnd + LineEnd + marker;
    }
    return result;
}

void loadComposition(Database &database, Material &material, LoadedTable &table) {
    readNotes(database, material, table);
    table.columns << TableColumn{};
    const auto limits = database.OpenRecordset(
        Queries::sqlChemicalRows(material.Standard(), material.Name(), material.Number()));
    // Without rows the grid stays empty, with no message in its place: the further elements may be all that
    // the standard gives, and the message would stand over them.
    if (limits->RecordCount() == 0)
        material.setTableHasData(table.key, false);
    else
        readElements(*limits, material, table);
    if (material.OthersElement()) {
        const auto dtaOther =
            database.OpenRecordset(Queries::sqlOtherElements(material.ID(), material.StandardID()));
        material.setOthersText(cellText(dtaOther->Fields("other")));
        if (!isNoValue(material.OthersText())) table.others = material.OthersText();
    }
    material.SetUnboundArrayData(table.key, table.cells);
}
