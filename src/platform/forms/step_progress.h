// How far a work of counted steps has come, shown while it runs.
#pragma once

#include <memory>

#include "platform/forms/busy_pointer.h"

class QProgressBar;
class QWidget;

/// A bar at the right end of `place`, painted at once at every step: no event is let in meanwhile, so nothing
/// can be clicked in the middle of the work. It goes with this object. The mouse pointer is the hourglass.
class StepProgress {
public:
    StepProgress(QWidget &place, int steps);
    ~StepProgress();
    StepProgress(const StepProgress &) = delete;
    StepProgress &operator=(const StepProgress &) = delete;

    /// One more is done.
    void step();

private:
    BusyPointer m_busy;
    std::unique_ptr<QProgressBar> m_bar;
};
