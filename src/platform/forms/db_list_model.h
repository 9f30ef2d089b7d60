// The items of a bound list: one field of a recordset's rows.
#pragma once

#include <memory>

#include <QAbstractListModel>

class Recordset;

/// Keeps no values: each is read when the list asks for it.
class DbListModel : public QAbstractListModel {
    Q_OBJECT
public:
    using QAbstractListModel::QAbstractListModel;

    /// Null shows no items.
    void show(std::shared_ptr<Recordset> recordset, const QString &field);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    std::shared_ptr<Recordset> m_recordset;
    int m_field = -1;
};
