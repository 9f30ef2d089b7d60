// The first page of an Access file: how its other pages are written, and its password.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// The file wants another password.
struct WrongPassword {};

class AccessHeader {
public:
    /// So many bytes at the front of the file are read.
    static constexpr std::size_t Size = 256;

    /// Raises Damaged for what is no Access file or one of an unknown version, or cannot be read.
    static AccessHeader read(int file);
    /// `start` is the file's first `size` bytes.
    static AccessHeader fromBytes(const std::uint8_t *start, std::size_t size);

    /// Access 97, and not 2000 or later.
    bool isJet3() const { return m_jet3; }
    std::size_t pageSize() const { return m_jet3 ? 2048 : 4096; }
    /// 0 where the pages are not ciphered.
    std::uint32_t pageKey() const { return m_pageKey; }
    /// Of the texts of Jet 3, as Windows numbers them.
    unsigned codePage() const { return m_codePage; }

    /// Capitals count. A file without a password takes any.
    bool accepts(std::u16string_view password) const { return m_password.empty() || password == m_password; }

private:
    bool m_jet3 = false;
    std::uint32_t m_pageKey = 0;
    unsigned m_codePage = 0;
    std::u16string m_password;
};
