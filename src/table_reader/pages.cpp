#include "table_reader/pages.h"

#include <algorithm>
#include <limits>

#include <sys/stat.h>
#include <unistd.h>

#include "table_reader/cipher.h"
#include "table_reader/damaged.h"

namespace {
/// What is read is looked at while the processor still holds it close by.
constexpr std::uint32_t LongestRun = 16;
} // namespace

Pages::Pages(const AccessHeader &header, int file)
    : m_file(file)
    , m_key(header.pageKey())
    , m_pageSize(header.pageSize()) {
    struct stat status = {};
    if (fstat(file, &status) != 0 || !S_ISREG(status.st_mode)) throw Damaged("not a file");
    const std::uint64_t pages = static_cast<std::uint64_t>(status.st_size) / m_pageSize;
    if (pages > std::numeric_limits<std::uint32_t>::max()) throw Damaged("file of absurd size");
    m_count = static_cast<std::uint32_t>(pages);
}

const std::uint8_t *Pages::at(std::uint32_t page) {
    if (page >= m_count) throw Damaged("page beyond the end of the file");
    if (page - m_first >= m_held) readRun(page); // of a page before the run the difference is a large number
    return m_bytes.data() + (page - m_first) * m_pageSize;
}

void Pages::readRun(std::uint32_t page) {
    const bool inSequence = m_held > 0 && page == m_first + m_held;
    const std::uint32_t wanted = std::min(inSequence ? std::min(m_held * 2, LongestRun) : 1, m_count - page);
    m_held = 0;
    m_bytes.resize(std::max(m_bytes.size(), wanted * m_pageSize));
    std::size_t done = 0;
    while (done < wanted * m_pageSize) {
        const ssize_t got =
            pread(m_file, m_bytes.data() + done, wanted * m_pageSize - done,
                  static_cast<off_t>(page) * static_cast<off_t>(m_pageSize) + static_cast<off_t>(done));
        if (got <= 0) throw Damaged("unreadable page");
        done += static_cast<std::size_t>(got);
    }
    m_first = page;
    m_held = wanted;
    if (m_key != 0) decipher();
}

/// Each page has a key of its own.
void Pages::decipher() {
    for (std::uint32_t i = 0; i < m_held; ++i)
        if (m_first + i != 0) applyCipher(m_bytes.data() + i * m_pageSize, m_pageSize, m_key ^ (m_first + i));
}
