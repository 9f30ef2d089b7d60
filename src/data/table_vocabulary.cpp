#include "data/table_vocabulary.h"

#include "data/status_numbers.h"
#include "platform/runtime/runtime_error.h"

namespace {

using TableVocabulary::Column;
using TableVocabulary::Kind;
using TableVocabulary::Table;

constexpr Column Impact[] = {{u"kv", u"KV\r\n\r\n[Joule]", u"[Joule]", nullptr},
                             {u"kvLong", u"KVL\r\n\r\n[Joule]", u"[Joule]", nullptr},
                             {u"kvTrans", u"KVT\r\n\r\n[Joule]", u"[Joule]", nullptr}};
constexpr Column Rp02[] = {{u"Rp02", u"Rp0,2 \r\n\r\n[MPa]", u"[MPa]", nullptr}};
constexpr Column Rp10[] = {{u"Rp10", u"Rp1,0 \r\n\r\n[MPa]", u"[MPa]", nullptr}};
constexpr Column Rm[] = {{u"Rm", u"Rm \r\n\r\n[MPa]", u"[MPa]", nullptr}};
constexpr Column ModElast[] = {
    {u"ModElast", u"KN \r\n\r\n/ mm\u00B2", u"KN / mm\u00B2", u"modulus-of-elasticity"}};
// The sharp s stands for the symbol of the expansion coefficient: reports and files of this program have
// always been searched by it.
constexpr Column ThermExp[] = {
    {u"ThermExp", u"\u00DF20, t\r\n\r\n[E-6/K]", u"[E-6/K]", u"expansion-mean"},
    {u"ThermExpDiff", u"\u00DFdiff, t\r\n\r\n[E-6/K]", u"[E-6/K]", u"expansion-differential"}};
constexpr Column ThermCond[] = {
    {u"ThermCond", u"W \r\n\r\n/ (m x K)", u"W / (m x K)", u"thermal-conductivity"}};
constexpr Column SpecThermCap[] = {
    {u"SpecThermCap", u"Cp20, t\r\n\r\n[J/kgK]", u"[J/kgK]", u"heat-capacity-mean"},
    {u"SpecThermCapDiff", u"Cp diff, t\r\n\r\n[J/kgK]", u"[J/kgK]", u"heat-capacity-differential"}};
constexpr Column SpecElecRes[] = {
    {u"SpecElecRes", u"Ohm x mm\u00B2 \r\n\r\n/ m", u"Ohm x mm\u00B2 / m", u"electrical-resistivity"}};

// clang-format off
constexpr Table Tables[TableVocabulary::TableCount] = {
    {u"Ref", u"References", u"",
     Kind::References, u"View", 0, StatusNumber::ChooseTable, 10, {}, nullptr, false, nullptr, u"References"},
    {u"ChemComp", u"Chemical composition", u"",
     Kind::Unbound, u"View", 1, StatusNumber::ChooseTable, 7, {}, nullptr, false, nullptr, u"Chemical Composition"},
    {u"MechProp", u"Mechanical properties at room temperature", u"",
     Kind::Unbound, u"Mech", 0, StatusNumber::ChooseTable, 8, {}, nullptr, false, nullptr, u"Mechanical Properties At Room Temperature"},
    {u"ImpEnergy", u"Impact energy", u"",
     Kind::Impact, u"View", 3, StatusNumber::ChooseTable, 9, Impact, nullptr, false, nullptr, u"Impact Energy"},
    {u"Rp02", u"Minimum values for Rp0,2 [MPa] at elevated temperature", Rp02[0].heading,
     Kind::Elevated, u"Mech", 1, StatusNumber::TableOrGraphByOption, 8, Rp02, u"Rp 0,2  [MPa]", false, u"[MPa]",
     u"Min Values For Rp0,2 At Elevated Temperature"},
    {u"Rp10", u"Minimum values for Rp1,0 [MPa] at elevated temperature", Rp10[0].heading,
     Kind::Elevated, u"Mech", 1, StatusNumber::TableOrGraphByOption, 8, Rp10, u"Rp 1,0  [MPa]", false, u"[MPa]",
     u"Min. Values For Rp1,0 At Elevated Temperature"},
    {u"Rm", u"Minimum values for Rm [MPa] at elevated temperature", Rm[0].heading,
     Kind::Elevated, u"Mech", 1, StatusNumber::TableOrGraphByOption, 8, Rm, u"Rm  [MPa]", false, u"[MPa]",
     u"Min. Values For Rm At Elevated Temperature"},
    {u"ModElast", u"Modulus of elasticity", ModElast[0].heading,
     Kind::Physical, u"Phys", 0, StatusNumber::ChooseTable, 10, ModElast, u"[kN/mm]", true, u"[kN/mm]", u"Modulus Of Elasticity"},
    {u"ThermExp", u"Thermal expansion", u"",
     Kind::Physical, u"Phys", 1, StatusNumber::ChooseTable, 10, ThermExp, u"[E-6/K]", true, nullptr, u"Thermal Expansion"},
    {u"ThermCond", u"Thermal conductivity", ThermCond[0].heading,
     Kind::Physical, u"Phys", 2, StatusNumber::ChooseTable, 10, ThermCond, u"[W/m*K]", true, u"[W/m*K]", u"Thermal Conductivity"},
    {u"SpecThermCap", u"Specific thermal capacity", u"",
     Kind::Physical, u"Phys", 3, StatusNumber::ChooseTable, 10, SpecThermCap, u"[J/kgK]", true, nullptr, u"Specific Thermal Capacity"},
    // [MPa] over a resistivity, in graph and design values: so they are printed in every design file that there
    // is, and a unit mended here alone would make two files of one grade differ.
    {u"SpecElecRes", u"Specific electrical resistance", SpecElecRes[0].heading,
     Kind::Physical, u"Phys", 4, StatusNumber::ChooseTable, 10, SpecElecRes, u"[MPa]", false, u"[MPa]",
     u"Specific Electrical Resistivity"},
    {u"CreepProp", u"Creep properties", u"Creep Properties",
     Kind::Unbound, u"Mech", 3, StatusNumber::TableOrGraphByButton, 8, {}, nullptr, false, nullptr, u"Creep Properties"},
    {u"AddInfo", u"Additional Information", u"",
     Kind::Information, u"View", 5, StatusNumber::ChooseTable, 11, {}, nullptr, false, nullptr, u"Additional Information"},
};
// clang-format on

} // namespace

