// The window of one material: thirteen tables, the design values and the graphs on one set of controls.
#pragma once

#include <memory>

#include "material/AdditionalInfo.h"
#include "material/BoundTables.h"
#include "material/CompositionTable.h"
#include "material/DesignPage.h"
#include "material/GraphSwitch.h"
#include "material/MaterialControls.h"
#include "material/NoDataPanel.h"
#include "material/NotesPanel.h"
#include "material/PropertyChart.h"
#include "material/ReferencePage.h"
#include "material/TableSaving.h"
#include "material/UnboundGrid.h"
#include "material/UnboundTables.h"
#include "material/WindowTables.h"
#include "platform/forms/form.h"
#include "reports/ReportSource.h"

class Material;

/// Nothing is kept on the screen between two tables: each showing hides everything, queries the database anew
/// and makes the few controls of that table visible. What outlives a table stays in the Material.
class frmMaterial2 : public Form, public MaterialControls, public ReportSource {
    Q_OBJECT
    Q_PROPERTY(QString strCurrentTable MEMBER strCurrentTable)

public:
    frmMaterial2();
    ~frmMaterial2() override;

    /// Reads the open database. The caller has set the caption and shows the first table.
    void SetMaterial(const std::shared_ptr<Material> &material);
    const std::shared_ptr<Material> &mMat() const { return m_material; }

    /// A table's key, "Design", or "Elevated" for the first of the three elevated tables. Raises 91 before
    /// SetMaterial.
    Q_INVOKABLE void ShowTable(const QString &key);
    /// Visits every table that was not shown yet, and comes back to the one on show.
    Q_INVOKABLE void CheckTablesForRecords();
    /// The tips of this window, or none.
    Q_INVOKABLE void SetToolTips(bool showTips);

    ReportKind reportKind() const override { return iReportType; }
    void setReportKind(ReportKind kind) override { iReportType = kind; }
    std::shared_ptr<XArrayDB> designValues() const override { return xDesignDB(); }
    QString designTemperature() const override { return txtDesignTemp->text(); }
    QVector<bool> EmptyCreepCols() const override { return m_tables.values.creep().EmptyCreepCols; }
    const MSChart &chart() const override { return *MSChart1; }
    QString currentTable() const override { return strCurrentTable; }

    /// What the next report holds.
    ReportKind iReportType = ReportKind::Tables;
    /// The key of the table on show.
    QString strCurrentTable = QStringLiteral("Ref");
    /// The design values: three rows a table.
    const std::shared_ptr<XArrayDB> &xDesignDB() const { return m_tables.values.xDesignDB; }

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Resize() override;
    void Form_Unload(bool &cancel) override;

private:
    void connectControls();
    /// 0 save, 1 print and 2 enlarge the graph; 3 print and 4 save the design values.
    void printSave(int index);
    void HideAll();
    /// Without showing it.
    void load(const QString &key);
    void showReferences();
    void showComposition(Material &material);
    void showUnboundTable(Material &material, const QString &key);
    void showAddInfo(Material &material);
    void showDesign(Material &material);
    void showBoundTable(Material &material, const QString &key);
    void focusMechOption();
    void keepFocus();
    void setPageSymbol(const QString &key);
    void offerSaving();

    std::shared_ptr<Material> m_material;
    WindowTables m_tables;
    GraphSwitch m_graphs;
    NotesPanel m_notes;
    NoDataPanel m_noData;
    UnboundGrid m_unboundGrid;
    ReferencePage m_references;
    CompositionTable m_composition;
    PropertyChart m_chart;
    UnboundTables m_unboundTables;
    BoundTables m_boundTables;
    AdditionalInfo m_addInfo;
    DesignPage m_design;
    TableSaving m_saving;
};
