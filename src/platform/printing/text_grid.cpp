#include "platform/printing/text_grid.h"

#include <algorithm>
#include <numeric>
#include <span>

#include "platform/forms/number_blanks.h"

namespace Printing {

namespace {

// Left edges this close are of one column.
constexpr int SameEdge = 60;

struct GridCell {
    int column = 0;
    int span = 1;
    int alignment = 0;
    QString text;
};

struct GridRow {
    std::vector<GridCell> cells;
    bool isHeading = false;
    bool headsNext = false;
};

int longest(const QStringList &pieces) {
    int width = 0;
    for (const QString &piece : pieces)
        width = std::max(width, int(piece.size()));
    return width;
}

int longestLine(const QString &text) {
    return longest(text.split(QLatin1Char('\n')));
}

// A number with blanks between its digits is one word.
QStringList wordsOf(QString text) {
    text.replace(QLatin1Char('\t'), QLatin1Char(' '));
    return withUnbrokenNumbers(text).split(QLatin1Char(' '));
}

int longestWord(const QString &text) {
    int width = 0;
    for (const QString &line : text.split(QLatin1Char('\n')))
        width = std::max(width, longest(wordsOf(line)));
    return width;
}

QString trimmedEnd(QString line) {
    while (line.endsWith(QLatin1Char(' ')))
        line.chop(1);
    return line;
}

QString aligned(const QString &text, int width, int alignment) {
    const int spare = std::max(0, width - int(text.size()));
    const int before = alignment == 1 ? spare : alignment == 2 ? spare / 2 : 0;
    return QString(before, QLatin1Char(' ')) + text + QString(spare - before, QLatin1Char(' '));
}

QString textOf(const Element &cell) {
    // A text file is one page.
    if (cell.pageValue != PageValue::None) return QStringLiteral("1");
    QStringList lines = cell.text.split(QLatin1Char('\n'));
    for (QString &line : lines)
        line = line.trimmed();
    QString text = lines.join(QLatin1Char('\n')).trimmed();
    if (cell.alternativeText.isEmpty()) return text;
    return text.isEmpty() ? cell.alternativeText : cell.alternativeText + QLatin1Char('\n') + text;
}

class Grid {
public:
    explicit Grid(const Block &block);
    QStringList lines();

private:
    void findColumns(const Block &block);
    int columnAt(int edge) const;
    void findWidths();
    void shrink();
    int widthOf(std::span<const int> columns) const;
    std::span<const int> spanned(const GridCell &cell) const;
    std::vector<std::vector<int>> parts() const;
    QStringList partLines(const std::vector<int> &columns) const;
    QStringList rowLines(const GridRow &row, std::span<const int> columns) const;
    QString rule(const std::vector<int> &columns) const;

