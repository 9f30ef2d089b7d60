// The cipher of Access files.
#pragma once

#include <cstddef>
#include <cstdint>

/// RC4 with a key of four bytes, the lowest first. It covers as it uncovers.
void applyCipher(std::uint8_t *bytes, std::size_t size, std::uint32_t key);
