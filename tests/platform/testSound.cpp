// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/SystemSound.h"
#include "platform/waveFile.h"
#include "support/TestHome.h"
#include "support/rows.h"

#include <QElapsedTimer>
#include <QLocalServer>

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

} // namespace

class testSound final : public QObject
{
    Q_OBJECT

private slots:
    void files_data()
    {
        const Rows<int, QByteArray, bool> row; // where the good file is overwritten, bytes, can be played
        row("good", 0, "RIFF", true);
        row("other container", 0, "RIFX", false);
        row("other content", 8, "AVI ", false);
        row("compressed", 20, "\x55", false);
        row("no channels", 22, QByteArray("\0\0\x40\x1f\0\0\0\0\0\0\0\0", 12), false);
        row("a thousand channels", 22, QByteArray("\xe8\x03\x40\x1f\0\0\0\0\0\0\xd0\7", 12), false);
        row("no rate", 24, QByteArray(4, '\0'), false);
        row("no bits", 34, QByteArray(2, '\0'), false);
        row("frames of no size", 32, QByteArray(2, '\0'), false);
        row("format too short", 16, "\x08", false);
        row("floats of two bytes", 20, "\3", false);
        row("longer than the file", 40, "\xff\xff\xff\xff", true);
        row("no samples", 40, QByteArray(4, '\0'), false);
        row("no format", 12, "LIST\xff\xff\xff\xff", false);
    }

    void files()
    {
        const auto [at, bytes, isPlayable] = fetchRow<int, QByteArray, bool>();
        QCOMPARE(waveFile::read(write(wave().replace(at, bytes.size(), bytes))).has_value(), isPlayable);
    }

    /// What is left of a cut file is played, in whole frames.
    void everyTruncation()
    {
        constexpr qsizetype Header = 44;
        for (qsizetype keep = 0; keep <= Header + 9; ++keep) {
            const auto samples = waveFile::read(write(wave().first(keep)));
            QCOMPARE(samples ? samples->frames.size() : 0, qMax<qsizetype>(keep - Header, 0) / 2 * 2);
        }
    }

    void threeBytesBecomeFour()
    {
        QByteArray bytes = wave().first(44) + QByteArray("\1\2\x83\4\5\6\7", 7);
        const auto samples = waveFile::read(write(bytes.replace(32, 4, QByteArray("\3\0\x18\0", 4))));
        QVERIFY(samples && samples->kind == WaveSamples::Kind::Int32 && samples->rate == 8000);
        QCOMPARE(samples->frames, QByteArray("\0\1\2\x83\0\4\5\6", 8));
    }

    void foldersAndHugeFiles()
    {
        QVERIFY(!waveFile::read(m_folder.path()));
        QVERIFY(!waveFile::read(m_folder.filePath(QStringLiteral("missing.wav"))));
        QFile file(write(wave()));
        QVERIFY(file.resize(1'000'000'000));
        QVERIFY(!waveFile::read(file.fileName()));
    }

    void deadSoundServerDelaysNothing()
    {
        // It takes connections and says nothing. It is there to the end of the process, as it outlives its clients.
        static auto *const server = new QLocalServer;
        QVERIFY(server->listen(m_folder.filePath(QStringLiteral("sound.sock"))));
        qputenv("PULSE_SERVER", "unix:" + server->fullServerName().toLocal8Bit());
        QElapsedTimer timer;
        timer.start();
        {
            SystemSound sound{QStringLiteral(SOUND_LIBRARY)};
            sound.play(write(wave()));
            sound.play(m_folder.filePath(QStringLiteral("missing.wav")));
            QVERIFY(timer.elapsed() < 500);
            QTRY_VERIFY_WITH_TIMEOUT(server->hasPendingConnections(), 20'000);
            timer.restart();
        }
        QVERIFY(timer.elapsed() < 1000);
    }

private:
    QString write(const QByteArray &bytes) const
    {
        const QString path = m_folder.filePath(QStringLiteral("sound.wav"));
        TestHome::setContents(path, bytes);
        return path;
    }

    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(testSound)
#include "testSound.moc"
