// The pages of the tables over temperature.
#pragma once

#include <QString>
#include <QVector>

class DataControl;
class ImageBox;
class Material;
class NoDataPanel;
class PropertyChart;
struct MaterialControls;

class BoundTables {
public:
    BoundTables(MaterialControls &controls, DataControl &dtaTable, NoDataPanel &noData, PropertyChart &chart);

    /// As the window is designed.
    void InitColumns();
    /// Four columns, of which the first two show.
    void ResetColumns();
    /// The notes of `key` are loaded, and the columns are reset.
    void LoadBoundTable(Material &material, const QString &key);

    /// The table on show has thickness bands.
    bool bMultiCol = false;
    /// The upper limits of its bands in mm. The first band is element 1; element 0 is not used.
    QVector<qint16> aThickness;

private:
    void setColumns(const QString &key);
    void setHeadPictures(const QString &key);
    void setHeadPicture(int column, const ImageBox *picture);
    void HideEmptyImpactColumns(Material &material);
    void CountTemperatureRows(Material &material);
    void loadElevated(Material &material, const QString &key);
    void LoadThicknessColumns(Material &material, const QString &key);

    MaterialControls &m_controls;
    DataControl &m_dtaTable;
    NoDataPanel &m_noData;
    PropertyChart &m_chart;
};
