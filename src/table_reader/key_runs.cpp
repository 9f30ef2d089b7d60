#include "table_reader/key_runs.h"

namespace {

constexpr std::size_t MostRuns = 4u << 20; // 48 MB

} // namespace

bool KeyRuns::add(std::int64_t row, std::uint32_t mark) {
    if (!m_marks.empty() && m_marks.back() == mark) return true;
    if (m_marks.size() == MostRuns) return false;
    m_marks.push_back(mark);
    m_firsts.push_back(row);
    return true;
}

std::vector<KeyRuns::Range> KeyRuns::ranges(std::uint32_t mark) const {
    constexpr std::int64_t Last = std::numeric_limits<std::int64_t>::max();
    const auto canHold = [mark](std::uint32_t held) {
        return held == mark || held == AnyKey || (mark == AnyKey && held != NoKey);
    };
    std::vector<Range> found;
    for (std::size_t i = 0; i < m_marks.size(); ++i)
        if (canHold(m_marks[i]))
            found.push_back({m_firsts[i], i + 1 < m_firsts.size() ? m_firsts[i + 1] - 1 : Last});
    return found;
}
