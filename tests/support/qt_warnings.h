// What Qt warns of is a fault of the program: a painter that was not put back, a connection that was not
// made.
#pragma once

#include <functional>
#include <initializer_list>

class QString;

/// From here on `fault` hears of every warning of Qt, but for a few that a machine without a display gives.
void onQtWarning(std::function<void(const QString &message)> fault);

/// While it lives, warnings that begin so are no fault: a test brings them about.
class ExpectedQtWarnings {
public:
    explicit ExpectedQtWarnings(std::initializer_list<const char *> beginnings);
    ~ExpectedQtWarnings();
    ExpectedQtWarnings(const ExpectedQtWarnings &) = delete;
    ExpectedQtWarnings &operator=(const ExpectedQtWarnings &) = delete;
};
