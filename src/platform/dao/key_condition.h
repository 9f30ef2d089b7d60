// Finds in a condition the keys by which the rows that it wants can be fetched.
#pragma once

#include <optional>
#include <vector>

#include <QVariant>
#include <QVector>

#include "platform/dao/field_type.h"
#include "platform/dao/jet_syntax.h"

/// Every row that meets the condition has one of `keys` in `columns`.
struct KeyCondition {
    QVector<int> columns;
    /// int for an integer column, QString for a text.
    std::vector<QVector<QVariant>> keys;
};

/// Looks for `column = constant` in each branch of `select`'s condition. Of several in one branch the first
/// integer is the key, since a table is asked for the same owner under many further conditions; without an
/// integer all texts together are. Nothing where a branch has no such term, or another key than the rest.
std::optional<KeyCondition> keyCondition(const JetSelect &select, const FieldDefinitions &fields);
