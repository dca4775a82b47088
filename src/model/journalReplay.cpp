// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/journalReplay.h"

#include "model/modStreams.h"

#include <QMultiHash>

namespace
{

using Kind = JournalMatch::Kind;
using RecordsByDigest = QMultiHash<QByteArray, size_t>;

RecordsByDigest byDigest(const std::vector<QByteArrayView> &records)
{
    RecordsByDigest found;
    for (size_t i = 0; i < records.size(); ++i)
        found.insert(journalFile::digestOf(records[i]), i);
    return found;
}

std::optional<size_t> take(RecordsByDigest &records, const QByteArray &digest)
{
    const auto found = records.constFind(digest);
    if (digest.isEmpty() || found == records.cend())
        return std::nullopt;
    const size_t record = *found;
    records.erase(found);
    return record;
}

clsNoteProps noteOf(const QByteArray &record, const clsNoteProps &noteTemplate)
{
    const auto decoded = modStreams::DecodeNoteRecord(record, 0, noteTemplate);
    return decoded ? decoded.value().note : noteTemplate; // A journal with a flawed record is not taken.
}

void replace(DataSurvey &survey, size_t record, const JournalEntry &entry, const clsNoteProps &noteTemplate,
             std::vector<JournalEntry> &hidden)
{
    if (record < survey.notes.size()) {
        survey.notes[record].note = noteOf(entry.record, noteTemplate);
        survey.notes[record].ahead = entry.record;
        return;
    }
    survey.beyondRoom[record - survey.notes.size()] = entry.record;
    hidden.push_back(entry);
}

} // namespace

/// Where the file is another one, what is there goes first: of two notes that were alike one may have been changed and
/// saved, and the other one is not to be changed with it.
std::vector<JournalMatch> journalReplay::match(const std::vector<QByteArrayView> &records,
                                               const std::vector<JournalEntry> &entries, DataFileIs file)
{
    std::vector<JournalMatch> matches(entries.size());
    RecordsByDigest free = entries.empty() ? RecordsByDigest() : byDigest(records);
    if (file == DataFileIs::Another)
        for (size_t i = 0; i < entries.size(); ++i)
            if (take(free, journalFile::digestOf(entries[i].record)))
                matches[i].kind = Kind::Stored;
    for (size_t i = 0; i < entries.size(); ++i)
        if (matches[i].kind != Kind::Stored)
            if (const auto base = take(free, entries[i].base))
                matches[i] = {Kind::Replaces, *base};
    return matches;
}

journalReplay::Replayed journalReplay::replay(const std::vector<JournalEntry> &entries, DataFileIs file,
                                              const clsNoteProps &noteTemplate, int room, DataSurvey &survey)
{
    Replayed result;
    std::vector<const JournalEntry *> added;
    const auto matches = match(survey.records(), entries, file);
    for (size_t i = 0; i < entries.size(); ++i) {
        if (matches[i].kind == Kind::Adds)
            added.push_back(&entries[i]);
        if (matches[i].kind == Kind::Replaces)
            replace(survey, matches[i].record, entries[i], noteTemplate, result.hidden);
        result.broughtBack += matches[i].kind == Kind::Stored ? 0 : 1;
    }
    for (const JournalEntry *entry : added) {
        if (static_cast<int>(survey.notes.size()) < room) {
            survey.notes.insert(survey.notes.begin(), {0, noteOf(entry->record, noteTemplate), {}, entry->record});
            continue;
        }
        survey.beyondRoom.insert(survey.beyondRoom.begin(), entry->record);
        result.hidden.push_back(*entry);
    }
    survey.recordCount += static_cast<int>(added.size());
    int number = 0;
    for (DataSurvey::Note &note : survey.notes)
        note.number = note.number == 0 ? ++number : note.number + static_cast<int>(added.size());
    return result;
}
