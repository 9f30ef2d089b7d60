// Tells whether a file is still the same one, and unchanged.
#pragma once

#include <cstdint>

#include <sys/stat.h>

/// Another program can put a new edition over a file that is open here, and half of the one and half of the
/// other are right for neither.
struct FileIdentity {
    std::uint64_t device = 0;
    std::uint64_t number = 0;
    std::uint64_t size = 0;
    std::int64_t seconds = 0;
    std::int64_t nanoseconds = 0;

    bool operator==(const FileIdentity &other) const = default;

    /// Of an open file; all zero for none.
    static FileIdentity of(int file) {
        struct stat status = {};
        if (fstat(file, &status) != 0) return {};
        return {static_cast<std::uint64_t>(status.st_dev), static_cast<std::uint64_t>(status.st_ino),
                static_cast<std::uint64_t>(status.st_size), status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
    }
};
