// What a section can hold. Positions and sizes are in twips, from the section's upper left corner.
#pragma once

#include <functional>
#include <memory>

#include "platform/printing/document.h"

namespace Printing {

class Report;

class Control {
public:
    virtual ~Control() = default;

    QString Name;
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
    bool Visible = true;
    /// Whether an instance may get higher or lower than Height, as its content needs; only texts and
    /// sub-reports do. What stands below moves by the same measure.
    bool CanGrow = false;
    bool CanShrink = false;
};

class TextControl : public Control, public TextStyle {
public:
    TextControl() { CanGrow = true; }

    /// May hold line ends of any kind.
    QString Text;
    bool WordWrap = true;
};

/// A fixed text. One that may not grow and does not fit ends in an ellipsis.
class Label : public TextControl {};

/// A text that may come from the row: with a DataField that the report's Fields know, Text is set from there
/// before each Format event (Null is an empty text); with an unknown one it is emptied.
class Field : public TextControl {
public:
    QString DataField;
    /// In a page header or footer: shows the page's number or their total.
    PageValue Summary = PageValue::None;
};

class Image : public Control {
public:
    Picture Content;
    /// Printed in the picture's place by a text output.
    QString AlternativeText;
};

/// Anything that draws itself.
class Chart : public Control {
public:
    /// Called once, when the section is laid out, with the control's size in pixels of 15 twips.
    Picture::Painting Paint;
    QString AlternativeText;
};

/// Holds a report, which is run when the section is laid out, one after the other in the order of the
/// controls. Its page header and footer are not printed. It takes the whole width of its section from its Top
/// down and goes over pages; without a report it shrinks to nothing. Once run, the report is let go.
class SubReport : public Control {
public:
    SubReport() { CanGrow = CanShrink = true; }

    std::shared_ptr<Report> Object;
};

/// What stands at or below its Top begins a new page.
class PageBreak : public Control {};

/// From (Left, Top) to (Left + Width, Top + Height).
class Line : public Control {
public:
    QColor LineColor = Qt::black;
};

} // namespace Printing
