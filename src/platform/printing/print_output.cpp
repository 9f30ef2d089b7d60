#include "platform/printing/print_output.h"

#include <algorithm>

#include <QFileInfo>
#include <QPageLayout>
#include <QPageRanges>
#include <QPrinter>

#include "platform/printing/page_painter.h"
#include "platform/runtime/runtime_error.h"
#include "platform/runtime/twips.h"

namespace Printing {

namespace {

// A printer that writes a file says nothing of a full disk.
bool isWhole(const QString &path) {
    constexpr int TailLength = 16;
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.seek(std::max(qint64(0), file.size() - TailLength)) &&
           file.read(TailLength).contains("%%EOF");
}

// From 1, a page for each sheet. Copies that the printer makes itself are not among them.
std::vector<int> pagesInPrintOrder(const QPrinter &printer, int pages) {
    const QPageRanges chosen = printer.pageRanges();
    std::vector<int> once;
    for (int page = 1; page <= pages; ++page)
        if (chosen.isEmpty() || chosen.contains(page)) once.push_back(page);
    if (printer.pageOrder() == QPrinter::LastPageFirst) std::reverse(once.begin(), once.end());

    const int copies = printer.supportsMultipleCopies() ? 1 : printer.copyCount();
    std::vector<int> all;
    if (printer.collateCopies()) {
        for (int copy = 0; copy < copies; ++copy)
            all.insert(all.end(), once.begin(), once.end());
    } else {
        for (const int page : once)
            all.insert(all.end(), std::size_t(copies), page);
    }
    return all;
}

// Twips become the printer's pixels; on other paper the page keeps its proportions, in the middle.
void fitToPaper(QPainter &painter, const PageSettings &page, const QPrinter &printer) {
    const QSizeF paper = printer.pageLayout().fullRect(QPageLayout::Point).size() * TwipsPerPoint;
    const double scale = std::min(paper.width() / page.PaperWidth, paper.height() / page.PaperHeight);
    painter.scale(1.0 / TwipsPerPixel, 1.0 / TwipsPerPixel);
    painter.translate((paper.width() - scale * page.PaperWidth) / 2,
                      (paper.height() - scale * page.PaperHeight) / 2);
    painter.scale(scale, scale);
}

} // namespace

void printDocument(const Document &document, QPrinter &printer) {
    // 96 dots an inch: vectors lose nothing by it, and sizes in points come out as on the screen.
    printer.setResolution(TwipsPerInch / TwipsPerPixel);
    printer.setFullPage(true);
    printer.setDocName(document.title);

    const std::vector<int> pages = pagesInPrintOrder(printer, int(document.pages.size()));
    if (pages.empty()) return;
    QPainter painter;
    if (!painter.begin(&printer)) throw RuntimeError(482);
    fitToPaper(painter, document.pageSettings, printer);
    for (std::size_t sheet = 0; sheet < pages.size(); ++sheet) {
        if (sheet > 0 && !printer.newPage()) throw RuntimeError(482);
        paintPage(painter, document.pages[std::size_t(pages[sheet] - 1)]);
    }
    if (!painter.end() || printer.printerState() == QPrinter::Error) throw RuntimeError(482);
    const QString path = printer.outputFileName();
    if (path.isEmpty() || isWhole(path)) return;
    if (QFileInfo(path).isFile()) QFile::remove(path);
    throw RuntimeError(482);
}

} // namespace Printing
