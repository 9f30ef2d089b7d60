#include "search/search_tips.h"

#include <array>

#include "search/SearchControls.h"

namespace {

const std::array<QString, 14> Texts = {
    "To select, press 'Select Material', or 'double-click' material in grid, or 'drag and "
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

} // namespace

void SearchTips::set(SearchControls &c, bool showTips) {
    const auto tip = [showTips](std::size_t index) { return showTips ? Texts[index] : QString(); };
    c.tdbMaterials->setCellTips(showTips ? 2 : 0);
    c.tdbMaterials->setToolTip(tip(0));
    c.tdbSelected->setToolTip(tip(1));
    for (const auto &[index, box] : c.txtSearch)
        box->setToolTip(tip(2));
    c.chkListAll->setToolTip(tip(3));
    c.cmdSelectMat->setToolTip(tip(4));
    for (const auto &[index, button] : c.cmdTabNav)
        button->setToolTip(tip(static_cast<std::size_t>(5 + index % 4)));
    c.imgBin->setToolTip(tip(9));
    c.imgFolder->setToolTip(tip(10));
    for (const auto &[index, button] : c.cmdSelections)
        button->setToolTip(tip(static_cast<std::size_t>(11 + index)));

    for (const auto &[index, box] : c.chkSearch) {
        box->setToolTip(showTips ? columnTip(*box) : QString());
        c.cmdSelect(index)->setToolTip(showTips ? "Select '" + box->text() + "' From List..." : QString());
    }
    c.cmdSelect(6)->setToolTip(showTips ? "Select 'Product Form' From List..." : QString());
}

QString SearchTips::columnTip(const QCheckBox &box) {
    return (box.isChecked() ? "Hide '" : "Show '") + box.text() + "' Column";
}
