// The code pages of Access 97.
#pragma once

namespace codePages {

/// What the bytes from 0x80 on stand for, 0 where a byte stands for nothing. Null for a code page that is not
/// known; of Windows' those are not in which a character can have several bytes.
const char16_t *upperHalf(unsigned codePage);

} // namespace codePages
