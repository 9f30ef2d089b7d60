// The look that all reports share: fonts, colours and the usual controls. Positions and sizes are twips.
#pragma once

#include <QString>

#include "platform/printing/section.h"

class Material;

namespace ReportLayout {

/// What a page offers between its margins.
constexpr int PageWidth = 10200;

// A table's title, the captions of its columns below it, and its rows.
constexpr int TitleHeight = 270;
constexpr int CaptionTop = 330;
constexpr int RowHeight = 283;

Printing::Label &addLabel(Printing::Section &section, const QString &name, const QString &text, int left,
                          int top, int width, int height);
Printing::Field &addField(Printing::Section &section, const QString &name, int left, int top, int width,
                          int height);
/// `picture` is the path of an SVG file that comes with the program; an empty one leaves the image empty.
Printing::Image &addImage(Printing::Section &section, const QString &name, const QString &picture, int left,
                          int top, int width, int height);
Printing::SubReport &addSubReport(Printing::Section &section, const QString &name, int top);

/// The product's name and pictures, and `dateTime`: imgVelmar, lblVelmar, txtDateTime and Image1.
void addProgramHead(Printing::Section &section, const QString &dateTime = {});
/// lblTitle, at the top.
Printing::Label &addTitle(Printing::Section &section, const QString &text);
/// lblNotes and txtNotes.
void addNotes(Printing::Section &section);
/// The margins of a report with pages of its own.
void setPage(Printing::PageSettings &page);
/// lblDocName, lblPage, txtPage, lblOf and txtPageTotal below a rule, above a second line that is free.
void addPageFooter(Printing::Section &section);
/// Puts the control into the second line of a page footer.
void asFootnote(Printing::TextControl &control);

/// A heading that stands in the outline at `level`, in a batch one below its material.
void asHeading(Printing::TextControl &control, int level);
/// The filled, framed look of a column heading.
void asCaption(Printing::TextControl &control);
/// A framed cell with its value in the middle.
void asCell(Printing::TextControl &control);

/// In a batch the title also says whose table it is.
void nameMaterial(Printing::Label &title, const Material &material);

int rightEdge(const Printing::Control &control);
int bottomEdge(const Printing::Control &control);

} // namespace ReportLayout
