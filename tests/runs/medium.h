// A medium of its own for a folder.
#pragma once

#include <QByteArray>
#include <QString>

#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

/// A small file system in memory, as long as this lives. Needs the rights of the super-user, and a system
/// that lets it: see isThere().
class Medium {
public:
    Medium(const QString &folder, const char *size)
        : m_folder(folder.toUtf8())
        , m_isThere(hasMountsOfItsOwn() && mount("velmar-test", m_folder.constData(), "tmpfs", 0,
                                                 (QByteArray("size=") + size).constData()) == 0) {}
    ~Medium() {
        if (m_isThere) umount2(m_folder.constData(), MNT_DETACH);
    }
    Medium(const Medium &) = delete;
    Medium &operator=(const Medium &) = delete;

    bool isThere() const { return m_isThere; }
    bool makeReadOnly() const {
        return mount("velmar-test", m_folder.constData(), "tmpfs", MS_REMOUNT | MS_RDONLY, nullptr) == 0;
    }

private:
    /// Mounts that nobody else sees, and that go with the process, however it ends.
    static bool hasMountsOfItsOwn() {
        static const bool separate = canSeparate() && separateMounts();
        return separate;
    }
    static bool separateMounts() {
        return unshare(CLONE_NEWNS) == 0 && mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
    }
    /// Tried by another process: after the first step alone, which is as far as a changed root lets it come,
    /// this one would no longer find its own program.
    static bool canSeparate() {
        const pid_t child = fork();
        if (child == 0) _exit(separateMounts() ? 0 : 1);
        int status = 0;
        return child > 0 && waitpid(child, &status, 0) == child && status == 0;
    }

    QByteArray m_folder;
    bool m_isThere;
};
