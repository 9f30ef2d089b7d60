// The declared type of a column.
#pragma once

#include <QString>
#include <QVector>

/// A cell comes back as: Boolean bool; Byte, Integer, Long int; Single float; Double and Currency double;
/// Date QDateTime (local time, no zone); Text and Memo QString; Null an invalid QVariant.
enum class FieldType { Boolean, Byte, Integer, Long, Currency, Single, Double, Date, Text, Memo };

struct FieldDefinition {
    QString name;
    FieldType type = FieldType::Text;
    /// Characters of a Text; 0 for every other type.
    int size = 0;

    bool operator==(const FieldDefinition &other) const = default;
};

using FieldDefinitions = QVector<FieldDefinition>;
