// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
// Preloaded into the program: writes down every change to files below the folder RECORDER_FOLDER into the file
// RECORDER_LOG, with the clock and the bytes, and makes calls fail as the file RECORDER_FAULTS says.
//
// A record: a line "begin end kind result handle flags length length\n", the times in ns of CLOCK_MONOTONIC, the result
// as the call's or its negative errno, and then as many bytes: a path, and a second path or the bytes written.
// Faults: words "kind:n:error", the n-th call of the kind since the file was changed, or "kind:n+:error", that one and
// all after it. The error is a number; "short" for a write of half the bytes.
#define _GNU_SOURCE
#include <errno.h>
#include <fcntl.h>
#include <limits.h>
#include <pthread.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <time.h>
#include <unistd.h>

enum Kind
{
    Start,
    Open,
    OpenFolder,
    Write,
    Truncate,
    Sync,
    FolderSync,
    Rename,
    Link,
    Unlink,
    Mkdir,
    Close,
    KindCount
};

static const char *const names[KindCount] = {"start",      "open",   "openfolder", "write",  "truncate", "sync",
                                             "foldersync", "rename", "link",       "unlink", "mkdir",    "close"};
enum
{
    MostHandles = 4096,
    LongestFaults = 512,
    LongestPath = 2 * PATH_MAX
};
static pthread_mutex_t mutex = PTHREAD_MUTEX_INITIALIZER;
static int logHandle = -1;
static char isWatched[MostHandles]; // 1: a file, 2: a folder.
static char faults[LongestFaults];
static int calls[KindCount];

static long long now(void)
{
    struct timespec time;
    clock_gettime(CLOCK_MONOTONIC, &time);
    return time.tv_sec * 1000000000LL + time.tv_nsec;
}

static int watchedKind(int handle)
{
    return handle >= 0 && handle < MostHandles ? isWatched[handle] : 0;
}

/// Whether the path, made absolute, is the folder or below it.
static int isBelow(int folderHandle, const char *path, char *full)
{
    const char *folder = getenv("RECORDER_FOLDER");
    char start[PATH_MAX] = "";
    if (folder == NULL || path == NULL)
        return 0;
    if (path[0] != '/' && folderHandle == AT_FDCWD) {
        if (getcwd(start, sizeof start) == NULL)
            return 0;
    } else if (path[0] != '/') {
        char link[64];
        snprintf(link, sizeof link, "/proc/self/fd/%d", folderHandle);
        const ssize_t length = readlink(link, start, sizeof start - 1);
        if (length < 0)
            return 0;
        start[length] = '\0';
    }
    const int written = snprintf(full, LongestPath, "%s%s%s", start, start[0] != '\0' ? "/" : "", path);
    const size_t length = strlen(folder);
    return written < LongestPath && strncmp(full, folder, length) == 0 && (full[length] == '/' || full[length] == '\0');
}

static void readFaults(void)
{
    const char *path = getenv("RECORDER_FAULTS");
    char read_[LongestFaults] = "";
    const int handle = path != NULL ? (int)syscall(SYS_openat, AT_FDCWD, path, O_RDONLY) : -1;
    if (handle >= 0) {
        const long length = syscall(SYS_read, handle, read_, sizeof read_ - 1);
        read_[length > 0 ? length : 0] = '\0';
        syscall(SYS_close, handle);
    }
    if (strcmp(read_, faults) != 0) {
        strcpy(faults, read_);
        memset(calls, 0, sizeof calls);
    }
}

/// 0: none, -1: a short write, else an errno.
static int fault(enum Kind kind)
{
    readFaults();
    ++calls[kind];
    for (const char *word = faults; word[0] != '\0'; word += strcspn(word, " ") + (strchr(word, ' ') != NULL)) {
        const size_t length = strlen(names[kind]);
        if (strncmp(word, names[kind], length) != 0 || word[length] != ':')
            continue;
        char *rest = NULL;
        const long number = strtol(word + length + 1, &rest, 10);
        const int isForEver = *rest == '+';
        if (calls[kind] == number || (isForEver && calls[kind] > number))
            return strncmp(rest + isForEver, ":short", 6) == 0 ? -1 : atoi(rest + isForEver + 1);
    }
    return 0;
}

static void put(long long begin, enum Kind kind, long result, int handle, long flags, const char *path,
                const void *bytes, size_t length)
{
    char line[LongestPath + 256];
    const int head = snprintf(line, sizeof line, "%lld %lld %s %ld %d %ld %zu %zu\n%s", begin, now(), names[kind],
                              result < 0 ? -(long)errno : result, handle, flags, strlen(path), length, path);
    const struct iovec parts[2] = {{line, (size_t)head}, {(void *)bytes, length}};
    const int error = errno;
    if (logHandle >= 0 && syscall(SYS_writev, logHandle, parts, 2) != head + (long)length)
        abort();
    errno = error;
}

