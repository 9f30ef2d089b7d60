// What material cards are made from: the physical tables of a grade and its minimum values at temperature.
#pragma once

#include <QDate>
#include <QStringList>
#include <QVector>

#include "data/grades.h"
#include "data/loaded_table.h"

class Database;

struct CardSource {
    Grades::Grade grade;
    QDate standardRevision;
    /// The database's file, without its folder, and the date of that file.
    QString database;
    QDate databaseDate;
    /// As GradeTables loads them: elasticity, expansion, conductivity, heat capacity, Rp0,2 and Rp1,0.
    QVector<LoadedTable> tables;

    /// nullptr for a table without data.
    const LoadedTable *table(const QString &key) const;

    /// "Rp02" and "Rp10", each where the grade has values: what may be chosen as yield stress.
    QStringList yieldKeys() const;
    /// The headings of a table's thickness bands, the first belonging to band 1; none for a table without
    /// bands.
    QStringList bands(const QString &key) const;
    /// The band that holds a thickness in mm: above its lower limit and up to its upper one. 0 where none
    /// does.
    int bandOf(const QString &key, double thickness) const;

    /// Queries the database for all of it; no Material of a window is touched. Raises 3021 for an identity
    /// that no grade has, and what the database raises.
    static CardSource read(Database &database, qint16 id);
};
