// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Form.h"
#include "forms/NoteHolder.h"
#include "forms/Program.h"
#include "forms/modForms.h"
#include "forms/modFormsSaving.h"

#include <QWidget>

/// The least that the rest of the program takes for a note on the desktop.
class PlainNote final : public QWidget, public Form, public NoteHolder
{
public:
    PlainNote(Program &program, qint32 tag) : Form(program.forms, formNames::Note.toString())
    {
        record.Tag = tag;
        record.SaveTag = 1;
        record.Data = QStringLiteral("note %1").arg(tag);
    }

    QWidget *window() override { return this; }
    NoteHolder *holder() override { return this; }
    void Destroy() override
    {
        if (destroyed)
            destroyed();
    }
    std::vector<qint32> tags() const override { return {record.Tag}; }
    clsNoteProps *recordOf(qint32 tag) override { return tag == record.Tag ? &record : nullptr; }
    clsNoteProps recordNow(qint32) override
    {
        clsNoteProps now = record;
        if (!typed.isEmpty())
            now.Data = typed;
        return now;
    }
    void updateRecords() override
    {
        if (!typed.isEmpty() && record.Data != typed) {
            record.Data = typed;
            record.SaveTag = 1;
        }
    }
    void commitEditing() override { ++timesLeft; }
    void TextLostFocus() override { ++timesLeft; }
    void ResetAlarms() override {}
    void recordChanged(qint32) override {}
    void moveAway(qint32) override {}

    clsNoteProps record;
    QString typed; ///< What is being typed into it.
    std::function<void()> destroyed;
    int timesLeft = 0;
};

/// A window of another kind.
class PlainForm final : public QWidget, public Form
{
public:
    PlainForm(Program &program, const QString &name) : Form(program.forms, name) {}
    QWidget *window() override { return this; }
};
