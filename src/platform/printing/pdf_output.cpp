#include "platform/printing/pdf_output.h"

#include <QBuffer>
#include <QPageSize>
#include <QPdfWriter>

#include "platform/printing/page_painter.h"
#include "platform/printing/pdf_outline.h"
#include "platform/runtime/app.h"
#include "platform/runtime/runtime_error.h"
#include "platform/runtime/twips.h"
#include "platform/runtime/whole_file.h"

namespace Printing {

namespace {

QByteArray pagesAsPdf(const Document &document) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setCreator(App::current().title);
    // 96 dots an inch, as on the screen: positions are written as fractions of it.
    writer.setResolution(TwipsPerInch / TwipsPerPixel);
    writer.setPageSize(paperSize(document.pageSettings));
    writer.setPageMargins(QMarginsF());
    QPainter painter;
    if (!painter.begin(&writer)) throw RuntimeError(57);
    painter.scale(1.0 / TwipsPerPixel, 1.0 / TwipsPerPixel);
    bool first = true;
    for (const Page &page : document.pages) {
        if (!first) writer.newPage();
        first = false;
        paintPage(painter, page);
    }
    painter.end();
    return buffer.data();
}

} // namespace

void savePdf(const Document &document, const QString &path) {
    writeWholeFile(path, withOutline(pagesAsPdf(document), document));
}

} // namespace Printing
