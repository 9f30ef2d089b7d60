// Which table's values stand on which page of a database.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

#include "tests/damage/damage.h"

/// What a reader can miss of a damage.
class PageOwners {
public:
    virtual ~PageOwners() = default;

    /// Whether a table tells how many rows it has, so that none can be missing without a trace.
    virtual bool tellsRowCount() const = 0;
    /// Rows of the table that the damage may have given other values, without a trace that a reader could
    /// find.
    virtual qsizetype rowsInReach(const QString &table, bool hasMemos, qsizetype rows,
                                  const Damage &damage) const = 0;
};

/// Rows in reach are those on the table's damaged pages; all of them where its definition is damaged, or, of
/// a table with memos, a page of those. Lost and swapped pages always leave a trace, but for pages of memos.
class AccessPageOwners : public PageOwners {
public:
    /// `file` is a sound file of Access 2000 whose catalog has these tables.
    AccessPageOwners(const QByteArray &file, const QStringList &tables);

    bool tellsRowCount() const override { return true; }
    qsizetype rowsInReach(const QString &table, bool hasMemos, qsizetype rows,
                          const Damage &damage) const override;

private:
    /// Numbers of the definitions' pages, by table.
    QHash<QString, quint32> m_definitions;
    struct DataPage {
        quint32 owner = 0; // the number of a definition's page
        qsizetype rows = 0;
    };
    QHash<qsizetype, DataPage> m_dataPages;
};
