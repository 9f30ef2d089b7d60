// A list of one field of a data control's rows.
#pragma once

#include <QListView>
#include <QPointer>
#include <QString>

class DataControl;
class DbListModel;

/// The current item and the recordset's current row follow each other. Only the items on the screen are read.
class DBList : public QListView {
    Q_OBJECT
public:
    explicit DBList(QWidget *parent = nullptr);

    void setDataSource(DataControl *source);
    DataControl *DataSource() const;
    /// The field shown; one that the recordset lacks shows empty items.
    const QString &ListField() const { return m_listField; }
    void setListField(const QString &field);

    /// The current item; empty without one.
    QString Text() const;
    /// Runs the data control's source anew and shows its rows.
    void ReFill();
    /// Reads the items on the screen again and brings the current one into view.
    void Refresh();

Q_SIGNALS:
    /// On an item.
    void DblClick();

protected:
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    void showRecordset();
    void followRecordset();

    DbListModel *m_model;
    QPointer<DataControl> m_source;
    QString m_listField;
};
