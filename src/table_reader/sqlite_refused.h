// What can be wrong with an SQLite file beside damage that has no name.
#pragma once

#include <cstdint>
#include <stdexcept>

/// SQLite, or a limit, refuses what the file asks for; the text is one for the user.
class SqliteRefused : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The end of the file is missing.
struct SqliteCutOff {
    std::uint64_t size = 0; // bytes
    std::uint64_t expected = 0;
};
