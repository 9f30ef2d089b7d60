// Which table's rows stand on which page of an SQLite file.
#pragma once

#include "tests/damage/page_owners.h"

/// Nothing in such a file tells how many rows a table has, nor whose a page is. Rows in reach are those on
/// the damaged leaves of the table and of its indexes, and, where pages are swapped, those on the other page
/// or below it; all of them where a page above the leaves is damaged, or one of the catalog.
class SqlitePageOwners : public PageOwners {
public:
    /// A sound file.
    explicit SqlitePageOwners(const QString &path);

    bool tellsRowCount() const override { return false; }
    qsizetype rowsInReach(const QString &table, bool hasMemos, qsizetype rows,
                          const Damage &damage) const override;

private:
    struct Page {
        QString table; // empty for the catalog
        bool isLeaf = false;
        qsizetype rows = 0;
    };
    QHash<qsizetype, Page> m_pages;
};
