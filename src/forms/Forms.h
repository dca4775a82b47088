// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/clsNoteProps.h"

#include <QString>
#include <QStringView>

#include <functional>
#include <vector>

class Form;
class NoteHolder;
class StackHolder;

/// Names of the forms that others look for.
namespace formNames
{
inline constexpr QStringView Note = u"frmNote";
inline constexpr QStringView NoteStack = u"frmNoteStack";
inline constexpr QStringView Menu = u"frmMenu";
inline constexpr QStringView Splash = u"frmSplash";
inline constexpr QStringView Status = u"frmStatus";
inline constexpr QStringView QuietLine = u"frmQuietLine";
inline constexpr QStringView Find = u"frmFind";
} // namespace formNames

/// The loaded forms in the order of loading. Whoever walks them while events run takes a copy and asks `isLoaded`.
class Forms
{
public:
    std::vector<Form *> loaded() const { return m_loaded; }
    bool isLoaded(const Form *form) const;
    /// The first form of that name, or null.
    Form *find(QStringView formName) const;
    /// The NoteStack, or null.
    StackHolder *stack() const;
    /// The note windows on the desktop: forms named "frmNote" that have a note.
    std::vector<Form *> notes() const;
    /// The window of the note on the desktop with this tag, or null.
    Form *note(qint32 tag) const;
    /// Where notes live, in the order of loading; the NoteStack last.
    std::vector<NoteHolder *> holders() const;
    /// Tags of all notes: first those of the desktop, then those of the NoteStack.
    std::vector<qint32> tags() const;
    /// What the note with this tag lives in, or null.
    NoteHolder *holderOf(qint32 tag) const;
    /// The record of the note with this tag, or null.
    clsNoteProps *recordOf(qint32 tag) const;
    /// Said after the list has changed; for whoever shows how many notes there are.
    std::function<void()> changed;

private:
    friend class Form;

    void add(Form *form);
    void remove(Form *form);

    std::vector<Form *> m_loaded;
};
