// The one global instance of a window class, made on first use and again after it was unloaded.
#pragma once

#include <QPointer>

namespace forms_detail {
template <class F>
QPointer<F> &defaultInstance() {
    static QPointer<F> instance;
    return instance;
}
} // namespace forms_detail

/// The touch that loads: `DefaultInstance<frmAbout>().ShowModal(this)`. The instance stands before its
/// Form_Load runs, so that Form_Load may reach it by the same road.
template <class F>
F &DefaultInstance() {
    QPointer<F> &instance = forms_detail::defaultInstance<F>();
    if (!instance || instance->isUnloaded()) {
        instance = new F;
        instance->Load();
    }
    return *instance;
}

/// Without touching it: null where none is loaded.
template <class F>
F *LoadedInstance() {
    F *instance = forms_detail::defaultInstance<F>();
    return instance != nullptr && instance->isLoaded() ? instance : nullptr;
}

/// A further instance, loaded.
template <class F>
F *NewForm() {
    F *form = new F;
    form->Load();
    return form;
}
