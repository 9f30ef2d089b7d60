// A disk that soon is full, for as long as a test wants it.
#pragma once

#include <csignal>

#include <sys/resource.h>

/// While it lives, no file can grow beyond so many bytes.
class SmallDisk {
public:
    explicit SmallDisk(rlim_t size)
        : m_handler(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit small{size, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~SmallDisk() {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    SmallDisk(const SmallDisk &) = delete;
    SmallDisk &operator=(const SmallDisk &) = delete;

private:
    void (*m_handler)(int);
    rlimit m_before{};
};
