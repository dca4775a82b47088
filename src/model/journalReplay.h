// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/DataSurvey.h"
#include "model/journalFile.h"

/// What an entry of the journal is to a data file.
struct JournalMatch
{
    enum class Kind
    {
        Replaces, ///< A record that is still as it was when the note was changed.
        Adds,     ///< A note of its own: it is new, or what it replaces is gone. Better twice than lost.
        Stored    ///< The data file has it already.
    };
    Kind kind = Kind::Adds;
    size_t record = 0; ///< Which one is replaced.
};

/// Bringing back what a program that ended too early had not saved.
namespace journalReplay
{

/// Whether the data file is still the one that the journal was written for. Another one may hold its notes already.
enum class DataFileIs
{
    Same,
    Another
};
/// One match for each entry. No record is taken twice.
std::vector<JournalMatch> match(const std::vector<QByteArrayView> &records, const std::vector<JournalEntry> &entries,
                                DataFileIs file);

/// What the survey became.
struct Replayed
{
    int broughtBack = 0;
    std::vector<JournalEntry> hidden; ///< Brought back where there is no room for a window.
};

/// Puts the entries into the survey of the data file: changed notes in the place of their records, new ones before all
/// others as long as there is `room` for so many notes. The survey's views may then point into the entries.
Replayed replay(const std::vector<JournalEntry> &entries, DataFileIs file, const clsNoteProps &noteTemplate, int room,
                DataSurvey &survey);

} // namespace journalReplay
