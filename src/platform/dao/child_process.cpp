#include "platform/dao/child_process.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <ctime>

#include <QDeadlineTimer>
#include <QFile>
#include <QThread>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr qsizetype BufferSize = 256 * 1024;
// No file that is to become one of the child's lies among their numbers before.
constexpr int AboveTheChilds = 16;
// A child that waits for a medium uses next to none of the time that passes, one that spins all it can get.
constexpr int BusyShare = 20;

class SpawnSettings {
public:
    SpawnSettings(int socket, int file, int asFile) {
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_adddup2(&actions, socket, STDIN_FILENO);
        posix_spawn_file_actions_adddup2(&actions, socket, STDOUT_FILENO);
        posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_adddup2(&actions, file, asFile);
        posix_spawn_file_actions_addclosefrom_np(&actions, asFile + 1);

        posix_spawnattr_init(&attributes);
        sigset_t none;
        sigset_t all;
        sigemptyset(&none);
        sigfillset(&all);
        posix_spawnattr_setsigmask(&attributes, &none);
        posix_spawnattr_setsigdefault(&attributes, &all);
        posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    }
    ~SpawnSettings() {
        posix_spawn_file_actions_destroy(&actions);
        posix_spawnattr_destroy(&attributes);
    }
    SpawnSettings(const SpawnSettings &) = delete;
    SpawnSettings &operator=(const SpawnSettings &) = delete;

    posix_spawn_file_actions_t actions;
    posix_spawnattr_t attributes;
};

} // namespace

ChildProcess::ChildProcess(QString program, int patienceInMilliseconds, OnSilence onSilence)
    : m_program(std::move(program))
    , m_patience(patienceInMilliseconds)
    , m_onSilence(std::move(onSilence))
    , m_buffer(BufferSize, Qt::Uninitialized) {}

ChildProcess::~ChildProcess() {
    stop();
}

int ChildProcess::start(int file, int asFile) {
    stop();
    int ends[2];
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) return errno;

    QByteArray program = QFile::encodeName(m_program);
    char *const arguments[] = {program.data(), nullptr};
    const int childsEnd = fcntl(ends[1], F_DUPFD_CLOEXEC, AboveTheChilds);
    const int childsFile = fcntl(file, F_DUPFD_CLOEXEC, AboveTheChilds);
    const SpawnSettings settings(childsEnd, childsFile, asFile);
    const int failure =
        posix_spawn(&m_id, program.constData(), &settings.actions, &settings.attributes, arguments, environ);
    for (const int inherited : {ends[1], childsEnd, childsFile})
        if (inherited >= 0) close(inherited);
    if (failure != 0) {
        close(ends[0]);
        m_id = -1;
        return failure;
    }
    m_socket = ends[0];
    fcntl(m_socket, F_SETFL, O_NONBLOCK);
    m_begin = m_end = 0;
    return 0;
}

bool ChildProcess::isRunning() {
    if (m_id < 0) return false;
    if (waitpid(m_id, nullptr, WNOHANG) == 0) return true;
    m_id = -1;
    stop();
    return false;
}

void ChildProcess::stop() {
    if (m_socket >= 0) close(m_socket);
    m_socket = -1;
    if (m_id < 0) return;
    kill(m_id, SIGKILL);
    // A child that waits for a medium that has gone cannot even be killed. It is left alone then.
    const QDeadlineTimer deadline(m_patience);
    while (waitpid(m_id, nullptr, WNOHANG) == 0 && !deadline.hasExpired())
        QThread::usleep(200);
    m_id = -1;
}

bool ChildProcess::send(const QByteArray &bytes) {
    for (qsizetype sent = 0; sent < bytes.size();) {
        const ssize_t now = ::send(m_socket, bytes.constData() + sent,
                                   static_cast<std::size_t>(bytes.size() - sent), MSG_NOSIGNAL);
        if (now > 0)
            sent += now;
        else if (now < 0 && errno != EAGAIN && errno != EINTR)
            return false;
        else if (!waitFor(POLLOUT))
            return false;
    }
    return true;
}

bool ChildProcess::receive(void *to, std::size_t size) {
    char *at = static_cast<char *>(to);
    while (size > 0) {
        if (m_begin == m_end && !receiveSome()) return false;
        const std::size_t now = std::min(size, m_end - m_begin);
        std::memcpy(at, m_buffer.constData() + m_begin, now);
        m_begin += now;
        at += now;
        size -= now;
    }
    return true;
}

bool ChildProcess::receiveSome() {
    m_begin = m_end = 0;
    while (true) {
        const ssize_t got = recv(m_socket, m_buffer.data(), static_cast<std::size_t>(m_buffer.size()), 0);
        if (got > 0) {
            m_end = static_cast<std::size_t>(got);
            return true;
        }
        if (got == 0 || (errno != EAGAIN && errno != EINTR)) return false;
        if (!waitFor(POLLIN)) return false;
    }
}

bool ChildProcess::waitFor(short event) {
    while (true) {
        const qint64 before = processorTime();
        const int ready = waitOnce(event);
        if (ready >= 0) return ready > 0;
        if (!m_onSilence((processorTime() - before) * BusyShare > m_patience)) return false;
    }
}

int ChildProcess::waitOnce(short event) {
    const QDeadlineTimer deadline(m_patience);
    while (!deadline.hasExpired()) {
        pollfd watched = {m_socket, event, 0};
        const int ready = poll(&watched, 1, static_cast<int>(deadline.remainingTime()));
        if (ready > 0) return 1;
        if (ready < 0 && errno != EINTR) return 0;
    }
    return -1;
}

qint64 ChildProcess::processorTime() const {
    clockid_t clock = 0;
    timespec used = {};
    if (clock_getcpuclockid(m_id, &clock) != 0 || clock_gettime(clock, &used) != 0) return 0;
    return qint64(used.tv_sec) * 1000 + used.tv_nsec / 1000000;
}
