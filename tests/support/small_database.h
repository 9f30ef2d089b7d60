// A database made for one test.
#pragma once

#include <functional>

#include <QStringList>

/// For a TestProgram: all tables, the grades 1 to 10 of one standard, and what is inserted. An element is
/// what follows "insert into" in a statement, such as "Rm values (1, 20, -1, 1, '410')".
std::function<void(const QString &path)> smallDatabase(const QStringList &inserts);

/// Runs the statements over a new file.
void makeDatabase(const QString &path, const QStringList &statements);
