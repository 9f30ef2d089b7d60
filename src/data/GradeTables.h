// Reads the tables of a grade from the database, each as a value.
#pragma once

#include <memory>

#include <QString>

#include "data/loaded_table.h"

class Database;
class Material;
class Recordset;

/// Windows, design values, reports and programs without windows get their tables here. Every load queries the
/// database afresh.
class GradeTables {
public:
    /// Reads the units, which all tables share. `database` outlives the object.
    explicit GradeTables(Database &database);

    /// `key` is a table's key. What a table tells of the grade (whether it has data, headings, bands, notes)
    /// is written into the material, too.
    ///
    /// Raises 3075 for a name or number of the grade with a single quote in it, 3021 where the standard
    /// promises other elements or a product form that the grade has no row of, 11 for cells without column
    /// definitions, and what the database raises.
    LoadedTable load(Material &material, const QString &key);
    /// The same for a single table.
    static LoadedTable load(Database &database, Material &material, const QString &key);

    /// The graph of two columns of "MechProp" or "CreepProp", by their colID: see ChartTables::columnPair for
    /// what the record set holds.
    std::shared_ptr<Recordset> graphColumns(const Material &material, const QString &key, int x, int y);

private:
    void LoadProductForms(Material &material);
    void loadReferences(Material &material, LoadedTable &table);
    void loadAdditionalInfo(Material &material, LoadedTable &table);

    Database &m_database;
    std::shared_ptr<Recordset> dtaUnits;
};
