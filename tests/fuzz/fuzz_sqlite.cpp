// Any bytes as an SQLite file, of which every table and view is read.
#include <algorithm>
#include <memory>

#include "table_reader/damaged.h"
#include "table_reader/sqlite_database.h"
#include "table_reader/sqlite_file.h"
#include "table_reader/sqlite_refused.h"
#include "table_reader/sqlite_search.h"
#include "tests/fuzz/page_damage.h"
#include "tests/fuzz/table_answers.h"

namespace {

constexpr std::uint8_t Mark[] = "SQLite format 3";
constexpr std::size_t PageSizeOffset = 16;
constexpr std::size_t PageCountOffset = 28;
constexpr std::size_t HeaderSize = 100;

template <typename Call>
bool allowingRefusal(Call call) {
    try {
        call();
        return true;
    } catch (const SqliteCutOff &cutOff) {
        fuzz::expect(cutOff.size < cutOff.expected, "what is cut off is too short");
    } catch (const SqliteRefused &) {
    } catch (const Damaged &) {
    }
    return false;
}

void readTables(int descriptor) {
    const fuzz::MemoryFile sent;
    Reply reply(sent.descriptor());
    reply.setSilent(true);
    SqliteFile file(descriptor, reply);
    for (std::size_t i = 0; i < file.tables().size(); ++i) {
        allowingRefusal([&] {
            const SqliteTable &table = file.table(i);
            fuzz::expect(!table.columns.empty(), "a table has columns");
            file.rowCount(i);
            fuzz::compareAnswers(
                table, [&] { return std::make_unique<SqliteSearch>(file.database(), table); },
                [](SqliteSearch &search, const std::vector<std::size_t> &columns) {
                    return search.lookAhead(columns);
                },
                [](auto call) { return allowingRefusal(call); });
        });
    }
    file.database().checkUnchanged();
}

std::size_t pageSizeOf(const std::uint8_t *data, std::size_t size) {
    constexpr std::size_t Least = 512;
    if (size < HeaderSize) return Least;
    return std::max<std::size_t>(data[PageSizeOffset] * 256u + data[PageSizeOffset + 1], Least);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***) {
    fuzz::allowAnyProcessorTime();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const fuzz::MemoryFile input(data, size);
    if (SqliteDatabase::isSqlite(input.descriptor()))
        allowingRefusal([&] { readTables(input.descriptor()); });
    return 0;
}

/// Most inputs are as long as they say, or SQLite would not look at them.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t maxSize,
                                               unsigned seed) {
    const std::size_t newSize = fuzz::PageDamage(data, size, pageSizeOf(data, size), seed).apply(maxSize);
    std::copy_n(Mark, std::min(sizeof Mark, newSize), data);
    if (newSize < HeaderSize || seed % 16 == 0) return newSize;
    const std::size_t pages = newSize / pageSizeOf(data, newSize);
    for (std::size_t i = 0; i < 4; ++i)
        data[PageCountOffset + i] = static_cast<std::uint8_t>(pages >> 8 * (3 - i));
    return newSize;
}
