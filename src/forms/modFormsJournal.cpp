// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "forms/modFormsJournal.h"

#include "forms/NoteHolder.h"
#include "forms/Program.h"
#include "model/modStreams.h"

using namespace std::chrono_literals;

namespace modForms
{
namespace
{

/// With the time that a write takes, what is typed is on the disk within a second.
constexpr auto JournalDelay = 400ms;
/// A disk that was full may have room again, though nobody types.
constexpr auto RetryDelay = 5s;

JournalSnapshot withoutNotes(const Program &program)
{
    const auto &stamp = program.file.stamp;
    return {stamp ? stamp->digest : QByteArray(), program.file.carried, {}};
}

/// The note as a save would write it now.
QByteArray wanted(const Program &program, NoteHolder &holder, qint32 tag)
{
    const clsNoteProps now = holder.recordNow(tag);
    const clsNoteProps &record = *holder.recordOf(tag);
    const bool isAhead = record.SaveTag == 1 || now.Data != record.Data || now.TitleBarTitle != record.TitleBarTitle;
    return isAhead ? modStreams::EncodeNoteRecord(now) : program.file.image.recordOf(tag);
}

/// Compared with the disk and not with what counts as saved: in an open batch, and after a write that failed, that is
/// in the image alone.
JournalSnapshot snapshot(const Program &program)
{
    JournalSnapshot all = withoutNotes(program);
    for (NoteHolder *holder : program.forms.holders())
        for (const qint32 tag : holder->tags()) {
            QByteArray stored = program.file.disk.recordOf(tag);
            QByteArray record = wanted(program, *holder, tag);
            if (!record.isEmpty() && record != stored)
                all.notes.push_back({std::move(stored), std::move(record)});
        }
    return all;
}

void writeJournal(Program &program)
{
    if (program.file.LoadingData)
        return armJournal(program);
    program.journal->write(snapshot(program));
    // Looking has marked what is being moved as changed; it is in the snapshot.
    program.journalDue.stop();
}

void journalWritten(Program &program, const JournalWriter::Outcome &written)
{
    if (program.journal == nullptr)
        return;
    if (!written && !program.journalDue.isActive())
        program.journalDue.start(RetryDelay);
    if (std::exchange(program.journalFails, !written.ok()) == !written.ok())
        return;
    if (program.journalTrouble)
        program.journalTrouble(written ? QString() : written.error());
}

} // namespace

void keepJournal(Program &program)
{
    program.journal =
        std::make_unique<JournalWriter>(program.paths().JournalFile, [&program](const JournalWriter::Outcome &written) {
            QMetaObject::invokeMethod(
                &program.journalDue, [&program, written] { journalWritten(program, written); }, Qt::QueuedConnection);
        });
    program.journalDue.setSingleShot(true);
    program.journalDue.callOnTimeout(&program.journalDue, [&program] { writeJournal(program); });
}

void armJournal(Program &program)
{
    // Not started anew: that would wait as long as somebody types.
    const bool isSoon = program.journalDue.isActive() && program.journalDue.remainingTimeAsDuration() <= JournalDelay;
    if (program.journal != nullptr && !isSoon)
        program.journalDue.start(JournalDelay);
}

void settleJournal(Program &program)
{
    if (program.journal == nullptr)
        return;
    writeJournal(program);
    program.journal->finish();
}

void settleJournalAhead(Program &program)
{
    if (program.journal != nullptr && !program.journal->isEmpty())
        settleJournal(program);
}

void discardJournal(Program &program)
{
    if (program.journal != nullptr)
        program.journal->write(withoutNotes(program));
    endJournal(program);
}

void endJournal(Program &program)
{
    program.journalDue.stop();
    program.journal.reset();
}

} // namespace modForms
