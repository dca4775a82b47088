// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/SystemSound.h"
#include "platform/waveFile.h"

#include <QElapsedTimer>
#include <QFile>
#include <QLibrary>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <cstring>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>

namespace
{

/// Half a second of silence, 8000 samples a second.
QByteArray wave()
{
    constexpr int Samples = 4000;
    QByteArray bytes("RIFF\0\0\0\0WAVEfmt \x10\0\0\0\x01\0\x01\0\x40\x1f\0\0\x80\x3e\0\0\x02\0\x10\0data", 40);
    bytes += QByteArray("\x40\x1f\0\0", 4);
    return bytes + QByteArray(Samples * 2, '\0');
}

/// Listens, accepts and never answers. It stays open to the end of the process, as a server outlives its clients.
int deadServer(const QByteArray &path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (size_t(path.size()) >= sizeof address.sun_path)
        return -1;
    std::memcpy(address.sun_path, path.constData(), size_t(path.size()));
    const int server = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const bool listens =
        ::bind(server, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0 && ::listen(server, 4) == 0;
    return listens ? server : -1;
}

bool isCalled(int server)
{
    pollfd wait{server, POLLIN, 0};
    constexpr int Patience = 20'000; // ms
    return ::poll(&wait, 1, Patience) == 1;
}

} // namespace

class testSound final : public QObject
{
    Q_OBJECT

private slots:
    void files_data();
    void files();
    void everyTruncation();
    void threeBytesBecomeFour();
    void foldersAndHugeFiles();
    void deadSoundServerDelaysNothing();

private:
    QString write(const QByteArray &bytes)
    {
        QFile file(m_folder.filePath(QStringLiteral("sound.wav")));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("Sound file not written");
        return file.fileName();
    }

    QTemporaryDir m_folder;
};

void testSound::files_data()
{
    QTest::addColumn<int>("at"); // where the good file is overwritten
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("playable");
    const auto row = [](const char *name, int at, const char *bytes, qsizetype length, bool playable) {
        QTest::newRow(name) << at << QByteArray(bytes, length) << playable;
    };
    row("good", 0, "RIFF", 4, true);
    row("other container", 0, "RIFX", 4, false);
    row("other content", 8, "AVI ", 4, false);
    row("compressed", 20, "\x55", 1, false);
    row("no channels", 22, "\0\0", 2, false);
    row("a thousand channels", 22, "\xe8\x03", 2, false);
    row("no rate", 24, "\0\0\0\0", 4, false);
    row("no bits", 34, "\0\0", 2, false);
    row("frames of no size", 32, "\0\0", 2, false);
    row("format too short", 16, "\x08", 1, false);
    row("floats of two bytes", 20, "\3", 1, false);
    row("longer than the file", 40, "\xff\xff\xff\xff", 4, true);
    row("no samples", 40, "\0\0\0\0", 4, false);
    row("no format", 12, "LIST\xff\xff\xff\xff", 8, false);
}

void testSound::files()
{
    QFETCH(int, at);
    QFETCH(QByteArray, bytes);
    QTEST(waveFile::read(write(wave().replace(at, bytes.size(), bytes))).has_value(), "playable");
}

/// What is left of a cut file is played, in whole frames.
void testSound::everyTruncation()
{
    constexpr qsizetype Header = 44;
    for (qsizetype keep = 0; keep <= Header + 9; ++keep) {
        const auto samples = waveFile::read(write(wave().first(keep)));
        QCOMPARE(samples ? samples->frames.size() : 0, qMax<qsizetype>(keep - Header, 0) / 2 * 2);
    }
}

void testSound::threeBytesBecomeFour()
{
    QByteArray bytes = wave().first(44) + QByteArray("\1\2\x83\4\5\6\7", 7);
    const auto samples = waveFile::read(write(bytes.replace(32, 4, QByteArray("\3\0\x18\0", 4))));
    QVERIFY(samples && samples->kind == WaveSamples::Kind::Int32 && samples->rate == 8000);
    QCOMPARE(samples->frames, QByteArray("\0\1\2\x83\0\4\5\6", 8));
}

void testSound::foldersAndHugeFiles()
{
    QVERIFY(!waveFile::read(m_folder.path()));
    QVERIFY(!waveFile::read(m_folder.filePath(QStringLiteral("missing.wav"))));
    QFile file(write(wave()));
    QVERIFY(file.resize(1'000'000'000));
    QVERIFY(!waveFile::read(file.fileName()));
}

void testSound::deadSoundServerDelaysNothing()
{
    const QByteArray path = m_folder.filePath(QStringLiteral("sound.sock")).toLocal8Bit();
    const int server = deadServer(path);
    QVERIFY(server >= 0);
    qputenv("PULSE_SERVER", "unix:" + path);
    QElapsedTimer timer;
    timer.start();
    {
        SystemSound sound{QStringLiteral(SOUND_LIBRARY)};
        sound.play(write(wave()));
        sound.play(m_folder.filePath(QStringLiteral("missing.wav")));
        QVERIFY(timer.elapsed() < 500);
        QVERIFY(isCalled(server));
        timer.restart();
    }
    QVERIFY(timer.elapsed() < 1000);
}

QTEST_GUILESS_MAIN(testSound)
#include "testSound.moc"
