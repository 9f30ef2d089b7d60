// The main window: the hub that every window reaches. What it does lies in its parts; this class lists it.
#pragma once

#include <array>
#include <functional>
#include <memory>

#include <QPointer>
#include <QString>

#include "data/Materials.h"
#include "design/number_flags.h"
#include "platform/forms/common_dialog.h"
#include "platform/forms/image_list.h"
#include "platform/forms/mdi_form.h"
#include "shell/DatabaseBoxes.h"
#include "shell/main_menu.h"
#include "shell/status_messages.h"

class Form;
class MainActions;
class Material;
class StatusBar;
class TDBGrid;
class Toolbar;

class mdiVelmar : public MDIForm {
    Q_OBJECT
public:
    using MakeActions = std::function<std::unique_ptr<MainActions>(mdiVelmar &)>;
    /// Before the first instance is made.
    static void installActions(MakeActions make);

    /// The one global instance, made and loaded on first use.
    static mdiVelmar &instance();

    mdiVelmar();
    ~mdiVelmar() override;

    // The state that all windows share.
    std::shared_ptr<Material> mCurrent;
    Materials colMaterials;
    qint16 iMaterialsOpen = 0;
    QString strTableButton;
    QString strArrangement;
    qint16 iArrangement = 0;
    bool bLowRes = false;
    bool bColoursOff = false;
    bool bBatchPrint = false;
    bool bToolTips = false;
    bool bDecimalPoint = false;
    bool bCommaGroup = false;
    NumberFlags numberFlags() const { return {bDecimalPoint, bCommaGroup}; }
    /// The material window in which the user last acted on the design temperature.
    QPointer<Form> frmDesignSource;
    // Colour numbers, see platform/forms/colours.h.
    int cGreen = 0;
    int cBlue = 0;
    int cInfoBack = 0;
    int cWorkspace = 0;

    /// Index 0 to 5, widths in twips. Another index raises 9.
    float ColumnSize(int index) const;
    void setColumnSize(int index, float twips);
    /// Index 0 to 5. Another index raises 9.
    bool ColumnVisible(int index) const;
    void setColumnVisible(int index, bool visible);
    /// Index 0 to 7. Another index raises 9.
    QString SavedSearch(int index) const;
    void setSavedSearch(int index, const QString &text);

    // The vocabulary of tables.
    QString GetTableName(int index) const;
    QString GetShortTableName(int index) const;
    qint16 GetTableIndex(const QString &key) const;
    QString GetCaption(const QString &key) const;

    // One look for all grids.
    /// Even rows green and odd rows blue, or `swapped`.
    void SetRowColors(TDBGrid &grid, bool swapped);
    void Do_Undo_Colour_All();
    /// `frm` is a material window; its colours follow the Colour entry.
    void Do_Undo_Colour(Form &frm);
    void GetDecimal();

    void ReadSettings();
    void WriteSettings();

    // Status line and commands.
    void SetStatus();
    /// A StatusNumber: 0 to 20 show and remember, 100 restores, 101 to 120 show without remembering; any
    /// other code raises 9.
    void ShowStatus(int code);
    /// `group` is "View", "Mech" or "Phys".
    void UpdateMenusAndButtons(const QString &group, int index);
    void ShowAbout();
    void SelectMaterials();
    /// Prints all selected materials, whose windows are open, in one document.
    void DoBatchPrint();
    /// Pixels.
    qint16 CheckScreenResolution() const;

    // The material windows as a group.
    void SetCurrentMaterial(const std::shared_ptr<Material> &mat);
    void CountMaterialsOpen();
    void CloseMaterial();
    void DoCascade();
    void DoTileHorizontal();

    /// Ends the program.
    void UnloadMain();

    // What other windows reach.
    MainMenu menu;
    Toolbar *Toolbar1 = nullptr;
    StatusBar *stbStatus = nullptr;
    ImageList ImageList1;
    CommonDialog comDlg;

protected:
    void Form_Load() override;
    void Form_Unload(bool &cancel) override;

private:
    void buildControls();
    void connectCommands();
    void openDatabase();
    void testScreen();
    std::shared_ptr<Material> materialOf(const Form &form) const;

    std::unique_ptr<MainActions> m_actions;
    DatabaseBoxes m_databaseBoxes;
    StatusMessages strStatusText;
    int iLastStatus = 0;
    std::array<float, 6> m_columnSize{};
    std::array<bool, 6> m_columnVisible{true, true, true, true, true, true};
    std::array<QString, 8> m_savedSearch;
};
