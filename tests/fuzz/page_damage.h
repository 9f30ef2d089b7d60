// Harm to files of pages as libFuzzer is to do it: it likes to move all that follows, after which nothing
// that points at a page points at it any more.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <random>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t *data, std::size_t size, std::size_t maxSize);

namespace fuzz {

/// Gives the new size. Most of the time every byte but a few stays what it was, where it was.
class PageDamage {
public:
    PageDamage(std::uint8_t *data, std::size_t size, std::size_t pageSize, unsigned seed)
        : m_data(data)
        , m_size(size)
        , m_pageSize(std::min(pageSize, size))
        , m_random(seed) {}

    std::size_t apply(std::size_t maxSize) {
        if (m_size < 2) return LLVMFuzzerMutate(m_data, m_size, maxSize);
        const std::size_t kind = below(16);
        if (kind == 0) return LLVMFuzzerMutate(m_data, m_size, maxSize);
        if (kind == 1)
            movePage();
        else if (kind < 5)
            setNumber();
        else
            changePiece();
        return m_size;
    }

private:
    static constexpr std::size_t LongestPiece = 32;
    static constexpr std::size_t Front = 96; // of a page, which says what the rest of it means

    std::size_t below(std::size_t limit) { return m_random() % limit; }
    std::size_t pages() const { return std::max<std::size_t>(m_size / m_pageSize, 1); }

    std::size_t anyPlace() {
        const std::size_t range = below(2) == 0 ? std::min(Front, m_pageSize) : m_pageSize;
        return std::min(below(pages()) * m_pageSize + below(range), m_size - 1);
    }

    void movePage() {
        std::memmove(m_data + below(pages()) * m_pageSize, m_data + below(pages()) * m_pageSize, m_pageSize);
    }

    /// Of one to four bytes, as page numbers, offsets and counts are.
    void setNumber() {
        const std::size_t at = anyPlace();
        const std::size_t width = std::min<std::size_t>(1 + below(4), m_size - at);
        const auto number =
            static_cast<std::uint32_t>(below(2) == 0 ? below(2 * pages()) : below(2 * m_pageSize));
        const bool isBigEndian = below(2) == 0;
        for (std::size_t i = 0; i < width; ++i)
            m_data[at + i] = static_cast<std::uint8_t>(number >> 8 * (isBigEndian ? width - 1 - i : i));
    }

    void changePiece() {
        const std::size_t at = anyPlace();
        const std::size_t size = std::min(1 + below(LongestPiece), m_size - at);
        LLVMFuzzerMutate(m_data + at, size, size);
    }

    std::uint8_t *m_data;
    std::size_t m_size;
    std::size_t m_pageSize;
    std::minstd_rand m_random;
};

} // namespace fuzz
