#include "platform/forms/toolbar.h"

#include <QMainWindow>
#include <QToolButton>

#include "platform/runtime/runtime_error.h"
#include "platform/runtime/twips.h"

Toolbar::Toolbar(const QString &name, QWidget *parent)
    : QToolBar(parent) {
    setObjectName(name);
    setMovable(false);
    setFloatable(false);
}

ToolbarButton &Toolbar::Add(const QString &key, ToolbarButtonStyle style, const QString &toolTip) {
    auto *button = new ToolbarButton(*this, key, Count() + 1, style);
    m_buttons.push_back(button);
    button->setValue(tbrUnpressed);
    button->setToolTipText(toolTip);
    return *button;
}

ToolbarButton &Toolbar::Buttons(int index) const {
    if (index < 1 || index > Count()) throw RuntimeError(35600, QStringLiteral("Index out of bounds"));
    return *m_buttons[static_cast<std::size_t>(index - 1)];
}

ToolbarButton &Toolbar::Buttons(const QString &key) const {
    for (ToolbarButton *button : m_buttons)
        if (button->Key() == key) return *button;
    throw RuntimeError(35601, QStringLiteral("Element not found"));
}

void Toolbar::setImageList(const ImageList *images) {
    m_images = images;
    for (ToolbarButton *button : m_buttons)
        button->showPicture();
}

void Toolbar::setButtonSize(int twips) {
    const int side = toPixels(twips);
    setIconSize({side, side});
}

void Toolbar::setAlign(int align) {
    if (align != vbAlignTop && align != vbAlignBottom) throw RuntimeError(380);
    m_align = align;
    auto *window = qobject_cast<QMainWindow *>(parentWidget());
    if (window == nullptr) return;
    const bool hidden = isHidden();
    window->addToolBar(align == vbAlignTop ? Qt::TopToolBarArea : Qt::BottomToolBarArea, this);
    setVisible(!hidden);
}

void Toolbar::clicked(ToolbarButton &button) {
    if (button.Style() == tbrCheck) {
        button.setValue(button.Value() == tbrPressed ? tbrUnpressed : tbrPressed);
    } else if (button.Style() == tbrButtonGroup) {
        pressAlone(button);
    } else {
        button.setValue(button.Value()); // the click has turned the look of a pressed one
    }
    Q_EMIT ButtonClick(&button);
}

void Toolbar::pressAlone(const ToolbarButton &button) {
    const auto inGroup = [this](int index) {
        return index >= 1 && index <= Count() && Buttons(index).Style() != tbrSeparator;
    };
    int first = button.Index();
    while (inGroup(first - 1))
        --first;
    for (int index = first; inGroup(index); ++index)
        if (Buttons(index).Style() == tbrButtonGroup)
            Buttons(index).setValue(index == button.Index() ? tbrPressed : tbrUnpressed);
}
