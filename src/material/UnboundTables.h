// The pages of mechanical properties at room temperature and of creep properties.
#pragma once

#include <QStringList>
#include <QVector>

#include "design/CreepColumns.h"
#include "platform/runtime/x_array_db.h"

class GridColumn;
class Material;
class NoDataPanel;
class NotesPanel;
class PropertyChart;
class UnboundGrid;
struct MaterialControls;
struct MaterialSources;

/// What the table on show is made of, column by column; the graph of two columns is chosen from it.
struct UnboundColumns {
    /// One element more than there are columns.
    QVector<qint16> mColIDs;
    /// In twips.
    QVector<float> mColWidths;
    /// Of creep properties only: column text and unit in one line, one element more than there are columns.
    QStringList mColCaptions;

    /// The columns of the graph, by their colID, and its points: rows from 1, column 0 the X values and
    /// column 1 the Y values.
    qint16 iChartColX = 0;
    qint16 iChartColY = 0;
    XArrayDB aChartXY;

    CreepColumns creep;
};

class UnboundTables {
public:
    UnboundTables(MaterialControls &controls, MaterialSources &sources, UnboundGrid &table, NotesPanel &notes,
                  NoDataPanel &noData, PropertyChart &chart);

    /// `key` is "MechProp" or "CreepProp". The grid is cleared. Raises 11 for cells without column
    /// definitions.
    void LoadUnboundColumns(Material &material, const QString &key);

    UnboundColumns columns;

private:
    struct Table;
    static Table tableOf(const QString &key, const Material &material);

    int loadDefinitions(Material &material, const Table &table);
    void storeWidths(Material &material, const QString &key);
    void LoadUnboundRows(Material &material, const QString &key, int count);
    int loadCells(Material &material, const QString &key, int count);
    void showCreepColumns(Material &material);

    QString GetColumnText(int colID);
    int GetUnitID(const QString &colTxt);
    QString GetUnitText(int unitID);

    MaterialControls &m_controls;
    MaterialSources &m_sources;
    UnboundGrid &m_table;
    NotesPanel &m_notes;
    NoDataPanel &m_noData;
    PropertyChart &m_chart;
};
