// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "require.h"
#include "transfer/noteFiles.h"
#include "transfer/noteReaders.h"

namespace
{

/// As the text of a note is, and no more than its file could give.
void requireNote(const CarriedNote &note, qsizetype bytes)
{
    require(note.text.size() <= 2 * bytes && !note.text.contains(QChar(u'\0')));
    require(note.text.count(u'\n') == note.text.count(QLatin1String("\r\n")) &&
            note.text.count(u'\r') == note.text.count(u'\n'));
    const QString name = noteFiles::of({note}, noteFiles::Format::Markdown).front().name;
    require(name.size() > 3 && name.size() < 80 && !name.contains(u'/') && !name.startsWith(u'.'));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes = bytesOf(data, size).toByteArray();
    requireNote(noteReaders::ofText(QStringLiteral("file"), bytes), bytes.size());
    requireNote(noteReaders::ofMarkdown(QStringLiteral("file"), bytes), bytes.size());
    requireNote(noteReaders::ofXpad(bytes, bytes, bytes), bytes.size());
    require(noteReaders::xpadContent(bytes).size() <= bytes.size());
    if (const auto note = noteReaders::ofGnote(bytes))
        requireNote(*note, qMax(bytes.size(), qsizetype(1) << 20));
    for (const CarriedNote &note : noteReaders::ofCalendar(bytes))
        requireNote(note, bytes.size());
    return 0;
}
