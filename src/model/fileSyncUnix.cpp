// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/fileSync.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace
{

int syncOnce(int handle)
{
#ifdef F_FULLFSYNC
    // Where this is known, the other call leaves the bytes in the memory of the disk.
    if (::fcntl(handle, F_FULLFSYNC) == 0)
        return 0;
#endif
    return ::fsync(handle);
}

bool isUnknownThere(int error)
{
    return error == EINVAL || error == ENOSYS || error == ENOTSUP;
}

} // namespace

Outcome<Done, QString> fileSync::syncFile(int handle)
{
    int result = syncOnce(handle);
    while (result != 0 && errno == EINTR)
        result = syncOnce(handle);
    if (result == 0 || isUnknownThere(errno))
        return Done{};
    return Failure{qt_error_string(errno)};
}

Outcome<Done, QString> fileSync::syncFolder(const QString &path)
{
    const int handle = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0)
        return Done{}; // A folder that may be written to but not read.
    auto synced = syncFile(handle);
    ::close(handle);
    return synced;
}
