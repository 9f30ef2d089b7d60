#include "table_reader/table_search.h"

#include <algorithm>

#include "table_reader/bytes.h"
#include "table_reader/damaged.h"
#include "table_reader/key_match.h"

using keyMatch::isAscii;
using keyMatch::mayBeEqual;

namespace {

constexpr std::size_t PagesBetweenLooks = 64;

/// False where the text has characters whose other capitals are not known here.
bool addText(KeyHash &hash, std::u16string_view text) {
    keyMatch::addNarrow(hash, keyMatch::narrowed(text));
    return std::all_of(text.begin(), text.end(), [](char16_t unit) { return isAscii(unit); });
}

std::int32_t integerOf(const Column &column, const CellBytes &cell) {
    if (cell.size < column.storedSize) throw Damaged("number cut off");
    switch (column.type) {
    case TableProtocol::CellType::Byte:
        return cell.data[0];
    case TableProtocol::CellType::Integer:
        return static_cast<std::int16_t>(bytes::u16(cell.data));
    default:
        return static_cast<std::int32_t>(bytes::u32(cell.data));
    }
}

std::uint32_t markOf(const std::vector<Condition> &conditions) {
    KeyHash key;
    bool known = !conditions.empty();
    for (const Condition &condition : conditions) {
        if (condition.isText)
            known = addText(key, condition.text) && known;
        else
            key.add(static_cast<std::uint32_t>(condition.integer));
    }
    return known ? KeyRuns::mark(key.value()) : KeyRuns::AnyKey;
}

} // namespace

TableSearch::TableSearch(const AccessFile &file, const Table &table)
    : m_table(table)
    , m_jet3(file.isJet3())
    , m_texts(file.texts())
    , m_scan(file, table)
    , m_writer(file, table) {}

TableSearch::Notes &TableSearch::start(std::vector<Condition> &conditions) {
    std::sort(conditions.begin(), conditions.end(),
              [](const Condition &a, const Condition &b) { return a.column < b.column; });
    m_cells.resize(conditions.size());
    m_lastKey.start(m_table, m_jet3, conditions);
    m_lastInteger.reset();
    std::vector<std::size_t> columns;
    for (const Condition &condition : conditions)
        columns.push_back(condition.column);
    const auto known = std::find_if(m_notes.begin(), m_notes.end(),
                                    [&](const Notes &notes) { return notes.columns == columns; });
    if (known != m_notes.end()) return *known;
    m_notes.emplace_back();
    m_notes.back().columns = std::move(columns);
    return m_notes.back();
}

void TableSearch::run(std::vector<Condition> conditions, Reply &reply) {
    m_writer.restart();
    Notes &notes = start(conditions);
    searchNotedPages(notes, conditions, reply);
    while (notes.pages < m_scan.pages().size()) {
        searchNewPage(notes, conditions, &reply);
        if (notes.pages % PagesBetweenLooks == 0) reply.stillBusy();
    }
    // A page that another use has taken, or that the map has lost, leaves no other trace than this.
    if (notes.rows != m_table.rows) throw Damaged("rows that cannot be found");
}

bool TableSearch::lookAhead(const std::vector<std::size_t> &columns, std::size_t pages) {
    std::vector<Condition> conditions(columns.size());
    for (std::size_t i = 0; i < columns.size(); ++i) {
        conditions[i].column = columns[i];
        conditions[i].isText = m_table.columns[columns[i]].type == TableProtocol::CellType::Text;
    }
    Notes &notes = start(conditions);
    for (; pages > 0 && notes.pages < m_scan.pages().size(); --pages)
        searchNewPage(notes, conditions, nullptr);
    return notes.pages < m_scan.pages().size();
}

void TableSearch::searchNewPage(Notes &notes, const std::vector<Condition> &conditions, Reply *reply) {
    std::uint32_t last = KeyRuns::NoKey;
    std::uint64_t rows = 0;
    const auto place = static_cast<std::int64_t>(notes.pages);
    // A copy of the row goes on, so that it need not be in memory where the last key is enough.
    m_scan.visit(m_scan.pages()[notes.pages], [&](const Row &row) {
        const Match found = m_lastKey.isOf(row) ? m_lastMatch : match(Row(row), conditions);
        if (notes.hasRoom && (rows == 0 || found.mark != last)) {
            last = found.mark;
            notes.hasRoom = notes.runs.add(place, last);
            if (!notes.hasRoom) notes.runs = {};
        }
        if (found.found && reply) m_writer.write(Row(row), *reply);
        ++rows;
    });
    ++notes.pages;
    notes.rows += rows;
}

