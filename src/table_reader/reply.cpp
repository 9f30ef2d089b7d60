#include "table_reader/reply.h"

#include <algorithm>
#include <cstdlib>

#include <unistd.h>

#include "table_reader/damaged.h"
#include "table_reader/limits.h"

namespace {

constexpr std::size_t GoodFrame = 64 * 1024;
constexpr std::chrono::milliseconds SignOfLife(500);

void writeAll(int file, const void *data, std::size_t size) {
    const char *at = static_cast<const char *>(data);
    while (size > 0) {
        const ssize_t written = write(file, at, size);
        if (written <= 0) std::_Exit(EXIT_FAILURE);
        at += written;
        size -= static_cast<std::size_t>(written);
    }
}

} // namespace

void Reply::grow(std::size_t size) {
    m_content.resize(std::max(m_content.size() * 2, m_size + size));
}

void Reply::name(std::string_view utf8) {
    number(static_cast<std::uint16_t>(utf8.size()));
    std::copy(utf8.begin(), utf8.end(), room(utf8.size()));
}

void Reply::text(std::u16string_view text) {
    number(static_cast<std::uint32_t>(text.size()));
    const std::size_t size = text.size() * sizeof(char16_t);
    std::memcpy(room(size), text.data(), size);
}

void Reply::asciiText(std::string_view text) {
    number(static_cast<std::uint32_t>(text.size()));
    const std::size_t place = zeros(text.size() * sizeof(char16_t));
    for (std::size_t i = 0; i < text.size(); ++i)
        m_content[place + i * sizeof(char16_t)] = static_cast<std::uint8_t>(text[i]);
}

std::size_t Reply::zeros(std::size_t size) {
    std::fill_n(room(size), size, std::uint8_t(0));
    return m_size - size;
}

void Reply::setBit(std::size_t place, std::size_t bit) {
    m_content[place + bit / 8] = static_cast<std::uint8_t>(m_content[place + bit / 8] | 1u << bit % 8);
}

void Reply::send(TableProtocol::Reply kind) {
    std::uint8_t head[5];
    const auto length = static_cast<std::uint32_t>(m_size + 1);
    std::copy_n(reinterpret_cast<const std::uint8_t *>(&length), 4, head);
    head[4] = static_cast<std::uint8_t>(kind);
    writeAll(m_file, head, sizeof head);
    writeAll(m_file, m_content.data(), m_size);
    m_size = 0;
    m_sent = Clock::now();
    limits::allowProcessorTime();
}

void Reply::setRowsKind(TableProtocol::Reply kind) {
    if (kind != m_rowsKind && m_size != 0) send(m_rowsKind);
    m_rowsKind = kind;
}

void Reply::endRow() {
    if (m_size >= TableProtocol::LongestFrame) throw Damaged("row of absurd size");
    if (m_size >= GoodFrame) send(m_rowsKind);
}

void Reply::endRows() {
    if (m_size != 0) send(m_rowsKind);
    send(TableProtocol::Reply::End);
}

void Reply::stillBusy() {
    if (m_silent || Clock::now() - m_sent < SignOfLife) return;
    send(m_size == 0 ? TableProtocol::Reply::Busy : m_rowsKind);
}

void Reply::fail(TableProtocol::FailureKind kind, std::string_view reason) {
    m_size = 0;
    number(kind);
    std::copy(reason.begin(), reason.end(), room(reason.size()));
    send(TableProtocol::Reply::Failure);
}
