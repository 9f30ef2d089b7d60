#include "table_reader/request.h"

#include <cstring>

#include <unistd.h>

using TableProtocol::CellType;
using TableProtocol::ValueKind;

namespace {

constexpr std::uint32_t LongestRequest = 1u << 20;

bool readExactly(int input, void *to, std::size_t size) {
    char *at = static_cast<char *>(to);
    while (size > 0) {
        const ssize_t got = read(input, at, size);
        if (got <= 0) return false;
        at += got;
        size -= static_cast<std::size_t>(got);
    }
    return true;
}

std::optional<std::vector<char>> readFrame(int input) {
    std::uint32_t length = 0;
    if (!readExactly(input, &length, sizeof length) || length > LongestRequest) return {};
    std::vector<char> content(length);
    if (!readExactly(input, content.data(), content.size())) return {};
    return content;
}

/// Takes values from the front of a request.
class Fields {
public:
    explicit Fields(const std::vector<char> &content)
        : m_content(content) {}

    bool complete() const { return m_good; }

    template <typename Number>
    Number number() {
        Number value = {};
        take(&value, sizeof value);
        return value;
    }
    std::u16string text() {
        const std::size_t units = number<std::uint32_t>();
        if (units > m_content.size()) m_good = false;
        std::u16string value(m_good ? units : 0, u'\0');
        take(value.data(), value.size() * sizeof(char16_t));
        return value;
    }

private:
    void take(void *to, std::size_t size) {
        m_good = m_good && size <= m_content.size() - m_at;
        if (!m_good) return;
        std::memcpy(to, m_content.data() + m_at, size);
        m_at += size;
    }

    const std::vector<char> &m_content;
    std::size_t m_at = 0;
    bool m_good = true;
};

} // namespace

std::optional<std::u16string> readOpenRequest(int input) {
    const std::optional<std::vector<char>> content = readFrame(input);
    if (!content) return {};
    Fields fields(*content);
    if (fields.number<TableProtocol::Request>() != TableProtocol::Request::Open) return {};
    std::u16string password = fields.text();
    return fields.complete() ? std::optional(std::move(password)) : std::nullopt;
}

std::optional<Request> readRequest(int input) {
    const std::optional<std::vector<char>> content = readFrame(input);
    if (!content) return {};
    Fields fields(*content);
    Request request;
    request.kind = fields.number<TableProtocol::Request>();
    request.table = fields.number<std::uint16_t>();
    if (request.kind == TableProtocol::Request::LookAhead) {
        request.columns.resize(fields.number<std::uint16_t>());
        for (std::size_t &column : request.columns)
            column = fields.number<std::uint16_t>();
        if (request.columns.empty()) return {};
    }
    if (request.kind == TableProtocol::Request::Rows)
        request.conditions.resize(fields.number<std::uint16_t>());
    for (Condition &condition : request.conditions) {
        condition.column = fields.number<std::uint16_t>();
        condition.isText = fields.number<ValueKind>() == ValueKind::Text;
        if (condition.isText)
            condition.text = fields.text();
        else
            condition.integer = fields.number<std::int32_t>();
    }
    return fields.complete() ? std::optional(std::move(request)) : std::nullopt;
}

bool isKey(CellType type, bool isText) {
    if (isText) return type == CellType::Text;
    return type == CellType::Byte || type == CellType::Integer || type == CellType::Long;
}
