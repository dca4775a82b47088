// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class Forms;
class NoteHolder;
class QWidget;

/// A window that the rest of the program knows by name. A form is in the list of loaded forms from its construction
/// until it is unloaded or destroyed. What windows in which notes live do besides is NoteHolder's.
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
    /// The form as a place where notes live; null for one where none do.
    virtual NoteHolder *holder() { return nullptr; }
    /// Said while the window is still as the user left it, before it is closed for good.
    virtual void keepPlace() {}
    /// Gives up what reaches into the window from outside; said before it is unloaded for good.
    virtual void Destroy() {}
    /// Takes the form out of the list, closes its window and deletes it once no event of it is under way.
    void unload();
    bool isUnloaded() const { return m_forms == nullptr; }

private:
    friend class Forms;

    Forms *m_forms;
    QString m_formName;
};
