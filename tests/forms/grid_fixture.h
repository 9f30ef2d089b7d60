// Rows made up on the spot, which count what is read of them.
#pragma once

#include <memory>
#include <set>

#include <QMap>
#include <QPair>

#include "platform/dao/recordset.h"
#include "platform/dao/recordset_rows.h"
#include "platform/forms/data_control.h"
#include "platform/forms/tdb_grid.h"

/// Row 4 of field "name" holds "name 4", unless another value was put there. A criterion is a row's number.
class MadeRows : public RecordsetRows {
public:
    explicit MadeRows(int count, const QStringList &names = {"name", "number", "date"})
        : m_count(count) {
        for (const QString &name : names)
            m_fields.append({name, FieldType::Text, 255});
    }
    void put(int row, int column, const QVariant &value) { m_put[{row, column}] = value; }

    const FieldDefinitions &fields() const override { return m_fields; }
    int count() const override { return m_count; }
    QVariant value(int row, int column) const override {
        rowsRead.insert(row);
        const auto put = m_put.find({row, column});
        return put != m_put.end() ? *put : QVariant(QString("%1 %2").arg(m_fields[column].name).arg(row));
    }
    int find(const QString &criterion, int from, int step) const override {
        const int row = criterion.toInt();
        return row >= 0 && row < m_count && (step > 0 ? row >= from : row <= from) ? row : -1;
    }

    mutable std::set<int> rowsRead;

private:
    int m_count;
    FieldDefinitions m_fields;
    QMap<QPair<int, int>, QVariant> m_put;
};

inline std::shared_ptr<Recordset> madeRecordset(int count) {
    return std::make_shared<Recordset>(std::make_shared<MadeRows>(count));
}

/// Three columns on the three fields.
inline void addThreeColumns(TDBGrid &grid) {
    for (const char *field : {"name", "number", "date"}) {
        GridColumn &column = grid.AddColumn(field);
        column.setDataField(field);
        column.setWidth(1500);
    }
}
