// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "transfer/noteSources.h"

#include "model/wholeFile.h"
#include "transfer/noteReaders.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>

namespace
{

constexpr qint64 LargestFile = qint64(8) * 1024 * 1024;
constexpr qsizetype MostFiles = 1000; ///< Of one folder.

std::optional<QByteArray> bytesOf(const QString &path)
{
    auto read = wholeFile::read(path, LargestFile);
    return read ? std::optional(read.value()) : std::nullopt;
}

QFileInfoList filesOf(const QString &folder, const QString &pattern)
{
    return QDir(folder).entryInfoList({pattern}, QDir::Files | QDir::Readable, QDir::Name).mid(0, MostFiles);
}

void append(std::vector<CarriedNote> &notes, CarriedNote note, const QDateTime &fileDate)
{
    if (!note.date.isValid())
        note.date = fileDate;
    notes.push_back(std::move(note));
}

/// What tells the looks of the pads, by the file of their texts.
QHash<QString, QByteArray> xpadLooks(const QString &folder)
{
    QHash<QString, QByteArray> looks;
    for (const QFileInfo &file : filesOf(folder, QStringLiteral("info-*")))
        if (const auto info = bytesOf(file.filePath()))
            looks.insert(noteReaders::xpadContent(*info), *info);
    return looks;
}

std::vector<CarriedNote> xpadNotes(const QString &folder)
{
    const auto looks = xpadLooks(folder);
    const QByteArray defaultStyle = bytesOf(folder + QStringLiteral("/default-style")).value_or(QByteArray());
    std::vector<CarriedNote> notes;
    for (const QFileInfo &file : filesOf(folder, QStringLiteral("content-*"))) {
        const auto content = bytesOf(file.filePath());
        if (content && !content->trimmed().isEmpty())
            append(notes, noteReaders::ofXpad(*content, looks.value(file.fileName()), defaultStyle),
                   file.lastModified());
    }
    return notes;
}

std::vector<CarriedNote> gnoteNotes(const QString &folder)
{
    std::vector<CarriedNote> notes;
    for (const QFileInfo &file : filesOf(folder, QStringLiteral("*.note")))
        if (const auto bytes = bytesOf(file.filePath()))
            if (auto note = noteReaders::ofGnote(*bytes))
                append(notes, std::move(*note), file.lastModified());
    return notes;
}

std::vector<CarriedNote> calendarNotes(const QString &folder)
{
    std::vector<CarriedNote> notes;
    for (const QFileInfo &file : filesOf(folder, QStringLiteral("*.ics")))
        if (const auto bytes = bytesOf(file.filePath()))
            for (CarriedNote &note : noteReaders::ofCalendar(*bytes))
                append(notes, std::move(note), file.lastModified());
    return notes;
}

/// Before its notes moved into the desktop's store; one of the folders may be a link to the other.
std::vector<CarriedNote> knotesNotes(const QString &home)
{
    std::vector<CarriedNote> notes = calendarNotes(home + QStringLiteral("/.kde4/share/apps/knotes"));
    return notes.empty() ? calendarNotes(home + QStringLiteral("/.kde/share/apps/knotes")) : notes;
}

using Reader = std::vector<CarriedNote> (*)(const QByteArray &bytes, const QString &name);

struct Suffix
{
    const char *name;
    Reader read;
};

constexpr Suffix Suffixes[] = {
    {"txt", [](const QByteArray &bytes, const QString &name) { return std::vector{noteReaders::ofText(name, bytes)}; }},
    {"text",
     [](const QByteArray &bytes, const QString &name) { return std::vector{noteReaders::ofText(name, bytes)}; }},
    {"md",
     [](const QByteArray &bytes, const QString &name) { return std::vector{noteReaders::ofMarkdown(name, bytes)}; }},
    {"markdown",
     [](const QByteArray &bytes, const QString &name) { return std::vector{noteReaders::ofMarkdown(name, bytes)}; }},
    {"note",
     [](const QByteArray &bytes, const QString &) {
         const auto note = noteReaders::ofGnote(bytes);
         return note ? std::vector{*note} : std::vector<CarriedNote>();
     }},
    {"ics", [](const QByteArray &bytes, const QString &) { return noteReaders::ofCalendar(bytes); }},
};

const Suffix *suffixOf(const QString &path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    for (const Suffix &row : Suffixes)
        if (suffix == QLatin1String(row.name))
            return &row;
    return nullptr;
}

} // namespace

std::vector<noteSources::Source> noteSources::found(const Folders &folders)
{
    std::vector<Source> sources{
        {QStringLiteral("xpad"), xpadNotes(folders.config + QStringLiteral("/xpad"))},
        {QStringLiteral("Gnote"), gnoteNotes(folders.data + QStringLiteral("/gnote"))},
        {QStringLiteral("KNotes"), knotesNotes(folders.home)},
    };
    std::erase_if(sources, [](const Source &source) { return source.notes.empty(); });
    return sources;
}

bool noteSources::isKnown(const QString &path)
{
    return suffixOf(path) != nullptr;
}

noteSources::Read noteSources::ofFiles(const QStringList &paths)
{
    Read result;
    for (const QString &path : paths) {
        const Suffix *suffix = suffixOf(path);
        const auto bytes = suffix != nullptr ? bytesOf(path) : std::nullopt;
        auto notes = bytes ? suffix->read(*bytes, QFileInfo(path).completeBaseName()) : std::vector<CarriedNote>();
        if (notes.empty())
            result.refused.append(path);
        for (CarriedNote &note : notes)
            append(result.notes, std::move(note), QFileInfo(path).lastModified());
    }
    return result;
}
