// Work that is done before it is asked for.
#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <utility>
#include <vector>

/// Makes searches quick that are to be expected, one pass over each table, while nobody waits for an answer.
/// It takes turns with pauses, so that on a machine with one processor the program gets its share.
class LookAhead {
public:
    /// Does a piece of the work for a table and the columns it will be searched by, half a millisecond of it
    /// or two: nobody who asks meanwhile notices it. False when there is nothing left to do.
    using Piece = std::function<bool(std::size_t table, const std::vector<std::size_t> &columns)>;

    explicit LookAhead(Piece piece)
        : m_piece(std::move(piece)) {}

    void add(std::size_t table, std::vector<std::size_t> columns);
    /// Returns when there is input, or its end, or nothing left to do.
    void workUntilInput(int input);

private:
    struct Task {
        std::size_t table;
        std::vector<std::size_t> columns;
    };

    void work();

    Piece m_piece;
    std::deque<Task> m_tasks;
};
