#include "table_reader/cipher.h"

#include <array>
#include <numeric>
#include <utility>

void applyCipher(std::uint8_t *bytes, std::size_t size, std::uint32_t key) {
    std::array<std::uint8_t, 256> state;
    std::iota(state.begin(), state.end(), std::uint8_t(0));
    std::uint8_t j = 0;
    for (unsigned i = 0; i < state.size(); ++i) {
        j = static_cast<std::uint8_t>(j + state[i] + (key >> i % 4 * 8));
        std::swap(state[i], state[j]);
    }
    std::uint8_t i = 0;
    j = 0;
    for (std::size_t at = 0; at < size; ++at) {
        i = static_cast<std::uint8_t>(i + 1);
        j = static_cast<std::uint8_t>(j + state[i]);
        std::swap(state[i], state[j]);
        bytes[at] ^= state[static_cast<std::uint8_t>(state[i] + state[j])];
    }
}
