// Stored texts to UTF-16.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include <mdbtools.h>

class CellText {
public:
    CellText(MdbHandle *handle, bool jet3)
        : m_handle(handle)
        , m_jet3(jet3) {}

    /// Overwrites `text`. Raises Damaged for bytes that are no text.
    void decode(const std::uint8_t *bytes, std::size_t size, std::u16string &text) const;

private:
    void decodeCodePage(const std::uint8_t *bytes, std::size_t size, std::u16string &text) const;

    MdbHandle *m_handle;
    bool m_jet3;
};
