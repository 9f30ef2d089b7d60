// Names of tables and columns.
#pragma once

#include <string>

/// As UTF-8. Raises Damaged for what is no name.
std::string nameOf(const std::u16string &text);
