// How a text looks and what frames it; shared by the controls of a section and the elements of a page.
#pragma once

#include <QColor>
#include <QString>

namespace Printing {

struct TextFont {
    /// The family asked for first; Liberation Sans, which has the same widths as Arial, is asked for next.
    QString Name = QStringLiteral("Arial");
    /// In points.
    double Size = 10;
    bool Bold = false;
    bool Italic = false;

    bool operator==(const TextFont &) const = default;
};

/// 0 draws nothing, 1 a hairline.
struct BorderStyles {
    int TopStyle = 0;
    int RightStyle = 0;
    int BottomStyle = 0;
    int LeftStyle = 0;

    bool operator==(const BorderStyles &) const = default;
    bool any() const { return TopStyle != 0 || RightStyle != 0 || BottomStyle != 0 || LeftStyle != 0; }
    static BorderStyles all() { return {1, 1, 1, 1}; }
};

struct TextStyle {
    /// 0 left, 1 right, 2 centre.
    int Alignment = 0;
    /// 0 top, 1 middle, 2 bottom.
    int VerticalAlignment = 0;
    /// 0 transparent, 1 filled with BackColor.
    int BackStyle = 0;
    QColor BackColor = Qt::white;
    QColor ForeColor = Qt::black;
    TextFont Font;
    BorderStyles Border;
    /// 1 and up marks the text as a heading of that level, for the outline and the outputs; 0 is plain text.
    int HeadingLevel = 0;
    /// Never parted by a page end from what stands below it in its section, as a heading never is. One
    /// without a frame is printed again above the cells of its section that go over to a new page.
    bool KeepWithNext = false;
    /// What the outline says of a heading; where it is empty, the heading's text.
    QString OutlineText;
};

} // namespace Printing
