#include "material/BoundTables.h"

#include "data/cell_values.h"
#include "data/Material.h"
#include "data/queries.h"
#include "data/table_vocabulary.h"
#include "design/PropertyChart.h"
#include "material/grid_columns.h"
#include "material/material_layout.h"
#include "material/MaterialControls.h"
#include "material/MaterialSources.h"
#include "material/NoDataPanel.h"
#include "material/temperature_columns.h"
#include "platform/dao/recordset.h"

namespace {

constexpr int DesignedColumns = 4;
constexpr int DesignedTemperatureWidth = 1500;
constexpr int BandWidth = 900;
constexpr qint16 NoBands = -1;

void growMaxDesignCols(Material &material, int count) {
    if (count > material.MaxDesignCols()) material.setMaxDesignCols(static_cast<qint16>(count));
}

} // namespace

BoundTables::BoundTables(MaterialControls &controls, DataControl &dtaTable, NoDataPanel &noData,
                         PropertyChart &chart)
    : m_controls(controls)
    , m_dtaTable(dtaTable)
    , m_noData(noData)
    , m_chart(chart) {}

void BoundTables::InitColumns() {
    TDBGrid &grid = *m_controls.tdbBoundTable;
    GridColumn &temperature = grid.Columns(0);
    temperature.setCaption("Temperature " + LineEnd + LineEnd + "[°C]");
    temperature.setDataField("temp");
    temperature.setWidth(DesignedTemperatureWidth);
    grid.setDataSource(&m_dtaTable);
    grid.Rebind();
}

/// Meant so: the temperature keeps the width of 1200 from the first reset on.
void BoundTables::ResetColumns() {
    TDBGrid &grid = *m_controls.tdbBoundTable;
    while (grid.ColumnCount() > DesignedColumns)
        grid.RemoveColumn(grid.ColumnCount() - 1);
    for (int i = 0; i < DesignedColumns; ++i)
        grid.Columns(i).setWidth(MaterialLayout::BoundColumnWidth);
    grid.Columns(2).setVisible(false);
    grid.Columns(3).setVisible(false);
    grid.Rebind();
    bMultiCol = false;
}

void BoundTables::LoadBoundTable(Material &material, const QString &key) {
    const bool elevated = TableVocabulary::isElevated(key);
    MaterialSources::Run(m_dtaTable, elevated ? Queries::sqlElevatedRows(key, material.ID())
                                              : Queries::sqlTemperatureRows(key, material.ID()));
    const bool hasData = m_dtaTable.recordset()->RecordCount() > 0;
    material.setTableHasData(key, hasData);
    if (!hasData) m_noData.ShowNoData(material, key);

    TDBGrid &grid = *m_controls.tdbBoundTable;
    grid.Columns(1).setVisible(true);
    if (elevated)
        loadElevated(material, key);
    else
        setColumns(key);
    if (key == QLatin1String("ImpEnergy")) HideEmptyImpactColumns(material);
    if (key == QLatin1String("ThermExp") || key == QLatin1String("SpecThermCap"))
        CountTemperatureRows(material);
    setHeadPictures(key);
    m_dtaTable.Refresh();
    if (key != QLatin1String("ImpEnergy")) {
        m_chart.BuildChart(material, key, *m_dtaTable.recordset()->Clone(),
                           bMultiCol ? aThickness : QVector<qint16>());
    }
    grid.Rebind();
    grid.setCaption(TableVocabulary::GetTableName(TableVocabulary::GetTableIndex(key)));
}

void BoundTables::setColumns(const QString &key) {
    TDBGrid &grid = *m_controls.tdbBoundTable;
    const QVector<TemperatureColumn> columns = temperatureColumns(key);
    for (int i = 0; i < columns.size(); ++i) {
        GridColumn &column = grid.Columns(i + 1);
        column.setDataField(columns[i].field);
        column.setCaption(columns[i].heading);
        column.setVisible(true);
    }
    for (int i = static_cast<int>(columns.size()) + 1; i < DesignedColumns; ++i)
        grid.Columns(i).setVisible(false);
}

void BoundTables::setHeadPictures(const QString &key) {
    const MaterialControls &c = m_controls;
    const ImageBox *first = nullptr;
    const ImageBox *second = nullptr;
    if (key == QLatin1String("ModElast")) first = c.imgPhys(0);
    if (key == QLatin1String("ThermCond")) first = c.imgPhys(2);
    if (key == QLatin1String("SpecElecRes")) first = c.imgPhys(4);
    if (key == QLatin1String("ThermExp")) first = c.imgTherm(0), second = c.imgTherm(1);
    if (key == QLatin1String("SpecThermCap")) first = c.imgTherm(2), second = c.imgTherm(3);
    setHeadPicture(1, first);
    setHeadPicture(2, second);
}

/// The heading's text then serves the reports alone.
void BoundTables::setHeadPicture(int column, const ImageBox *picture) {
    GridColumn &heading = m_controls.tdbBoundTable->Columns(column);
    if (picture != nullptr) heading.setHeadPicture(picture->Picture());
    heading.setPicturePosition(picture != nullptr ? HeadPicturePosition::PictureOnly
                                                  : HeadPicturePosition::TextOnly);
}

void BoundTables::HideEmptyImpactColumns(Material &material) {
    const auto rows = m_dtaTable.recordset()->Clone();
    if (rows->Eof()) return;
    const EmptyImpactColumns empty = emptyImpactColumns(*rows);
    TDBGrid &grid = *m_controls.tdbBoundTable;
    grid.Columns(1).setVisible(!empty.kv);
    grid.Columns(2).setVisible(!empty.kvLong);
    grid.Columns(3).setVisible(!empty.kvTrans);
    material.setImpEnergyCols(empty.columnsWithValues());
}

/// Meant so: of these two tables the rows, and not the columns, count as value columns.
void BoundTables::CountTemperatureRows(Material &material) {
    growMaxDesignCols(material, m_dtaTable.recordset()->RecordCount());
}

void BoundTables::loadElevated(Material &material, const QString &key) {
    const auto rows = m_dtaTable.recordset()->Clone();
    const bool hasRows = !rows->Eof();
    bMultiCol = hasRows && CInt(rows->Fields("thickness")) != NoBands;
    if (hasRows) material.setElevatedMultiCol(key, bMultiCol);
    if (!bMultiCol) {
        setColumns(key);
        return;
    }
    // A second band gives the column its heading; without one it stays hidden, and this word with it.
    m_controls.tdbBoundTable->Columns(2).setCaption("HIHIH");
    m_controls.tdbBoundTable->Columns(2).setVisible(false);
    LoadThicknessColumns(material, key);
}

void BoundTables::LoadThicknessColumns(Material &material, const QString &key) {
    aThickness = bandLimits(*m_dtaTable.recordset()->Clone());
    material.setElevatedColumns(key, aThickness);
    TDBGrid &grid = *m_controls.tdbBoundTable;
    const int bands = static_cast<int>(aThickness.size()) - 1;
    while (grid.ColumnCount() < bands + 1)
        AddGridColumn(grid, {}, BandWidth);
    for (int band = 1; band <= bands; ++band) {
        GridColumn &column = grid.Columns(band);
        column.setVisible(true);
        column.setCaption(bandHeading(aThickness, band));
        column.setDataField(QString::number(aThickness[band]));
        column.setWidth(BandWidth);
        column.setWordWrap(true);
    }
    MaterialSources::Run(m_dtaTable, Queries::sqlElevatedPivot(key, material.ID()));
    grid.Rebind();
    growMaxDesignCols(material, bands);
}
