#include "data/table_vocabulary.h"

#include "platform/runtime/runtime_error.h"

namespace {

struct Table {
    const char16_t *key;
    const char16_t *name;
    const char16_t *caption;
};

constexpr Table Tables[TableVocabulary::TableCount] = {
    {u"Ref", u"References", u""},
    {u"ChemComp", u"Chemical composition", u""},
    {u"MechProp", u"Mechanical properties at room temperature", u""},
    {u"ImpEnergy", u"Impact energy", u""},
    {u"Rp02", u"Minimum values for Rp0,2 [MPa] at elevated temperature", u"Rp0,2 \r\n\r\n[MPa]"},
    {u"Rp10", u"Minimum values for Rp1,0 [MPa] at elevated temperature", u"Rp1,0 \r\n\r\n[MPa]"},
    {u"Rm", u"Minimum values for Rm [MPa] at elevated temperature", u"Rm \r\n\r\n[MPa]"},
    {u"ModElast", u"Modulus of elasticity", u"KN \r\n\r\n/ mm\u00B2"},
    {u"ThermExp", u"Thermal expansion", u""},
    {u"ThermCond", u"Thermal conductivity", u"W \r\n\r\n/ (m x K)"},
    {u"SpecThermCap", u"Specific thermal capacity", u""},
    {u"SpecElecRes", u"Specific electrical resistance", u"Ohm x mm\u00B2 \r\n\r\n/ m"},
    {u"CreepProp", u"Creep properties", u"Creep Properties"},
    {u"AddInfo", u"Additional Information", u""},
};

const Table &tableAt(int index) {
    if (index < 0 || index >= TableVocabulary::TableCount) throw RuntimeError(9);
    return Tables[index];
}

const Table *tableOf(const QString &key) {
    for (const Table &table : Tables)
        if (key == QStringView(table.key)) return &table;
    return nullptr;
}

} // namespace

QString TableVocabulary::GetTableName(int index) {
    return QString::fromUtf16(tableAt(index).name);
}

QString TableVocabulary::GetShortTableName(int index) {
    return QString::fromUtf16(tableAt(index).key);
}

int TableVocabulary::GetTableIndex(const QString &key) {
    const Table *table = tableOf(key);
    return table ? static_cast<int>(table - Tables) : 0;
}

QString TableVocabulary::GetCaption(const QString &key) {
    const Table *table = tableOf(key);
    return table ? QString::fromUtf16(table->caption) : QString();
}

bool TableVocabulary::isUnbound(const QString &key) {
    return key == QLatin1String("ChemComp") || key == QLatin1String("MechProp") ||
           key == QLatin1String("CreepProp");
}

bool TableVocabulary::isElevated(const QString &key) {
    return key == QLatin1String("Rp02") || key == QLatin1String("Rp10") || key == QLatin1String("Rm");
}
