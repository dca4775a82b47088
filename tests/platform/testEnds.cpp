// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/EndSignals.h"
#include "platform/ExitRescue.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <memory>
#include <sys/wait.h>
#include <unistd.h>

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
    QFile file(folder.filePath(QStringLiteral("rescued")));
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

} // namespace

class testEnds final : public QObject
{
    Q_OBJECT

private slots:
    void signalsAreTold_data();
    void signalsAreTold();
    void rescueRunsOnce();
};

void testEnds::signalsAreTold_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("terminate") << SIGTERM;
    QTest::newRow("hang up") << SIGHUP;
    QTest::newRow("interrupt") << SIGINT;
}

void testEnds::signalsAreTold()
{
    QFETCH(int, number);
    {
        EndSignals ends;
        QSignalSpy told(&ends, &EndSignals::endRequested);
        // Never from within the signal: what it comes into may be in the middle of anything.
        QVERIFY(std::raise(number) == 0 && std::raise(number) == 0 && told.isEmpty());
        QTRY_COMPARE(told.count(), 1);
        std::raise(number);
        QTRY_COMPARE(told.count(), 2);
    }
    QVERIFY(isDefault(number));
}

void testEnds::rescueRunsOnce()
{
    QCOMPARE(rescuedIn([](auto &) { std::exit(1); }), QByteArray("x"));
    QCOMPARE(rescuedIn([](auto &rescue) {
                 rescue.reset();
                 std::exit(0);
             }),
             QByteArray());
}

QTEST_GUILESS_MAIN(testEnds)
#include "testEnds.moc"
