#include "platform/dao/bound_condition.h"

#include <algorithm>
#include <limits>

#include "platform/runtime/runtime_error.h"

namespace {

[[noreturn]] void raiseMismatch() {
    throw RuntimeError(3421, QStringLiteral("Data type conversion error."));
}

bool isInteger(FieldType type) {
    return type == FieldType::Byte || type == FieldType::Integer || type == FieldType::Long;
}

bool isInteger(const QVariant &value) {
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::LongLong:
        return true;
    default:
        return false;
    }
}

bool fits(qint64 value) {
    return value >= std::numeric_limits<qint32>::min() && value <= std::numeric_limits<qint32>::max();
}

} // namespace

std::optional<QVector<BoundCondition>> bindConditions(const FieldDefinitions &fields,
                                                      const QVector<ColumnCondition> &conditions) {
    QVector<BoundCondition> bound;
    bool possible = true;
    for (const ColumnCondition &condition : conditions) {
        const auto field = std::find_if(fields.begin(), fields.end(), [&](const FieldDefinition &each) {
            return each.name.compare(condition.column, Qt::CaseInsensitive) == 0;
        });
        if (field == fields.end()) throw RuntimeError(3265);
        BoundCondition one;
        one.column = field - fields.begin();
        one.isText = field->type == FieldType::Text;
        if (!one.isText && !isInteger(field->type)) raiseMismatch();
        if (!condition.value.isValid()) {
            possible = false;
        } else if (one.isText) {
            if (condition.value.typeId() != QMetaType::QString) raiseMismatch();
            one.text = condition.value.toString();
        } else {
            if (!isInteger(condition.value)) raiseMismatch();
            possible = possible && fits(condition.value.toLongLong());
            one.integer = static_cast<qint32>(condition.value.toLongLong());
        }
        bound.append(one);
    }
    return possible ? std::optional(bound) : std::nullopt;
}

bool meetsTexts(const QVector<QVariant> &row, const QVector<BoundCondition> &conditions) {
    return std::all_of(conditions.begin(), conditions.end(), [&](const BoundCondition &condition) {
        return !condition.isText ||
               row[condition.column].toString().compare(condition.text, Qt::CaseInsensitive) == 0;
    });
}
