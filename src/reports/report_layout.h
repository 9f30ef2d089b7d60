// The look that all reports share: fonts, colours and the usual controls. Positions and sizes are twips.
#pragma once

#include <QString>

#include "platform/printing/section.h"

namespace ReportLayout {

/// What a page offers between its margins.
constexpr int PageWidth = 10200;

Printing::Label &addLabel(Printing::Section &section, const QString &name, const QString &text, int left,
                          int top, int width, int height);
Printing::Field &addField(Printing::Section &section, const QString &name, int left, int top, int width,
                          int height);
Printing::Image &addImage(Printing::Section &section, const QString &name, const QString &picture, int left,
                          int top, int width, int height);
Printing::SubReport &addSubReport(Printing::Section &section, const QString &name, int top);

/// A heading that stands in the outline at `level`.
void asHeading(Printing::TextControl &control, int level);
/// The filled, framed look of a column heading.
void asCaption(Printing::TextControl &control);
/// A framed cell with its value in the middle.
void asCell(Printing::TextControl &control);

} // namespace ReportLayout
