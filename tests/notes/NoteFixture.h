// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "alarms/modAlarm.h"
#include "forms/NoteHolder.h"
#include "notes/frmNote.h"
#include "notes/modCreateNote.h"
#include "support/ProgramFixture.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPointer>

/// A program with the built-in options, and ways to get at its notes and their controls.
class NoteFixture : public ProgramFixture
{
public:
    NoteFixture()
    {
        program.DefaultOptions =
            modFileIO::SetProgramDefaults(home.paths, {0x0000FFFF, 0, QStringLiteral("DejaVu Sans"), 9});
        program.ProgramOptions = program.DefaultOptions;
        program.ProgramOptions.TitleBarOn = false;
        program.BuildNoteDefaults();
    }

    clsNoteProps record(const QString &text) const
    {
        clsNoteProps note = program.NoteTemplate;
        note.Data = text;
        note.TitleBarTitle = text.left(10);
        return note;
    }
    /// The password is "right".
    clsNoteProps protectedRecord(const QString &text, bool readOnly, bool openClose) const
    {
        clsNoteProps note = record(text);
        note.PwdOn = true;
        note.Pwd = QStringLiteral("right");
        note.PwdReadonlyOn = readOnly;
        note.PwdOpenCloseOn = openClose;
        return note;
    }
    /// With an alarm a minute ahead that plays a sound.
    clsNoteProps alarmed(clsNoteProps note) const
    {
        const QDateTime moment = test.clock.now().addSecs(60);
        note.AlarmOn = note.SoundFileOn = true;
        note.SoundFile = soundFile();
        modAlarm::setAlarmDate(note, moment.date());
        modAlarm::setAlarmTime(note, moment.time());
        return note;
    }
    frmNote *create(const clsNoteProps &record, NoteCreateMode mode = NoteCreateMode::New)
    {
        return at(modCreateNote::CreateNote(program, record, Home::Desktop, mode));
    }
    frmNote *create(const QString &text)
    {
        clsNoteProps note = program.NoteTemplate;
        note.Data = text;
        return create(note);
    }
    frmNote *at(qint32 tag) const { return dynamic_cast<frmNote *>(program.forms.note(tag)); }

    /// Opens the menu of the picture, or with false that of the text, and chooses the entry.
    static void choose(frmNote &note, const char *entry, bool ofPicture = true)
    {
        openMenu(note, ofPicture);
        control<QAction>(note, entry).trigger();
        for (QWidget *popup = QApplication::activePopupWidget(); popup != nullptr;
             popup = QApplication::activePopupWidget())
            popup->close();
        QCoreApplication::processEvents();
    }
    static void openMenu(frmNote &note, bool ofPicture = true)
    {
        if (ofPicture)
            press(note, "imgMenu");
        else
            QTest::mouseClick(&control<QWidget>(note, "lblDisplay"), Qt::RightButton);
    }
    /// A menu as it is read: "-" a separator, "+" checked, "(...)" disabled, "[...]" what a submenu holds.
    static QString described(const QMenu &menu)
    {
        QStringList entries;
        for (const QAction *action : menu.actions()) {
            QString entry = action->isSeparator() ? QStringLiteral("-") : action->text();
            if (action->isChecked())
                entry += u'+';
            if (!action->isEnabled())
                entry = u'(' + entry + u')';
            if (action->menu() != nullptr)
                entry += u'[' + described(*action->menu()) + u']';
            entries.append(entry);
        }
        return entries.join(u' ');
    }
    /// Clicks the text and returns the text box.
    static QPlainTextEdit &edit(frmNote &note)
    {
        press(note, "lblDisplay");
        return control<QPlainTextEdit>(note, "txtText");
    }
    static void roll(frmNote &note) { QTest::mouseDClick(&control<QWidget>(note, "lblTitle"), Qt::LeftButton); }
    static bool isLocked(const QWidget &window)
    {
        const auto *overlay = window.findChild<QWidget *>(QStringLiteral("fraPassword"));
        return overlay != nullptr && overlay->isVisibleTo(&window);
    }
    /// Nothing that the window shows or tells holds the text.
    static bool isUnseen(const QWidget &window, const QString &text)
    {
        for (const QObject *part : window.findChildren<QObject *>())
            for (const char *property :
                 {"text", "plainText", "toolTip", "windowTitle", "accessibleName", "accessibleDescription"})
                if (part->property(property).toString().contains(text))
                    return false;
        return true;
    }
    /// Gives the password in the prompt that opens next, or cancels where it is empty, after what goes on behind it.
    static void answerPassword(
        const QString &typed, const std::function<void()> &meanwhile = [] {})
    {
        answerDialog(QStringLiteral("frmEnterPwd"), [typed, meanwhile](QDialog &prompt) {
            meanwhile();
            control<QLineEdit>(prompt, "txtPwd").setText(typed);
            press(prompt, typed.isEmpty() ? "CancelButton" : "OKButton");
        });
    }
};
