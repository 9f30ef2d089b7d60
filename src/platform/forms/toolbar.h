// A bar of buttons at the top or bottom of the main window.
#pragma once

#include <QToolBar>

#include "platform/forms/toolbar_button.h"

class ImageList;

enum ToolbarAlign { vbAlignTop = 1, vbAlignBottom = 2 };

/// Its buttons are counted from 1. A button's objectName is the bar's with the button's key in brackets, such
/// as `Toolbar1(Design)`.
class Toolbar : public QToolBar {
    Q_OBJECT

public:
    explicit Toolbar(const QString &name, QWidget *parent = nullptr);

    ToolbarButton &Add(const QString &key, ToolbarButtonStyle style = tbrDefault,
                       const QString &toolTip = {});
    int Count() const { return static_cast<int>(m_buttons.size()); }
    /// Raise 35600 for an index outside 1 to Count, 35601 for a key that no button has.
    ToolbarButton &Buttons(int index) const;
    ToolbarButton &Buttons(const QString &key) const;

    /// Where the buttons' image numbers are looked up. The list must outlive the bar.
    void setImageList(const ImageList *images);
    const ImageList *imageList() const { return m_images; }
    /// The side of the square pictures.
    void setButtonSize(int twips);

    int Align() const { return m_align; }
    void setAlign(int align);
    /// Whether it shows when its window does.
    bool Visible() const { return !isHidden(); }

Q_SIGNALS:
    /// After a check or group button has taken its new value.
    void ButtonClick(ToolbarButton *button);
    void ButtonMenuClick(ButtonMenu *entry);

private:
    friend class ToolbarButton;
    void clicked(ToolbarButton &button);
    void pressAlone(const ToolbarButton &button);

    std::vector<ToolbarButton *> m_buttons;
    const ImageList *m_images = nullptr;
    int m_align = vbAlignTop;
};
