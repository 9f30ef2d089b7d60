#include "platform/forms/end_signals.h"

#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int Signals[] = {SIGTERM, SIGHUP, SIGINT};

int writeEnd = -1;

// Nothing but this is safe in a signal handler.
void tell(int) {
    const int error = errno;
    [[maybe_unused]] const ssize_t written = write(writeEnd, "x", 1);
    errno = error;
}

} // namespace

EndSignals::EndSignals(const std::function<void()> &ask) {
    if (pipe2(m_ends, O_CLOEXEC | O_NONBLOCK) != 0) return;
    writeEnd = m_ends[1];
    m_notifier = std::make_unique<QSocketNotifier>(m_ends[0], QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this, ask] {
        char sign = 0;
        if (read(m_ends[0], &sign, 1) == 1) ask();
    });
    struct sigaction action = {};
    action.sa_handler = tell;
    action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
    for (const int signal : Signals) {
        struct sigaction before = {};
        sigaction(signal, nullptr, &before);
        if (before.sa_handler != SIG_IGN) sigaction(signal, &action, nullptr);
    }
}

EndSignals::~EndSignals() {
    for (const int signal : Signals) {
        struct sigaction now = {};
        sigaction(signal, nullptr, &now);
        if (now.sa_handler == tell) std::signal(signal, SIG_DFL);
    }
    for (const int end : m_ends)
        if (end >= 0) close(end);
}
