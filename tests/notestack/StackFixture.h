// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "notes/NoteFixture.h"
#include "notestack/NoteTabs.h"
#include "notestack/frmNoteStack.h"

/// A program with a NoteStack.
class StackFixture : public NoteFixture
{
public:
    StackFixture() : stack(*new frmNoteStack(program)), tabs(*stack.findChild<NoteTabs *>())
    {
        stack.Initialize();
        stack.showStack();
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
    static QStringList captionsOf(const NoteTabs &tabs)
    {
        QStringList all;
        for (int i = 0; i < tabs.count(); ++i)
            all.append(tabs.caption(i));
        return all;
    }
    QStringList captions() const { return captionsOf(tabs); }
    void click(const char *name, Qt::MouseButton button = Qt::LeftButton) const
    {
        QTest::mouseClick(&control<QWidget>(stack, name), button);
    }
    /// Opens the long menu and chooses the entry.
    using NoteFixture::choose;
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
    using NoteFixture::isLocked;
    bool isLocked() const { return stack.isVisible() && isLocked(stack); }
    using NoteFixture::isUnseen;
    bool isUnseen(const QString &text) const { return isUnseen(stack, text); }

    frmNoteStack &stack;
    NoteTabs &tabs;
};
