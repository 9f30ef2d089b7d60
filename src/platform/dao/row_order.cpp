#include "platform/dao/row_order.h"

#include <algorithm>
#include <numeric>
#include <unordered_map>

#include "platform/dao/text_folding.h"

namespace {

/// Each row's place among the column's different values, from 0; rows that are alike have the same.
struct Ranks {
    std::vector<quint32> ofRow;
    quint32 count = 0;
};

/// A text with its beginning as a number, which decides most comparisons.
struct SortedText {
    std::string_view text;
    quint64 beginning = 0;
    bool isAscii = true; // of the beginning
    quint32 number = 0;
};

SortedText sortedText(std::string_view text, quint32 number) {
    SortedText result{text, 0, true, number};
    for (std::size_t i = 0; i < sizeof result.beginning; ++i) {
        const auto byte = static_cast<unsigned char>(i < text.size() ? text[i] : '\0');
        if (byte >= 0x80) result.isAscii = false;
        const bool isCapital = byte >= 'A' && byte <= 'Z';
        result.beginning = result.beginning << 8 | (isCapital ? byte + 32u : byte);
    }
    return result;
}

int compare(const SortedText &left, const SortedText &right) {
    if (left.isAscii && right.isAscii && left.beginning != right.beginning)
        return left.beginning < right.beginning ? -1 : 1;
    return compareTexts(left.text.data(), qsizetype(left.text.size()), right.text.data(),
                        qsizetype(right.text.size()));
}

/// `compare` of two of the sorted values tells whether they are alike; `numberOf` their number before.
template <typename Value, typename Compare, typename NumberOf>
std::vector<quint32> places(std::vector<Value> values, quint32 &count, Compare compare, NumberOf numberOf) {
    std::sort(values.begin(), values.end(),
              [&](const Value &left, const Value &right) { return compare(left, right) < 0; });
    std::vector<quint32> places(values.size());
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (i == 0 || compare(values[i - 1], values[i]) != 0) ++count;
        places[numberOf(values[i])] = count - 1;
    }
    return places;
}

/// `valueAt` gives the value of a row that is not Null.
template <typename Key, typename ValueAt, typename Place>
Ranks ranks(const TableColumns &table, int column, ValueAt valueAt, Place place) {
    Ranks result;
    std::unordered_map<Key, quint32> numbers;
    std::vector<Key> values;
    std::vector<quint32> numberOfRow(std::size_t(table.rowCount()));
    bool hasNull = false;
    for (int row = 0; row < table.rowCount(); ++row) {
        if (table.isNull(row, column)) {
            hasNull = true;
            continue;
        }
        const auto [found, isNew] = numbers.try_emplace(valueAt(row), quint32(values.size()));
        if (isNew) values.push_back(found->first);
        numberOfRow[std::size_t(row)] = found->second;
    }
    result.count = hasNull ? 1 : 0;
    const std::vector<quint32> places = place(values, result.count);
    result.ofRow.resize(numberOfRow.size());
    for (int row = 0; row < table.rowCount(); ++row)
        result.ofRow[std::size_t(row)] =
            table.isNull(row, column) ? 0 : places[numberOfRow[std::size_t(row)]];
    return result;
}

Ranks textRanks(const TableColumns &table, int column) {
    return ranks<std::string_view>(
        table, column, [&](int row) { return table.text(row, column); },
        [](const std::vector<std::string_view> &values, quint32 &count) {
            std::vector<SortedText> texts;
            for (const std::string_view value : values)
                texts.push_back(sortedText(value, quint32(texts.size())));
            return places(std::move(texts), count, compare,
                          [](const SortedText &text) { return text.number; });
        });
}

template <typename Number, typename ValueAt>
Ranks numberRanks(const TableColumns &table, int column, ValueAt valueAt) {
    return ranks<Number>(table, column, valueAt, [](const std::vector<Number> &values, quint32 &count) {
        using Numbered = std::pair<Number, quint32>;
        std::vector<Numbered> numbers;
        for (const Number value : values)
            numbers.emplace_back(value, quint32(numbers.size()));
        return places(
            std::move(numbers), count,
            [](const Numbered &left, const Numbered &right) {
                return left.first < right.first ? -1 : right.first < left.first ? 1 : 0;
            },
            [](const Numbered &value) { return value.second; });
    });
}

Ranks ranksOf(const TableColumns &table, int column) {
    const FieldType type = table.fields()[column].type;
    if (isTextType(type)) return textRanks(table, column);
    if (isKeptAsInteger(type))
        return numberRanks<qint32>(table, column, [&](int row) { return table.integer(row, column); });
    return numberRanks<double>(table, column, [&](int row) { return table.number(row, column); });
}

} // namespace

std::vector<int> orderedRows(const TableColumns &table, const std::vector<ColumnOrder> &order) {
    std::vector<int> rows(std::size_t(table.rowCount()));
    std::iota(rows.begin(), rows.end(), 1);
    // By the last column first; rows that are alike in one keep the order of those behind it.
    for (auto term = order.rbegin(); term != order.rend(); ++term) {
        const Ranks ranks = ranksOf(table, term->column);
        const auto rankOf = [&](int row) {
            const quint32 rank = ranks.ofRow[std::size_t(row - 1)];
            return std::size_t(term->descending ? ranks.count - 1 - rank : rank);
        };
        std::vector<std::size_t> begins(std::size_t(ranks.count) + 1);
        for (const int row : rows)
            ++begins[rankOf(row) + 1];
        std::partial_sum(begins.begin(), begins.end(), begins.begin());
        std::vector<int> sorted(rows.size());
        for (const int row : rows)
            sorted[begins[rankOf(row)]++] = row;
        rows.swap(sorted);
    }
    return rows;
}
