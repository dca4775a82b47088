// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/clsNoteProps.h"

#include <QString>

class Forms;
class QWidget;

/// A window that the rest of the program knows by name. The hooks are what windows do for each other; a window that
/// has no use for one keeps the empty default and is thereby skipped. A form is in the list of loaded forms from its
/// construction until it is unloaded or destroyed.
class Form
{
public:
    Form(Forms &forms, QString formName);
    Form(const Form &) = delete;
    Form &operator=(const Form &) = delete;
    virtual ~Form();

    const QString &formName() const { return m_formName; }
    /// The window itself; null for a form that has none.
    virtual QWidget *window() { return nullptr; }
    /// Takes the form out of the list, closes its window and deletes it once no event of it is under way.
    void unload();
    bool isUnloaded() const { return m_forms == nullptr; }

    // Hooks of note windows.
    virtual qint32 Tag() const { return 0; }
    virtual clsNoteProps *GetThisNoteProps() { return nullptr; }
    virtual void SaveThisNote() {}
    virtual void ToTheNoteStack() {}
    virtual void ThisFormLostFocus() {}

    // Hooks of the NoteStack.
    virtual int AddANote(const clsNoteProps &) { return -1; }
    virtual int NumOfQuillets() const { return 0; }
    /// Notes, where an empty NoteStack has a tab but no note.
    virtual int noteCount() const { return 0; }
    virtual void SaveThisStackSys() {}
    virtual void TextLostFocus() {}

    // Hooks of both.
    /// The record of the note with this tag when it lives in this form.
    virtual clsNoteProps *recordOf(qint32) { return nullptr; }
    /// Somebody has changed that record: show it, and arm its alarm, anew.
    virtual void recordChanged(qint32) {}
    virtual void Destroy() {}
    virtual void ResetAlarms() {}
    /// Puts what is being typed into the record.
    virtual void commitEditing() {}
    /// Some note of this form is not on the disk as it is.
    virtual bool hasUnsavedNotes() const { return false; }
    /// A write failed: the note with this tag, if it is this form's, counts as changed again.
    virtual void markUnsaved(qint32) {}

private:
    friend class Forms;

    Forms *m_forms;
    QString m_formName;
};