__attribute__((constructor)) static void start(void)
{
    const char *path = getenv("RECORDER_LOG");
    if (path != NULL)
        logHandle = (int)syscall(SYS_openat, AT_FDCWD, path, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    put(now(), Start, 0, -1, 0, "", "", 0);
}

// Makes the call unless it is to fail. One at a time, so that the records have the order of the calls.
#define RECORDED(kind, call, handle, flags, path, bytes, length)                                                       \
    long result = 0;                                                                                                   \
    pthread_mutex_lock(&mutex);                                                                                        \
    const long long begin = now();                                                                                     \
    const int failure = fault(kind);                                                                                   \
    result = failure > 0 ? (errno = failure, -1L) : (call);                                                            \
    put(begin, kind, result, handle, flags, path, bytes, length);                                                      \
    pthread_mutex_unlock(&mutex)

static int openAt(int folder, const char *path, int flags, mode_t mode)
{
    char full[LongestPath];
    const int isChanging = (flags & O_ACCMODE) != O_RDONLY || (flags & (O_CREAT | O_TRUNC)) != 0;
    if (!isBelow(folder, path, full) || (!isChanging && (flags & O_DIRECTORY) == 0))
        return (int)syscall(SYS_openat, folder, path, flags, mode);
    RECORDED(isChanging ? Open : OpenFolder, syscall(SYS_openat, folder, path, flags, mode), (int)result, flags, full,
             "", 0);
    if (result >= 0 && result < MostHandles)
        isWatched[result] = isChanging ? 1 : 2;
    return (int)result;
}

#define OPEN_WITH_MODE(folder)                                                                                         \
    va_list arguments;                                                                                                 \
    va_start(arguments, flags);                                                                                        \
    const mode_t mode = (flags & (O_CREAT | __O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;                        \
    va_end(arguments);                                                                                                 \
    return openAt(folder, path, flags, mode)

int open(const char *path, int flags, ...)
{
    OPEN_WITH_MODE(AT_FDCWD);
}

int openat(int folder, const char *path, int flags, ...)
{
    OPEN_WITH_MODE(folder);
}

int close(int handle)
{
    if (watchedKind(handle) == 0)
        return (int)syscall(SYS_close, handle);
    isWatched[handle] = 0;
    RECORDED(Close, syscall(SYS_close, handle), handle, 0, "", "", 0);
    return (int)result;
}

static ssize_t writeAt(int handle, const void *bytes, size_t length, off_t at)
{
#define GIVEN (failure == -1 && length > 1 ? length / 2 : length)
    RECORDED(Write, at < 0 ? syscall(SYS_write, handle, bytes, GIVEN) : syscall(SYS_pwrite64, handle, bytes, GIVEN, at),
             handle, (long)at, "", bytes, result > 0 ? (size_t)result : 0);
    return result;
}

ssize_t write(int handle, const void *bytes, size_t length)
{
    return watchedKind(handle) != 0 ? writeAt(handle, bytes, length, -1) : syscall(SYS_write, handle, bytes, length);
}

ssize_t pwrite(int handle, const void *bytes, size_t length, off_t at)
{
    return watchedKind(handle) != 0 ? writeAt(handle, bytes, length, at)
                                    : syscall(SYS_pwrite64, handle, bytes, length, at);
}

int ftruncate(int handle, off_t length)
{
    if (watchedKind(handle) == 0)
        return (int)syscall(SYS_ftruncate, handle, length);
    RECORDED(Truncate, syscall(SYS_ftruncate, handle, length), handle, (long)length, "", "", 0);
    return (int)result;
}

static int syncOf(int handle, long number)
{
    if (watchedKind(handle) == 0)
        return (int)syscall(number, handle);
    RECORDED(isWatched[handle] == 2 ? FolderSync : Sync, syscall(number, handle), handle, 0, "", "", 0);
    return (int)result;
}

int fsync(int handle)
{
    return syncOf(handle, SYS_fsync);
}

int fdatasync(int handle)
{
    return syncOf(handle, SYS_fdatasync);
}

int renameat2(int fromFolder, const char *from, int toFolder, const char *to, unsigned flags)
{
    char fromFull[LongestPath];
    char toFull[LongestPath];
    const int isOurs = isBelow(fromFolder, from, fromFull) + isBelow(toFolder, to, toFull);
    if (isOurs == 0)
        return (int)syscall(SYS_renameat2, fromFolder, from, toFolder, to, flags);
    RECORDED(Rename, syscall(SYS_renameat2, fromFolder, from, toFolder, to, flags), -1, (long)flags, fromFull, toFull,
             strlen(toFull));
    return (int)result;
}

int rename(const char *from, const char *to)
{
    return renameat2(AT_FDCWD, from, AT_FDCWD, to, 0);
}

int linkat(int fromFolder, const char *from, int toFolder, const char *to, int flags)
{
    char full[LongestPath];
    if (!isBelow(toFolder, to, full))
        return (int)syscall(SYS_linkat, fromFolder, from, toFolder, to, flags);
    RECORDED(Link, syscall(SYS_linkat, fromFolder, from, toFolder, to, flags), -1, flags, from, full, strlen(full));
    return (int)result;
}

int link(const char *from, const char *to)
{
    return linkat(AT_FDCWD, from, AT_FDCWD, to, 0);
}

int unlinkat(int folder, const char *path, int flags)
{
    char full[LongestPath];
    if (!isBelow(folder, path, full))
        return (int)syscall(SYS_unlinkat, folder, path, flags);
    RECORDED(Unlink, syscall(SYS_unlinkat, folder, path, flags), -1, flags, full, "", 0);
    return (int)result;
}

int unlink(const char *path)
{
    return unlinkat(AT_FDCWD, path, 0);
}

int mkdir(const char *path, mode_t mode)
{
    char full[LongestPath];
    if (!isBelow(AT_FDCWD, path, full))
        return (int)syscall(SYS_mkdir, path, mode);
    RECORDED(Mkdir, syscall(SYS_mkdir, path, mode), -1, 0, full, "", 0);
    return (int)result;
}

int open64(const char *path, int flags, ...) __attribute__((alias("open")));
int openat64(int folder, const char *path, int flags, ...) __attribute__((alias("openat")));
ssize_t pwrite64(int handle, const void *bytes, size_t length, off_t at) __attribute__((alias("pwrite")));
int ftruncate64(int handle, off_t length) __attribute__((alias("ftruncate")));
