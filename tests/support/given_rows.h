// A recordset of rows that a test writes down.
#pragma once

#include <memory>
#include <vector>

#include <QStringList>

#include "platform/dao/recordset.h"
#include "platform/dao/recordset_rows.h"
#include "platform/runtime/runtime_error.h"

/// A QVariant() is Null. Nothing can be found in it. A name that ends in "!" is that of an Unsupported field.
class GivenRows : public RecordsetRows {
public:
    GivenRows(const QStringList &names, std::vector<QVariantList> rows)
        : m_rows(std::move(rows)) {
        for (const QString &name : names) {
            const bool isSupported = !name.endsWith('!');
            m_fields.append({isSupported ? name : name.chopped(1),
                             isSupported ? FieldType::Text : FieldType::Unsupported, 0});
        }
    }
    const FieldDefinitions &fields() const override { return m_fields; }
    int count() const override { return static_cast<int>(m_rows.size()); }
    QVariant value(int row, int column) const override {
        checkReadable(column);
        return m_rows[static_cast<std::size_t>(row)][column];
    }
    void checkReadable(int column) const override {
        if (m_fields[column].type == FieldType::Unsupported) throw RuntimeError(3259);
    }
    int find(const QString &, int, int) const override { return -1; }

private:
    FieldDefinitions m_fields;
    std::vector<QVariantList> m_rows;
};

inline Recordset givenRows(const QStringList &names, std::vector<QVariantList> rows) {
    return Recordset(std::make_shared<GivenRows>(names, std::move(rows)));
}
