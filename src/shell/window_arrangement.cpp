#include "shell/window_arrangement.h"

#include <QStringList>

#include "platform/forms/form.h"
#include "platform/forms/forms.h"
#include "platform/runtime/conversions.h"

namespace WindowArrangement {

namespace {

constexpr int CascadeStep = 300;
constexpr int TileWidth = 11280;
constexpr int SecondRow = 5050;

/// A window that the user has maximised or minimised keeps its place.
bool takesPart(FormBase &form, const QStringList &excluded) {
    return !excluded.contains(form.Name()) && form.WindowState() == vbNormal;
}

} // namespace

void cascade(int mainWidth, const std::function<void(Form &)> &placed) {
    int top = 0;
    for (FormBase &form : Forms()) {
        if (!takesPart(form, {"frmPmaIndex", "mdiVelmar", "frmSearch"})) continue;
        form.setTop(top);
        form.setLeft((mainWidth - form.Width()) / 2);
        top += CascadeStep;
        form.SetFocus();
        placed(*form.as<Form>());
    }
}

void tileHorizontal(int mainWidth, int materials, const std::function<void(Form &)> &placed) {
    const int even = materials - materials % 2;
    const int left = CInt((mainWidth - TileWidth) / 2.0);
    Form *first = nullptr;
    int i = 1;
    for (FormBase &form : Forms()) {
        if (!takesPart(form, {"mdiVelmar", "frmSearch"})) continue;
        const bool isFirst = first == nullptr;
        if (isFirst) first = form.as<Form>();
        form.setTop(isFirst || i <= even / 2 ? 0 : SecondRow);
        form.setLeft(left);
        ++i;
        placed(*form.as<Form>());
    }
    if (first == nullptr) return;
    first->SetFocus();
    placed(*first); // where it was in front before, the focus tells nobody
}

} // namespace WindowArrangement
