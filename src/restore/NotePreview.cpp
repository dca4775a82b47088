// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "restore/NotePreview.h"

#include "controls/noteFont.h"
#include "drawing/NoteInk.h"
#include "restore/keptNotes.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStackedLayout>

namespace
{

constexpr qsizetype LongestShown = 20000; ///< Characters; longer lines than that could not be laid out in time.
constexpr float LargestFont = 16;         ///< Points.

} // namespace

NotePreview::NotePreview(QWidget *parent)
    : QWidget(parent), m_text(new QPlainTextEdit(this)), m_cover(new QFrame(this)),
      m_unlock(new QPushButton(tr("&Unlock"), m_cover))
{
    m_text->setObjectName(QStringLiteral("txtPreview"));
    m_text->setAccessibleName(tr("Text of the note"));
    m_text->setReadOnly(true);
    m_text->setTabChangesFocus(true);
    m_cover->setObjectName(QStringLiteral("fraLocked"));
    m_cover->setFrameStyle(m_text->frameStyle());
    m_unlock->setObjectName(QStringLiteral("cmdUnlock"));
    auto *locked = new QLabel(tr("This Quillet is locked."), m_cover);
    locked->setObjectName(QStringLiteral("lblLocked"));
    auto *row = new QHBoxLayout(m_cover);
    row->addStretch();
    row->addWidget(locked);
    row->addWidget(m_unlock);
    row->addStretch();
    auto *pages = new QStackedLayout(this);
    pages->addWidget(m_text);
    pages->addWidget(m_cover);
    connect(m_unlock, &QPushButton::clicked, this, &NotePreview::unlockWanted);
}

void NotePreview::show(const KeptNote *note)
{
    const bool isCovered = note != nullptr && note->isCovered();
    static_cast<QStackedLayout *>(layout())->setCurrentWidget(isCovered ? m_cover : m_text);
    m_text->clear();
    m_text->setPalette({});
    if (note != nullptr && !isCovered)
        showText(*note);
}

void NotePreview::showText(const KeptNote &kept)
{
    const clsNoteProps &note = kept.note;
    const NoteInk ink = NoteInk::from(note.BackColor, note.ForeColor);
    QPalette own = palette();
    own.setColor(QPalette::Base, ink.paper);
    own.setColor(QPalette::Text, ink.ink);
    m_text->setPalette(own);
    m_text->setFont(noteFont::drawable(note.FontName, qMin(note.FontSize, LargestFont), note.FontBoldOn,
                                       note.FontItalicOn, font()));
    const bool isWhole = note.Data.size() <= LongestShown;
    m_text->setPlainText(isWhole ? note.Data : note.Data.left(LongestShown) + tr("\n..."));
}
