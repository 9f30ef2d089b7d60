// The properties that have design values, each with the name that it is asked for by.
#pragma once

#include <QStringList>
#include <QVector>

#include "values/typed.h"

class Database;

/// A column of a table over temperature, or a column of the creep tables by its text.
struct Property {
    /// Of its table.
    QString key;
    /// The column's name in the database, of a creep property the column's text.
    QString column;
    /// In one line: "Rp0,2", "Modulus of elasticity", "Creep properties: Rm / 100 000 h".
    QString label;
    /// As the table's heading tells it; empty without one.
    QString unit;

    /// "Rp02", and where the table has several columns "ThermExp/ThermExpDiff", "CreepProp/Rm / 100 000 h".
    QString name() const;
    bool isCreep() const;

    bool operator==(const Property &other) const { return key == other.key && column == other.column; }
};

namespace Properties {

/// All of a database, in the order of the design values. The creep columns of all standards stand behind one
/// another, each text once. Raises 3077 for a column's text with a single quote in it, and what the database
/// raises.
QVector<Property> all(Database &database);

/// The texts of the creep columns of a standard, that of the temperature first. Raises what the database
/// raises.
QStringList creepColumns(Database &database, int stID);

/// Capitals and the number of blanks do not count. The error names what there is.
Typed<Property> named(const QVector<Property> &properties, const QString &name);

} // namespace Properties
