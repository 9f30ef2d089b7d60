// A recordset of rows that a test writes down.
#pragma once

#include <memory>
#include <vector>

#include <QStringList>

#include "platform/dao/recordset.h"
#include "platform/dao/recordset_rows.h"

/// A QVariant() is Null. Nothing can be found in it.
class GivenRows : public RecordsetRows {
public:
    GivenRows(const QStringList &names, std::vector<QVariantList> rows)
        : m_rows(std::move(rows)) {
        for (const QString &name : names)
            m_fields.append({name, FieldType::Text, 0});
    }
    const FieldDefinitions &fields() const override { return m_fields; }
    int count() const override { return static_cast<int>(m_rows.size()); }
    QVariant value(int row, int column) const override {
        return m_rows[static_cast<std::size_t>(row)][column];
    }
    int find(const QString &, int, int) const override { return -1; }

private:
    FieldDefinitions m_fields;
    std::vector<QVariantList> m_rows;
};

inline Recordset givenRows(const QStringList &names, std::vector<QVariantList> rows) {
    return Recordset(std::make_shared<GivenRows>(names, std::move(rows)));
}
