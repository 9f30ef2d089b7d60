// What a report places: a text, a picture or a rule, alone or side by side with others in rows and blocks.
#pragma once

#include <vector>

#include <QPoint>
#include <QRect>
#include <QString>

#include "platform/printing/picture.h"
#include "platform/printing/text_style.h"

namespace Printing {

enum class PageValue { None, PageNumber, PageTotal };

/// One line of a broken text. Positions are relative to the top left corner of the element's box.
struct TextLine {
    QString text;
    /// Where the line begins in the element's text.
    int start = 0;
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    /// From `top` to the base line.
    int ascent = 0;
};

/// What one control shows at one place: a text with its frame, a picture or a rule. On a page the box is
/// counted from the paper's corner; in a block from the left edge of the print area and from the top of an
/// endless page.
struct Element : TextStyle {
    QRect box;
    QString text;
    std::vector<TextLine> lines;
    PageValue pageValue = PageValue::None;
    /// A straight rule from the box's top left to its bottom right corner.
    bool isRule = false;
    Picture picture;
    /// Of the picture; where a block's element holds text as well, the box is the text's.
    QSize pictureSize;
    /// Stands for the picture where there are only letters.
    QString alternativeText;
};

/// Elements that stand side by side, from left to right.
struct Row {
    std::vector<Element> cells;
    /// Repeated at the top of each page that the table goes over to.
    bool isHeading = false;
    /// Belongs on one page with the row below it.
    bool keepWithNext = false;
    /// A straight rule stands closely over or under the row.
    bool ruleAbove = false;
    bool ruleBelow = false;

    /// Whether it holds captions of the row below it alone.
    bool headsNext() const;
    int left() const;
    int right() const;
    int top() const;
    int bottom() const;
};

struct Block {
    enum class Kind {
        /// One row of one cell; a heading if its HeadingLevel is above 0.
        Paragraph,
        /// Rows with borders.
        Table,
        /// Rows of several texts side by side without a border.
        Aligned,
        PageBreak
    };
    Kind kind = Kind::Paragraph;
    std::vector<Row> rows;
};

/// Whether its place is seen without its text.
inline bool isFramed(const Element &element) {
    return element.Border.any() || element.BackStyle != 0;
}

} // namespace Printing
