// The claim of one run on a file.
#pragma once

#include <QString>

/// An advisory lock on the file itself: nothing is written beside it, so it works on a medium that cannot be
/// written. It goes with the process that holds it, however that ends. On NFS it holds among all computers as
/// far as the server takes part in it.
class FileLock {
public:
    enum class Kind { Shared, Exclusive };

    /// Raises 3356 where another run holds the file in a way that does not go together with `kind`. A file
    /// system that knows no locks, or a file that cannot be opened, locks nothing.
    FileLock(const QString &path, Kind kind);
    ~FileLock();
    FileLock(const FileLock &) = delete;
    FileLock &operator=(const FileLock &) = delete;

private:
    int m_file;
};
