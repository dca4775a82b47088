// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "shell/ReceivedLine.h"

#include "drawing/textShortening.h"
#include "forms/Program.h"
#include "shell/ReceivedNotes.h"

#include <QMenu>

namespace
{

constexpr int LongestName = 160; // pixels

/// As an entry of a menu shows it: short, without a mnemonic.
QString entryText(const QString &text, const QFont &font)
{
    return textShortening::shortened(textShortening::onOneLine(text), LongestName, font)
        .replace(u'&', QStringLiteral("&&"));
}

} // namespace

ReceivedLine::ReceivedLine(Program &program, ReceivedNotes &notes, QWidget *panel)
    : QToolButton(panel), m_program(program), m_notes(notes), m_menu(new QMenu(this))
{
    setObjectName(QStringLiteral("lblReceived"));
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
    setToolButtonStyle(Qt::ToolButtonTextOnly);
    m_menu->setObjectName(QStringLiteral("mnuReceived"));
    QFont small = font();
    small.setPointSizeF(8);
    setFont(small);
    // Not by setMenu: the arrow of that stands in the text.
    connect(this, &QToolButton::clicked, this, &ReceivedLine::openMenu);
    connect(&notes, &ReceivedNotes::changed, this, &ReceivedLine::showCount);
    showCount();
}

QString ReceivedLine::textFor(qsizetype unseen)
{
    if (unseen == 0)
        return {};
    return unseen == 1 ? tr("1 new note received") : tr("%1 new notes received").arg(unseen);
}

void ReceivedLine::showCount()
{
    const QString text = textFor(m_notes.unseen());
    setText(text.isEmpty() ? tr("Received notes") : text);
    setAccessibleName(this->text());
    setVisible(!m_notes.notes().empty());
}

void ReceivedLine::openMenu()
{
    m_menu->clear();
    addNotes();
    m_menu->addSeparator();
    addSenders();
    m_menu->popup(mapToGlobal(QPoint(0, height())));
}

void ReceivedLine::addNotes()
{
    for (const ReceivedNote &note : m_notes.notes()) {
        const clsNoteProps *record = m_program.forms.recordOf(note.tag);
        if (record == nullptr)
            continue;
        const QString title = record->TitleBarTitle.isEmpty() ? record->TempTitle : record->TitleBarTitle;
        QAction *action = m_menu->addAction(tr("\"%1\" from %2 (%3)")
                                                .arg(entryText(title, m_menu->font()),
                                                     entryText(note.sender, m_menu->font()), note.address.toString()));
        QFont font = m_menu->font();
        font.setBold(!note.isLookedAt);
        action->setFont(font);
        connect(action, &QAction::triggered, &m_notes, [&notes = m_notes, tag = note.tag] { notes.show(tag); });
    }
}

void ReceivedLine::addSenders()
{
    QStringList told = m_program.NetworkSettings.BlockedSenders;
    for (const ReceivedNote &note : m_notes.notes()) {
        const QString address = note.address.toString();
        if (told.contains(address))
            continue;
        told.append(address);
        QAction *action =
            m_menu->addAction(tr("Block this sender: %1 (%2)").arg(entryText(note.sender, m_menu->font()), address));
        connect(action, &QAction::triggered, &m_notes, [&notes = m_notes, at = note.address] { notes.block(at); });
    }
}
