// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "drawing/metafile.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QUrl>

#include <array>
#include <atomic>
#ifdef Q_OS_UNIX
#include <sys/resource.h>
#endif

namespace metafile
{
namespace
{

constexpr qint64 LongestFile = 16 * 1024 * 1024;
constexpr qint64 LongestPicture = 64 * 1024 * 1024;
constexpr int LongestMilliseconds = 10'000;

struct Converter
{
    const char *command;
    bool readsEmf;
    QStringList (*arguments)(const QString &drawing, const QString &folder, int width);
};

/// The quick ones first. All leave "picture.png" in the folder.
constexpr std::array Converters{
    Converter{"wmf2gd", false,
              [](const QString &drawing, const QString &folder, int width) {
                  return QStringList{QStringLiteral("-t"),
                                     QStringLiteral("png"),
                                     QStringLiteral("--maxpect"),
                                     QStringLiteral("--maxwidth=%1").arg(width),
                                     QStringLiteral("--maxheight=%1").arg(width),
                                     QStringLiteral("-o"),
                                     folder + QStringLiteral("/picture.png"),
                                     drawing};
              }},
    Converter{"inkscape", true,
              [](const QString &drawing, const QString &folder, int width) {
                  return QStringList{QStringLiteral("--export-type=png"),
                                     QStringLiteral("--export-width=%1").arg(width),
                                     QStringLiteral("--export-filename=%1/picture.png").arg(folder), drawing};
              }},
    Converter{"soffice", true,
              [](const QString &drawing, const QString &folder, int) {
                  const QString profile = QUrl::fromLocalFile(folder + QStringLiteral("/profile")).toString();
                  return QStringList{QStringLiteral("-env:UserInstallation=") + profile,
                                     QStringLiteral("--headless"),
                                     QStringLiteral("--convert-to"),
                                     QStringLiteral("png"),
                                     QStringLiteral("--outdir"),
                                     folder,
                                     drawing};
              }},
};

#ifdef Q_OS_UNIX
void limit()
{
    constexpr rlim_t Seconds = LongestMilliseconds / 1000;
    constexpr rlim_t Memory = 4ULL * 1024 * 1024 * 1024; // Of addresses; office programs reserve much.
    const auto most = [](auto what, rlim_t value) {
        const rlimit bound{value, value};
        setrlimit(what, &bound);
    };
    most(RLIMIT_CPU, Seconds);
    most(RLIMIT_AS, Memory);
    most(RLIMIT_FSIZE, LongestPicture);
    most(RLIMIT_CORE, 0);
}
#endif

/// False when the command ran out of time.
bool run(const QString &command, const QStringList &arguments, const QString &folder, qint64 milliseconds)
{
    QProcess process;
    process.setWorkingDirectory(folder);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
#ifdef Q_OS_UNIX
    process.setChildProcessModifier(limit);
#endif
    process.start(command, arguments);
    if (process.waitForFinished(static_cast<int>(milliseconds)) || process.error() != QProcess::Timedout)
        return true;
    process.kill();
    process.waitForFinished();
    return false;
}

QByteArray bytesOf(const QString &path, qint64 most)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > most)
        return {};
    return file.readAll();
}

/// A copy under a plain name, so that no converter sees names that others chose.
bool copyTo(const QString &path, const QString &copy)
{
    const QByteArray bytes = bytesOf(path, LongestFile);
    QFile file(copy);
    return !bytes.isEmpty() && file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

} // namespace

QByteArray kind(const QByteArray &head)
{
    constexpr qsizetype EmfSignature = 40;
    if (head.startsWith(QByteArray("\x01\0\0\0", 4)) && head.sliced(qMin(EmfSignature, head.size())).startsWith(" EMF"))
        return "emf";
    const QByteArray placeable("\xD7\xCD\xC6\x9A", 4);
    const QByteArray inMemory("\x01\0\x09\0", 4);
    const QByteArray onDisk("\x02\0\x09\0", 4);
    return head.startsWith(placeable) || head.startsWith(inMemory) || head.startsWith(onDisk) ? "wmf" : QByteArray();
}

QByteArray toPng(const QString &path, const QByteArray &kind, int width)
{
    // One that hangs would hold up every note that has such a picture.
    static std::atomic<bool> ranOutOfTime = false;
    const QTemporaryDir folder;
    const QString drawing = folder.filePath(QStringLiteral("picture.") + QString::fromLatin1(kind));
    if (!folder.isValid() || !copyTo(path, drawing))
        return {};
    QElapsedTimer since;
    since.start();
    for (const Converter &converter : Converters) {
        const QString command = QStandardPaths::findExecutable(QString::fromLatin1(converter.command));
        if (command.isEmpty() || (kind == "emf" && !converter.readsEmf) || ranOutOfTime)
            continue;
        ranOutOfTime = !run(command, converter.arguments(drawing, folder.path(), width), folder.path(),
                            qMax(Q_INT64_C(1), LongestMilliseconds - since.elapsed()));
        const QByteArray picture = bytesOf(folder.filePath(QStringLiteral("picture.png")), LongestPicture);
        if (!picture.isEmpty())
            return picture;
    }
    return {};
}

} // namespace metafile
