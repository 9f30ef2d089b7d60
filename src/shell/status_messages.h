// The numbered messages of the status line.
#pragma once

#include <array>

#include <QString>

using StatusMessages = std::array<QString, 21>;

/// Index is a StatusNumber; the empty ones are kept for numbers that nobody shows.
StatusMessages statusMessages(const QString &programTitle);
