// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notestack/StackShelf.h"

#include "shell/common/Program.h"
#include "shell/common/modForms.h"

StackShelf::StackShelf(Program &program) : Form(program.forms, formNames::NoteStack.toString()), m_program(program) {}

int StackShelf::AddANote(const clsNoteProps &note)
{
    m_notes.push_back(note);
    return noteCount() - 1;
}

int StackShelf::NumOfQuillets() const
{
    return qMax(1, noteCount());
}

int StackShelf::noteCount() const
{
    return static_cast<int>(m_notes.size());
}

void StackShelf::SaveThisStackSys()
{
    for (clsNoteProps &note : m_notes)
        modForms::saveNote(m_program, note);
}

std::vector<qint32> StackShelf::changedTags() const
{
    std::vector<qint32> tags;
    for (const clsNoteProps &note : m_notes)
        if (note.SaveTag == 1)
            tags.push_back(note.Tag);
    return tags;
}

void StackShelf::markUnsaved(qint32 tag)
{
    for (clsNoteProps &note : m_notes)
        if (note.Tag == tag)
            note.SaveTag = 1;
}
