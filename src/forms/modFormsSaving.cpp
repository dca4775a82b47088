// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/Prompts.h"
#include "forms/Program.h"
#include "forms/frmStatus.h"
#include "forms/modForms.h"

#include <QCoreApplication>

namespace modForms
{
namespace
{

int notesInStack(const Program &program)
{
    const Form *stack = program.forms.find(formNames::NoteStack);
    return stack != nullptr ? stack->noteCount() : 0;
}

void commitAll(Program &program)
{
    for (Form *form : program.forms.loaded())
        if (program.forms.isLoaded(form))
            form->commitEditing();
}

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

void tellOfForeignFiles(Program &program)
{
    const QStringList kept = std::exchange(program.file.keptMeanwhile, {});
    if (kept.isEmpty() || program.Exiting)
        return;
    const QString text = QCoreApplication::translate(
        "Saving",
        "Another program had changed the file of the notes.\nIts version was kept, before this one was saved:\n");
    program.prompts().tell({text + kept.join(u'\n'), QStringLiteral("Quillets"), Message::Icon::Exclamation}, nullptr);
}

/// The notes that one save-all has put into the image. When the write at its end fails they count as changed again.
class SaveRun
{
public:
    explicit SaveRun(Program &program) : m_program(program), m_batch(program.file) {}

    /// Saves one note window.
    void save(Form *form)
    {
        remember(*form);
        form->SaveThisNote();
    }

    void saveStack()
    {
        if (Form *stack = m_program.forms.find(formNames::NoteStack)) {
            remember(*stack);
            stack->SaveThisStackSys();
        }
    }

    void saveStack(const std::function<bool(int)> &goOn)
    {
        if (Form *stack = m_program.forms.find(formNames::NoteStack)) {
            remember(*stack);
            stack->SaveThisStack(goOn);
        }
    }

    void finish()
    {
        const auto outcome = m_batch.end();
        if (outcome) {
            if (m_program.file.readOnlyReason.isEmpty())
                m_program.saveFailureTold = false;
            tellOfForeignFiles(m_program);
            return;
        }
        for (Form *form : m_program.forms.loaded())
            for (const qint32 tag : m_tags)
                form->markUnsaved(tag);
        tellFailure(m_program, outcome.error());
    }

private:
    void remember(const Form &form)
    {
        const auto changed = form.changedTags();
        m_tags.insert(m_tags.end(), changed.begin(), changed.end());
    }

    Program &m_program;
    SaveBatch m_batch;
    std::vector<qint32> m_tags;
};

std::unique_ptr<frmStatus> showStatus(Program &program, const QString &caption, const QString &text, int total)
{
    auto status = std::make_unique<frmStatus>(program);
    status->setWindowTitle(caption);
    status->Initialize(text, total);
    status->show();
    return status;
}

} // namespace

void saveNote(Program &program, clsNoteProps &note)
{
    if (note.SaveTag != 1)
        return;
    using enum WriteResult::Kind;
    const WriteResult result = modFileIO::WriteNoteRecord(program.file, note, true);
    if (result.kind == Written || result.kind == Batched)
        note.SaveTag = 0;
    if (result.kind == Written)
        program.saveFailureTold = false;
    if (result.kind == Failed)
        tellFailure(program, result.reason);
    tellOfForeignFiles(program);
}

void removeNote(Program &program, const clsNoteProps &note)
{
    const WriteResult result = modFileIO::WriteNoteRecord(program.file, note, false);
    if (result.kind == WriteResult::Kind::Failed)
        tellFailure(program, result.reason);
}

bool hasUnsavedNotes(const Program &program)
{
    const auto all = program.forms.loaded();
    return program.file.unsaved ||
           std::any_of(all.begin(), all.end(), [](const Form *form) { return !form->changedTags().empty(); });
}

bool SaveAllNotes(Program &program)
{
    if (program.file.LoadingData)
        return false;
    program.SaveProgress = 0;
    commitAll(program);
    const auto notes = program.forms.notes();
    if (notes.empty() && notesInStack(program) == 0 && !program.file.unsaved)
        return false;
    SaveRun run(program);
    for (Form *note : notes)
        run.save(note);
    run.saveStack();
    run.finish();
    return true;
}

void rescueNotes(Program &program)
{
    SaveBatch batch(program.file);
    for (const Form *form : program.forms.loaded())
        form->rescue([&program](const clsNoteProps &note) {
            static_cast<void>(modFileIO::WriteNoteRecord(program.file, note, true));
        });
}

bool SaveAllWithProgress(Program &program)
{
    if (program.file.LoadingData)
        return false;
    program.SaveProgress = 0;
    commitAll(program);
    const auto notes = program.forms.notes();
    const int total = static_cast<int>(notes.size()) + notesInStack(program);
    if (total == 0 && !program.file.unsaved)
        return false;
    const auto status = showStatus(program, QCoreApplication::translate("Saving", "Saving ... - Quillets"),
                                   QCoreApplication::translate("Saving", "Saving quillets ..."), total);
    SaveRun run(program);
    for (Form *note : notes) {
        QCoreApplication::processEvents();
        if (status->Cancelled)
            break;
        if (!program.forms.isLoaded(note))
            continue;
        run.save(note);
        status->setValue(++program.SaveProgress);
    }
    const int before = program.SaveProgress;
    run.saveStack([&status, before](int position) {
        QCoreApplication::processEvents();
        status->setValue(before + position);
        return !status->Cancelled;
    });
    status->hide();
    run.finish();
    return true;
}

void moveAll(Program &program, const QString &text, const std::vector<qint32> &tags,
             const std::function<void(qint32)> &move)
{
    const auto status = showStatus(program, QCoreApplication::translate("Saving", "Transferring ... - Quillets"), text,
                                   static_cast<int>(tags.size()));
    SaveBatch batch(program.file);
    int moved = 0;
    for (const qint32 tag : tags) {
        QCoreApplication::processEvents();
        if (status->Cancelled || program.Exiting)
            break;
        move(tag);
        status->setValue(++moved);
    }
    status->hide();
    const auto outcome = batch.end();
    if (outcome)
        return;
    for (Form *form : program.forms.loaded())
        for (const qint32 tag : tags)
            form->markUnsaved(tag);
    tellFailure(program, outcome.error());
}

void TransferAllToNoteStack(Program &program)
{
    std::vector<qint32> tags;
    for (const Form *note : program.forms.notes())
        tags.push_back(note->Tag());
    if (tags.empty())
        return;
    const QString text = QCoreApplication::translate("Saving", "Transferring all Quillets to NoteStack ...");
    moveAll(program, text, tags, [&program](qint32 tag) {
        if (Form *note = program.forms.note(tag))
            note->ToTheNoteStack();
    });
}

} // namespace modForms
