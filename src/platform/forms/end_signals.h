// The signals that ask a process to end, as something that the event loop hears of.
#pragma once

#include <functional>
#include <memory>

#include <QSocketNotifier>

/// SIGTERM, SIGHUP and SIGINT. One that the process was started to ignore (nohup, a shell's background) stays
/// ignored. The second one of a kind ends the process at once, so that a program that hangs can be ended too.
class EndSignals {
public:
    /// `ask` runs in the next event loop, that of a modal window among them.
    explicit EndSignals(const std::function<void()> &ask);
    ~EndSignals();
    EndSignals(const EndSignals &) = delete;
    EndSignals &operator=(const EndSignals &) = delete;

private:
    int m_ends[2] = {-1, -1};
    std::unique_ptr<QSocketNotifier> m_notifier;
};
