// The same question put to mdbtools' own programs.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryFile>

namespace Bench {

/// Any program from its start to its end, its output thrown away. Ends this program with a message where it
/// fails.
void runToEnd(const QString &program, const QStringList &arguments);

/// Whether they can be asked about this file at all.
bool othersRead(const QString &database);

/// mdb-export of a whole table, its output thrown away. Ends this program with a message where it fails.
void exportTable(const QString &database, const QString &table);

/// mdb-sql with one statement, made ready beforehand.
class OtherSelect {
public:
    OtherSelect(const QString &database, const QString &statement);
    void run() const;

private:
    QString m_database;
    QTemporaryFile m_statement;
};

} // namespace Bench
