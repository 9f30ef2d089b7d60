#include "values/property.h"

#include <algorithm>

#include "data/cell_values.h"
#include "data/column_names.h"
#include "data/modDBase.h"
#include "data/queries.h"
#include "data/table_vocabulary.h"
#include "platform/dao/database.h"
#include "platform/dao/recordset.h"

namespace {

const QString CreepKey = QStringLiteral("CreepProp");

QString firstLine(const char16_t *heading) {
    return QString::fromUtf16(heading).section(QLatin1Char('\r'), 0, 0).trimmed();
}

QVector<Property> fixedProperties(const TableVocabulary::Table &table) {
    QVector<Property> properties;
    for (const TableVocabulary::Column &column : table.columns) {
        QString label = QString::fromUtf16(table.name);
        if (table.kind == TableVocabulary::Kind::Elevated)
            label = firstLine(column.heading);
        else if (table.columns.size() > 1)
            label += QStringLiteral(": ") + firstLine(column.heading);
        properties << Property{QString::fromUtf16(table.key), QString::fromUtf16(column.field), label,
                               QString::fromUtf16(column.unit)};
    }
    return properties;
}

QVector<int> creepColumnIDs(Database &database, int stID) {
    QVector<int> ids;
    const auto definitions =
        database.OpenRecordset(Queries::sqlColumnDefinitions("CreepPropTable", "stID", stID));
    for (; !definitions->Eof(); definitions->MoveNext())
        ids << CInt(definitions->Fields("colID"));
    return ids;
}

QVector<int> standardIDs(Database &database) {
    QVector<int> ids;
    const auto standards = database.OpenRecordset(Queries::sqlAllStandards());
    for (; !standards->Eof(); standards->MoveNext())
        ids << CInt(standards->Fields("stID"));
    std::sort(ids.begin(), ids.end());
    return ids;
}

QVector<Property> creepProperties(Database &database) {
    const auto units = database.OpenRecordset(QStringLiteral("Units"));
    QVector<int> colIDs;
    // The first column of each standard is the temperature.
    for (const int stID : standardIDs(database))
        for (const int colID : creepColumnIDs(database, stID).mid(1))
            if (!colIDs.contains(colID)) colIDs << colID;
    QVector<Property> properties;
    for (const int colID : colIDs) {
        const auto [text, unit] = columnName(database, *units, colID);
        const Property property{
            CreepKey, text, QString::fromUtf16(TableVocabulary::find(CreepKey)->name) + ": " + text, unit};
        if (!properties.contains(property)) properties << property;
    }
    return properties;
}

bool isSame(const QString &left, const QString &right) {
    return left.simplified().compare(right.simplified(), Qt::CaseInsensitive) == 0;
}

} // namespace

QString Property::name() const {
    const TableVocabulary::Table *table = TableVocabulary::find(key);
    const bool single = table && table->columns.size() == 1;
    return single ? key : key + QLatin1Char('/') + column;
}

bool Property::isCreep() const {
    return key == CreepKey;
}

QVector<Property> Properties::all(Database &database) {
    QVector<Property> properties;
    for (const QString &key : TableVocabulary::designKeys())
        properties +=
            key == CreepKey ? creepProperties(database) : fixedProperties(*TableVocabulary::find(key));
    return properties;
}

QStringList Properties::creepColumns(Database &database, int stID) {
    const auto dtaColumns = database.OpenRecordset(QStringLiteral("Columns"));
    QStringList texts;
    for (const int colID : creepColumnIDs(database, stID))
        texts << modDBase::GetText(*dtaColumns, colID, "colID", "colTxt");
    return texts;
}

Typed<Property> Properties::named(const QVector<Property> &properties, const QString &name) {
    QStringList ofTable;
    QStringList all;
    for (const Property &property : properties) {
        if (isSame(property.name(), name)) return property;
        if (isSame(property.key, name)) ofTable << property.name();
        all << property.name();
    }
    if (!ofTable.isEmpty())
        return Typed<Property>::wrong("'" + name +
                                      "' has several columns: " + ofTable.join(QStringLiteral("; ")));
    return Typed<Property>::wrong("no property '" + name + "'; there are " + all.join(QStringLiteral("; ")));
}
