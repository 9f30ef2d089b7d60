#include "platform/printing/rtf_output.h"

#include <QBuffer>

#include "platform/printing/text_layout.h"
#include "platform/runtime/whole_file.h"

namespace Printing {

namespace {

constexpr int PictureDotsPerInch = 300;
constexpr int CellPadding = 60;
constexpr int HeadingLevels = 3;
// A table up to this part of a page is not parted.
constexpr int LargestWholeTable = 3;
// Boxes that were meant to touch may be drawn some twips apart.
constexpr int TouchingDistance = 20;

QByteArray number(int value) {
    return QByteArray::number(value);
}

QByteArray escaped(const QString &text) {
    QByteArray result;
    for (const QChar sign : text) {
        const char16_t code = sign.unicode();
        if (sign == QLatin1Char('\n'))
            result += "\\line ";
        else if (sign == QLatin1Char('\t'))
            result += "\\tab ";
        else if (code == '\\' || code == '{' || code == '}')
            result += '\\' + QByteArray(1, char(code));
        else if (code >= 0x20 && code < 0x7F)
            result += char(code);
        else if (sign == QChar::Nbsp)
            result += "\\~";
        else if (code > 0xA0)
            result += "\\u" + number(qint16(code)) + '?';
    }
    return result;
}

// In a framed cell the picture leaves the frame free and stands on the cell's ground.
QByteArray pictureGroup(const Element &element) {
    QSize size = element.pictureSize;
    if (element.Border.any()) size = size.boundedTo(element.box.size() - QSize(2 * CellPadding, CellPadding));
    QByteArray png;
    QBuffer buffer(&png);
    const QColor ground = element.BackStyle == 0 ? QColor(Qt::white) : element.BackColor;
    const QImage image = element.picture.toImage(size, PictureDotsPerInch, ground);
    image.save(&buffer, "PNG");
    return "{\\pict\\pngblip\\picw" + number(image.width()) + "\\pich" + number(image.height()) +
           "\\picwgoal" + number(size.width()) + "\\pichgoal" + number(size.height()) + '\n' + png.toHex() +
           '}';
}

class RtfWriter {
public:
    explicit RtfWriter(const Document &document)
        : m_document(document) {}

    QByteArray text();

private:
    void writeBlock(const Block &block);
    void writeTable(const Block &block);
    void writeRow(const Row &row, int left, int right, int height, bool keepWithNext);
    void writeParagraph(const Row &row);
    int pageHeight() const;
    void writePageRows(const char *destination, const std::vector<Row> &rows);
    QByteArray content(const Element &element);
    QByteArray characterFormat(const Element &element);
    QByteArray cellDefinition(const Row &row, const Element &cell);
    QByteArray filler(int right) const;
    int colour(const QColor &value);
    int font(const QString &name);
    QByteArray head() const;