const Table &TableVocabulary::tableAt(int index) {
    if (index < 0 || index >= TableCount) throw RuntimeError(9);
    return Tables[index];
}

const Table *TableVocabulary::find(const QString &key) {
    for (const Table &table : Tables)
        if (key == QStringView(table.key)) return &table;
    return nullptr;
}

const QStringList &TableVocabulary::designKeys() {
    static const QStringList strDesignKeys{"Rp02",     "Rp10",      "Rm",           "CreepProp",  "ModElast",
                                           "ThermExp", "ThermCond", "SpecThermCap", "SpecElecRes"};
    return strDesignKeys;
}

QString TableVocabulary::GetTableName(int index) {
    return QString::fromUtf16(tableAt(index).name);
}

QString TableVocabulary::GetShortTableName(int index) {
    return QString::fromUtf16(tableAt(index).key);
}

int TableVocabulary::GetTableIndex(const QString &key) {
    const Table *table = find(key);
    return table ? static_cast<int>(table - Tables) : 0;
}

QString TableVocabulary::GetCaption(const QString &key) {
    const Table *table = find(key);
    return table ? QString::fromUtf16(table->caption) : QString();
}

bool TableVocabulary::isUnbound(const QString &key) {
    const Table *table = find(key);
    return table && table->kind == Kind::Unbound;
}

bool TableVocabulary::isElevated(const QString &key) {
    const Table *table = find(key);
    return table && table->kind == Kind::Elevated;
}
