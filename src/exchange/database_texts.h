// A database as texts, one for each table, in the form that the scripts make databases from.
#pragma once

#include <QByteArray>
#include <QStringList>

class Database;

namespace DatabaseTexts {

/// The tables that the program reads.
const QStringList &tables();

/// `name:TYPE` of each column in the first line, then the rows in the order of the database. An unquoted \N
/// is Null; numbers have a point, dates are ISO dates. Raises what the database raises.
QByteArray written(Database &database, const QString &table);

} // namespace DatabaseTexts
