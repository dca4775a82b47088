// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/EndSignals.h"
#include "platform/ExitRescue.h"
#include "platform/SingleInstance.h"
#include "platform/SystemBrowser.h"
#include "support/TestHome.h"
#include "support/compareRow.h"
#include "support/rows.h"

#include <QSignalSpy>
#include <QUrl>

#include <csignal>
#include <memory>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace
{

bool isDefault(int number)
{
    struct sigaction action = {};
    return ::sigaction(number, nullptr, &action) == 0 && action.sa_handler == SIG_DFL;
}

/// Ends a child in its own way; whether the rescue ran in it, and how often.
QByteArray rescuedIn(const std::function<void(std::unique_ptr<ExitRescue> &)> &end)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"rescued"_s));
    if (!file.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
        return "not opened";
    const pid_t child = ::fork();
    if (child == 0) {
        auto rescue = std::make_unique<ExitRescue>([&file] { file.write("x"); });
        end(rescue);
        ::_exit(0);
    }
    ::waitpid(child, nullptr, 0);
    file.seek(0);
    return file.readAll();
}

/// A login session, which the instances that follow belong to.
struct Session
{
    Session() { enter(); }
    void enter() const { qputenv("XDG_RUNTIME_DIR", folder.path().toLocal8Bit()); }

    const QTemporaryDir folder;
};

} // namespace

/// The program among others: a browser that it starts, signals that end it, another one that runs already.
class testProcesses final : public QObject
{
    Q_OBJECT

private slots:
    void missingBrowserIsTold_data()
    {
        const Rows<QByteArray, int> row; // opener, told
        const QByteArray opens = "#!/bin/sh\necho \"$1\" > \"$0.page\"\n";
        row("opens it", opens, 0);
        row("lasts as long as the browser", opens + "while [ -e \"$0\" ]; do sleep 0.05; done\n", 0);
        row("finds none", opens + "sleep 0.1\nexit 3\n", 1);
        row("is killed", opens + "kill -9 $$\n", 1);
        row("cannot be run", "#!/nowhere/sh\n", 1);
    }

    void missingBrowserIsTold()
    {
        const auto [opener, expected] = fetchRow<QByteArray, int>();
        QTemporaryDir folder;
        const QString command = folder.filePath(u"xdg-open"_s);
        TestHome::setContents(command, opener);
        QFile::setPermissions(command, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", QFile::encodeName(folder.path()) + ':' + path);
        const auto told = std::make_shared<int>(0);
        SystemBrowser browser;
        browser.open(QUrl(u"file:///help/in%20dex.html"_s), [told] { ++*told; });
        qputenv("PATH", path);
        if (opener.contains("page"))
            QTRY_COMPARE(TestHome::contents(command + u".page"_s), QByteArray("file:///help/in%20dex.html\n"));
        QTest::qWait(300);
        QCOMPARE(*told, expected);
        // The command lives as long as its file; with the command goes what waits for its end.
        QVERIFY(folder.remove());
        QTRY_COMPARE(told.use_count(), 1L);
    }

    void signalsAreTold()
    {
        for (const int number : {SIGTERM, SIGHUP, SIGINT}) {
            {
                EndSignals ends;
                const QSignalSpy told(&ends, &EndSignals::endRequested);
                // Never from within the signal: what it comes into may be in the middle of anything.
                QVERIFY(std::raise(number) == 0 && std::raise(number) == 0 && told.isEmpty());
                QTRY_COMPARE(told.count(), 1);
                std::raise(number);
                QTRY_COMPARE(told.count(), 2);
            }
            QVERIFY2(isDefault(number), strsignal(number));
        }
    }

    void rescueRunsOnce()
    {
        QCOMPARE(rescuedIn([](auto &) { std::exit(1); }), QByteArray("x"));
        QCOMPARE(rescuedIn([](auto &rescue) {
                     rescue.reset();
                     std::exit(0);
                 }),
                 QByteArray());
    }

    void onlyOne()
    {
        const Session session;
        {
            SingleInstance first;
            QVERIFY(first.acquire() && !SingleInstance().acquire());
        }
        SingleInstance here;
        QVERIFY(here.acquire());
        const Session other;
        QVERIFY(SingleInstance().acquire());
        // Two sessions on one folder.
        const QString inFolder = session.folder.filePath(u"folder.lock"_s);
        SingleInstance mine(inFolder);
        QVERIFY(mine.acquire() && !SingleInstance(inFolder).acquire());
        // Held all the same while the computer is given another name.
        TestHome::setContents(inFolder, "1\nquillets\nelsewhere\n");
        QVERIFY(!SingleInstance(inFolder).acquire());
    }

    /// What a crash leaves never stops the next start, nor makes it wait.
    void leftLocks()
    {
        const auto row = [](const char *name, const QByteArray &lock, int seconds, bool starts) {
            const Session session;
            QFile file(session.folder.filePath(u"quillets.lock"_s));
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(lock) == lock.size() && file.flush());
            QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(-seconds), QFile::FileModificationTime));
            file.close();
            compareRow(name, SingleInstance().acquire(), starts);
        };
        const QByteArray host = "\nquillets\n" + QSysInfo::machineHostName().toLocal8Bit() + '\n';
        const QByteArray dead = "999999999" + host;
        row("of a program that is gone", dead, 0, true);
        row("empty", {}, 10, true);
        row("cut", "99", 10, true);
        row("cut in the computer's number", dead + QSysInfo::machineUniqueId().first(8), 0, true);
        row("of another computer", "1\nquillets\nelsewhere\n", 0, true);
        row("of this one, with another's number", "1" + host, 0, true);
        row("endless", QByteArray(1'000'000, '1'), 10, true);
        row("of a start at this moment", {}, 0, false);
    }

    void folderThatTakesNoLock()
    {
        if (::geteuid() == 0)
            QSKIP("Nothing is read-only for root.");
        const Session session;
        QFile::setPermissions(session.folder.path(), QFile::ReadOwner | QFile::ExeOwner);
        QVERIFY(SingleInstance().acquire());
        QFile::setPermissions(session.folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
};

QTEST_GUILESS_MAIN(testProcesses)
#include "testProcesses.moc"
