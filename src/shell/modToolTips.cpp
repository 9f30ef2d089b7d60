#include "shell/modToolTips.h"

#include <array>

#include "data/Material.h"
#include "material/frmMaterial2.h"
#include "material/material_layout.h"
#include "platform/forms/default_instance.h"
#include "platform/forms/forms.h"
#include "platform/forms/toolbar.h"
#include "search/frmSearch.h"
#include "shell/mdiVelmar.h"

namespace modToolTips {

namespace {

constexpr int ToolbarButtons = 24;

/// Without tips the same tables hold empty texts: one road for both states.
struct Tables {
    std::array<QString, 14> search;
    /// From 1.
    std::array<QString, ToolbarButtons + 1> toolbar;
    std::array<QString, 8> material;
};
Tables tables;

const Tables &tablesFor(bool showTips) {
    static const Tables empty;
    return showTips ? tables : empty;
}

void setSearchTips(SearchControls &c, const Tables &tips, bool showTips) {
    c.tdbMaterials->setCellTips(showTips ? 2 : 0);
    c.tdbMaterials->setToolTip(tips.search[0]);
    c.tdbSelected->setToolTip(tips.search[1]);
    for (const auto &[index, box] : c.txtSearch)
        box->setToolTip(tips.search[2]);
    c.chkListAll->setToolTip(tips.search[3]);
    c.cmdSelectMat->setToolTip(tips.search[4]);
    for (const auto &[index, button] : c.cmdTabNav)
        button->setToolTip(tips.search[static_cast<std::size_t>(5 + index % 4)]);
    c.imgBin->setToolTip(tips.search[9]);
    c.imgFolder->setToolTip(tips.search[10]);
    for (const auto &[index, button] : c.cmdSelections)
        button->setToolTip(tips.search[static_cast<std::size_t>(11 + index)]);

    for (const auto &[index, box] : c.chkSearch) {
        box->setToolTip(showTips ? columnTip(*box) : QString());
        c.cmdSelect(index)->setToolTip(showTips ? "Select '" + box->text() + "' From List..." : QString());
    }
    c.cmdSelect(6)->setToolTip(showTips ? "Select 'Product Form' From List..." : QString());
}

void setToolbarTips(const Tables &tips, bool showTips) {
    mdiVelmar &main = mdiVelmar::instance();
    for (int i = 1; i <= ToolbarButtons; ++i)
        main.Toolbar1->Buttons(i).setToolTipText(tips.toolbar[static_cast<std::size_t>(i)]);
    if (!showTips || !main.mCurrent) return;
    for (const char *key : {"Close", "Save", "Print"})
        main.Toolbar1->Buttons(key).setToolTipText(QString("%1 '%2'").arg(key, main.mCurrent->Name()));
}

} // namespace

void InitToolTips() {
    tables.search = {"To select, press 'Select Material', or 'double-click' material in grid, or 'drag and "
                     "drop' material to 'Folder' picture",
                     "Press 'Show' or 'double-click' to view materials in this grid.",
                     "Type In Required Search Criteria",
                     "Clear All Search Boxes ( Start New Search )",
                     "Add Currently Chosen Material To The 'Selected' Grid",
                     "Move To First Material In List",
                     "Move To Previous Material In List",
                     "Move To Next Material In List",
                     "Move To Last Material In List",
                     "'Drag and drop' Material Here To Remove From 'Selected' Grid",
                     "'Drag and drop' Material Here To Add To 'Selected' Grid",
                     "Show All Selected Materials...",
                     "Clear All Materials From 'Selected' Grid",
                     "Remove Currently Selected Material..."};
    tables.material = {"Save Graph As Portable Document Format File (*.pdf)...",
                       "Print (Preview) Graph...",
                       "Enlarge Graph View",
                       "Print (Preview) Design Values Table...",
                       "Save Design Values Table To File (*.pdf,*.rtf,*.txt)...",
                       "Enter Design Temperature Here",
                       "Date Velmar-PED last updated for this Material",
                       "Date Velmar-PED last updated for this Standard"};
    for (int i = 1; i <= ToolbarButtons; ++i)
        tables.toolbar[static_cast<std::size_t>(i)] =
            mdiVelmar::instance().Toolbar1->Buttons(i).ToolTipText();
}

void SetToolTips(bool showTips) {
    const Tables &tips = tablesFor(showTips);
    setSearchTips(DefaultInstance<frmSearch>(), tips, showTips);
    setToolbarTips(tips, showTips);
    for (FormBase &form : Forms())
        if (auto *window = form.as<frmMaterial2>()) SetMaterialToolTips(*window);
}

void SetMaterialToolTips(frmMaterial2 &frm) {
    const bool showTips = mdiVelmar::instance().bToolTips;
    const auto &tips = tablesFor(showTips).material;
    for (int i = 0; i < 5; ++i)
        frm.cmdPrintSave(i)->setToolTip(tips[static_cast<std::size_t>(i)]);
    frm.txtDesignTemp->setToolTip(tips[5]);
    frm.txtMainData(6)->setToolTip(tips[6]);
    frm.txtMainData(8)->setToolTip(tips[7]);
    const bool notesOpen = placeOf(frm.framNotes).height() > MaterialLayout::ClosedNotesHeight;
    const QString notesTip = notesOpen ? "Hide Table Notes" : "Show Table Notes";
    frm.cmdShowNotes->setToolTip(showTips ? notesTip : QString());
}

QString columnTip(const QCheckBox &box) {
    return (box.isChecked() ? "Hide '" : "Show '") + box.text() + "' Column";
}

} // namespace modToolTips
