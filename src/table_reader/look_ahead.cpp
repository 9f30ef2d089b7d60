#include "table_reader/look_ahead.h"

#include <poll.h>

#include "table_reader/limits.h"

namespace {

constexpr int PauseInMilliseconds = 1;
constexpr std::size_t MostTasks = 1000;

bool isReadable(int input, int milliseconds) {
    pollfd watched = {input, POLLIN, 0};
    return poll(&watched, 1, milliseconds) != 0;
}

} // namespace

void LookAhead::add(std::size_t table, std::vector<std::size_t> columns) {
    if (m_tasks.size() < MostTasks) m_tasks.push_back({table, std::move(columns)});
}

void LookAhead::workUntilInput(int input) {
    while (!m_tasks.empty() && !isReadable(input, PauseInMilliseconds))
        work();
}

void LookAhead::work() {
    limits::allowProcessorTime();
    if (!m_piece(m_tasks.front().table, m_tasks.front().columns)) m_tasks.pop_front();
}
