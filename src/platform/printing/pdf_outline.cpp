#include "platform/printing/pdf_outline.h"

#include <QMap>
#include <QRegularExpression>

#include "platform/runtime/runtime_error.h"
#include "platform/runtime/twips.h"

namespace Printing {

namespace {

QByteArray pdfText(const QString &text) {
    QByteArray hex = "<FEFF";
    for (const QChar sign : text)
        hex += QByteArray::number(sign.unicode(), 16).rightJustified(4, '0').toUpper();
    return hex + '>';
}

QByteArray reference(int object) {
    return QByteArray::number(object) + " 0 R";
}

QByteArray captured(const QByteArray &text, const char *pattern) {
    const auto match =
        QRegularExpression(QLatin1String(pattern), QRegularExpression::DotMatchesEverythingOption)
            .match(QString::fromLatin1(text));
    if (!match.hasMatch()) throw RuntimeError(321);
    return match.captured(1).toLatin1();
}

// The file as QPdfWriter leaves it: one cross-reference table, objects without compression.
class WrittenPdf {
public:
    explicit WrittenPdf(const QByteArray &bytes)
        : m_bytes(bytes)
        , m_crossReference(captured(bytes.right(64), R"(startxref\s+(\d+))").toLongLong())
        , m_trailer(bytes.mid(bytes.indexOf("trailer", m_crossReference))) {}

    qint64 crossReference() const { return m_crossReference; }
    int size() const { return captured(m_trailer, R"(/Size (\d+))").toInt(); }
    int root() const { return captured(m_trailer, R"(/Root (\d+))").toInt(); }
    int info() const { return captured(m_trailer, R"(/Info (\d+))").toInt(); }

    /// What stands between the outermost << and >> of an object.
    QByteArray dictionary(int object) const {
        const QByteArray table = m_bytes.mid(m_crossReference);
        // Each line of the table has 20 bytes; two lines stand before the first.
        const qsizetype firstLine = table.indexOf('\n', table.indexOf('\n') + 1) + 1;
        const qint64 offset = table.mid(firstLine + object * 20, 10).toLongLong();
        const qsizetype end = m_bytes.indexOf("endobj", offset);
        const qsizetype open = m_bytes.indexOf("<<", offset);
        const qsizetype close = m_bytes.lastIndexOf(">>", end);
        if (open < 0 || close < open || end < 0) throw RuntimeError(321);
        return m_bytes.mid(open + 2, close - open - 2);
    }

    std::vector<int> pages() const {
        const QByteArray tree = dictionary(captured(dictionary(root()), R"(/Pages (\d+))").toInt());
        const QByteArray kids = captured(tree, R"(/Kids\s*\[([^\]]*)\])");
        std::vector<int> result;
        static const QRegularExpression number(QStringLiteral(R"((\d+) 0 R)"));
        auto matches = number.globalMatch(QString::fromLatin1(kids));
        while (matches.hasNext())
            result.push_back(matches.next().captured(1).toInt());
        return result;
    }

private:
    const QByteArray &m_bytes;
    qint64 m_crossReference;
    QByteArray m_trailer;
};

struct OutlineItem {
    int parent = -1; // -1 is the outline itself
    std::vector<int> children;
};

// A heading belongs to the last one before it of a lower level.
std::vector<OutlineItem> outlineTree(const std::vector<Heading> &headings, std::vector<int> &topItems) {
    std::vector<OutlineItem> items(headings.size());
    for (std::size_t i = 0; i < headings.size(); ++i) {
        int parent = int(i) - 1;
        while (parent >= 0 && headings[std::size_t(parent)].level >= headings[i].level)
            parent = items[std::size_t(parent)].parent;
        items[i].parent = parent;
        (parent < 0 ? topItems : items[std::size_t(parent)].children).push_back(int(i));
    }
    return items;
}

using Objects = QMap<int, QByteArray>;

QByteArray childEntries(const std::vector<int> &children, int firstItem, int shown) {
    if (children.empty()) return {};
    return "/First " + reference(firstItem + children.front()) + " /Last " +
           reference(firstItem + children.back()) + " /Count " + QByteArray::number(shown) + '\n';
}

void addOutline(Objects &objects, const WrittenPdf &pdf, const Document &document) {
    const int outline = pdf.size();
    const int firstItem = outline + 1;
    const std::vector<int> pages = pdf.pages();
    std::vector<int> topItems;
    const std::vector<OutlineItem> items = outlineTree(document.headings, topItems);
    // One document's sections are shown at once; of several documents in one file, only their titles.
    const bool isOpen = topItems.size() == 1;
    const std::size_t shown =
        topItems.size() + (isOpen ? items[std::size_t(topItems[0])].children.size() : 0);
    objects[outline] = "/Type /Outlines\n" + childEntries(topItems, firstItem, int(shown));
    for (std::size_t i = 0; i < items.size(); ++i) {
        const Heading &heading = document.headings[i];
        const std::vector<int> &siblings =
            items[i].parent < 0 ? topItems : items[std::size_t(items[i].parent)].children;
        const auto place = std::find(siblings.begin(), siblings.end(), int(i));
        const int parent = items[i].parent < 0 ? outline : firstItem + items[i].parent;
        const double y = double(document.pageSettings.PaperHeight - heading.top) / TwipsPerPoint;
        QByteArray entry = "/Title " + pdfText(heading.text) + "\n/Parent " + reference(parent) + '\n';
        if (place != siblings.begin()) entry += "/Prev " + reference(firstItem + *(place - 1)) + '\n';
        if (place + 1 != siblings.end()) entry += "/Next " + reference(firstItem + *(place + 1)) + '\n';
        // A negative count is a closed entry.
        const int count = int(items[i].children.size());
        entry += childEntries(items[i].children, firstItem, isOpen && items[i].parent < 0 ? count : -count);
        entry += "/Dest [" + reference(pages.at(std::size_t(heading.page))) + " /XYZ null " +
                 QByteArray::number(y, 'f', 1) + " null]\n";
        objects[firstItem + int(i)] = entry;
    }
    objects[pdf.root()] =
        pdf.dictionary(pdf.root()) + "/Outlines " + reference(outline) + "\n/PageMode /UseOutlines\n";
}

QByteArray update(const QByteArray &bytes, const WrittenPdf &pdf, const Objects &objects) {
    QByteArray result = bytes;
    QByteArray table = "xref\n";
    for (auto object = objects.begin(); object != objects.end(); ++object) {
        table += QByteArray::number(object.key()) + " 1\n" +
                 QByteArray::number(result.size()).rightJustified(10, '0') + " 00000 n \n";
        result += QByteArray::number(object.key()) + " 0 obj\n<<" + object.value() + ">>\nendobj\n";
    }
    const int size = std::max(pdf.size(), objects.lastKey() + 1);
    const qsizetype start = result.size();
    result += table + "trailer\n<<\n/Size " + QByteArray::number(size) + "\n/Info " + reference(pdf.info()) +
              "\n/Root " + reference(pdf.root()) + "\n/Prev " + QByteArray::number(pdf.crossReference()) +
              "\n>>\nstartxref\n" + QByteArray::number(start) + "\n%%EOF\n";
    return result;
}

} // namespace

QByteArray withOutline(const QByteArray &pdf, const Document &document) {
    const WrittenPdf written(pdf);
    Objects objects;
    objects[written.info()] =
        written.dictionary(written.info()) + "/Author " + pdfText(document.author) + '\n';
    if (!document.headings.empty()) addOutline(objects, written, document);
    return update(pdf, written, objects);
}

} // namespace Printing
