// Any bytes as an Access file, of which every table is read.
#include <algorithm>
#include <memory>

#include "table_reader/access_file.h"
#include "table_reader/damaged.h"
#include "table_reader/table_search.h"
#include "tests/fuzz/page_damage.h"
#include "tests/fuzz/table_answers.h"

namespace {

constexpr std::u16string_view Password = u"Bolt"; // as the seeds have it
constexpr std::uint8_t Signature[] = "\0\1\0\0Standard ";
constexpr std::size_t SignatureSize = sizeof Signature - 1;
constexpr std::size_t VersionOffset = 0x14;
constexpr std::size_t PagesAtOnce = 1;

template <typename Call>
bool allowingDamage(Call call) {
    try {
        call();
        return true;
    } catch (const Damaged &) {
        return false;
    }
}

void readTables(const AccessFile &file) {
    for (const Table &table : file.tables()) {
        fuzz::expect(!table.name.empty() && !table.columns.empty(), "a table has a name and columns");
        fuzz::compareAnswers(
            table, [&] { return std::make_unique<TableSearch>(file, table); },
            [](TableSearch &search, const std::vector<std::size_t> &columns) {
                return search.lookAhead(columns, PagesAtOnce);
            },
            [](auto call) { return allowingDamage(call); });
    }
    file.checkUnchanged();
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***) {
    fuzz::allowAnyProcessorTime();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const fuzz::MemoryFile input(data, size);
    try {
        allowingDamage([&] { readTables(AccessFile(input.descriptor(), Password)); });
    } catch (const WrongPassword &) {
    }
    return 0;
}

/// Without its signature hardly any input would get beyond the first page.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t maxSize,
                                               unsigned seed) {
    const bool isJet3 = size > VersionOffset && data[VersionOffset] == 0;
    const std::size_t newSize = fuzz::PageDamage(data, size, isJet3 ? 2048 : 4096, seed).apply(maxSize);
    std::copy_n(Signature, std::min(SignatureSize, newSize), data);
    return newSize;
}
