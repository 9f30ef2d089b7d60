#include "reports/table_parts.h"

#include <algorithm>

#include "exchange/taken_table.h"

namespace {

// Of the cells' font, in twips: digits are narrower, some capitals wider.
constexpr int Letter = 105;
constexpr int Margins = 170;
constexpr int Narrowest = 700;
constexpr int Widest = 2400;

/// The longest word of a text: what cannot be broken over lines.
int longestWord(const QString &text) {
    qsizetype longest = 0;
    for (const QString &word : text.split(QLatin1Char(' ')))
        longest = std::max(longest, word.size());
    return static_cast<int>(longest);
}

/// Cells stay on a line where there is room for them; headings go over several.
int widthOf(const TakenTable &table, int column) {
    int letters = std::max(longestWord(table.columns[column].heading),
                           static_cast<int>(table.columns[column].unit.size()) + 2);
    for (const QStringList &row : table.rows)
        for (const QString &line : row[column].split(QLatin1Char('\n')))
            letters = std::max(letters, static_cast<int>(line.size()));
    return std::clamp(letters * Letter + Margins, Narrowest, Widest);
}

} // namespace

QVector<TablePart> partsOf(const TakenTable &table, int room) {
    const int count = static_cast<int>(table.columns.size());
    const int keys = std::min(table.keyColumns, count);
    TablePart left;
    int taken = 0;
    for (int column = 0; column < keys; ++column) {
        left.columns << column;
        left.widths << std::min(widthOf(table, column), room / 2 / keys);
        taken += left.widths.last();
    }
    QVector<TablePart> parts;
    int used = room;
    for (int column = keys; column < count; ++column) {
        const int width = std::min(widthOf(table, column), room - taken);
        if (used + width > room) {
            parts << left;
            used = taken;
        }
        parts.last().columns << column;
        parts.last().widths << width;
        used += width;
    }
    if (parts.isEmpty()) parts << left;
    return parts;
}
