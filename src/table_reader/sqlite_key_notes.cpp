#include "table_reader/sqlite_key_notes.h"

#include <algorithm>
#include <limits>
#include <map>
#include <set>

#include "table_reader/damaged.h"
#include "table_reader/key_match.h"

namespace {

// Where rows are looked at to learn which column tells the keys apart, and how many at each place.
constexpr int Places = 8;
constexpr int RowsOfPlace = 256;
// A text can have many megabytes: of more than so many bytes none is kept.
constexpr std::size_t KeptSize = 200;

void addText(KeyHash &key, const SqliteValue &value, std::string_view text) {
    const KeyHash before = key;
    if (keyMatch::addNarrow(key, text)) return;
    key = before;
    keyMatch::addNarrow(key, keyMatch::narrowed(value.wideText()));
}

bool isTextColumn(const SqliteTable &table, std::size_t column) {
    return table.columns[column].type == TableProtocol::CellType::Text;
}

} // namespace

SqliteKeyNotes::SqliteKeyNotes(const SqliteDatabase &database, const SqliteTable &table,
                               const Columns &columns)
    : m_database(database)
    , m_table(table)
    , m_columns(tellingColumns(columns))
    , m_textsAlone(std::all_of(m_columns.begin(), m_columns.end(),
                               [&](std::size_t column) { return isTextColumn(table, column); })) {}

/// Of several columns, the one with the most texts. A few keys side by side may share one, as a grade's do in
/// two standards; those of other places may not, or a search would find half the table.
SqliteKeyNotes::Columns SqliteKeyNotes::tellingColumns(const Columns &columns) const {
    const std::optional<std::int64_t> first = endOfRows("ASC");
    const std::optional<std::int64_t> last = endOfRows("DESC");
    if (columns.size() < 2 || !first || !last) return columns;

    SqliteStatement rows = m_database.prepare("SELECT " + values(columns) + " FROM " + fromTable() +
                                              " WHERE " + m_table.rowNumber + " > ? ORDER BY " +
                                              m_table.rowNumber + " LIMIT " + std::to_string(RowsOfPlace));
    std::vector<std::map<std::string, std::set<int>>> placesOfTexts(columns.size());
    std::set<std::vector<std::string>> keys;
    std::int64_t before = std::numeric_limits<std::int64_t>::min();
    for (int place = 0; place < Places; ++place) {
        rows.restart();
        rows.bind(1, std::max(before, *first / Places * (Places - place) + *last / Places * place));
        while (m_database.step(rows)) {
            before = rows.value(0).integer();
            std::vector<std::string> key;
            for (std::size_t i = 0; i < columns.size(); ++i) {
                const SqliteValue value = rows.value(i + 1);
                key.emplace_back(value.hasText() ? value.text().substr(0, KeptSize) : std::string_view());
                placesOfTexts[i][key.back()].insert(place);
            }
            keys.insert(std::move(key));
        }
    }
    const auto most = std::max_element(placesOfTexts.begin(), placesOfTexts.end(),
                                       [](const auto &a, const auto &b) { return a.size() < b.size(); });
    const auto shared = static_cast<std::size_t>(
        std::count_if(most->begin(), most->end(), [](const auto &text) { return text.second.size() > 1; }));
    if (most->size() * 4 < keys.size() || shared * 10 > most->size()) return columns;
    return {columns[static_cast<std::size_t>(most - placesOfTexts.begin())]};
}

std::optional<std::int64_t> SqliteKeyNotes::endOfRows(const char *order) const {
    const SqliteStatement row =
        m_database.prepare("SELECT " + m_table.rowNumber + " FROM " + fromTable() + " ORDER BY " +
                           m_table.rowNumber + " " + order + " LIMIT 1");
    return m_database.step(row) ? std::optional(row.value(0).integer()) : std::nullopt;
}

bool SqliteKeyNotes::add(std::uint64_t rows) {
    std::string from = fromTable();
    if (m_last) from += " WHERE " + m_table.rowNumber + " > " + std::to_string(*m_last);
    bool hasRoom = true;
    try {
        m_isWhole = m_database.visit(values(m_columns), from, [&](const Row &row) {
            checkOrder(m_last, row[0].integer());
            hasRoom = addRow(row);
            return hasRoom && --rows > 0;
        });
    } catch (...) {
        // The next time would go on behind the fault, and nobody hear of the rows that are lost there.
        m_runs = {};
        m_last.reset();
        m_lastTexts.clear();
        throw;
    }
    return hasRoom;
}

bool SqliteKeyNotes::addRow(const Row &row) {
    const bool hasTexts = m_textsAlone && readTexts(row);
    // Most rows have the key of the one before, which takes less than another hash.
    if (hasTexts && std::equal(m_texts.begin(), m_texts.end(), m_lastTexts.begin(), m_lastTexts.end()))
        return true;
    m_lastTexts.resize(hasTexts ? m_texts.size() : 0);
    for (std::size_t i = 0; i < m_lastTexts.size(); ++i)
        m_lastTexts[i].assign(m_texts[i]);
    return m_runs.add(row[0].integer(), hasTexts ? markOfTexts(row) : markOf(row));
}

/// False where a cell has another kind of value, or a text too long to be kept.
bool SqliteKeyNotes::readTexts(const Row &row) {
    m_texts.clear();
    for (std::size_t i = 1; i < row.size(); ++i) {
        if (!row[i].isText()) return false;
        m_texts.push_back(row[i].text());
        if (m_texts.back().size() > KeptSize) return false;
    }
    return true;
}

/// The columns stand behind the row's number.
std::uint32_t SqliteKeyNotes::markOfTexts(const Row &row) const {
    KeyHash key;
    for (std::size_t i = 0; i < m_texts.size(); ++i)
        addText(key, row[i + 1], m_texts[i]);
    return KeyRuns::mark(key.value());
}

std::uint32_t SqliteKeyNotes::markOf(const Row &row) const {
    KeyHash key;
    for (std::size_t i = 0; i < m_columns.size(); ++i) {
        const SqliteValue &value = row[i + 1];
        if (isTextColumn(m_table, m_columns[i])) {
            if (!value.hasText()) return KeyRuns::NoKey;
            addText(key, value, value.text());
        } else {
            const std::optional<std::int32_t> integer = value.wholeNumber();
            if (!integer) return KeyRuns::NoKey;
            key.add(static_cast<std::uint32_t>(*integer));
        }
    }
    return KeyRuns::mark(key.value());
}

std::vector<KeyRuns::Range> SqliteKeyNotes::ranges(const std::vector<Condition> &conditions) const {
    KeyHash key;
    for (const std::size_t column : m_columns) {
        const auto condition =
            std::find_if(conditions.begin(), conditions.end(),
                         [column](const Condition &each) { return each.column == column; });
        if (condition->isText)
            keyMatch::addNarrow(key, keyMatch::narrowed(condition->text));
        else
            key.add(static_cast<std::uint32_t>(condition->integer));
    }
    return m_runs.ranges(KeyRuns::mark(key.value()));
}

std::string SqliteKeyNotes::values(const Columns &columns) const {
    std::string list = m_table.rowNumber;
    for (const std::size_t column : columns)
        list += ", " + SqliteDatabase::quoted(m_table.columns[column].name);
    return list;
}

/// An index, which SQLite might find the columns in, has the rows in another order.
std::string SqliteKeyNotes::fromTable() const {
    return SqliteDatabase::quoted(m_table.name) + " NOT INDEXED";
}

void checkOrder(std::optional<std::int64_t> &last, std::int64_t row) {
    if (last && row <= *last) throw Damaged("rows out of their order");
    last = row;
}
