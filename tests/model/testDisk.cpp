// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/modFileIO.h"
#include "model/wholeFile.h"
#include "samples.h"

#include <QDir>
#include <QObject>
#include <QTemporaryDir>

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

Q_DECLARE_METATYPE(Calls)

class testDisk final : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { calls = {}; }
    void outlastsPowerCuts();
    void systemsThatRefuse_data();
    void systemsThatRefuse();
    void goodFileStays_data();
    void goodFileStays();
    void nextWriteCatchesUp();
    void ownFileIsNobodyElses();
};

void testDisk::outlastsPowerCuts()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"notes.dat"_s);
    setContents(path, "good");
    calls.interruptions = 2;
    QVERIFY(wholeFile::replace(path, "better").ok());
    calls.made.removeAll("chmod");
    QCOMPARE(calls.made.join(", "), QByteArray("interrupted, interrupted, sync file, rename, sync folder"));
}

void testDisk::systemsThatRefuse_data()
{
    QTest::addColumn<Calls>("answers");
    QTest::addColumn<bool>("isWritten");
    QTest::addColumn<QByteArray>("contents");
    QTest::newRow("disk fails") << Calls{.syncOfFile = EIO} << false << QByteArray("good");
    QTest::newRow("disk is full") << Calls{.syncOfFile = ENOSPC} << false << QByteArray("good");
    QTest::newRow("no sync of such files") << Calls{.syncOfFile = EINVAL} << true << QByteArray("better");
    QTest::newRow("no sync at all") << Calls{.syncOfFile = ENOSYS, .syncOfFolder = ENOSYS} << true
                                    << QByteArray("better");
    QTest::newRow("no sync of folders") << Calls{.syncOfFolder = EINVAL} << true << QByteArray("better");
    QTest::newRow("disk fails behind the rename") << Calls{.syncOfFolder = EIO} << false << QByteArray("better");
    QTest::newRow("no permissions") << Calls{.permissions = EPERM} << true << QByteArray("better");
}

void testDisk::systemsThatRefuse()
{
    QFETCH(Calls, answers);
    QFETCH(bool, isWritten);
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"notes.dat"_s);
    setContents(path, "good");
    calls = answers;
    const auto written = wholeFile::replace(path, "better");
    QCOMPARE(written.ok(), isWritten);
    QVERIFY(written.ok() || !written.error().isEmpty());
    QTEST(contents(path), "contents");
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList(u"notes.dat"_s));
}

void testDisk::goodFileStays_data()
{
    QTest::addColumn<int>("limit");
    for (const int limit : {0, 1, 4096, 65536, 119999})
        QTest::addRow("%d bytes", limit) << limit;
}

void testDisk::goodFileStays()
{
    QFETCH(int, limit);
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"notes.dat"_s);
    setContents(path, "good");
    const DiskLimit full{rlim_t(limit)};
    const auto written = wholeFile::replace(path, QByteArray(120'000, 'x'));
    QVERIFY(!written && !written.error().isEmpty());
    QCOMPARE(contents(path), QByteArray("good"));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList(u"notes.dat"_s));
}

void testDisk::nextWriteCatchesUp()
{
    const QTemporaryDir folder;
    DataFileState state;
    state.paths = ProgramPaths::under(folder.path(), folder.path());
    QDir(folder.path()).mkdir(u"Data"_s);
    QVERIFY(modFileIO::WriteNoteRecord(state, taggedNote(1, u"first"_s), NoteFate::Keep).kind ==
            WriteResult::Kind::Written);
    const QByteArray before = contents(state.paths.DataFile);
    {
        const DiskLimit full(200);
        const WriteResult result = modFileIO::WriteNoteRecord(state, taggedNote(2, QString(500, u'x')), NoteFate::Keep);
        QVERIFY(result.kind == WriteResult::Kind::Failed && !result.reason.isEmpty());
        QVERIFY(state.unsaved && !modFileIO::flush(state));
    }
    QCOMPARE(contents(state.paths.DataFile), before);
    QVERIFY(modFileIO::flush(state).ok() && !state.unsaved);
    QCOMPARE(contents(state.paths.DataFile), state.image.bytes());
}

/// A write that only failed to be made sure of is made again, and not taken for another program's.
void testDisk::ownFileIsNobodyElses()
{
    const QTemporaryDir folder;
    DataFileState state;
    state.paths = ProgramPaths::under(folder.path(), folder.path());
    QDir(folder.path()).mkdir(u"Data"_s);
    const auto save = [&state](const QString &text) {
        return modFileIO::WriteNoteRecord(state, taggedNote(1, text), NoteFate::Keep).kind;
    };
    QVERIFY(save(u"first"_s) == WriteResult::Kind::Written);
    calls.syncOfFolder = EIO;
    QVERIFY(save(u"second"_s) == WriteResult::Kind::Failed && state.unsaved);
    calls.syncOfFolder = 0;
    QVERIFY(save(u"third"_s) == WriteResult::Kind::Written && state.keptMeanwhile.isEmpty());
}

QTEST_APPLESS_MAIN(testDisk)
#include "testDisk.moc"
