// What stands in a window: every named control with its texts and its state.
#pragma once

#include <QtWidgets/QtWidgets>

#include "platform/forms/tdb_grid.h"
#include "tests/program/contents.h"

namespace WindowContentsText {

inline QString textOf(const QWidget &control) {
    for (const char *property : {"text", "plainText", "title", "currentText"})
        if (const QVariant text = control.property(property); text.isValid()) return text.toString();
    return {};
}

inline QString headingsOf(TDBGrid &grid) {
    QStringList headings;
    for (int i = 0; i < grid.ColumnCount(); ++i)
        if (grid.Columns(i).Visible()) headings << grid.Columns(i).Caption();
    for (const QWidget *part : grid.findChildren<QWidget *>())
        if (part->inherits("GridFooter") && part->isVisible()) headings << "with footers";
    return headings.join(QStringLiteral(" | "));
}

inline QString stateOf(const QWidget &control) {
    QString state;
    if (!control.isVisible()) state += " hidden";
    if (!control.isEnabled()) state += " disabled";
    if (control.property("readOnly").toBool()) state += " read-only";
    if (control.property("checked").toBool()) state += " checked";
    if (control.property("default").toBool()) state += " default";
    return state;
}

inline QString lineOf(QWidget &control) {
    auto *grid = qobject_cast<TDBGrid *>(&control);
    const QString parts[] = {control.metaObject()->className() + QStringLiteral(" ") + control.objectName(),
                             control.accessibleName(), grid ? headingsOf(*grid) : textOf(control),
                             control.toolTip()};
    QString line = parts[0] + stateOf(control);
    const char *const names[] = {"", "named", "says", "tip"};
    for (int i = 1; i < 4; ++i)
        if (!parts[i].isEmpty()) line += QStringLiteral("; %1 \"%2\"").arg(names[i], parts[i]);
    if (const auto *label = qobject_cast<QLabel *>(&control); label && label->buddy())
        line += "; of " + label->buddy()->objectName();
    return line.replace("\r\n", "\\n").replace('\n', "\\n");
}

/// Indented as the controls stand in each other.
inline void list(const QWidget &parent, const QString &indent, QString &lines) {
    for (QObject *child : parent.children()) {
        auto *control = qobject_cast<QWidget *>(child);
        if (!control || control->isWindow()) continue;
        const bool isOwn = !control->objectName().isEmpty() && !control->objectName().startsWith("qt_") &&
                           !control->inherits("QTabBar") && !parent.inherits("QTabBar");
        if (isOwn) lines += indent + lineOf(*control) + '\n';
        if (!control->inherits("TDBGrid")) list(*control, isOwn ? indent + "  " : indent, lines);
    }
}

/// Those that a user cannot see whole.
inline QString outsideTheirPlace(const QWidget &window) {
    QString outside;
    for (QWidget *control : window.findChildren<QWidget *>()) {
        if (!control->isVisible() || control->isWindow() || control->objectName().isEmpty()) continue;
        if (control->objectName().startsWith("qt_")) continue;
        if (control->objectName() == "txtNotes") continue; // folded away behind its heading
        const QWidget &place = *control->parentWidget();
        if (!place.rect().contains(control->geometry())) outside += lineOf(*control) + '\n';
    }
    return outside;
}

inline void expectWindow(const QWidget &window, const QString &name) {
    QString lines;
    list(window, {}, lines);
    Contents::expect(lines, name);
    EXPECT_EQ(outsideTheirPlace(window).toStdString(), "");
}

} // namespace WindowContentsText
