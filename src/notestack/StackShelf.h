// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "shell/common/Form.h"

#include <vector>

class Program;

/// Keeps the records of the notes that live in the NoteStack, in their order, and saves them with the others. It has
/// no window.
class StackShelf final : public Form
{
public:
    explicit StackShelf(Program &program);

    int AddANote(const clsNoteProps &note) override;
    int NumOfQuillets() const override;
    int noteCount() const override;
    void SaveThisStackSys() override;
    std::vector<qint32> changedTags() const override;
    void markUnsaved(qint32 tag) override;

private:
    Program &m_program;
    std::vector<clsNoteProps> m_notes;
};
