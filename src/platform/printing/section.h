// A strip of a report.
#pragma once

#include "platform/printing/control_list.h"

namespace Printing {

enum class SectionType {
    ReportHeader,
    PageHeader,
    GroupHeader,
    Detail,
    GroupFooter,
    PageFooter,
    ReportFooter
};

/// A report header and group headers stand before the rows, a detail section stands for each row, group
/// footers and report footer after them. Several sections of one type stand in the order of their addition.
class Section {
public:
    Section(SectionType type, const QString &name)
        : Name(name)
        , Type(type)
        , KeepWithNext(type == SectionType::GroupHeader) {}

    const QString Name;
    const SectionType Type;
    /// In twips. An instance is at least as high as its lowest control needs, and follows its growing and
    /// shrinking controls.
    int Height = 0;
    bool Visible = true;
    /// False keeps an instance at Height, whatever its controls need.
    bool CanGrow = true;
    /// Stays on one page, sub-reports included, where a page can hold it and no more than a third of the page
    /// before is left empty for it. Without it a text may be broken
    /// between two lines; a row with borders is only where no page can hold it.
    bool KeepTogether = false;
    /// For a group header: printed again where the rows go over to a new page.
    bool RepeatOnNewPage = false;
    /// For a group footer: the repeated headings of the rows stand above it as well where it begins a page.
    bool BelowHeadings = false;
    /// Never the last on a page while something follows; what group headers do.
    bool KeepWithNext;
    ControlList Controls;
};

} // namespace Printing
