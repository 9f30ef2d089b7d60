// Every statement that the search window's data sources run, in order.
#pragma once

#include <QObject>
#include <QStringList>

#include "search/frmSearch.h"

class StatementLog {
public:
    explicit StatementLog(frmSearch &search) {
        for (DataControl *source : {search.dtaStandard, search.dtaMaterials, search.dtaSelected})
            m_links << QObject::connect(source, &DataControl::recordsetReplaced,
                                        [this, source] { m_ran << source->RecordSource(); });
    }
    ~StatementLog() {
        for (const auto &link : m_links)
            QObject::disconnect(link);
    }
    StatementLog(const StatementLog &) = delete;
    StatementLog &operator=(const StatementLog &) = delete;

    /// Since the last call.
    QStringList taken() { return std::exchange(m_ran, {}); }
    /// The last one of those, the rest forgotten; empty without any.
    QString last() {
        const QStringList ran = taken();
        return ran.isEmpty() ? QString() : ran.last();
    }

private:
    QStringList m_ran;
    QList<QMetaObject::Connection> m_links;
};
