#include "shell/modToolTips.h"

#include <array>

#include "data/Material.h"
#include "platform/forms/call_by_name.h"
#include "platform/forms/forms.h"
#include "platform/forms/toolbar.h"
#include "shell/mdiVelmar.h"

namespace modToolTips {

namespace {

constexpr int ToolbarButtons = 24;

/// From 1.
std::array<QString, ToolbarButtons + 1> toolbarTips;

void setToolbarTips(bool showTips) {
    mdiVelmar &main = mdiVelmar::instance();
    for (int i = 1; i <= ToolbarButtons; ++i)
        main.Toolbar1->Buttons(i).setToolTipText(showTips ? toolbarTips[static_cast<std::size_t>(i)]
                                                          : QString());
    if (!showTips || !main.mCurrent) return;
    for (const char *key : {"Close", "Save", "Print"})
        main.Toolbar1->Buttons(key).setToolTipText(QString("%1 '%2'").arg(key, main.mCurrent->Name()));
}

bool hasTips(FormBase &form) {
    return form.asWidget()->metaObject()->indexOfMethod("SetToolTips(bool)") >= 0;
}

} // namespace

void InitToolTips() {
    for (int i = 1; i <= ToolbarButtons; ++i)
        toolbarTips[static_cast<std::size_t>(i)] = mdiVelmar::instance().Toolbar1->Buttons(i).ToolTipText();
}

void SetToolTips(bool showTips) {
    setToolbarTips(showTips);
    for (FormBase &form : Forms())
        if (hasTips(form)) CallByName(form, "SetToolTips", {showTips});
}

} // namespace modToolTips
