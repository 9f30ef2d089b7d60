// The one thing that can be wrong with a file.
#pragma once

#include <stdexcept>

/// The file contradicts itself, ends too early, or asks for what it cannot hold.
class Damaged : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};
