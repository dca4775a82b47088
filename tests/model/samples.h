// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/recordFields.h"
#include "support/TestHome.h"

/// Gives every listed property of a record a value that is not its default and, where the type allows, its own.
template <class Record, class... Types> void fill(Record &record, const std::tuple<Types Record::*...> &fields)
{
    int number = 0;
    const auto give = [&]<class Value>(Value &value) {
        ++number;
        if constexpr (std::is_same_v<Value, QString>)
            value = QStringLiteral("text %1").arg(number);
        else
            value = static_cast<Value>(number);
    };
    std::apply([&](auto... field) { (give(record.*field), ...); }, fields);
}

inline constexpr auto allNoteFields =
    std::tuple_cat(recordFields::note, std::tuple(&clsNoteProps::Comments, &clsNoteProps::SaveTag));

inline clsNoteProps fullNote()
{
    clsNoteProps note;
    fill(note, allNoteFields);
    return note;
}

inline clsNoteProps taggedNote(qint32 tag, const QString &text)
{
    clsNoteProps note;
    note.Tag = tag;
    note.Data = text;
    return note;
}

inline constexpr auto &contents = TestHome::contents;
inline constexpr auto &setContents = TestHome::setContents;
