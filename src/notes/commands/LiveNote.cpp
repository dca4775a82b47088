// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/commands/LiveNote.h"

#include "controls/noteFont.h"
#include "forms/modFormsJournal.h"
#include "forms/modFormsSaving.h"
#include "forms/modHelp.h"
#include "notes/commands/noteEditing.h"
#include "security/noteLocks.h"

#include <QClipboard>
#include <QGuiApplication>

namespace
{
constexpr float SmallestStep = 5.0F; ///< Points that steps lead to.
constexpr float LargestStep = 72.0F;
} // namespace

LiveNote::LiveNote(Program &program, QWidget *paper)
    : body(paper), alarm(program, [this] { return &record; }), m_program(program)
{
    connect(&body, &NoteBody::committed, this, &LiveNote::textCommitted);
    connect(&body, &NoteBody::addressPressed, this,
            [this](const QUrl &address) { modHelp::openPage(m_program, address); });
    connect(&body, &NoteBody::fontWheelTurned, this, &LiveNote::wheelTurned);
    connect(&body, &NoteBody::typed, this, [this] { modForms::armJournal(m_program); });
    connect(&body, &NoteBody::pasteRefused, this,
            [this, paper] { noteEditing::tellUnpastable(m_program, paper->window()); });
}

void LiveNote::take(clsNoteProps note, Lid lid)
{
    record = std::move(note);
    locked = lid == Lid::Shut || noteLocks::opensLocked(record);
}

void LiveNote::markChanged()
{
    modForms::markChanged(m_program, record);
}

void LiveNote::textCommitted(const QString &text)
{
    if (!locked)
        record.Data = text;
    markChanged();
}

QString LiveNote::textNow() const
{
    return body.isEditing() && !locked ? body.typedText() : record.Data;
}

void LiveNote::mixInk()
{
    ink = NoteInk::from(record.BackColor, record.ForeColor);
    body.setInk(ink);
}

void LiveNote::dress(const QFont &base)
{
    mixInk();
    body.setLook(noteFont::of(record, base), ink);
    if (!locked)
        body.setText(record.Data);
}

void LiveNote::setLocked(bool on)
{
    if (on)
        body.commit();
    locked = on;
    if (!on)
        return body.setText(record.Data);
    body.forgetText();
    // What was selected in it can be pasted by the middle button.
    QClipboard *clipboard = QGuiApplication::clipboard();
    const QString text = QString(record.Data).replace(QLatin1String("\r\n"), QLatin1String("\n"));
    if (clipboard->ownsSelection() && text.contains(clipboard->text(QClipboard::Selection)))
        clipboard->clear(QClipboard::Selection);
}

void LiveNote::setFontSize(float points)
{
    if (record.FontSize == points)
        return;
    record.FontSize = points;
    body.changeFont(noteFont::of(record, body.font()));
    markChanged();
}

void LiveNote::stepFontSize(int points)
{
    const auto now = static_cast<float>(body.font().pointSizeF());
    const float wanted = now + static_cast<float>(points);
    setFontSize(points > 0 ? qMax(now, qMin(wanted, LargestStep)) : qMin(now, qMax(wanted, SmallestStep)));
}

/// A wheel asks for no password.
void LiveNote::wheelTurned(int notches)
{
    if (!locked && !noteLocks::isReadOnly(record))
        stepFontSize(notches);
}

void LiveNote::stop()
{
    alarm.Destroy();
    body.setShown(false);
}
