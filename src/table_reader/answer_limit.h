// How much one answer can be.
#pragma once

#include <cstddef>
#include <cstdint>

/// The rows of a table take about as much as the file, and at most a byte for each bit of it. But a view can
/// give out the same value any number of times, and so can a file in which many rows have moved to one place.
class AnswerLimit {
public:
    explicit AnswerLimit(std::uint64_t fileSize)
        : m_fileSize(fileSize) {}

    /// A new answer begins.
    void restart() { m_left = LeastAnswer + AnswersPerFile * m_fileSize; }
    /// False where a row of so many bytes is too much.
    bool take(std::size_t bytes) {
        if (bytes + LeastRow > m_left) return false;
        m_left -= bytes + LeastRow;
        return true;
    }

private:
    static constexpr std::uint64_t LeastAnswer = 16u << 20;
    static constexpr std::uint64_t AnswersPerFile = 16;
    static constexpr std::size_t LeastRow = 16; // what a row costs its reader at least

    std::uint64_t m_fileSize;
    std::uint64_t m_left = 0;
};
