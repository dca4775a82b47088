// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/clsNoteProps.h"

#include <QString>

#include <functional>
#include <vector>

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
    /// The same, asking before each note whether to go on; it gets the note's position, counted from 0.
    virtual void SaveThisStack(const std::function<bool(int)> &) {}
    virtual void TransferAllToDesktop() {}
    /// Shows the window and brings it to the front.
    virtual void showStack() {}
    virtual void TextLostFocus() {}

    // Hooks of both.
    /// The record of the note with this tag when it lives in this form.
    virtual clsNoteProps *recordOf(qint32) { return nullptr; }
    /// Locks that note; for one that was locked where it comes from.
    virtual void lockNote(qint32) {}
    /// Somebody has changed that record: show it, and arm its alarm, anew.
    virtual void recordChanged(qint32) {}
    /// Said while the window is still as the user left it, before it is closed for good.
    virtual void keepPlace() {}
    virtual void Destroy() {}
    virtual void ResetAlarms() {}
    /// Puts what is being typed into the record.
    virtual void commitEditing() {}
    /// Hands on the notes of this form that are not on the disk as they are, with what is being typed into them.
    /// Touches no window: there may be no display any more.
    virtual void rescue(const std::function<void(const clsNoteProps &)> &) const {}
    /// The notes of this form that are not on the disk as they are.
    virtual std::vector<qint32> changedTags() const { return {}; }
    /// A write failed: the note with this tag, if it is this form's, counts as changed again.
    virtual void markUnsaved(qint32) {}

private:
    friend class Forms;

    Forms *m_forms;
    QString m_formName;
};
