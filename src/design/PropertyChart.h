// The graph of the table on show.
#pragma once

#include <QVector>

class DataControl;
class Material;
class QString;
class Recordset;
struct MaterialControls;
struct SourceArrays;
struct UnboundColumns;

class PropertyChart {
public:
    /// `columns` and `dtaTable` belong to the table on show.
    PropertyChart(MaterialControls &controls, DataControl &dtaTable, SourceArrays &sources,
                  UnboundColumns &columns);

    /// Of a table over temperature, whose values it also stores in the table's source array. `aThickness` as
    /// ChartTables::seriesOf takes it. Without rows the graph stays as it was.
    void BuildChart(const Material &material, const QString &key, Recordset &rows,
                    const QVector<qint16> &aThickness);
    /// Of column iChartColY over column iChartColX of "MechProp" or "CreepProp"; runs its query on dtaTable.
    void BuildColumnChart(const Material &material, const QString &key);

    /// The columns that are picked in cboColumnList; False with none picked.
    bool pickColumns();

private:
    /// False where the table has nothing to draw.
    bool showChart(const Material &material, const QString &key);

    MaterialControls &m_controls;
    DataControl &m_dtaTable;
    SourceArrays &m_sources;
    UnboundColumns &m_columns;
};