void TableSearch::searchNotedPages(const Notes &notes, const std::vector<Condition> &conditions,
                                   Reply &reply) {
    if (!notes.hasRoom) {
        for (std::size_t place = 0; place < notes.pages; ++place)
            searchPage(place, conditions, reply);
        return;
    }
    std::size_t next = 0;
    for (const KeyRuns::Range &range : notes.runs.ranges(markOf(conditions))) {
        // The page of the next run has this one's end.
        const bool isLast = range.last >= static_cast<std::int64_t>(notes.pages) - 1;
        const std::size_t end = isLast ? notes.pages : static_cast<std::size_t>(range.last + 2);
        for (next = std::max(next, static_cast<std::size_t>(range.first)); next < end; ++next)
            searchPage(next, conditions, reply);
    }
}

void TableSearch::searchPage(std::size_t place, const std::vector<Condition> &conditions, Reply &reply) {
    m_scan.visit(m_scan.pages()[place], [&](const Row &row) {
        if ((m_lastKey.isOf(row) ? m_lastMatch : match(Row(row), conditions)).found)
            m_writer.write(Row(row), reply);
    });
    if (place % PagesBetweenLooks == 0) reply.stillBusy();
}

[[gnu::noinline]] TableSearch::Match TableSearch::match(const Row &row,
                                                        const std::vector<Condition> &conditions) {
    if (conditions.empty()) return {};
    if (conditions.size() == 1 && !conditions.front().isText) return matchInteger(row, conditions.front());
    for (std::size_t i = 0; i < conditions.size(); ++i) {
        const Column &column = m_table.columns[conditions[i].column];
        m_cells[i] = row.bit(column) ? row.cell(column) : CellBytes();
        if (!m_cells[i].data) return {false, KeyRuns::NoKey};
    }
    m_lastMatch = compare(m_cells, conditions);
    m_lastKey.take(row);
    return m_lastMatch;
}

/// The usual key, and the same as below: of many rows nothing else is read.
TableSearch::Match TableSearch::matchInteger(const Row &row, const Condition &condition) {
    const Column &column = m_table.columns[condition.column];
    const CellBytes cell = row.bit(column) ? row.cell(column) : CellBytes();
    if (!cell.data) return {false, KeyRuns::NoKey};
    const std::int32_t value = integerOf(column, cell);
    if (value != m_lastInteger) {
        KeyHash key;
        key.add(static_cast<std::uint32_t>(value));
        m_lastInteger = value;
        m_lastMatch = {value == condition.integer, KeyRuns::mark(key.value())};
    }
    return m_lastMatch;
}

TableSearch::Match TableSearch::compare(const std::vector<CellBytes> &cells,
                                        const std::vector<Condition> &conditions) {
    Match result;
    KeyHash key;
    bool known = true;
    for (std::size_t i = 0; i < conditions.size(); ++i) {
        if (conditions[i].isText) {
            const std::u16string_view wanted = conditions[i].text;
            if (const auto bytes = m_texts.bytesOf(cells[i].data, cells[i].size)) {
                known = keyMatch::addNarrow(key, *bytes) && known;
                result.found = result.found && mayBeEqual(*bytes, wanted);
            } else {
                m_texts.decode(cells[i].data, cells[i].size, m_text);
                known = addText(key, m_text) && known;
                result.found = result.found && mayBeEqual(std::u16string_view(m_text), wanted);
            }
        } else {
            const std::int32_t value = integerOf(m_table.columns[conditions[i].column], cells[i]);
            key.add(static_cast<std::uint32_t>(value));
            result.found = result.found && value == conditions[i].integer;
        }
    }
    if (known) result.mark = KeyRuns::mark(key.value());
    return result;
}
