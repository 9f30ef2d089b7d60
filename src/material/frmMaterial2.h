// The window of one material: thirteen tables, the design values and the graphs on one set of controls.
#pragma once

#include "material/AdditionalInfo.h"
#include "material/BoundTables.h"
#include "material/CompositionTable.h"
#include "material/DesignPage.h"
#include "material/GradeWindow.h"
#include "material/GraphSwitch.h"
#include "material/MaterialControls.h"
#include "material/NoDataPanel.h"
#include "material/NotesPanel.h"
#include "material/PropertyChart.h"
#include "material/ReferencePage.h"
#include "material/TableSaving.h"
#include "material/UnboundGrid.h"
#include "material/UnboundTables.h"

/// Nothing is kept on the screen between two tables: each showing hides everything, queries the database anew
/// and makes the few controls of that table visible. What outlives a table stays in the Material.
class frmMaterial2 : public GradeWindow, public MaterialControls {
    Q_OBJECT

public:
    frmMaterial2();
    ~frmMaterial2() override;

    /// A table's key, "Design", or "Elevated" for the first of the three elevated tables. Raises 91 before
    /// SetMaterial.
    Q_INVOKABLE void ShowTable(const QString &key);
    /// Visits every table that was not shown yet, and comes back to the one on show.
    void CheckTablesForRecords() override;
    /// The tips of this window, or none.
    Q_INVOKABLE void SetToolTips(bool showTips);

    QString designTemperature() const override { return txtDesignTemp->text(); }
    const MSChart &chart() const override { return *MSChart1; }

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Resize() override;
    void showReferences(const LoadedTable &references) override;
    LoadedTable load(const QString &key) override;

private:
    void connectControls();
    /// 0 save, 1 print and 2 enlarge the graph; 3 print and 4 save the design values.
    void printSave(int index);
    void HideAll();
    void showReferencePage();
    void showComposition(Material &material);
    void showUnboundTable(Material &material, const QString &key);
    void showAddInfo(Material &material);
    void showDesign(Material &material);
    void showBoundTable(Material &material, const QString &key);
    void focusMechOption();
    void keepFocus();
    void setPageSymbol(const QString &key);
    void offerSaving();

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
