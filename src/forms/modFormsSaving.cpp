// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "forms/modFormsSaving.h"

#include "forms/Form.h"
#include "forms/NoteHolder.h"
#include "forms/Program.h"
#include "forms/Progress.h"
#include "forms/modFormsJournal.h"
#include "platform/Prompts.h"

#include <QCoreApplication>

namespace modForms
{
namespace
{

void tellFailure(Program &program, const QString &reason)
{
    if (program.Exiting) {
        qWarning("The notes could not be saved: %s", qUtf8Printable(reason));
        return;
    }
    if (std::exchange(program.saveFailureTold, true))
        return;
    const QString text = QCoreApplication::translate("Saving", "The Quillets could not be saved.\n%1\n"
                                                               "Nothing is lost as long as the program runs; it will "
                                                               "try again at the next save.");
    program.prompts().tell({text.arg(reason), QStringLiteral("Error"), Message::Icon::Critical}, nullptr);
}

void tellOfForeignFiles(Program &program, const QStringList &kept)
{
    const QString text = QCoreApplication::translate(
        "Saving",
        "Another program had changed the file of the notes.\nIts version was kept, before this one was saved:\n");
    program.prompts().tell({text + kept.join(u'\n'), QStringLiteral("Quillets"), Message::Icon::Exclamation}, nullptr);
}

/// What came of a save, said last: while a box is open anything can happen to the notes. Inside a batch it waits for
/// the end.
void tellOwed(Program &program)
{
    if (program.file.batchDepth > 0)
        return;
    const QString reason = std::exchange(program.owedFailure, {});
    const QStringList kept = std::exchange(program.file.keptMeanwhile, {});
    if (!reason.isEmpty())
        tellFailure(program, reason);
    if (!kept.isEmpty() && !program.Exiting)
        tellOfForeignFiles(program, kept);
}

void updateRecords(const Program &program)
{
    for (NoteHolder *holder : program.forms.holders())
        holder->updateRecords();
}

void keepOrder(Program &program)
{
    if (StackHolder *stack = program.forms.stack())
        stack->keepOrder();
}

void saved(Program &program)
{
    if (program.file.readOnlyReason.isEmpty() && program.owedFailure.isEmpty())
        program.saveFailureTold = false;
    keepOrder(program);
    settleJournal(program);
}

/// The end of a batch, which is written even inside another one: what keeps that one open may stay for hours. Notes
/// that are not on the disk count as changed again.
void finish(Program &program, SaveBatch &batch)
{
    settleJournalAhead(program);
    auto outcome = batch.end();
    if (outcome)
        outcome = modFileIO::flush(program.file);
    if (outcome) {
        saved(program);
    } else {
        for (const qint32 tag : program.file.image.tagsNotIn(program.file.disk))
            if (clsNoteProps *note = program.forms.recordOf(tag))
                note->SaveTag = 1;
        program.owedFailure = outcome.error();
        settleJournal(program);
    }
    tellOwed(program);
}

/// Saves all notes as they are, one write at the end. `goesOn` is asked before each.
void saveAll(Program &program, const std::vector<qint32> &tags, const std::function<bool()> &goesOn)
{
    SaveBatch batch(program.file);
    for (const qint32 tag : tags) {
        if (!goesOn())
            break;
        if (clsNoteProps *note = program.forms.recordOf(tag))
            saveNote(program, *note);
        ++program.SaveProgress;
    }
    finish(program, batch);
}

/// What a save-all has to do; nothing during a load, and nothing where there is no note and nothing owed.
std::optional<std::vector<qint32>> beginSaveAll(Program &program)
{
    program.SaveProgress = 0;
    if (program.file.LoadingData)
        return std::nullopt;
    updateRecords(program);
    auto tags = program.forms.tags();
    return tags.empty() && !program.file.unsaved ? std::nullopt : std::optional(std::move(tags));
}

} // namespace

void markChanged(Program &program, clsNoteProps &note)
{
    note.SaveTag = 1;
    armJournal(program);
}

std::vector<qint32> unsavedTags(const Program &program)
{
    std::vector<qint32> tags = program.forms.tags();
    std::erase_if(tags, [&program](qint32 tag) { return program.forms.recordOf(tag)->SaveTag != 1; });
    return tags;
}

bool hasUnsavedNotes(const Program &program)
{
    updateRecords(program);
    return program.file.unsaved || !unsavedTags(program).empty();
}

void saveNote(Program &program, clsNoteProps &note)
{
    if (note.SaveTag != 1)
        return;
    using enum WriteResult::Kind;
    if (program.file.batchDepth == 0)
        settleJournalAhead(program);
    const WriteResult result = modFileIO::WriteNoteRecord(program.file, note, NoteFate::Keep);
    if (result.kind == Written || result.kind == Batched)
        note.SaveTag = 0;
    if (result.kind == Written)
        saved(program);
    if (result.kind == Failed)
        program.owedFailure = result.reason;
    tellOwed(program);
}

void removeNote(Program &program, const clsNoteProps &note)
{
    if (program.file.batchDepth == 0)
        settleJournalAhead(program);
    const WriteResult result = modFileIO::WriteNoteRecord(program.file, note, NoteFate::Remove);
    if (result.kind == WriteResult::Kind::Written)
        settleJournal(program);
    if (result.kind == WriteResult::Kind::Failed)
        program.owedFailure = result.reason;
    tellOwed(program);
}

bool SaveAllNotes(Program &program)
{
    const auto tags = beginSaveAll(program);
    if (tags)
        saveAll(program, *tags, [] { return true; });
    return tags.has_value();
}

bool SaveAllWithProgress(Program &program)
{
    const auto tags = beginSaveAll(program);
    if (!tags)
        return false;
    Progress progress(program, QCoreApplication::translate("Saving", "Saving ... - Quillets"),
                      QCoreApplication::translate("Saving", "Saving quillets ..."), static_cast<int>(tags->size()));
    saveAll(program, *tags, [&progress, &program] {
        progress.setValue(program.SaveProgress);
        return progress.goesOn();
    });
    return true;
}

void rescueNotes(Program &program)
{
    updateRecords(program);
    settleJournalAhead(program);
    SaveBatch batch(program.file);
    for (const qint32 tag : unsavedTags(program))
        static_cast<void>(modFileIO::WriteNoteRecord(program.file, *program.forms.recordOf(tag), NoteFate::Keep));
    static_cast<void>(batch.end());
    static_cast<void>(modFileIO::flush(program.file));
    settleJournal(program);
}

void moveAll(Program &program, const QString &text, const std::vector<qint32> &tags,
             const std::function<void(qint32)> &move)
{
    Progress progress(program, QCoreApplication::translate("Saving", "Transferring ... - Quillets"), text,
                      static_cast<int>(tags.size()));
    SaveBatch batch(program.file);
    int moved = 0;
    for (const qint32 tag : tags) {
        if (!progress.goesOn())
            break;
        move(tag);
        progress.setValue(++moved);
    }
    progress.close();
    finish(program, batch);
}

void TransferAllToNoteStack(Program &program)
{
    std::vector<qint32> tags;
    for (Form *form : program.forms.notes())
        tags.push_back(form->holder()->tags().front());
    if (tags.empty())
        return;
    const QString text = QCoreApplication::translate("Saving", "Transferring all Quillets to NoteStack ...");
    moveAll(program, text, tags, [&program](qint32 tag) {
        if (Form *note = program.forms.note(tag))
            note->holder()->moveAway(tag);
    });
}

} // namespace modForms
