// Asks for the rows of any table as the main program does, and compares what comes.
#pragma once

#include <csignal>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include "table_reader/condition.h"
#include "table_reader/reply.h"
#include "table_reader/request.h"
#include "tests/fuzz/claim.h"

namespace fuzz {

/// What ends the helper where it takes too long would end the run without a word of the input; libFuzzer
/// keeps time by itself.
inline void allowAnyProcessorTime() {
    std::signal(SIGXCPU, SIG_IGN);
}

/// A file that lies in memory.
class MemoryFile {
public:
    MemoryFile()
        : m_descriptor(memfd_create("fuzz", MFD_CLOEXEC)) {
        expect(m_descriptor >= 0, "there is room for a file");
    }
    MemoryFile(const std::uint8_t *data, std::size_t size)
        : MemoryFile() {
        expect(write(m_descriptor, data, size) == static_cast<ssize_t>(size), "there is room for the input");
    }
    ~MemoryFile() { close(m_descriptor); }
    MemoryFile(const MemoryFile &) = delete;
    MemoryFile &operator=(const MemoryFile &) = delete;

    int descriptor() const { return m_descriptor; }
    std::vector<std::uint8_t> bytes() const {
        struct stat status = {};
        fstat(m_descriptor, &status);
        std::vector<std::uint8_t> content(static_cast<std::size_t>(status.st_size));
        const ssize_t got = pread(m_descriptor, content.data(), content.size(), 0);
        expect(got == static_cast<ssize_t>(content.size()), "what was sent is there");
        return content;
    }

private:
    int m_descriptor;
};

/// The columns of one search: a number, a text, both or none, as the table has them.
template <typename Table>
std::vector<std::vector<Condition>> searchesFor(const Table &table) {
    std::optional<Condition> keys[2];
    for (std::size_t column = 0; column < table.columns.size(); ++column) {
        for (const bool isText : {false, true}) {
            std::optional<Condition> &key = keys[isText];
            if (!key && isKey(table.columns[column].type, isText))
                key = Condition{column, isText, 2, u"Bolt"};
        }
    }
    std::vector<std::vector<Condition>> searches = {{}};
    for (const std::optional<Condition> &key : keys)
        if (key) searches.push_back({*key});
    if (keys[0] && keys[1]) searches.push_back({*keys[1], *keys[0]});
    return searches;
}

inline std::vector<std::size_t> columnsOf(const std::vector<Condition> &conditions) {
    std::vector<std::size_t> columns;
    for (const Condition &condition : conditions)
        columns.push_back(condition.column);
    return columns;
}

/// The frames of the rows; nothing where the file does not give them: an `allowing` call gives false then.
template <typename Search, typename Allowing>
std::optional<std::vector<std::uint8_t>> answer(Search &search, const std::vector<Condition> &conditions,
                                                Allowing allowing) {
    const MemoryFile sent;
    Reply reply(sent.descriptor());
    reply.setSilent(true); // or the time that it takes is told as well
    const bool isWhole = allowing([&] {
        search.run(conditions, reply);
        reply.endRows();
    });
    return isWhole ? std::optional(sent.bytes()) : std::nullopt;
}

/// Each search gives the same rows the first time, again, and after any look ahead: what has been noted of a
/// table changes nothing. `newSearch` makes a search that knows nothing, `lookAhead` has one do a piece of
/// its work and is false when there is nothing left.
template <typename Table, typename NewSearch, typename LookAhead, typename Allowing>
void compareAnswers(const Table &table, NewSearch newSearch, LookAhead lookAhead, Allowing allowing) {
    allowing([&] {
        auto known = newSearch();
        for (const std::vector<Condition> &conditions : searchesFor(table)) {
            auto fresh = newSearch();
            const auto first = answer(*fresh, conditions, allowing);
            expect(answer(*fresh, conditions, allowing) == first, "the second answer is the first");
            if (!conditions.empty())
                allowing([&] {
                    while (lookAhead(*known, columnsOf(conditions))) {
                    }
                });
            expect(answer(*known, conditions, allowing) == first, "a look ahead changes no answer");
        }
    });
}

} // namespace fuzz
