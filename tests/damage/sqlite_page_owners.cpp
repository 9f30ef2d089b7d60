#include "tests/damage/sqlite_page_owners.h"

#include <algorithm>
#include <limits>

#include <sqlite3.h>

SqlitePageOwners::SqlitePageOwners(const QString &path) {
    sqlite3 *database = nullptr;
    sqlite3_stmt *pages = nullptr;
    sqlite3_open_v2(path.toUtf8().constData(), &database, SQLITE_OPEN_READONLY, nullptr);
    const char *const question = "SELECT pageno, coalesce(tbl_name, ''), pagetype, ncell FROM dbstat "
                                 "LEFT JOIN sqlite_schema AS catalog ON catalog.name = dbstat.name";
    if (sqlite3_prepare_v2(database, question, -1, &pages, nullptr) != SQLITE_OK)
        qFatal("%s", sqlite3_errmsg(database));
    while (sqlite3_step(pages) == SQLITE_ROW) {
        const QByteArray type(reinterpret_cast<const char *>(sqlite3_column_text(pages, 2)));
        Page page;
        page.table = QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(pages, 1)));
        page.isLeaf = type != "internal";
        // A page that a long row goes on over has a part of that row alone.
        page.rows = type == "overflow" ? 1 : sqlite3_column_int64(pages, 3);
        m_pages.insert(sqlite3_column_int64(pages, 0) - 1, page); // SQLite counts from 1
    }
    sqlite3_finalize(pages);
    sqlite3_close(database);
    if (m_pages.isEmpty()) qFatal("no pages");
}

qsizetype SqlitePageOwners::rowsInReach(const QString &table, bool, qsizetype rows,
                                        const Damage &damage) const {
    QList<Page> pages;
    for (const qsizetype number : damage.pages)
        if (m_pages.contains(number)) pages << m_pages[number];
    const bool isSwapped = damage.kind == Damage::Kind::SwappedPages;
    const auto isOurs = [&](const Page &page) { return page.table == table; };
    if (std::any_of(pages.begin(), pages.end(), [](const Page &page) { return page.table.isEmpty(); }))
        return rows;
    if (std::none_of(pages.begin(), pages.end(), isOurs)) return 0;
    qsizetype reach = 0;
    for (const Page &page : pages) {
        if (!page.isLeaf && isSwapped)
            return std::numeric_limits<qsizetype>::max(); // another table's rows, too
        if (!page.isLeaf && isOurs(page)) return rows;
        if (isOurs(page) || isSwapped) reach += page.rows;
    }
    return reach;
}
