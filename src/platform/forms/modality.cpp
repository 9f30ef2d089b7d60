#include "platform/forms/modality.h"

#include <QApplication>
#include <QDialog>
#include <QWindow>

#include "platform/forms/form_base.h"
#include "platform/forms/forms.h"

namespace Modality {

QWidget *front() {
    if (QWidget *modal = QApplication::activeModalWidget()) return modal;
    QWidget *active = QApplication::activeWindow();
    if (dynamic_cast<FormBase *>(active) != nullptr) return active;
    // The desktop has not made a window the active one yet, or it is one beside the program.
    FormBase *last = Forms::active();
    if (last == nullptr) {
        for (FormBase &form : Forms())
            if (form.Visible()) last = &form;
    }
    return last != nullptr ? last->asWidget()->window() : nullptr;
}

void narrow(QDialog &dialog) {
    const QWidget *below = dialog.parentWidget();
    if (below == nullptr || !below->window()->isVisible()) return;
    dialog.setWindowModality(Qt::WindowModal);
    // A dialog that was told to be modal before does not tell its window again.
    if (dialog.windowHandle() != nullptr) dialog.windowHandle()->setModality(Qt::WindowModal);
}

} // namespace Modality
