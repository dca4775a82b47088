// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Form.h"
#include "forms/Program.h"
#include "forms/modForms.h"

#include <QWidget>

/// The least that the rest of the program takes for a note on the desktop.
class PlainNote final : public QWidget, public Form
{
public:
    PlainNote(Program &program, qint32 tag) : Form(program.forms, formNames::Note.toString()), m_program(program)
    {
        record.Tag = tag;
        record.SaveTag = 1;
        record.Data = QStringLiteral("note %1").arg(tag);
    }

    QWidget *window() override { return this; }
    qint32 Tag() const override { return record.Tag; }
    clsNoteProps *GetThisNoteProps() override { return &record; }
    clsNoteProps *recordOf(qint32 tag) override { return tag == record.Tag ? &record : nullptr; }
    void SaveThisNote() override
    {
        modForms::saveNote(m_program, record);
        if (saved)
            saved();
    }
    void Destroy() override
    {
        if (destroyed)
            destroyed();
    }
    void commitEditing() override
    {
        if (committing)
            committing();
    }
    void ThisFormLostFocus() override { ++timesLeft; }
    std::vector<qint32> changedTags() const override
    {
        return record.SaveTag == 1 ? std::vector{record.Tag} : std::vector<qint32>();
    }
    void markUnsaved(qint32 tag) override { record.SaveTag = tag == record.Tag ? 1 : record.SaveTag; }

    clsNoteProps record;
    std::function<void()> committing;
    std::function<void()> saved;
    std::function<void()> destroyed;
    int timesLeft = 0;

private:
    Program &m_program;
};

/// A window of another kind.
class PlainForm final : public QWidget, public Form
{
public:
    PlainForm(Program &program, const QString &name) : Form(program.forms, name) {}
    QWidget *window() override { return this; }
};