    const Document &m_document;
    QByteArray m_body;
    std::vector<QColor> m_colours;
    QStringList m_fonts;
    int m_bottom = 0; // of what has been written, in twips of the endless page
    bool m_afterTable = false;
    bool m_pageBreak = false;
};

QByteArray RtfWriter::text() {
    font(QStringLiteral("Arial"));
    writePageRows("header", m_document.pageHeader);
    writePageRows("footer", m_document.pageFooter);
    for (const Block &block : m_document.blocks)
        writeBlock(block);
    // A reader wants a paragraph behind a table.
    if (m_afterTable) m_body += "\\pard\\plain\\fs4\\par\n";
    return head() + m_body + "}\n";
}

QByteArray RtfWriter::head() const {
    const PageSettings &page = m_document.pageSettings;
    QByteArray head = "{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1\n{\\fonttbl";
    for (int i = 0; i < m_fonts.size(); ++i)
        head += "{\\f" + number(i) + "\\fswiss\\fcharset0 " + escaped(m_fonts[i]) + ";}";
    head += "}\n{\\colortbl;";
    for (const QColor &value : m_colours)
        head += "\\red" + number(value.red()) + "\\green" + number(value.green()) + "\\blue" +
                number(value.blue()) + ';';
    head += "}\n{\\stylesheet{\\s0 Normal;}";
    for (int level = 1; level <= HeadingLevels; ++level)
        head += "{\\s" + number(level) + "\\outlinelevel" + number(level - 1) + "\\sbasedon0 heading " +
                number(level) + ";}";
    head += "}\n{\\info{\\title " + escaped(m_document.title) + "}{\\author " + escaped(m_document.author) +
            "}}\n";
    return head + "\\paperw" + number(page.PaperWidth) + "\\paperh" + number(page.PaperHeight) + "\\margl" +
           number(page.LeftMargin) + "\\margr" + number(page.RightMargin) + "\\margt" +
           number(page.TopMargin + m_document.pageHeaderHeight) + "\\margb" +
           number(page.BottomMargin + m_document.pageFooterHeight) + "\\headery" + number(page.TopMargin) +
           "\\footery" + number(page.BottomMargin) + '\n';
}

int RtfWriter::colour(const QColor &value) {
    const auto known = std::find(m_colours.begin(), m_colours.end(), value);
    const auto index = known - m_colours.begin();
    if (known == m_colours.end()) m_colours.push_back(value);
    return int(index) + 1; // 0 is the reader's own
}

int RtfWriter::font(const QString &name) {
    if (!m_fonts.contains(name)) m_fonts.push_back(name);
    return int(m_fonts.indexOf(name));
}

QByteArray RtfWriter::characterFormat(const Element &element) {
    return "\\plain\\f" + number(font(element.Font.Name)) + "\\fs" + number(qRound(element.Font.Size * 2)) +
           (element.Font.Bold ? "\\b" : "") + (element.Font.Italic ? "\\i" : "") + "\\cf" +
           number(colour(element.ForeColor)) + ' ';
}

QByteArray RtfWriter::content(const Element &element) {
    QByteArray result = characterFormat(element);
    if (!element.picture.isNull()) result += pictureGroup(element);
    if (!element.picture.isNull() && !element.text.isEmpty()) result += ' ';
    if (element.pageValue == PageValue::None)
        result += escaped(unbrokenText(element));
    else
        result += QByteArray("{\\field{\\*\\fldinst ") +
                  (element.pageValue == PageValue::PageNumber ? "PAGE" : "NUMPAGES") + "}{\\fldrslt " +
                  escaped(element.text) + "}}";
    return result;
}

const char *alignment(const Element &element) {
    return element.Alignment == 1 ? "\\qr" : element.Alignment == 2 ? "\\qc" : "\\ql";
}

// Of a paragraph. A row of cells has its rules at the cells' borders.
QByteArray rules(const Row &row) {
    QByteArray result;
    if (row.ruleAbove) result += "\\brdrt\\brdrs\\brdrw8\\brsp40";
    if (row.ruleBelow) result += "\\brdrb\\brdrs\\brdrw8";
    return result;
}

void RtfWriter::writeBlock(const Block &block) {
    if (block.kind == Block::Kind::PageBreak) {
        m_pageBreak = true;
        return;
    }
    if (block.kind == Block::Kind::Paragraph)
        for (const Row &row : block.rows)
            writeParagraph(row);
    else
        writeTable(block);
    m_bottom = block.rows.back().bottom();
}

void RtfWriter::writeParagraph(const Row &row) {
    const Element &element = row.cells.front();
    const int right = std::max(0, m_document.printWidth() - element.box.left() - element.box.width());
    m_body += "\\pard\\plain";
    if (m_pageBreak) m_body += "\\pagebb";
    if (element.HeadingLevel > 0) {
        const int level = std::min(element.HeadingLevel, HeadingLevels);
        m_body += "\\s" + number(level) + "\\outlinelevel" + number(level - 1);
    }
    if (element.HeadingLevel > 0 || element.KeepWithNext || row.keepWithNext) m_body += "\\keepn";
    m_body += rules(row) + alignment(element);
    m_body += "\\li" + number(element.box.left()) + "\\ri" + number(right) + "\\sb" +
              number(std::max(0, row.top() - m_bottom)) + ' ' + content(element) + "\\par\n";
    m_pageBreak = false;
    m_afterTable = false;
}

void RtfWriter::writeTable(const Block &block) {
    // Between two tables, and for the distance to what stands above, an empty line of just that height.
    const int gap = std::max(block.rows.front().top() - m_bottom, m_afterTable ? 1 : 0);
    if (gap > 0 || m_pageBreak)
        m_body += QByteArray("\\pard\\plain") + (m_pageBreak ? "\\pagebb" : "") + "\\keepn\\fs2\\sl-" +
                  number(std::max(gap, 20)) + "\\slmult0\\par\n";
    m_pageBreak = false;
    int left = block.rows.front().left();
    int right = 0;
    for (const Row &row : block.rows) {
        left = std::min(left, row.left());
        right = std::max(right, row.right());
    }
    // A longer one may leave too much of a page empty; its captions keep with its first row.
    const bool staysWhole =
        block.rows.back().bottom() - block.rows.front().top() <= pageHeight() / LargestWholeTable;
    for (std::size_t i = 0; i < block.rows.size(); ++i) {
        const Row &row = block.rows[i];
        const bool isLast = i + 1 == block.rows.size();
        // Without a frame, the distance to the next row may be the row's.
        const bool takesGap = block.kind == Block::Kind::Aligned && !isLast;
        const int height = (takesGap ? block.rows[i + 1].top() : row.bottom()) - row.top();
        const bool keeps = staysWhole || i == 0 || row.isHeading || row.headsNext();
        writeRow(row, left, right, height, keeps && !isLast);
    }
    m_afterTable = true;
}

// What a page leaves for the content.
int RtfWriter::pageHeight() const {
    const PageSettings &page = m_document.pageSettings;
    return page.PaperHeight - page.TopMargin - page.BottomMargin - m_document.pageHeaderHeight -
           m_document.pageFooterHeight;
}

QByteArray RtfWriter::cellDefinition(const Row &row, const Element &cell) {
    const auto side = [](const char *word, int style) {
        return style == 0 ? QByteArray() : QByteArray(word) + "\\brdrs\\brdrw8";
    };
    QByteArray result = cell.VerticalAlignment == 1   ? "\\clvertalc"
                        : cell.VerticalAlignment == 2 ? "\\clvertalb"
                                                      : "\\clvertalt";
    result += side("\\clbrdrt", row.ruleAbove ? 1 : cell.Border.TopStyle) +
              side("\\clbrdrl", cell.Border.LeftStyle) +
              side("\\clbrdrb", row.ruleBelow ? 1 : cell.Border.BottomStyle) +
              side("\\clbrdrr", cell.Border.RightStyle);
    if (cell.BackStyle != 0) result += "\\clcbpat" + number(colour(cell.BackColor));
    return result + "\\cellx" + number(cell.box.left() + cell.box.width());
}

QByteArray RtfWriter::filler(int right) const {
    return "\\clvertalt\\cellx" + number(right);
}

// All rows of a table go from its left to its right edge; a gap becomes an empty cell.
void RtfWriter::writeRow(const Row &row, int left, int right, int height, bool keepWithNext) {
    // The distance to the frame is the paragraphs' own: readers disagree on where a padded cell begins.
    m_body += "\\trowd\\trgaph0\\trleft" + number(left) + "\\trkeep";
    if (row.isHeading) m_body += "\\trhdr";
    m_body += "\\trrh" + number(height);
    QByteArray contents;
    int reached = left;
    const auto fill = [&](int edge) {
        if (edge - reached <= TouchingDistance) return;
        m_body += filler(edge);
        contents += "\\pard\\plain\\intbl\\cell\n";
    };
    for (const Element &cell : row.cells) {
        fill(cell.box.left());
        m_body += cellDefinition(row, cell);
        contents += QByteArray("\\pard\\plain\\intbl") + (keepWithNext ? "\\keepn" : "") + alignment(cell);
        if (cell.Border.any() && !isNarrow(cell))
            contents += "\\li" + number(CellPadding) + "\\ri" + number(CellPadding);
        if (cell.HeadingLevel > 0)
            contents += "\\s" + number(std::min(cell.HeadingLevel, HeadingLevels)) + "\\keepn";
        contents += content(cell) + "\\cell\n";
        reached = cell.box.left() + cell.box.width();
    }
    fill(right);
    m_body += '\n' + contents + "\\row\n";
}

// One line with a tab stop for each text.
void RtfWriter::writePageRows(const char *destination, const std::vector<Row> &rows) {
    if (rows.empty()) return;
    m_body += QByteArray("{\\") + destination + '\n';
    int bottom = 0;
    for (const Row &row : rows) {
        QByteArray stops;
        QByteArray texts;
        for (const Element &cell : row.cells) {
            const int left = cell.box.left();
            const int width = cell.box.width();
            if (cell.Alignment == 1)
                stops += "\\tqr\\tx" + number(left + width);
            else if (cell.Alignment == 2)
                stops += "\\tqc\\tx" + number(left + width / 2);
            else if (left > 0)
                stops += "\\tx" + number(left);
            if (cell.Alignment != 0 || left > 0) texts += "\\tab ";
            texts += content(cell);
        }
        m_body += "\\pard\\plain" + rules(row) + "\\sb" + number(std::max(0, row.top() - bottom)) + stops +
                  ' ' + texts + "\\par\n";
        bottom = row.bottom();
    }
    m_body += "}\n";
}

} // namespace

QByteArray rtfText(const Document &document) {
    return RtfWriter(document).text();
}

void saveRtf(const Document &document, const QString &path) {
    writeWholeFile(path, rtfText(document));
}

} // namespace Printing
