// Work that is done before it is asked for.
#pragma once

#include <deque>
#include <vector>

#include "table_reader/table_search.h"

/// Makes searches quick that are to be expected, one pass over each table, while nobody waits for an answer.
/// It takes turns with pauses, so that on a machine with one processor the program gets its share.
class LookAhead {
public:
    /// `searches` outlives this.
    explicit LookAhead(TableSearches &searches)
        : m_searches(searches) {}

    void add(std::size_t table, std::vector<std::size_t> columns);
    /// Returns when there is input, or its end, or nothing left to do.
    void workUntilInput(int input);

private:
    struct Task {
        std::size_t table;
        std::vector<std::size_t> columns;
    };

    void work();

    TableSearches &m_searches;
    std::deque<Task> m_tasks;
};
