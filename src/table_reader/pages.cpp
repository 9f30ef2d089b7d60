#include "table_reader/pages.h"

#include <algorithm>
#include <cstring>

#include <sys/stat.h>
#include <unistd.h>

#include "table_reader/damaged.h"

namespace {
constexpr std::uint32_t LongestRun = 64;
}

Pages::Pages(MdbHandle *handle, int file)
    : m_handle(handle)
    , m_file(file)
    , m_pageSize(static_cast<std::size_t>(handle->fmt->pg_size)) {
    struct stat status = {};
    if (fstat(file, &status) != 0 || !S_ISREG(status.st_mode)) throw Damaged("not a file");
    m_count = static_cast<std::uint32_t>(static_cast<std::size_t>(status.st_size) / m_pageSize);
}

const std::uint8_t *Pages::at(std::uint32_t page) {
    if (page >= m_count) throw Damaged("page beyond the end of the file");
    if (page - m_first >= m_held) { // of a page before the run the difference is a large number
        if (m_handle->f->db_key != 0)
            readDeciphered(page);
        else
            readRun(page);
    }
    return m_bytes.data() + (page - m_first) * m_pageSize;
}

void Pages::readDeciphered(std::uint32_t page) {
    m_held = 0;
    m_bytes.resize(m_pageSize);
    if (mdb_read_alt_pg(m_handle, page) != static_cast<ssize_t>(m_pageSize)) throw Damaged("unreadable page");
    std::memcpy(m_bytes.data(), m_handle->alt_pg_buf, m_pageSize);
    m_first = page;
    m_held = 1;
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
}
