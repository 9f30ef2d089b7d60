// SQLite files made in a test.
#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <sqlite3.h>

inline QString makeSqliteFile(const QTemporaryDir &folder, const QString &name, const QByteArray &sql) {
    const QString path = folder.filePath(name);
    sqlite3 *database = nullptr;
    sqlite3_open(path.toUtf8().constData(), &database);
    char *message = nullptr;
    EXPECT_EQ(sqlite3_exec(database, sql.constData(), nullptr, nullptr, &message), SQLITE_OK)
        << (message ? message : "");
    sqlite3_close(database);
    return path;
}
