#include "platform/forms/colours.h"

#include <QApplication>
#include <QWidget>

namespace {

/// The palette's role for each system colour, in the order of their numbers.
constexpr QPalette::ColorRole systemRoles[] = {
    QPalette::Button,          // scroll bars
    QPalette::Dark,            // desktop
    QPalette::Highlight,       // active title
    QPalette::Mid,             // inactive title
    QPalette::Window,          // menu bar
    QPalette::Base,            // window background
    QPalette::Shadow,          // window frame
    QPalette::WindowText,      // menu text
    QPalette::Text,            // window text
    QPalette::HighlightedText, // title text
    QPalette::Window,          // active border
    QPalette::Window,          // inactive border
    QPalette::Dark,            // application workspace
    QPalette::Highlight,       // highlight
    QPalette::HighlightedText, // highlighted text
    QPalette::Window,          // button face, which dialogs have too
    QPalette::Mid,             // button shadow
    QPalette::PlaceholderText, // grey text
    QPalette::ButtonText,      // button text
    QPalette::WindowText,      // inactive title text
    QPalette::Light,           // lit edge
    QPalette::Shadow,          // dark shadow
    QPalette::Midlight,        // light
    QPalette::ToolTipText,     // info text
    QPalette::ToolTipBase,     // info background
};

constexpr int systemColours = static_cast<int>(std::size(systemRoles));

bool isSystem(int colour) {
    return colour < 0;
}

QPalette::ColorRole roleOf(int colour) {
    const int number = colour & 0xFF;
    return number < systemColours ? systemRoles[number] : QPalette::Window;
}

QColor between(const QColor &one, const QColor &other) {
    return {(one.red() + other.red()) / 2, (one.green() + other.green()) / 2,
            (one.blue() + other.blue()) / 2};
}

} // namespace

QColor toQColor(int colour) {
    if (isSystem(colour)) return QApplication::palette().color(QPalette::Active, roleOf(colour));
    return {colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF};
}

QColor textColourOn(int colour) {
    if (isSystem(colour)) {
        const QPalette palette = QApplication::palette();
        switch (roleOf(colour)) {
        case QPalette::ToolTipBase:
            return palette.color(QPalette::Active, QPalette::ToolTipText);
        case QPalette::Base:
            return palette.color(QPalette::Active, QPalette::Text);
        case QPalette::Window:
            return palette.color(QPalette::Active, QPalette::WindowText);
        case QPalette::Button:
            return palette.color(QPalette::Active, QPalette::ButtonText);
        case QPalette::Highlight:
            return palette.color(QPalette::Active, QPalette::HighlightedText);
        default:
            break;
        }
    }
    const QColor back = toQColor(colour);
    const bool bright = 299 * back.red() + 587 * back.green() + 114 * back.blue() > 128 * 1000;
    return bright ? QColor(Qt::black) : QColor(Qt::white);
}

void setBackColor(QWidget *widget, int colour) {
    const QColor back = toQColor(colour);
    const QColor text = textColourOn(colour);
    QPalette palette = widget->palette();
    for (const QPalette::ColorRole role : {QPalette::Base, QPalette::Window})
        palette.setColor(role, back);
    for (const QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText}) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, between(text, back));
    }
    widget->setPalette(palette);
    widget->setAutoFillBackground(true);
}
