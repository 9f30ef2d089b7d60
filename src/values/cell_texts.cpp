#include "values/cell_texts.h"

#include <bit>
#include <limits>

#include "data/cell_values.h"
#include "data/CreepColumns.h"
#include "design/value_text.h"
#include "platform/runtime/runtime_error.h"

namespace {

/// NaN where it raises.
template <class Convert>
auto converted(Convert convert, const QString &text) -> decltype(convert(text)) {
    try {
        return convert(text);
    } catch (const RuntimeError &) {
        return std::numeric_limits<decltype(convert(text))>::quiet_NaN();
    }
}

} // namespace

CellTexts::CellTexts(const NumberFlags &flags)
    : m_flags(flags) {
    idOf({});
}

CellTexts::Id CellTexts::id(const RowCells &row, qsizetype position) {
    const std::optional<std::string_view> text = row.text(position);
    if (!text) return idOfNumber(row[position]);
    const auto size = static_cast<qsizetype>(text->size());
    const auto known = m_stored.constFind(QByteArray::fromRawData(text->data(), size));
    if (known != m_stored.constEnd()) return *known;
    return *m_stored.insert(QByteArray(text->data(), size), idOf(QString::fromUtf8(text->data(), size)));
}

CellTexts::Id CellTexts::idOfNumber(const QVariant &cell) {
    if (IsNull(cell)) return Empty;
    QHash<quint64, Id> &numbers = cell.typeId() == QMetaType::Float ? m_singles : m_doubles;
    const auto bits = std::bit_cast<quint64>(cell.toDouble());
    const auto known = numbers.constFind(bits);
    return known != numbers.constEnd() ? *known : *numbers.insert(bits, idOf(cellText(cell)));
}

CellTexts::Id CellTexts::idOf(const QString &text) {
    const auto known = m_ids.constFind(text);
    if (known != m_ids.constEnd()) return *known;
    const auto id = static_cast<Id>(m_texts.size());
    const QString number = ValueText::SplitValueText({text, {}}, m_flags.bDecimalPoint)[0].number;
    const auto toDouble = [](const QString &written) { return CDbl(written); };
    CellText cell;
    cell.text = text;
    cell.hasNumber = !number.isEmpty();
    cell.shown = ValueText::numberIn(number).value_or(std::numeric_limits<double>::quiet_NaN());
    cell.converted = converted(toDouble, number);
    cell.celsius = converted([](const QString &written) { return CSng(written); }, text);
    cell.exactCelsius = converted(toDouble, text);
    cell.isEmptyCreep = isEmptyCreepCell(text);
    m_texts.push_back(std::move(cell));
    m_ids.insert(text, id);
    return id;
}
