#include "platform/printing/print_output.h"

#include <QFileInfo>
#include <QPageLayout>
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

} // namespace

void printDocument(const Document &document, QPrinter &printer) {
    const PageSettings &paper = document.pageSettings;
    // 96 dots an inch: vectors lose nothing by it, and sizes in points come out as on the screen.
    printer.setResolution(TwipsPerInch / TwipsPerPixel);
    printer.setFullPage(true);
    printer.setPageSize(paperSize(paper));
    printer.setPageMargins(QMarginsF());
    printer.setDocName(document.title);

    const int pages = int(document.pages.size());
    const int first = printer.fromPage() > 0 ? printer.fromPage() : 1;
    const int last = printer.toPage() > 0 ? std::min(printer.toPage(), pages) : pages;
    if (first > last) return;
    QPainter painter;
    if (!painter.begin(&printer)) throw RuntimeError(482);
    painter.scale(1.0 / TwipsPerPixel, 1.0 / TwipsPerPixel);
    for (int page = first; page <= last; ++page) {
        if (page > first && !printer.newPage()) throw RuntimeError(482);
        paintPage(painter, document.pages[std::size_t(page - 1)]);
    }
    if (!painter.end() || printer.printerState() == QPrinter::Error) throw RuntimeError(482);
    const QString path = printer.outputFileName();
    if (path.isEmpty() || isWhole(path)) return;
    if (QFileInfo(path).isFile()) QFile::remove(path);
    throw RuntimeError(482);
}

} // namespace Printing
