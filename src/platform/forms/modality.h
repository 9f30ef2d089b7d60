// What a modal window shuts off: the windows of the program, and nothing beside them. A window that belongs
// to no form, as a help window does, stays in use.
#pragma once

class QDialog;
class QWidget;

namespace Modality {

/// What a modal window is to stand above: the modal window in front, else the form in use. Null before any
/// form shows.
QWidget *front();

/// Lets a dialog of the library, which is about to show, shut off what it stands above and not everything.
void narrow(QDialog &dialog);

} // namespace Modality
