#include "tour/dark_theme.h"

#include <QApplication>
#include <QPalette>

void useDarkTheme() {
    const QColor window(0x2b, 0x2b, 0x2e);
    const QColor base(0x1f, 0x1f, 0x22);
    const QColor text(0xee, 0xee, 0xec);
    const QColor dim(0x8a, 0x8a, 0x8a);
    QPalette palette(text, QColor(0x3a, 0x3a, 0x3e), QColor(0x55, 0x55, 0x58), QColor(0x14, 0x14, 0x16),
                     QColor(0x40, 0x40, 0x44), text, Qt::white, base, window);
    palette.setColor(QPalette::AlternateBase, QColor(0x28, 0x28, 0x2b));
    palette.setColor(QPalette::Highlight, QColor(0x2a, 0x6f, 0xb5));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, QColor(0x3a, 0x3a, 0x3e));
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::Link, QColor(0x6c, 0xb2, 0xf5));
    palette.setColor(QPalette::LinkVisited, QColor(0xb5, 0x9c, 0xf0));
    palette.setColor(QPalette::PlaceholderText, dim);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, dim);
    QApplication::setPalette(palette);
}
