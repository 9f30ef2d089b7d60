#include "platform/forms/data_control.h"

#include <QPointer>

#include "platform/dao/database.h"
#include "platform/dao/db_engine.h"
#include "platform/dao/recordset.h"
#include "platform/runtime/runtime_error.h"

DataControl::DataControl(QObject *parent)
    : QObject(parent)
    , m_connect(QStringLiteral("Access 2000;")) {}

DataControl::~DataControl() = default;

void DataControl::Refresh() {
    // The present database is let go of only when the new one is open: a file that nothing else holds would
    // be read from its beginning otherwise.
    m_database = openDatabase();
    setRecordset(m_database->OpenRecordset(m_recordSource));
}

const std::shared_ptr<Recordset> &DataControl::recordset() const {
    if (!m_recordset) throw RuntimeError(91);
    return m_recordset;
}

void DataControl::setRecordset(std::shared_ptr<Recordset> recordset) {
    m_recordset = std::move(recordset);
    if (m_recordset) {
        // Someone may go on moving a recordset that has been replaced, or that outlives this control.
        const Recordset *mine = m_recordset.get();
        m_recordset->setRepositionHandler([self = QPointer<DataControl>(this), mine] {
            if (self && self->m_recordset.get() == mine) Q_EMIT self->Reposition();
        });
    }
    Q_EMIT recordsetReplaced();
    Q_EMIT Reposition();
}

std::shared_ptr<Database> DataControl::openDatabase() const {
    if (m_databaseName.isEmpty()) throw RuntimeError(3055, QStringLiteral("Not a valid file name."));
    return DBEngine::instance().OpenDatabase(m_databaseName, false, true, m_connect);
}
