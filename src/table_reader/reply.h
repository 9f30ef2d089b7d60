// What is on its way to the main program.
#pragma once

#include <chrono>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

#include "platform/dao/table_protocol.h"

/// Collects values in a frame and sends it when it is worth it. Ends the process where nobody reads any more.
class Reply {
public:
    explicit Reply(int file)
        : m_file(file) {}

    template <typename Number>
    void number(Number value) {
        std::memcpy(room(sizeof value), &value, sizeof value);
    }
    void name(std::string_view utf8);
    void text(std::u16string_view text);
    /// A text of nothing but ASCII.
    void asciiText(std::string_view text);
    /// Room for `size` bytes of zero; gives their place for setBit().
    std::size_t zeros(std::size_t size);
    void setBit(std::size_t place, std::size_t bit);

    /// Bytes that were collected and not yet sent.
    std::size_t size() const { return m_size; }
    /// The kind of the rows that are collected, and from now on of those that follow: the others go first.
    TableProtocol::Reply rowsKind() const { return m_rowsKind; }
    void setRowsKind(TableProtocol::Reply kind);

    /// Sends what was collected as one frame of this kind.
    void send(TableProtocol::Reply kind);
    /// A row is complete: sends the rows where they fill a frame. Raises Damaged for a row beyond any frame.
    void endRow();
    /// The last row, if any, is complete.
    void endRows();
    /// To be called now and then on a long search, so that the other end sees that it goes on.
    void stillBusy();
    /// While nobody waits for an answer nobody is told either.
    void setSilent(bool silent) { m_silent = silent; }
    /// Drops what was collected.
    void fail(TableProtocol::FailureKind kind, std::string_view reason);

private:
    using Clock = std::chrono::steady_clock;

    /// Where the next `size` bytes go. Valid until the next call.
    std::uint8_t *room(std::size_t size) {
        if (m_content.size() - m_size < size) grow(size);
        m_size += size;
        return m_content.data() + (m_size - size);
    }
    void grow(std::size_t size);

    int m_file;
    std::vector<std::uint8_t> m_content; // of which the first m_size bytes have been collected
    std::size_t m_size = 0;
    TableProtocol::Reply m_rowsKind = TableProtocol::Reply::Rows;
    bool m_silent = false;
    Clock::time_point m_sent = Clock::now();
};
