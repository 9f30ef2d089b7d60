#include "platform/forms/db_list_model.h"

#include "platform/dao/recordset.h"
#include "platform/runtime/conversions.h"

void DbListModel::show(std::shared_ptr<Recordset> recordset, const QString &field) {
    beginResetModel();
    m_recordset = std::move(recordset);
    m_field = m_recordset ? m_recordset->fieldIndex(field) : -1;
    endResetModel();
}

int DbListModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() || !m_recordset ? 0 : m_recordset->RecordCount();
}

QVariant DbListModel::data(const QModelIndex &index, int role) const {
    if (!index.isValid() || role != Qt::DisplayRole) return {};
    const QVariant value = m_field < 0 ? QVariant() : m_recordset->value(index.row(), m_field);
    return IsNull(value) ? QString() : CStr(value);
}
