// SQLite files made in a test.
#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <sqlite3.h>

inline QString makeSqliteFile(const QTemporaryDir &folder, const QString &name, const QByteArray &sql) {
    const QString path = folder.filePath(name);
    sqlite3 *database = nullptr;
    // By name: where the helper's reading has been at work in this process, its own system is the usual one.
    sqlite3_open_v2(path.toUtf8().constData(), &database, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, "unix");
    char *message = nullptr;
    EXPECT_EQ(sqlite3_exec(database, sql.constData(), nullptr, nullptr, &message), SQLITE_OK)
        << (message ? message : "");
    sqlite3_close(database);
    return path;
}
