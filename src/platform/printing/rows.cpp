#include "platform/printing/rows.h"

#include <algorithm>

namespace Printing {

namespace {

// Texts drawn by hand in one row don't always have the same top.
constexpr int SameRow = 100;
// Rows further apart are not of one table.
constexpr int LargestRowGap = 200;

bool isText(const Element &element) {
    return !element.isRule && element.pictureSize.isEmpty();
}

bool holdsHeight(const QRect &box, int y) {
    return y >= box.top() && y < box.top() + box.height();
}

bool isBeside(const QRect &a, const QRect &b) {
    return std::abs(a.top() - b.top()) <= SameRow ||
           (holdsHeight(a, b.center().y()) && holdsHeight(b, a.center().y()));
}

bool isLeftOf(const Element &a, const Element &b) {
    return a.box.left() < b.box.left();
}

bool isStackedOn(const Element &a, const Element &b) {
    const int common = std::min(a.box.right(), b.box.right()) - std::max(a.box.left(), b.box.left());
    return common * 2 > std::min(a.box.width(), b.box.width());
}

void joinStacked(Row &row, const Element &element) {
    if (row.cells.empty() || !isStackedOn(row.cells.back(), element)) {
        row.cells.push_back(element);
        return;
    }
    Element &cell = row.cells.back();
    if (!cell.text.isEmpty() && !element.text.isEmpty()) cell.text += QLatin1Char('\n');
    cell.text += element.text;
    cell.box |= element.box;
}

void joinPicture(Element &cell, const Element &picture) {
    cell.picture = picture.picture;
    cell.pictureSize = picture.pictureSize;
    cell.alternativeText = picture.alternativeText;
}

// Into the framed cell that it stands in, or to the only text that it stands beside.
bool joinPictureToText(std::vector<Row> &rows, const Element &picture) {
    for (Row &row : rows)
        for (Element &cell : row.cells) {
            if (isFramed(cell) && cell.box.contains(picture.box.center())) {
                joinPicture(cell, picture);
                return true;
            }
            if (!isFramed(cell) && row.cells.size() == 1 && cell.pictureSize.isEmpty() &&
                isBeside(cell.box, picture.box)) {
                joinPicture(cell, picture);
                const int left = std::min(cell.box.left(), picture.box.left());
                cell.box.setLeft(left);
                return true;
            }
        }
    return false;
}

bool hasBorder(const Row &row) {
    return std::any_of(row.cells.begin(), row.cells.end(),
                       [](const Element &cell) { return cell.Border.any(); });
}

// To the row that it is nearest to.
void joinRule(std::vector<Row> &rows, const QRect &rule) {
    Row *nearest = nullptr;
    int least = LargestRowGap + 1;
    bool isAbove = false;
    for (Row &row : rows)
        for (const bool above : {true, false}) {
            const int distance = above ? row.top() - rule.top() : rule.top() - row.bottom();
            if (distance < 0 || distance >= least) continue;
            nearest = &row;
            least = distance;
            isAbove = above;
        }
    if (nearest) (isAbove ? nearest->ruleAbove : nearest->ruleBelow) = true;
}

Block::Kind kindOf(const Row &row) {
    if (hasBorder(row)) return Block::Kind::Table;
    return row.cells.size() > 1 ? Block::Kind::Aligned : Block::Kind::Paragraph;
}

bool continues(const Block &block, Block::Kind kind, const Row &row) {
    return !block.rows.empty() && block.kind == kind && kind != Block::Kind::Paragraph &&
           row.top() - block.rows.back().bottom() <= LargestRowGap;
}

} // namespace

bool Row::headsNext() const {
    return std::any_of(cells.begin(), cells.end(), [](const Element &cell) { return cell.KeepWithNext; });
}

int Row::left() const {
    return cells.front().box.left();
}

int Row::right() const {
    return cells.back().box.left() + cells.back().box.width();
}

int Row::top() const {
    int top = cells.front().box.top();
    for (const Element &cell : cells)
        top = std::min(top, cell.box.top());
    return top;
}

int Row::bottom() const {
    int bottom = 0;
    for (const Element &cell : cells)
        bottom = std::max(bottom, cell.box.top() + cell.box.height());
    return bottom;
}

void sortForReading(std::vector<Element> &elements) {
    const auto texts = std::stable_partition(elements.begin(), elements.end(),
                                             [](const Element &element) { return !isText(element); });
    std::stable_sort(texts, elements.end(),
                     [](const Element &a, const Element &b) { return a.box.top() < b.box.top(); });
    for (auto row = texts; row != elements.end();) {
        const auto end = std::find_if(
            row, elements.end(), [&row](const Element &element) { return !isBeside(row->box, element.box); });
        const auto begin = row;
        row = end;
        std::stable_sort(begin, end, isLeftOf);
    }
}

std::vector<Row> rowsOf(const std::vector<Element> &elements) {
    std::vector<Row> rows;
    QRect seed;
    int lastLeft = 0;
    for (const Element &element : elements) {
        if (!isText(element)) continue;
        const bool sameRow = !rows.empty() && element.box.left() >= lastLeft && isBeside(seed, element.box);
        // An empty field keeps its place beside its caption, so that the caption stays in line with others.
        const bool isEmpty = element.text.isEmpty() && !isFramed(element);
        if (isEmpty && (!sameRow || isStackedOn(rows.back().cells.back(), element))) continue;
        if (!sameRow) {
            rows.emplace_back();
            seed = element.box;
        }
        lastLeft = element.box.left();
        joinStacked(rows.back(), element);
    }
    for (const Element &element : elements) {
        if (element.pictureSize.isEmpty() || (element.picture.isNull() && element.alternativeText.isEmpty()))
            continue;
        if (joinPictureToText(rows, element)) continue;
        const auto below = std::find_if(rows.begin(), rows.end(),
                                        [&element](const Row &row) { return row.top() > element.box.top(); });
        rows.insert(below, Row{{element}});
    }
    for (const Element &element : elements)
        if (element.isRule) joinRule(rows, element.box);
    return rows;
}

PackedList<Block> blocksOf(const Bands &bands) {
    PackedList<Block> blocks;
    Block block; // may still grow, unless it has no rows
    const auto begin = [&](Block::Kind kind) {
        if (!block.rows.empty()) blocks.append(block);
        block = {kind, {}};
    };
    int bandTop = 0;
    for (const auto &band : bands) {
        if (band->pageBreakBefore) {
            begin(Block::Kind::PageBreak);
            blocks.append(block);
        }
        std::vector<Row> rows = rowsOf(band->elements);
        for (Row &row : rows) {
            row.keepWithNext = band->keepHeight > 0 && &row != &rows.back();
            for (Element &cell : row.cells)
                cell.box.translate(0, bandTop);
            row.isHeading = band->isRepeatedHeading;
            const Block::Kind kind = kindOf(row);
            if (!continues(block, kind, row)) begin(kind);
            block.rows.push_back(std::move(row));
        }
        bandTop += band->height;
    }
    if (!block.rows.empty()) blocks.append(block);
    blocks.squeeze();
    return blocks;
}

} // namespace Printing
