#include "platform/printing/text_output.h"

#include <optional>

#include "platform/printing/text_grid.h"
#include "platform/runtime/whole_file.h"

namespace Printing {

namespace {

// In twips.
constexpr int NextLineGap = 60;

QStringList paragraphLines(const Element &element) {
    const QString text = element.text.trimmed().isEmpty() ? element.alternativeText : element.text;
    if (text.isEmpty()) return {};
    QStringList lines = wrapText(text, LineCharacters);
    if (element.HeadingLevel > 0) {
        int width = 0;
        for (const QString &line : lines)
            width = std::max(width, int(line.size()));
        lines += QString(width, QLatin1Char(element.HeadingLevel == 1 ? '=' : '-'));
    }
    return lines;
}

QStringList blockLines(const Block &block) {
    if (block.kind == Block::Kind::Paragraph) return paragraphLines(block.rows.front().cells.front());
    if (block.kind == Block::Kind::PageBreak) return {QString()};
    return gridLines(block);
}

// Lines drawn directly under each other stay so.
bool isNextLine(const Block &above, const Block &below) {
    if (above.kind != Block::Kind::Paragraph || below.kind != Block::Kind::Paragraph) return false;
    const bool isHeading = above.rows[0].cells[0].HeadingLevel > 0 || below.rows[0].cells[0].HeadingLevel > 0;
    return !isHeading && below.rows[0].top() - above.rows[0].bottom() <= NextLineGap;
}

} // namespace

QString gridText(const Document &document) {
    QStringList lines;
    const auto add = [&lines](const QStringList &block, bool directly = false) {
        if (block.isEmpty()) return;
        if (!lines.isEmpty() && !directly) lines += QString();
        lines += block;
    };
    if (!document.pageHeader.empty()) add(gridLines({Block::Kind::Aligned, document.pageHeader}));
    std::optional<Block> above;
    for (Block block : document.blocks) {
        add(blockLines(block), above && isNextLine(*above, block));
        above = std::move(block);
    }
    if (!document.pageFooter.empty()) add(gridLines({Block::Kind::Aligned, document.pageFooter}));
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

void saveText(const Document &document, const QString &path) {
    writeWholeFile(path, gridText(document).toUtf8());
}

} // namespace Printing