    bool m_isTable;
    QString m_gap;
    std::vector<int> m_edges;
    std::vector<int> m_columns; // 0, 1, 2, ...
    std::vector<GridRow> m_rows;
    std::vector<int> m_widths;
    std::vector<int> m_leastWidths;
};

Grid::Grid(const Block &block)
    : m_isTable(block.kind == Block::Kind::Table)
    , m_gap(m_isTable ? QStringLiteral(" | ") : QStringLiteral("  ")) {
    findColumns(block);
    for (const Row &row : block.rows) {
        GridRow gridRow;
        gridRow.isHeading = row.isHeading || row.cells.front().BackStyle != 0;
        gridRow.headsNext = row.headsNext();
        int reached = 0;
        for (const Element &cell : row.cells) {
            const int column = columnAt(cell.box.left());
            const int end = columnAt(cell.box.left() + cell.box.width());
            // A row that lacks cells still has its bars.
            while (m_isTable && reached < column)
                gridRow.cells.push_back({reached++, 1, 0, {}});
            gridRow.cells.push_back({column, std::max(1, end - column), cell.Alignment, textOf(cell)});
            reached = std::max(column + 1, end);
        }
        m_rows.push_back(std::move(gridRow));
    }
    findWidths();
    shrink();
}

void Grid::findColumns(const Block &block) {
    std::vector<int> lefts;
    for (const Row &row : block.rows)
        for (const Element &cell : row.cells)
            lefts.push_back(cell.box.left());
    std::sort(lefts.begin(), lefts.end());
    for (const int left : lefts)
        if (m_edges.empty() || left - m_edges.back() > SameEdge) m_edges.push_back(left);
    m_columns.resize(m_edges.size());
    std::iota(m_columns.begin(), m_columns.end(), 0);
}

// The number of columns for an edge right of all cells' left edges.
int Grid::columnAt(int edge) const {
    const auto column = std::lower_bound(m_edges.begin(), m_edges.end(), edge - SameEdge);
    return int(column - m_edges.begin());
}

int Grid::widthOf(std::span<const int> columns) const {
    int width = 0;
    for (const int column : columns)
        width += m_widths[std::size_t(column)] + (width > 0 ? int(m_gap.size()) : 0);
    return width;
}

std::span<const int> Grid::spanned(const GridCell &cell) const {
    return std::span<const int>(m_columns).subspan(std::size_t(cell.column), std::size_t(cell.span));
}

void Grid::findWidths() {
    m_widths.assign(m_edges.size(), 0);
    m_leastWidths.assign(m_edges.size(), 0);
    for (const GridRow &row : m_rows)
        for (const GridCell &cell : row.cells) {
            if (cell.span != 1) continue;
            const auto column = std::size_t(cell.column);
            m_widths[column] = std::max(m_widths[column], longestLine(cell.text));
            m_leastWidths[column] = std::max(m_leastWidths[column], longestWord(cell.text));
        }
    for (const GridRow &row : m_rows)
        for (const GridCell &cell : row.cells) {
            if (cell.span == 1) continue;
            const int missing = longestLine(cell.text) - widthOf(spanned(cell));
            const auto last = std::size_t(cell.column + cell.span - 1);
            if (missing > 0) m_widths[last] += missing;
            m_leastWidths[last] = std::max(m_leastWidths[last],
                                           m_widths[last] + longestWord(cell.text) - widthOf(spanned(cell)));
        }
}

// Takes from the widest columns, which hold running text, until the line is narrow enough.
void Grid::shrink() {
    int surplus = widthOf(m_columns) - LineCharacters;
    while (surplus-- > 0) {
        std::size_t widest = m_widths.size();
        for (std::size_t i = 0; i < m_widths.size(); ++i)
            if (m_widths[i] > m_leastWidths[i] &&
                (widest == m_widths.size() || m_widths[i] > m_widths[widest]))
                widest = i;
        if (widest == m_widths.size()) return;
        --m_widths[widest];
    }
}

// What does not fit on the line goes on below, behind the first column again.
std::vector<std::vector<int>> Grid::parts() const {
    std::vector<std::vector<int>> parts = {{0}};
    for (int column = 1; column < int(m_columns.size()); ++column) {
        std::vector<int> wider = parts.back();
        wider.push_back(column);
        if (widthOf(wider) <= LineCharacters || parts.back().size() == 1)
            parts.back() = wider;
        else
            parts.push_back({0, column});
    }
    return parts;
}

QStringList Grid::lines() {
    QStringList result;
    for (const std::vector<int> &columns : parts()) {
        if (!result.isEmpty()) result += QString();
        result += partLines(columns);
    }
    return result;
}

QStringList Grid::partLines(const std::vector<int> &columns) const {
    QStringList result;
    int linesAbove = 0;
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        const QStringList lines = rowLines(m_rows[i], columns);
        if (m_isTable && i > 0 && !m_rows[i - 1].headsNext &&
            (m_rows[i].isHeading != m_rows[i - 1].isHeading || m_rows[i].headsNext || linesAbove > 1 ||
             lines.size() > 1))
            result += rule(columns);
        result += lines;
        linesAbove = int(lines.size());
    }
    return result;
}

QString Grid::rule(const std::vector<int> &columns) const {
    QStringList pieces;
    for (const int column : columns)
        pieces += QString(m_widths[std::size_t(column)], QLatin1Char('-'));
    return pieces.join(QLatin1String("-+-"));
}

QStringList Grid::rowLines(const GridRow &row, std::span<const int> columns) const {
    struct Piece {
        int left;
        int width;
        bool touchesLast;
        int alignment;
        QStringList lines;
    };
    std::vector<Piece> pieces;
    qsizetype height = 0;
    std::size_t reached = 0;
    for (const GridCell &cell : row.cells) {
        const auto place = std::find(columns.begin(), columns.end(), cell.column);
        if (place == columns.end()) continue;
        const auto first = std::size_t(place - columns.begin());
        const std::size_t count = std::min(std::size_t(cell.span), columns.size() - first);
        const int width = widthOf(columns.subspan(first, count));
        const int left = first > 0 ? widthOf(columns.first(first)) + int(m_gap.size()) : 0;
        pieces.push_back(
            {left, width, first > 0 && reached == first, cell.alignment, wrapText(cell.text, width)});
        height = std::max(height, pieces.back().lines.size());
        reached = first + count;
    }
    QStringList result;
    for (qsizetype i = 0; i < height; ++i) {
        QString line;
        for (const Piece &piece : pieces) {
            line = piece.touchesLast ? line.leftJustified(piece.left - int(m_gap.size())) + m_gap
                                     : line.leftJustified(piece.left);
            line += aligned(piece.lines.value(i), piece.width, piece.alignment);
        }
        result += line;
    }
    return result;
}

} // namespace

QStringList wrapText(const QString &text, int width) {
    QStringList result;
    for (const QString &paragraph : text.split(QLatin1Char('\n'))) {
        QString line;
        for (const QString &word : wordsOf(paragraph)) {
            if (!line.isEmpty() && line.size() + 1 + word.size() > width) {
                result += trimmedEnd(line);
                line.clear();
            }
            if (!line.isEmpty()) line += QLatin1Char(' ');
            line += word;
        }
        result += trimmedEnd(line);
    }
    for (QString &line : result)
        line.replace(QChar::Nbsp, QLatin1Char(' '));
    return result;
}

QStringList gridLines(const Block &block) {
    QStringList lines = Grid(block).lines();
    for (QString &line : lines)
        line = trimmedEnd(line);
    return lines;
}

} // namespace Printing
