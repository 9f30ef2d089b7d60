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

/// It stands outside the main window.
bool isBeside(FormBase &form) {
    const auto *window = form.as<Form>();
    return window != nullptr && window->isBeside();
}

/// A window that the user has maximised or minimised keeps its place. They are told before any of them takes
/// the focus, and with it the maximised state of another.
QList<Form *> takingPart(const QStringList &excluded) {
    QList<Form *> forms;
    for (FormBase &form : Forms())
        if (!excluded.contains(form.Name()) && form.WindowState() == vbNormal && !isBeside(form))
            forms << form.as<Form>();
    return forms;
}

} // namespace

void cascade(int mainWidth, const std::function<void(Form &)> &placed) {
    int top = 0;
    for (Form *form : takingPart({"frmPmaIndex", "mdiVelmar", "frmSearch"})) {
        form->setTop(top);
        form->setLeft((mainWidth - form->Width()) / 2);
        top += CascadeStep;
        form->SetFocus();
        placed(*form);
    }
}

void tileHorizontal(int mainWidth, int materials, const std::function<void(Form &)> &placed) {
    const int even = materials - materials % 2;
    const int left = CInt((mainWidth - TileWidth) / 2.0);
    Form *first = nullptr;
    int i = 1;
    for (Form *form : takingPart({"mdiVelmar", "frmSearch"})) {
        const bool isFirst = first == nullptr;
        if (isFirst) first = form;
        form->setTop(isFirst || i <= even / 2 ? 0 : SecondRow);
        form->setLeft(left);
        ++i;
        placed(*form);
    }
    if (first == nullptr) return;
    first->SetFocus();
    placed(*first); // where it was in front before, the focus tells nobody
}

} // namespace WindowArrangement
