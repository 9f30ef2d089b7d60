// The main window: the hub that every window reaches. What it does lies in its parts; this class lists it.
#pragma once

#include <array>
#include <memory>

#include <QColor>
#include <QPointer>
#include <QString>

#include "platform/forms/mdi_form.h"
#include "shell/materials.h"
#include "shell/status_messages.h"

class CommonDialog;
class frmMaterial2;
class ImageList;
class MainMenu;
class StatusBar;
class TDBGrid;
class Toolbar;

class mdiVelmar : public MDIForm {
    Q_OBJECT
public:
    /// The one global instance, made on first use.
    static mdiVelmar &instance();
    /// Whether it is there at all: False before the start window has loaded it and after its end.
    static bool exists();

    mdiVelmar();
    ~mdiVelmar() override;

    // The state that all windows share.
    std::shared_ptr<Material> mCurrent;
    /// In the order of selection, each under the decimal text of its ID.
    Materials colMaterials;
    qint16 iMaterialsOpen = 0;
    QString strTableButton;
    QString strArrangement;
    qint16 iArrangement = 0;
    bool bLowRes = false;
    bool bColoursOff = false;
    bool bBatchPrint = false;
    bool bToolTips = true;
    bool bDecimalPoint = false;
    bool bCommaGroup = false;
    QPointer<Form> frmDesignSource;
    QColor cGreen;
    QColor cBlue;
    QColor cInfoBack;
    QColor cWorkspace;

    /// Indices 0 to 5, 0 to 5 and 0 to 7; any other raises 9. Widths in twips.
    float ColumnSize(int index) const;
    void setColumnSize(int index, float twips);
    bool ColumnVisible(int index) const;
    void setColumnVisible(int index, bool visible);
    QString SavedSearch(int index) const;
    void setSavedSearch(int index, const QString &text);

    // Table vocabulary; the functions of data/table_vocabulary.
    void InitTableNames();
    QString GetTableName(int index) const;
    QString GetShortTableName(int index) const;
    qint16 GetTableIndex(const QString &key) const;
    QString GetCaption(const QString &key) const;

    // One look for all grids.
    void SetRowColors(TDBGrid *grid, bool swapped);
    void Do_Undo_Colour_All();
    void Do_Undo_Colour(frmMaterial2 *frm);
    void GetDecimal();

    // Per-user settings.
    void ReadSettings();
    void WriteSettings();

    // Commands.
    void SetStatus();
    /// 0 to 20 show and remember, 100 restores, 101 to 120 show without remembering; any other code raises 9.
    void ShowStatus(int code);
    /// `group` is "View", "Mech" or "Phys".
    void UpdateMenusAndButtons(const QString &group, int index);
    void ShowAbout();
    void SelectMaterials();
    void DoBatchPrint();
    /// Pixels.
    qint16 CheckScreenResolution() const;

    // Material windows as a group.
    void SetCurrentMaterial(const std::shared_ptr<Material> &mat);
    void CountMaterialsOpen();
    void CloseMaterial();
    void DoCascade();
    void DoTileHorizontal();

    void UnloadMain();

    // Controls that other windows reach.
    MainMenu *menu = nullptr;
    Toolbar *Toolbar1 = nullptr;
    StatusBar *stbStatus = nullptr;
    ImageList *ImageList1 = nullptr;
    CommonDialog *comDlg = nullptr;
};
