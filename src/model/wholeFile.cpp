// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/wholeFile.h"

#include "model/fileSync.h"
#include "model/logs.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include <filesystem>
#include <limits>

using namespace Qt::StringLiterals;

namespace
{

constexpr QFileDevice::Permissions OwnerOnly = QFileDevice::ReadOwner | QFileDevice::WriteOwner;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(wholeFile)
};

/// A device may take fewer bytes than it was given without calling that an error, a full disk above all; the attempt to
/// write the rest then tells the reason.
bool writeAll(QFileDevice &file, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const qint64 taken = file.write(bytes.data(), bytes.size());
        if (taken <= 0)
            return false;
        bytes = bytes.sliced(taken);
    }
    return file.flush() && file.error() == QFileDevice::NoError;
}

QString asideName(const QFileInfo &source, const QString &suffix, const QDateTime &now, int attempt)
{
    const QString number = attempt == 1 ? QString() : u"-%1"_s.arg(attempt);
    const QString moment = now.toString(u"yyyy-MM-dd-HHmmss"_s);
    return source.dir().filePath(source.completeBaseName() + u'-' + moment + u'-' + suffix + number + u'.' +
                                 source.suffix());
}

/// Makes an empty file under a name that was free, so that nobody else takes it.
Outcome<QString, QString> reserveAsideName(const QString &sourcePath, const QString &suffix, const QDateTime &now)
{
    for (int attempt = 1;; ++attempt) {
        QFile file(asideName(QFileInfo(sourcePath), suffix, now, attempt));
        if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly, OwnerOnly))
            return file.fileName();
        if (!file.exists())
            return Failure{file.errorString()};
    }
}

/// Asks the system for its reason, so that a folder that cannot be searched is not taken for a missing file. What is
/// not a plain file is not opened: that could wait for ever or never end.
std::optional<ReadFailure> obstacle(const QString &path)
{
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::status(QFileInfo(path).filesystemFilePath(), error);
    if (status.type() == std::filesystem::file_type::not_found)
        return ReadFailure{ReadFailure::Kind::Missing, Texts::tr("There is no such file.")};
    if (status.type() == std::filesystem::file_type::none)
        return ReadFailure{ReadFailure::Kind::Unreadable, QString::fromLocal8Bit(error.message())};
    if (status.type() != std::filesystem::file_type::regular)
        return ReadFailure{ReadFailure::Kind::Unreadable, Texts::tr("It is not a file.")};
    return std::nullopt;
}

Outcome<Done, QString> writeAnew(const QString &path, QByteArrayView bytes)
{
    QSaveFile file(path);
    file.setDirectWriteFallback(false);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return Failure{file.errorString()};
    // Some file systems know no permissions; that is no reason to lose a note.
    if (!file.setPermissions(OwnerOnly))
        file.unsetError();
    // The library's own sync does not tell when it fails.
    auto written = writeAll(file, bytes) ? fileSync::syncFile(file.handle()) : Failure{file.errorString()};
    if (!written) {
        file.cancelWriting();
        return written;
    }
    if (!file.commit())
        return Failure{file.errorString()};
    return fileSync::syncFolder(QFileInfo(path).path());
}

Outcome<QString, QString> copyAside(const QString &sourcePath, const QString &suffix, const QDateTime &now)
{
    const auto bytes = wholeFile::read(sourcePath, std::numeric_limits<qint32>::max());
    if (!bytes)
        return Failure{bytes.error().reason};
    const auto path = reserveAsideName(sourcePath, suffix, now);
    if (!path)
        return path;
    if (const auto written = wholeFile::replace(path.value(), bytes.value()); !written) {
        QFile::remove(path.value());
        return Failure{written.error()};
    }
    return path;
}

Outcome<QByteArray, ReadFailure> readAll(const QString &path, qint64 maxBytes)
{
    if (const auto found = obstacle(path))
        return Failure{*found};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Failure{ReadFailure{ReadFailure::Kind::Unreadable, file.errorString()}};
    if (file.size() > maxBytes)
        return Failure{ReadFailure{ReadFailure::Kind::TooLarge, Texts::tr("The file is too large.")}};
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError || bytes.size() < file.size())
        return Failure{ReadFailure{ReadFailure::Kind::Unreadable, file.errorString()}};
    return bytes;
}

} // namespace

Outcome<Done, QString> wholeFile::replace(const QString &path, QByteArrayView bytes)
{
    const auto written = writeAnew(path, bytes);
    if (written)
        qCInfo(logs::files) << path << "replaced by" << bytes.size() << "bytes";
    else
        qCWarning(logs::files) << path << "not replaced:" << written.error();
    return written;
}

Outcome<Done, QString> wholeFile::replaceReadable(const QString &path, QByteArrayView bytes, qint64 maxBytes)
{
    if (bytes.size() > maxBytes)
        return Failure{Texts::tr("The file would become too large.")};
    const auto former = wholeFile::read(path, maxBytes);
    if (!former && former.error().kind != ReadFailure::Kind::Missing)
        if (auto moved = wholeFile::moveAside(path, u"unreadable"_s, QDateTime::currentDateTime()); !moved)
            return Failure{moved.error()};
    return wholeFile::replace(path, bytes);
}

Outcome<Done, QString> wholeFile::remove(const QString &path)
{
    QFile file(path);
    if (!file.exists())
        return Done{};
    if (!file.remove()) {
        qCWarning(logs::files) << path << "not removed:" << file.errorString();
        return Failure{file.errorString()};
    }
    qCInfo(logs::files) << path << "removed";
    return fileSync::syncFolder(QFileInfo(path).path());
}

Outcome<QString, QString> wholeFile::keepAside(const QString &sourcePath, const QString &suffix, const QDateTime &now)
{
    const auto kept = copyAside(sourcePath, suffix, now);
    if (kept)
        qCInfo(logs::files) << sourcePath << "kept aside as" << kept.value();
    else
        qCWarning(logs::files) << sourcePath << "not kept aside:" << kept.error();
    return kept;
}

Outcome<QString, QString> wholeFile::moveAside(const QString &sourcePath, const QString &suffix, const QDateTime &now)
{
    // It may be unreadable, or even a folder: nothing of it is copied.
    for (int attempt = 1;; ++attempt) {
        const QString name = asideName(QFileInfo(sourcePath), suffix, now, attempt);
        if (QDir().rename(sourcePath, name)) {
            qCInfo(logs::files) << sourcePath << "moved aside as" << name;
            return name;
        }
        if (!QFileInfo::exists(name))
            return Failure{Texts::tr("%1 cannot be used, and cannot be moved aside.").arg(sourcePath)};
    }
}

Outcome<QByteArray, ReadFailure> wholeFile::read(const QString &path, qint64 maxBytes)
{
    auto bytes = readAll(path, maxBytes);
    if (bytes)
        qCInfo(logs::files) << path << "read," << bytes.value().size() << "bytes";
    else
        qCWarning(logs::files) << path << "not read:" << bytes.error().reason;
    return bytes;
}
