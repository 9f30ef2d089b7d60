// The pointer over a modal window while the form that opened it shows the hourglass.
#pragma once

#include <QCursor>
#include <QList>

/// While it lives the hourglass is gone, for whoever has opened a modal window in the middle of its work:
/// what shows there waits for a person. Afterwards the hourglass is back.
class PointerPause {
public:
    PointerPause();
    ~PointerPause();
    PointerPause(const PointerPause &) = delete;
    PointerPause &operator=(const PointerPause &) = delete;

private:
    QList<QCursor> m_pointers;
};
