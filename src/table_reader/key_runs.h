// Where the rows of a key lie in a table that has no index for it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

/// Rows of one key mostly follow one another: of each such run the key's hash and the first row's number, or
/// that of its page, are kept, twelve bytes.
class KeyRuns {
public:
    struct Range {
        std::int64_t first = 0;
        std::int64_t last = 0;
    };
    /// The mark of Null, which nothing is equal to.
    static constexpr std::uint32_t NoKey = 0;
    /// Of what may be equal to any key.
    static constexpr std::uint32_t AnyKey = 1;

    static std::uint32_t mark(std::uint32_t hash) { return hash <= AnyKey ? hash + AnyKey + 1 : hash; }

    /// False where the rows have too many keys for this. Rows come in the order of their numbers.
    bool add(std::int64_t row, std::uint32_t mark);
    /// Those that can hold the key, in order. Up to the number before that of the next run, which may begin
    /// on the page where this one ends.
    std::vector<Range> ranges(std::uint32_t mark) const;

private:
    std::vector<std::uint32_t> m_marks;
    std::vector<std::int64_t> m_firsts;
};
