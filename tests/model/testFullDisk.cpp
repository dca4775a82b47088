// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/wholeFile.h"
#include "model/modFileIO.h"
#include "samples.h"

#include <QDir>
#include <QObject>
#include <QTemporaryDir>

#include <csignal>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

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

class testFullDisk final : public QObject
{
    Q_OBJECT

private slots:
    void goodFileStays_data();
    void goodFileStays();
    void nextWriteCatchesUp();
};

void testFullDisk::goodFileStays_data()
{
    QTest::addColumn<int>("limit");
    for (const int limit : {0, 1, 4096, 65536, 119999})
        QTest::addRow("%d bytes", limit) << limit;
}

void testFullDisk::goodFileStays()
{
    QFETCH(int, limit);
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"notes.dat"_s);
    setContents(path, "good");
    const DiskLimit full{rlim_t(limit)};
    const auto written = replaceFile(path, QByteArray(120'000, 'x'));
    QVERIFY(!written && !written.error().isEmpty());
    QCOMPARE(contents(path), QByteArray("good"));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList(u"notes.dat"_s));
}

void testFullDisk::nextWriteCatchesUp()
{
    const QTemporaryDir folder;
    DataFileState state;
    state.paths = ProgramPaths::under(folder.path(), folder.path());
    QDir(folder.path()).mkdir(u"Data"_s);
    QVERIFY(modFileIO::WriteNoteRecord(state, taggedNote(1, u"first"_s), true).kind == WriteResult::Kind::Written);
    const QByteArray before = contents(state.paths.DataFile);
    {
        const DiskLimit full(200);
        const WriteResult result = modFileIO::WriteNoteRecord(state, taggedNote(2, QString(500, u'x')), true);
        QVERIFY(result.kind == WriteResult::Kind::Failed && !result.reason.isEmpty());
        QVERIFY(state.unsaved && !modFileIO::flush(state));
    }
    QCOMPARE(contents(state.paths.DataFile), before);
    QVERIFY(modFileIO::flush(state).ok() && !state.unsaved);
    QCOMPARE(contents(state.paths.DataFile), state.image.bytes());
}

QTEST_APPLESS_MAIN(testFullDisk)
#include "testFullDisk.moc"
