// A recordset's rows as identities in a table in memory.
#pragma once

#include <vector>

#include "platform/dao/jet_table.h"
#include "platform/dao/recordset_rows.h"

class TableRows : public RecordsetRows {
public:
    TableRows(JetTable table, std::vector<int> rows);

    const FieldDefinitions &fields() const override { return m_table.fields; }
    int count() const override { return static_cast<int>(m_rows.size()); }
    QVariant value(int row, int column) const override;
    void checkReadable(int column) const override;
    int find(const QString &criterion, int from, int step) const override;

private:
    JetTable m_table;
    std::vector<int> m_rows;
};
