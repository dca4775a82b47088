// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/autostart.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QStandardPaths>

namespace autostart
{
namespace
{

constexpr qint64 LongestEntry = 65536;

QString entryFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/autostart/org.quillets.Quillets.desktop");
}

/// As the value of a key.
QString escaped(QString text)
{
    return text.replace(u'\\', QStringLiteral("\\\\"))
        .replace(u'\n', QStringLiteral("\\n"))
        .replace(u'\r', QStringLiteral("\\r"))
        .replace(u'\t', QStringLiteral("\\t"));
}

/// As one argument of a command line, which is the value of a key besides.
QString quoted(const QString &argument)
{
    QString inside;
    for (const QChar c : argument) {
        if (QStringLiteral("\"`$\\").contains(c))
            inside += u'\\';
        inside += c;
        if (c == u'%')
            inside += c;
    }
    return escaped(u'"' + inside + u'"');
}

QByteArray entry(const QString &folder)
{
    return QStringLiteral("[Desktop Entry]\nType=Application\nName=Quillets\nIcon=org.quillets.Quillets\n"
                          "Comment=Sticky notes for the desktop\nTerminal=false\nExec=%1\nPath=%2\n")
        .arg(quoted(QCoreApplication::applicationFilePath()), escaped(folder))
        .toUtf8();
}

} // namespace

bool isSupported()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    return true;
#else
    return false;
#endif
}

bool isOn()
{
    QFile file(entryFile());
    if (!isSupported() || !file.open(QIODevice::ReadOnly))
        return false;
    // Tools of desktops switch an entry off by a line of it.
    const QList<QByteArray> lines = file.read(LongestEntry).split('\n');
    return !lines.contains("Hidden=true") && !lines.contains("X-GNOME-Autostart-enabled=false");
}

QString set(bool on, const QString &folder)
{
    const QString path = entryFile();
    if (!on) {
        QFile file(path);
        return !file.exists() || file.remove() ? QString() : file.errorString();
    }
    QDir().mkpath(QFileInfo(path).path());
    QSaveFile file(path);
    const QByteArray bytes = entry(folder);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit() ? QString()
                                                                                                 : file.errorString();
}

} // namespace autostart
