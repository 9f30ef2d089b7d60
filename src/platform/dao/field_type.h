// The columns of a table or a result: their names and declared types.
#pragma once

#include <QString>
#include <QVector>

/// A cell comes back as: Boolean bool; Byte, Integer, Long int; Single float; Double and Currency double;
/// Date QDateTime (local time, no zone); Text and Memo QString; Null an invalid QVariant. An Unsupported
/// column harms nobody who does not ask for its values; whoever does gets an error.
enum class FieldType {
    Boolean,
    Byte,
    Integer,
    Long,
    Currency,
    Single,
    Double,
    Date,
    Text,
    Memo,
    Unsupported
};

struct FieldDefinition {
    QString name;
    FieldType type = FieldType::Text;
    /// Characters of a Text; 0 for every other type.
    int size = 0;

    bool operator==(const FieldDefinition &other) const = default;
};

using FieldDefinitions = QVector<FieldDefinition>;

inline bool isTextType(FieldType type) {
    return type == FieldType::Text || type == FieldType::Memo;
}

/// A Boolean is none.
inline bool isIntegerType(FieldType type) {
    return type == FieldType::Byte || type == FieldType::Integer || type == FieldType::Long;
}

/// Names of tables and columns: capitals do not count.
inline bool isSameName(const QString &left, const QString &right) {
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

/// The position of a field, -1 for an unknown name.
inline int fieldIndex(const FieldDefinitions &fields, const QString &name) {
    for (int i = 0; i < fields.size(); ++i)
        if (isSameName(fields[i].name, name)) return i;
    return -1;
}
