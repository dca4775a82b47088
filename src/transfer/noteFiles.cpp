// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "transfer/noteFiles.h"

#include "model/wholeFile.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

namespace
{

constexpr qsizetype LongestName = 60; ///< Characters; in UTF-8 less than what file systems take.

/// A title as a file may be called anywhere.
QString safeName(const QString &title)
{
    static const QRegularExpression unsafe(QStringLiteral(R"([\x00-\x1f\x7f-\x9f<>:"/\\|?*\x{2028}\x{2029}])"));
    static const QRegularExpression reserved(QStringLiteral("^(con|prn|aux|nul|com[0-9]|lpt[0-9])(\\.|$)"),
                                             QRegularExpression::CaseInsensitiveOption);
    QString name = title.left(LongestName).normalized(QString::NormalizationForm_C);
    if (!name.isEmpty() && name.back().isHighSurrogate())
        name.chop(1);
    name.replace(unsafe, QStringLiteral("-"));
    name = name.simplified();
    while (name.startsWith(u'.') || name.startsWith(u' '))
        name.remove(0, 1);
    while (name.endsWith(u'.') || name.endsWith(u' '))
        name.chop(1);
    if (name.isEmpty() || reserved.match(name).hasMatch())
        name.prepend(QStringLiteral("note "));
    return name.trimmed();
}

QString markdown(const CarriedNote &note)
{
    static const QRegularExpression task(QStringLiteral("^([ \\t]*)(\\[[ xX]\\])"));
    QStringList lines = note.text.split(QRegularExpression(QStringLiteral("\r\n|\n|\r")));
    for (qsizetype i = 0; i < lines.size(); ++i) {
        lines[i].replace(task, QStringLiteral("\\1- \\2"));
        // A line end in a paragraph is a blank there, unless two blanks stand before it.
        if (!lines[i].isEmpty() && i + 1 < lines.size() && !lines[i + 1].isEmpty())
            lines[i] += QStringLiteral("  ");
    }
    return QStringLiteral("# ") + note.title.simplified() + QStringLiteral("\n\n") + lines.join(u'\n');
}

QString textOf(const CarriedNote &note, noteFiles::Format format)
{
    return format == noteFiles::Format::Markdown
               ? markdown(note)
               : QString(note.text).replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

bool setDate(const QString &path, const QDateTime &date)
{
    QFile file(path);
    return !date.isValid() ||
           (file.open(QIODevice::ReadWrite) && file.setFileTime(date, QFileDevice::FileModificationTime));
}

} // namespace

std::vector<noteFiles::File> noteFiles::of(const std::vector<CarriedNote> &notes, Format format)
{
    const QString suffix = format == Format::Markdown ? QStringLiteral(".md") : QStringLiteral(".txt");
    std::vector<File> files;
    QSet<QString> taken;
    for (const CarriedNote &note : notes) {
        const QString name = safeName(note.title);
        QString free = name;
        for (int number = 2; taken.contains(free.toCaseFolded()); ++number)
            free = QStringLiteral("%1 (%2)").arg(name).arg(number);
        taken.insert(free.toCaseFolded());
        files.push_back({free + suffix, textOf(note, format).toUtf8(), note.date});
    }
    return files;
}

noteFiles::Plan noteFiles::plan(const QString &folder, std::vector<File> files)
{
    Plan result;
    for (File &file : files) {
        const QString path = folder + u'/' + file.name;
        if (!QFileInfo::exists(path) && !QFileInfo(path).isSymLink()) {
            result.fresh.push_back(std::move(file));
            continue;
        }
        const auto there = wholeFile::read(path, file.bytes.size());
        if (there && there.value() == file.bytes)
            ++result.same;
        else
            result.different.push_back(std::move(file));
    }
    return result;
}

Outcome<Done, QString> noteFiles::write(const QString &folder, const std::vector<File> &files)
{
    for (const File &file : files) {
        const QString path = folder + u'/' + file.name;
        if (auto written = wholeFile::replace(path, file.bytes); !written)
            return written;
        // The note is safe; a file system that keeps no dates is no reason to stop.
        setDate(path, file.date);
    }
    return Done{};
}
