#include "platform/forms/db_list.h"

#include <QMouseEvent>

#include "platform/dao/recordset.h"
#include "platform/forms/data_control.h"
#include "platform/forms/db_list_model.h"

DBList::DBList(QWidget *parent)
    : QListView(parent)
    , m_model(new DbListModel(this)) {
    setModel(m_model);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setUniformItemSizes(true); // else the list reads every item for its size
}

void DBList::setDataSource(DataControl *source) {
    if (m_source) m_source->disconnect(this);
    m_source = source;
    if (source) {
        connect(source, &DataControl::recordsetReplaced, this, &DBList::showRecordset);
        connect(source, &DataControl::Reposition, this, &DBList::followRecordset);
    }
    showRecordset();
}

DataControl *DBList::DataSource() const {
    return m_source;
}

void DBList::setListField(const QString &field) {
    m_listField = field;
    showRecordset();
}

QString DBList::Text() const {
    return currentIndex().data().toString();
}

void DBList::ReFill() {
    if (m_source) m_source->Refresh();
}

void DBList::Refresh() {
    viewport()->update();
    scrollTo(currentIndex());
}

void DBList::currentChanged(const QModelIndex &current, const QModelIndex &previous) {
    QListView::currentChanged(current, previous);
    if (!current.isValid() || !m_source || !m_source->hasRecordset()) return;
    const std::shared_ptr<Recordset> recordset = m_source->recordset();
    if (recordset->AbsolutePosition() != current.row()) recordset->setAbsolutePosition(current.row());
}

void DBList::mouseDoubleClickEvent(QMouseEvent *event) {
    QListView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && indexAt(event->pos()).isValid()) Q_EMIT DblClick();
}

void DBList::showRecordset() {
    m_model->show(m_source && m_source->hasRecordset() ? m_source->recordset() : nullptr, m_listField);
    followRecordset();
}

void DBList::followRecordset() {
    if (!m_source || !m_source->hasRecordset()) return;
    const int row = m_source->recordset()->AbsolutePosition();
    if (row >= 0 && row != currentIndex().row()) setCurrentIndex(m_model->index(row));
}
