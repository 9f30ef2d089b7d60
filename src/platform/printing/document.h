// What a report run yields: pages of placed elements, and the same content in its logical order.
#pragma once

#include <vector>

#include <QString>

#include "platform/printing/element.h"
#include "platform/printing/packed_list.h"

namespace Printing {

/// Twips. A4 portrait; the default margins leave 10200 twips of width.
struct PageSettings {
    int PaperWidth = 11906;
    int PaperHeight = 16838;
    int LeftMargin = 853;
    int TopMargin = 850;
    int RightMargin = 853;
    int BottomMargin = 850;
};

struct Page {
    /// In reading order.
    PackedList<Element> elements;
};

struct Heading {
    QString text;
    int level = 1;
    /// From 0.
    int page = 0;
    /// From the paper's upper edge.
    int top = 0;
};

struct Document {
    QString title;
    QString author;
    /// What a viewer's window bears.
    QString caption;
    PageSettings pageSettings;
    std::vector<Page> pages;
    /// The content without page headers and footers, and without repeated headings.
    PackedList<Block> blocks;
    /// As on the first page.
    std::vector<Row> pageHeader;
    std::vector<Row> pageFooter;
    int pageHeaderHeight = 0;
    int pageFooterHeight = 0;
    std::vector<Heading> headings;

    int printWidth() const {
        return pageSettings.PaperWidth - pageSettings.LeftMargin - pageSettings.RightMargin;
    }
};

} // namespace Printing
