#include "data/Material.h"

#include "data/cell_values.h"
#include "data/table_vocabulary.h"
#include "platform/dao/recordset.h"
#include "platform/runtime/conversions.h"
#include "platform/runtime/runtime_error.h"

namespace {

constexpr int LastTable = TableVocabulary::TableCount - 1;
constexpr QLatin1String ChemComp("ChemComp");
constexpr QLatin1String MechProp("MechProp");
constexpr QLatin1String CreepProp("CreepProp");

QDateTime dateOf(const QVariant &value) {
    if (IsNull(value)) throw RuntimeError(94);
    const QDateTime date = value.toDateTime();
    if (!date.isValid()) throw RuntimeError(13);
    return date;
}

std::size_t slot(const QString &key) {
    return static_cast<std::size_t>(TableVocabulary::GetTableIndex(key));
}

std::size_t checked(int index, int first, int last) {
    if (index < first || index > last) throw RuntimeError(9);
    return static_cast<std::size_t>(index - first);
}

} // namespace

void Material::SetProperties(const Recordset &materials, const Recordset &standard) {
    m_id = CInt(materials.Fields(QStringLiteral("matID")));
    m_name = CStr(materials.Fields(QStringLiteral("name")));
    m_number = CStr(materials.Fields(QStringLiteral("numbr")));
    m_description = cellText(materials.Fields(QStringLiteral("description")));
    const QVariant group = materials.Fields(QStringLiteral("groups"));
    if (!IsNull(group)) m_group = CStr(group);
    m_revisionDate = dateOf(materials.Fields(QStringLiteral("revision_date")));

    m_standard = CStr(standard.Fields(QStringLiteral("standard")));
    m_standardID = CInt(standard.Fields(QStringLiteral("stID")));
    m_standardRevisionDate = dateOf(standard.Fields(QStringLiteral("revision_date")));
    m_othersElement = CBool(standard.Fields(QStringLiteral("otherElem")));
    m_standardDescription = cellText(standard.Fields(QStringLiteral("description")));
}

void Material::setProductForms(const QStringList &names) {
    m_productForms = names;
    m_hasProductForms = true;
}

const QVector<float> &Material::MechCreepColSize(const QString &key) const {
    // reading is not as choosy as writing: a report of another table finds widths, and no error
    return key == MechProp ? m_mechWidths : m_creepWidths;
}

void Material::setMechCreepColSize(const QString &key, const QVector<float> &widths) {
    if (key == MechProp)
        m_mechWidths = widths;
    else if (key == CreepProp)
        m_creepWidths = widths;
}

void Material::setMyForm(Form *form) {
    m_myForm = form;
    m_tableChecked.fill(false);
}

bool Material::TableHasData(const QString &key) const {
    return m_tableHasData[slot(key)];
}

void Material::setTableHasData(const QString &key, bool value) {
    m_tableHasData[slot(key)] = value;
    m_tableChecked[slot(key)] = true;
}

bool Material::TableChecked(const QString &key) const {
    return m_tableChecked[slot(key)];
}

bool Material::PrintTable(int index) const {
    return m_printTable[checked(index, 0, LastTable)];
}

void Material::setPrintTable(int index, bool value) {
    m_printTable[checked(index, 0, LastTable)] = value;
}

const QString &Material::TableNotes(int index) const {
    return m_tableNotes[checked(index, 1, LastTable)];
}

void Material::setTableNotes(int index, const QString &text) {
    m_tableNotes[checked(index, 1, LastTable)] = text;
}

void Material::AddColCaption(const QString &key, const QString &caption) {
    if (!TableVocabulary::isUnbound(key)) return;
    QStringList &captions = m_unbound[key].captions;
    // Column 0 of the composition is the row label: heading i of the store belongs to grid column i.
    if (captions.isEmpty() && key == ChemComp) captions << QString();
    captions << caption;
}

QString Material::ColCaption(const QString &key, int position) const {
    if (!TableVocabulary::isUnbound(key)) return {};
    const auto table = m_unbound.find(key);
    const QStringList captions = table != m_unbound.end() ? table->second.captions : QStringList();
    if (position < 0 || position >= captions.size()) throw RuntimeError(9);
    return captions[position];
}

void Material::SetUnboundArrayData(const QString &key, const XArrayDB &cells) {
    if (!TableVocabulary::isUnbound(key)) return;
    XArrayDB copy;
    copy.ReDim(cells.LowerBound(1), cells.UpperBound(1), cells.LowerBound(2), cells.UpperBound(2));
    for (int row = cells.LowerBound(1); row <= cells.UpperBound(1); ++row)
        for (int column = cells.LowerBound(2); column <= cells.UpperBound(2); ++column)
            copy.Set(row, column, cellText(cells.Get(row, column)));
    m_unbound[key].cells = copy;
}

XArrayDB Material::UnboundTableData(const QString &key) const {
    const auto table = m_unbound.find(key);
    return table != m_unbound.end() ? table->second.cells : XArrayDB();
}

bool Material::ElevatedMultiCol(const QString &key) const {
    const auto table = m_elevated.find(key);
    return table != m_elevated.end() && table->second.multiCol;
}

void Material::setElevatedMultiCol(const QString &key, bool value) {
    if (TableVocabulary::isElevated(key)) m_elevated[key].multiCol = value;
}

QVector<qint16> Material::ElevatedColumns(const QString &key) const {
    const auto table = m_elevated.find(key);
    return table != m_elevated.end() ? table->second.columns : QVector<qint16>();
}

void Material::setElevatedColumns(const QString &key, const QVector<qint16> &limits) {
    if (TableVocabulary::isElevated(key)) m_elevated[key].columns = limits;
}
