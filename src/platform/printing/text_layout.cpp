#include "platform/printing/text_layout.h"

#include <cmath>

#include <QFontMetricsF>
#include <QRegularExpression>
#include <QTextLayout>

#include "platform/forms/number_blanks.h"
#include "platform/runtime/twips.h"

namespace Printing {

namespace {

// Between a frame or a filled ground and the text in it.
constexpr int SidePadding = 60;
constexpr int TopPadding = 25;
constexpr int NarrowBox = 500;
constexpr int NarrowPadding = 15;
constexpr double SmallestFont = 4;
constexpr QChar Ellipsis(0x2026);

int sidePadding(const Element &element) {
    if (!isFramed(element)) return 0;
    return isNarrow(element) ? NarrowPadding : SidePadding;
}

int topPadding(const Element &element) {
    return isFramed(element) ? TopPadding : 0;
}

int innerWidth(const Element &element) {
    return std::max(1, element.box.width() - 2 * sidePadding(element));
}

double widestWord(const QString &text, const TextFont &font) {
    const QFontMetricsF metrics(twipsFont(font));
    double widest = 0;
    static const QRegularExpression breaks(QStringLiteral("[ \t\n]+"));
    for (const QString &word : withUnbrokenNumbers(text).split(breaks))
        widest = std::max(widest, metrics.horizontalAdvance(word));
    return widest;
}

// A figure broken into its digits can't be read: in a cell, a word that is too wide is drawn smaller instead.
void shrinkToWords(Element &element) {
    if (!isFramed(element)) return;
    const double widest = widestWord(element.text, element.Font);
    if (widest <= innerWidth(element)) return;
    const double size = std::floor(2 * element.Font.Size * innerWidth(element) / widest) / 2;
    if (size >= SmallestFont) element.Font.Size = size;
}

// The layout would also break behind a hyphen or a slash: "[J/" and "kgK]".
void endAtBlank(QTextLine &line, const QString &text) {
    const int end = line.textStart() + line.textLength();
    if (end == text.size() || text[end - 1].isSpace()) return;
    const qsizetype blank = text.lastIndexOf(QLatin1Char(' '), end - 1);
    if (blank > line.textStart()) line.setNumColumns(int(blank) + 1 - line.textStart());
}

} // namespace

bool isNarrow(const Element &element) {
    return element.box.width() < NarrowBox;
}

QFont twipsFont(const TextFont &font) {
    QFont result;
    result.setFamilies({font.Name, QStringLiteral("Liberation Sans")});
    result.setPixelSize(std::max(1, qRound(font.Size * TwipsPerPoint)));
    result.setBold(font.Bold);
    result.setItalic(font.Italic);
    result.setHintingPreference(QFont::PreferNoHinting);
    return result;
}

QString printableText(QString text) {
    text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(QLatin1Char('\r'), QLatin1Char('\n'));
    text.removeIf([](QChar sign) {
        return sign.category() == QChar::Other_Control && sign != QLatin1Char('\n') &&
               sign != QLatin1Char('\t');
    });
    return text;
}

QString unbrokenText(const Element &element) {
    return withUnbrokenNumbers(element.text, QFontMetricsF(twipsFont(element.Font)), innerWidth(element));
}

void breakLines(Element &element, bool wordWrap) {
    element.text = printableText(element.text);
    element.lines.clear();
    if (element.text.isEmpty()) return;
    if (wordWrap) shrinkToWords(element);

    QString laidOut = element.text;
    laidOut.replace(QLatin1Char('\n'), QChar::LineSeparator);
    const QFont font = twipsFont(element.Font);
    QTextLayout layout(withUnbrokenNumbers(laidOut, QFontMetricsF(font), innerWidth(element)), font);
    QTextOption option;
    option.setWrapMode(wordWrap ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::ManualWrap);
    layout.setTextOption(option);
    layout.beginLayout();
    int top = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(innerWidth(element));
        endAtBlank(line, layout.text());
        TextLine broken;
        broken.start = line.textStart();
        broken.text = laidOut.mid(line.textStart(), line.textLength());
        while (!broken.text.isEmpty() && broken.text.back().isSpace())
            broken.text.chop(1);
        broken.top = top;
        broken.width = int(std::ceil(line.naturalTextWidth()));
        broken.height = int(std::ceil(line.height()));
        broken.ascent = int(std::ceil(line.ascent()));
        top += broken.height;
        element.lines.push_back(broken);
    }
    layout.endLayout();
}

int neededHeight(const Element &element) {
    if (element.lines.empty()) return 0;
    return element.lines.back().top + element.lines.back().height + 2 * topPadding(element);
}

void cutLinesToBox(Element &element) {
    if (element.lines.empty()) return;
    bool cut = false;
    while (element.lines.size() > 1 &&
           element.lines.back().top + element.lines.back().height > element.box.height()) {
        element.lines.pop_back();
        cut = true;
    }
    if (cut) element.lines.back().text += Ellipsis;
    const QFontMetricsF metrics(twipsFont(element.Font));
    for (TextLine &line : element.lines) {
        line.text = metrics.elidedText(line.text, Qt::ElideRight, innerWidth(element));
        line.width = int(std::ceil(metrics.horizontalAdvance(line.text)));
    }
}

void arrangeLines(Element &element) {
    if (element.lines.empty()) return;
    const int height = element.lines.back().top + element.lines.back().height - element.lines.front().top;
    const int free = element.box.height() - height;
    int top = topPadding(element);
    if (element.VerticalAlignment == 1) top = free / 2;
    if (element.VerticalAlignment == 2) top = free - topPadding(element);
    // A box of the line's own height still shows the whole line.
    top = std::max(std::min(top, free), 0);
    for (TextLine &line : element.lines) {
        const int spare = innerWidth(element) - line.width;
        const int shift = element.Alignment == 1 ? spare : element.Alignment == 2 ? spare / 2 : 0;
        line.left = sidePadding(element) + shift;
        line.top = top;
        top += line.height;
    }
}

} // namespace Printing
