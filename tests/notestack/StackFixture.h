// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "alarms/modAlarm.h"
#include "notes/NoteFixture.h"
#include "notestack/NoteTabs.h"
#include "notestack/frmNoteStack.h"
#include "support/answerDialog.h"

/// A program with a NoteStack.
class StackFixture final : public NoteFixture
{
public:
    StackFixture() : stack(*new frmNoteStack(program)), tabs(*stack.findChild<NoteTabs *>())
    {
        stack.Initialize();
        stack.showStack();
    }

    clsNoteProps record(const QString &text) const
    {
        clsNoteProps note = program.NoteTemplate;
        note.Data = text;
        note.TitleBarTitle = text.left(10);
        return note;
    }
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
    clsNoteProps alarmed(clsNoteProps note)
    {
        const QDateTime moment = test.clock.now().addSecs(60);
        note.AlarmOn = note.SoundFileOn = true;
        note.SoundFile = home.paths.DataFolder + QStringLiteral("/ring.wav");
        TestHome::setContents(note.SoundFile, "RIFF");
        modAlarm::setAlarmDate(note, moment.date());
        modAlarm::setAlarmTime(note, moment.time());
        return note;
    }
    qint32 add(const clsNoteProps &note)
    {
        return modCreateNote::CreateNote(program, note, Home::NoteStack, NoteCreateMode::Load);
    }
    void addAll(const QStringList &texts)
    {
        for (const QString &text : texts)
            add(record(text));
    }
    QStringList captions() const
    {
        QStringList all;
        for (int i = 0; i < tabs.count(); ++i)
            all.append(tabs.caption(i));
        return all;
    }
    void click(const char *name, Qt::MouseButton button = Qt::LeftButton) const
    {
        QTest::mouseClick(&control<QWidget>(stack, name), button);
    }
    /// Opens the long menu and chooses the entry.
    void choose(const char *entry) const
    {
        click("imgMenu");
        auto &action = control<QAction>(stack, entry);
        while (QWidget *popup = QApplication::activePopupWidget())
            popup->close();
        action.trigger();
        QCoreApplication::processEvents();
    }
    /// Clicks the text and types behind it.
    void type(int index, const QString &text) const
    {
        click(qPrintable(QStringLiteral("lblDisplay(%1)").arg(index)));
        const QString box = QStringLiteral("txtText(%1)").arg(index);
        QTest::keyClicks(&control<QPlainTextEdit>(stack, qPrintable(box)), text);
    }
    bool isLocked() const
    {
        const auto *overlay = stack.findChild<QWidget *>(QStringLiteral("fraPassword"));
        return overlay != nullptr && overlay->isVisible();
    }
    bool isLockedOnDesktop(qint32 tag) const
    {
        const auto *overlay = at(tag)->findChild<QWidget *>(QStringLiteral("fraPassword"));
        return overlay != nullptr && overlay->isVisibleTo(at(tag));
    }
    /// Nothing that the NoteStack shows or tells holds the text.
    bool isUnseen(const QString &text) const
    {
        for (const QWidget *widget : stack.findChildren<QWidget *>())
            for (const char *property : {"text", "plainText", "toolTip", "accessibleName", "accessibleDescription"})
                if (widget->property(property).toString().contains(text))
                    return false;
        return true;
    }

    frmNoteStack &stack;
    NoteTabs &tabs;
};
