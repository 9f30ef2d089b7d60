// Numbers in the byte order of the file, from any address.
#pragma once

#include <cstdint>

namespace bytes {

inline std::uint16_t u16(const std::uint8_t *at) {
    return static_cast<std::uint16_t>(at[0] | at[1] << 8);
}
inline std::uint32_t u32(const std::uint8_t *at) {
    return u16(at) | static_cast<std::uint32_t>(u16(at + 2)) << 16;
}

} // namespace bytes
