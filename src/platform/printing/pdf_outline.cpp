#include "platform/printing/pdf_outline.h"

#include <stdexcept>

#include <QCryptographicHash>

#include <qpdf/Pipeline.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFWriter.hh>

#include "platform/runtime/runtime_error.h"
#include "platform/runtime/twips.h"

namespace Printing {

namespace {

using Object = QPDFObjectHandle;

Object pdfText(const QString &text) {
    return Object::newUnicodeString(text.toStdString());
}

struct OutlineItem {
    const Heading &heading;
    std::vector<OutlineItem> items;
};

/// The headings from `next` on, up to one of this level or a lower one, each with those that belong to it.
std::vector<OutlineItem> itemsBelow(int level, const std::vector<Heading> &headings, std::size_t &next) {
    std::vector<OutlineItem> items;
    while (next < headings.size() && headings[next].level > level) {
        const Heading &heading = headings[next++];
        items.push_back({heading, itemsBelow(heading.level, headings, next)});
    }
    return items;
}

Object destination(QPDF &pdf, const Document &document, const Heading &heading) {
    const double y = double(document.pageSettings.PaperHeight - heading.top) / TwipsPerPoint;
    return Object::newArray({pdf.getAllPages().at(std::size_t(heading.page)), Object::newName("/XYZ"),
                             Object::newNull(), Object::newReal(y, 2), Object::newNull()});
}

Object addEntry(QPDF &pdf, Object &parent) {
    Object entry = pdf.makeIndirectObject(Object::newDictionary());
    entry.replaceKey("/Parent", parent);
    if (parent.hasKey("/Last")) {
        Object previous = parent.getKey("/Last");
        previous.replaceKey("/Next", entry);
        entry.replaceKey("/Prev", previous);
    } else {
        parent.replaceKey("/First", entry);
    }
    parent.replaceKey("/Last", entry);
    return entry;
}

void addEntries(QPDF &pdf, Object parent, const Document &document, const std::vector<OutlineItem> &items,
                bool isOpen) {
    for (const OutlineItem &item : items) {
        Object entry = addEntry(pdf, parent);
        entry.replaceKey("/Title", pdfText(item.heading.text));
        entry.replaceKey("/Dest", destination(pdf, document, item.heading));
        if (item.items.empty()) continue;
        // A negative count is a closed entry.
        const auto count = qint64(item.items.size());
        entry.replaceKey("/Count", Object::newInteger(isOpen ? count : -count));
        addEntries(pdf, entry, document, item.items, false);
    }
}

void addOutline(QPDF &pdf, const Document &document) {
    std::size_t next = 0;
    const std::vector<OutlineItem> items = itemsBelow(0, document.headings, next);
    // One document's sections are shown at once; of several documents in one file, only their titles.
    const bool isOpen = items.size() == 1;
    const std::size_t shown = items.size() + (isOpen ? items[0].items.size() : 0);
    Object outline = pdf.makeIndirectObject(Object::newDictionary());
    outline.replaceKey("/Type", Object::newName("/Outlines"));
    outline.replaceKey("/Count", Object::newInteger(qint64(shown)));
    addEntries(pdf, outline, document, items, isOpen);
    Object root = pdf.getRoot();
    root.replaceKey("/Outlines", outline);
    root.replaceKey("/PageMode", Object::newName("/UseOutlines"));
}

/// Of what stands in the document: viewers keep the place of reading by it.
Object identifier(const Document &document) {
    QCryptographicHash hash(QCryptographicHash::Md5);
    hash.addData(document.title.toUtf8());
    for (const Page &page : document.pages)
        for (const Element &element : page.elements)
            hash.addData(element.text.toUtf8());
    const Object half = Object::newString(hash.result().toStdString());
    return Object::newArray({half, half});
}

/// Into the bytes themselves: the library's own buffer would be copied twice on the way.
class BytesPipeline : public Pipeline {
public:
    explicit BytesPipeline(QByteArray &bytes)
        : Pipeline("bytes", nullptr)
        , m_bytes(bytes) {}
    void write(const unsigned char *data, std::size_t size) override {
        m_bytes.append(reinterpret_cast<const char *>(data), qsizetype(size));
    }
    void finish() override {}

private:
    QByteArray &m_bytes;
};

/// `room` is about what it takes.
QByteArray written(QPDF &pdf, qsizetype room) {
    QByteArray bytes;
    bytes.reserve(room);
    BytesPipeline pipeline(bytes);
    QPDFWriter writer(pdf);
    // Its own second half of the identifier would follow from the date, or from chance.
    writer.setStaticID(true);
    writer.setOutputPipeline(&pipeline);
    writer.write();
    return bytes;
}

} // namespace

QByteArray withOutline(const QByteArray &bytes, const Document &document) {
    try {
        QPDF pdf;
        pdf.setSuppressWarnings(true);
        pdf.setAttemptRecovery(false);
        pdf.processMemoryFile("document", bytes.constData(), std::size_t(bytes.size()));
        Object trailer = pdf.getTrailer();
        trailer.replaceKey("/ID", identifier(document));
        if (!trailer.hasKey("/Info"))
            trailer.replaceKey("/Info", pdf.makeIndirectObject(Object::newDictionary()));
        Object information = trailer.getKey("/Info");
        information.replaceKey("/Title", pdfText(document.title));
        information.replaceKey("/Author", pdfText(document.author));
        // Newer versions of Qt say it once more as XMP, with an identity by chance and without the author.
        pdf.getRoot().removeKey("/Metadata");
        if (!document.headings.empty()) addOutline(pdf, document);
        return written(pdf, bytes.size());
    } catch (const std::runtime_error &) { // its own QPDFExc, or since version 12 the base of that
        throw RuntimeError(321);
    }
}

} // namespace Printing
