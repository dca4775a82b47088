// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "Runs.h"
#include "model/wholeFile.h"
#include "support/rows.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace
{

/// What the system was asked for, in order, and what it answers in place of doing it.
struct Calls
{
    QByteArrayList made{};
    int syncOfFile = 0; ///< Error numbers; 0: it is done.
    int syncOfFolder = 0;
    int permissions = 0;
    int interruptions = 0; ///< Before a sync is answered.
};
Calls calls;

int answer(const char *name, int error, long number, long first, long second = 0)
{
    calls.made.append(name);
    errno = error;
    return error == 0 ? static_cast<int>(::syscall(number, first, second)) : -1;
}

bool isFolder(int file)
{
    struct stat status = {};
    return ::fstat(file, &status) == 0 && S_ISDIR(status.st_mode);
}

} // namespace

// In place of the system's own, in this program.
extern "C" int fsync(int file)
{
    if (calls.interruptions-- > 0)
        return answer("interrupted", EINTR, SYS_fsync, file);
    return isFolder(file) ? answer("sync folder", calls.syncOfFolder, SYS_fsync, file)
                          : answer("sync file", calls.syncOfFile, SYS_fsync, file);
}

extern "C" int fchmod(int file, mode_t mode) noexcept
{
    return answer("chmod", calls.permissions, SYS_fchmod, file, mode);
}

extern "C" int rename(const char *from, const char *to) noexcept
{
    calls.made.append("rename");
    return static_cast<int>(::syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0));
}

namespace
{

/// While it lives no file grows beyond the limit: writes end short and then fail, as on a full disk.
class DiskLimit
{
public:
    explicit DiskLimit(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_former);
        const rlimit limit{bytes, m_former.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    DiskLimit(const DiskLimit &) = delete;
    DiskLimit &operator=(const DiskLimit &) = delete;
    ~DiskLimit() { setrlimit(RLIMIT_FSIZE, &m_former); }

private:
    rlimit m_former{};
};

} // namespace

/// What is asked of the system when a file is replaced, and what comes of its refusals.
class testDisk final : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { calls = {}; }

    void outlastsPowerCuts()
    {
        const TestHome home;
        home.setDataFile("good");
        calls.interruptions = 2;
        QVERIFY(wholeFile::replace(home.paths.DataFile, "better").ok());
        calls.made.removeAll("chmod");
        QCOMPARE(calls.made.join(", "), QByteArray("interrupted, interrupted, sync file, rename, sync folder"));
    }

    void systemsThatRefuse_data()
    {
        const Rows<Calls, int, bool, bool> row; // answers, room on the disk in bytes, is written, is replaced
        constexpr int Enough = 1'000'000;
        row("disk fails", Calls{.syncOfFile = EIO}, Enough, false, false);
        row("disk is full", Calls{.syncOfFile = ENOSPC}, Enough, false, false);
        row("no sync of such files", Calls{.syncOfFile = EINVAL}, Enough, true, true);
        row("no sync", Calls{.syncOfFile = ENOSYS, .syncOfFolder = ENOSYS}, Enough, true, true);
        row("no sync of folders", Calls{.syncOfFolder = EINVAL}, Enough, true, true);
        row("disk fails behind the rename", Calls{.syncOfFolder = EIO}, Enough, false, true);
        row("no permissions", Calls{.permissions = EPERM}, Enough, true, true);
        for (const int room : {0, 1, 4096, 65536, 119'999})
            row(u"room for %1 bytes"_s.arg(room), {}, room, false, false);
    }

    void systemsThatRefuse()
    {
        const auto [answers, room, isWritten, isReplaced] = fetchRow<Calls, int, bool, bool>();
        const QByteArray better(120'000, 'x');
        const TestHome home;
        home.setDataFile("good");
        calls = answers;
        std::optional<DiskLimit> disk(std::in_place, rlim_t(room));
        const auto written = wholeFile::replace(home.paths.DataFile, better);
        disk.reset();
        QCOMPARE(written.ok(), isWritten);
        QVERIFY(written.ok() || !written.error().isEmpty());
        QCOMPARE(home.dataFile(), isReplaced ? better : "good");
        QCOMPARE(QDir(home.paths.DataFolder).entryList(QDir::Files), QStringList(u"quillets.dat"_s));
    }

    void nextWriteCatchesUp()
    {
        Runs runs;
        QVERIFY(runs.save(1, u"first"_s).kind == WriteResult::Kind::Written);
        const QByteArray before = runs.dataFile();
        {
            const DiskLimit full(200);
            const WriteResult result = runs.save(2, QString(500, u'x'));
            QVERIFY(result.kind == WriteResult::Kind::Failed && !result.reason.isEmpty());
            QVERIFY(runs.state.unsaved && !modFileIO::flush(runs.state));
        }
        QCOMPARE(runs.dataFile(), before);
        QVERIFY(modFileIO::flush(runs.state).ok() && !runs.state.unsaved);
        QCOMPARE(runs.dataFile(), runs.state.image.bytes());
    }

    /// A write that only failed to be made sure of is made again, and not taken for another program's.
    void ownFileIsNobodyElses()
    {
        Runs runs;
        QVERIFY(runs.save(1, u"first"_s).kind == WriteResult::Kind::Written);
        calls.syncOfFolder = EIO;
        QVERIFY(runs.save(1, u"second"_s).kind == WriteResult::Kind::Failed && runs.state.unsaved);
        calls.syncOfFolder = 0;
        QVERIFY(runs.save(1, u"third"_s).kind == WriteResult::Kind::Written && runs.state.keptMeanwhile.isEmpty());
    }
};

QTEST_APPLESS_MAIN(testDisk)
#include "testDisk.moc"
