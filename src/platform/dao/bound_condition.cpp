#include "platform/dao/bound_condition.h"

#include <algorithm>
#include <limits>

#include "platform/runtime/runtime_error.h"

namespace {

[[noreturn]] void raiseMismatch() {
    throw RuntimeError(3421, QStringLiteral("Data type conversion error."));
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
        BoundCondition one;
        one.column = fieldIndex(fields, condition.column);
        if (one.column < 0) throw RuntimeError(3265);
        const FieldType type = fields[one.column].type;
        one.isText = type == FieldType::Text;
        if (!one.isText && !isIntegerType(type)) raiseMismatch();
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

bool meetsTexts(const TableColumns &rows, int row, const QVector<BoundCondition> &conditions) {
    return std::all_of(conditions.begin(), conditions.end(), [&](const BoundCondition &condition) {
        return !condition.isText || rows.cell(row, int(condition.column))
                                            .toString()
                                            .compare(condition.text, Qt::CaseInsensitive) == 0;
    });
}
