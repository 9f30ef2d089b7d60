#include "table_reader/look_ahead.h"

#include <poll.h>

#include "table_reader/damaged.h"
#include "table_reader/limits.h"

namespace {

// Half a millisecond of work or two: nobody who asks meanwhile notices it.
constexpr std::size_t PagesAtOnce = 64;
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
    const Task &task = m_tasks.front();
    bool isMoreLeft = false;
    try {
        isMoreLeft = m_searches.of(task.table).lookAhead(task.columns, PagesAtOnce);
    } catch (const Damaged &) {
        // Whoever asks for the table is told.
    }
    if (!isMoreLeft) m_tasks.pop_front();
}
