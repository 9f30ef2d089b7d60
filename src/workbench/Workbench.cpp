#include "workbench/Workbench.h"

#include "platform/forms/default_instance.h"
#include "shell/main_menu.h"
#include "workbench/frmCard.h"
#include "workbench/frmCompare.h"
#include "workbench/frmFindValue.h"
#include "workbench/frmValueSheet.h"

namespace {

template <class Window>
void bringUp() {
    auto &window = DefaultInstance<Window>();
    window.Show();
    window.bringUp();
}

} // namespace

void Workbench::show(int index) {
    switch (index) {
    case ToolsEntry::CompareGrades:
        return bringUp<frmCompare>();
    case ToolsEntry::FindByValue:
        return bringUp<frmFindValue>();
    case ToolsEntry::ValuesOverTemperature:
        return bringUp<frmValueSheet>();
    case ToolsEntry::MaterialCard:
        return bringUp<frmCard>();
    default:
        return;
    }
}
