#include "table_reader/descriptor_vfs.h"

#include <algorithm>
#include <cstring>
#include <ctime>

#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr char SystemName[] = "descriptor";
constexpr int LongestPath = 64;
constexpr sqlite3_int64 MillisecondsOfDay = 86'400'000;
constexpr sqlite3_int64 Epoch = 2'440'587 * MillisecondsOfDay + MillisecondsOfDay / 2; // as a Julian day

int theFile = -1;

int readAt(sqlite3_file *, void *to, int size, sqlite3_int64 offset) {
    char *at = static_cast<char *>(to);
    while (size > 0) {
        const ssize_t got = pread(theFile, at, static_cast<std::size_t>(size), offset);
        if (got < 0) return SQLITE_IOERR_READ;
        if (got == 0) break;
        at += got;
        size -= static_cast<int>(got);
        offset += got;
    }
    if (size == 0) return SQLITE_OK;
    std::memset(at, 0, static_cast<std::size_t>(size)); // which SQLite counts on
    return SQLITE_IOERR_SHORT_READ;
}

int fileSize(sqlite3_file *, sqlite3_int64 *size) {
    struct stat status = {};
    if (fstat(theFile, &status) != 0) return SQLITE_IOERR_FSTAT;
    *size = status.st_size;
    return SQLITE_OK;
}

int nothingToDo(sqlite3_file *) {
    return SQLITE_OK;
}

int refuseWrite(sqlite3_file *, const void *, int, sqlite3_int64) {
    return SQLITE_READONLY;
}

int refuseSize(sqlite3_file *, sqlite3_int64) {
    return SQLITE_READONLY;
}

int acceptFlags(sqlite3_file *, int) {
    return SQLITE_OK;
}

int nobodyReserved(sqlite3_file *, int *is) {
    *is = 0;
    return SQLITE_OK;
}

int knowsNoControl(sqlite3_file *, int, void *) {
    return SQLITE_NOTFOUND;
}

int nobodyWrites(sqlite3_file *) {
    return SQLITE_IOCAP_IMMUTABLE;
}

constexpr int UsualSector = 4096;

int sectorSize(sqlite3_file *) {
    return UsualSector;
}

const sqlite3_io_methods *methods() {
    static const sqlite3_io_methods all = [] {
        sqlite3_io_methods own = {};
        own.iVersion = 1;
        own.xClose = nothingToDo;
        own.xRead = readAt;
        own.xWrite = refuseWrite;
        own.xTruncate = refuseSize;
        own.xSync = acceptFlags;
        own.xFileSize = fileSize;
        own.xLock = acceptFlags;
        own.xUnlock = acceptFlags;
        own.xCheckReservedLock = nobodyReserved;
        own.xFileControl = knowsNoControl;
        own.xSectorSize = sectorSize;
        own.xDeviceCharacteristics = nobodyWrites;
        return own;
    }();
    return &all;
}

int openFile(sqlite3_vfs *, const char *, sqlite3_file *file, int flags, int *openedAs) {
    file->pMethods = nullptr;
    if ((flags & SQLITE_OPEN_MAIN_DB) == 0) return SQLITE_CANTOPEN;
    file->pMethods = methods();
    if (openedAs) *openedAs = SQLITE_OPEN_MAIN_DB | SQLITE_OPEN_READONLY;
    return SQLITE_OK;
}

int refuseDelete(sqlite3_vfs *, const char *, int) {
    return SQLITE_READONLY;
}

int isNotThere(sqlite3_vfs *, const char *, int, int *is) {
    *is = 0;
    return SQLITE_OK;
}

int sameName(sqlite3_vfs *, const char *name, int size, char *full) {
    sqlite3_snprintf(size, full, "%s", name);
    return SQLITE_OK;
}

/// Only a view that throws dice would notice.
int alwaysTheSame(sqlite3_vfs *, int size, char *bytes) {
    std::fill_n(bytes, size, '\x55');
    return size;
}

int noSleep(sqlite3_vfs *, int) {
    return 0;
}

int julianMilliseconds(sqlite3_vfs *, sqlite3_int64 *milliseconds) {
    timespec now = {};
    clock_gettime(CLOCK_REALTIME, &now);
    *milliseconds = Epoch + sqlite3_int64(now.tv_sec) * 1000 + now.tv_nsec / 1'000'000;
    return SQLITE_OK;
}

int julianDays(sqlite3_vfs *system, double *days) {
    sqlite3_int64 milliseconds = 0;
    julianMilliseconds(system, &milliseconds);
    *days = double(milliseconds) / double(MillisecondsOfDay);
    return SQLITE_OK;
}

int noError(sqlite3_vfs *, int, char *) {
    return 0;
}

} // namespace

const char *DescriptorVfs::install(int file) {
    theFile = file;
    static sqlite3_vfs system = [] {
        sqlite3_vfs own = {};
        own.iVersion = 2;
        own.szOsFile = sizeof(sqlite3_file);
        own.mxPathname = LongestPath;
        own.zName = SystemName;
        own.xOpen = openFile;
        own.xDelete = refuseDelete;
        own.xAccess = isNotThere;
        own.xFullPathname = sameName;
        own.xRandomness = alwaysTheSame;
        own.xSleep = noSleep;
        own.xCurrentTime = julianDays;
        own.xGetLastError = noError;
        own.xCurrentTimeInt64 = julianMilliseconds;
        return own;
    }();
    sqlite3_vfs_register(&system, 1); // random() asks the usual one, which would ask for what is forbidden
    return SystemName;
}
