// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/SingleInstance.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

namespace
{

/// A process that ended long ago, in the layout of the lock.
QByteArray lockOfTheDead()
{
    return "999999999\nquillets\n" + QSysInfo::machineHostName().toLocal8Bit() + '\n';
}

} // namespace

class testSingleInstance final : public QObject
{
    Q_OBJECT

private slots:
    void onlyOne();
    void leftLocks_data();
    void leftLocks();
    void folderThatTakesNoLock();
};

void testSingleInstance::onlyOne()
{
    const QTemporaryDir session;
    qputenv("XDG_RUNTIME_DIR", session.path().toLocal8Bit());
    {
        SingleInstance first;
        QVERIFY(first.acquire());
        SingleInstance second;
        QVERIFY(!second.acquire());
    }
    QVERIFY(SingleInstance().acquire());
    const QTemporaryDir other;
    SingleInstance here;
    QVERIFY(here.acquire());
    qputenv("XDG_RUNTIME_DIR", other.path().toLocal8Bit());
    QVERIFY(SingleInstance().acquire());
    // Two sessions on one folder.
    const QString inFolder = session.filePath(QStringLiteral("folder.lock"));
    SingleInstance mine(inFolder);
    QVERIFY(mine.acquire() && !SingleInstance(inFolder).acquire());
    // Held all the same while the computer is given another name.
    QFile lock(inFolder);
    QVERIFY(lock.open(QIODevice::ReadWrite) && lock.resize(0) && lock.write("1\nquillets\nelsewhere\n") > 0);
    lock.close();
    QVERIFY(!SingleInstance(inFolder).acquire());
}

/// What a crash leaves never stops the next start, nor makes it wait.
void testSingleInstance::leftLocks_data()
{
    QTest::addColumn<QByteArray>("lock");
    QTest::addColumn<int>("age"); // seconds
    QTest::addColumn<bool>("starts");
    QTest::newRow("of a program that is gone") << lockOfTheDead() << 0 << true;
    QTest::newRow("empty") << QByteArray() << 10 << true;
    QTest::newRow("cut") << QByteArray("99") << 10 << true;
    QTest::newRow("cut in the computer's number")
        << lockOfTheDead() + QSysInfo::machineUniqueId().first(8) << 0 << true;
    QTest::newRow("of another computer") << QByteArray("1\nquillets\nelsewhere\n") << 0 << true;
    QTest::newRow("of this one, with another's number") << lockOfTheDead().replace("999999999", "1") << 0 << true;
    QTest::newRow("endless") << QByteArray(1'000'000, '1') << 10 << true;
    QTest::newRow("of a start at this moment") << QByteArray() << 0 << false;
}

void testSingleInstance::leftLocks()
{
    QFETCH(QByteArray, lock);
    QFETCH(int, age);
    QFETCH(bool, starts);
    const QTemporaryDir session;
    qputenv("XDG_RUNTIME_DIR", session.path().toLocal8Bit());
    QFile file(session.filePath(QStringLiteral("quillets.lock")));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(lock) == lock.size() && file.flush());
    QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(-age), QFile::FileModificationTime));
    file.close();
    QCOMPARE(SingleInstance().acquire(), starts);
}

void testSingleInstance::folderThatTakesNoLock()
{
    if (::geteuid() == 0)
        QSKIP("Nothing is read-only for root.");
    const QTemporaryDir session;
    qputenv("XDG_RUNTIME_DIR", session.path().toLocal8Bit());
    QFile::setPermissions(session.path(), QFile::ReadOwner | QFile::ExeOwner);
    QVERIFY(SingleInstance().acquire());
    QFile::setPermissions(session.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QTEST_GUILESS_MAIN(testSingleInstance)
#include "testSingleInstance.moc"
