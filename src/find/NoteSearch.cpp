// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "find/NoteSearch.h"

#include "drawing/colours.h"
#include "drawing/textShortening.h"
#include "forms/Program.h"
#include "notes/commands/LiveNote.h"
#include "notes/commands/NoteHost.h"
#include "notes/commands/noteTitles.h"

#include <QElapsedTimer>

namespace
{

constexpr qint64 SliceMilliseconds = 6;
constexpr qsizetype BeforePlace = 24; ///< Letters of the line that are shown before the place.
constexpr qsizetype BehindPlace = 160;
constexpr qsizetype LongestTitle = 300;

bool isLineEnd(QChar c)
{
    return c == u'\n' || c == u'\r' || c == QChar::ParagraphSeparator;
}

/// The line around the place, or its part that can be seen.
void showLine(Hit &hit, const QString &text, TextPart place)
{
    qsizetype from = place.at;
    while (from > 0 && place.at - from < BeforePlace && !isLineEnd(text.at(from - 1)))
        --from;
    const bool isCut = from > 0 && !isLineEnd(text.at(from - 1));
    while (from < place.at && text.at(from).isSpace())
        ++from;
    const qsizetype limit = qMin(text.size(), place.at + place.length + BehindPlace);
    qsizetype to = place.at;
    while (to < limit && !isLineEnd(text.at(to)))
        ++to;
    const QString before = isCut ? QString(textShortening::Dots) : QString();
    hit.line = before + textShortening::onOneLine(text.mid(from, to - from));
    hit.inLine = TextPart{place.at - from + before.size(), qMin(place.length, to - place.at)};
}

} // namespace

NoteSearch::NoteSearch(Program &program, QObject *parent) : QObject(parent), m_program(program)
{
    m_slice.setSingleShot(true);
    m_slice.setInterval(0);
    connect(&m_slice, &QTimer::timeout, this, &NoteSearch::goOn);
}

void NoteSearch::begin(const QString &text)
{
    for (NoteHolder *holder : m_program.forms.holders())
        holder->updateRecords();
    m_needle = Needle(text);
    m_tags = m_program.forms.tags();
    m_next = 0;
    m_texts.removeIf(
        [this](const auto &row) { return std::find(m_tags.begin(), m_tags.end(), row.key()) == m_tags.end(); });
    goOn();
}

void NoteSearch::goOn()
{
    QElapsedTimer since;
    since.start();
    const bool isFirst = m_next == 0;
    std::vector<Hit> hits;
    while (m_next < m_tags.size() && !since.hasExpired(SliceMilliseconds))
        if (auto hit = hitIn(m_tags[m_next++]))
            hits.push_back(std::move(*hit));
    emit found(hits, isFirst);
    if (m_next < m_tags.size())
        m_slice.start();
    else
        emit finished();
}

const FoldedText &NoteSearch::folded(qint32 tag, const QString &text)
{
    FoldedText &known = m_texts[tag];
    if (!known.isOf(text))
        known = FoldedText(text);
    return known;
}

std::optional<Hit> NoteSearch::hitIn(qint32 tag)
{
    NoteHost *host = NoteHost::of(m_program, tag);
    const LiveNote *note = host != nullptr ? host->live(tag) : nullptr;
    if (note == nullptr)
        return std::nullopt;
    Hit hit;
    hit.tag = tag;
    hit.title = textShortening::onOneLine(noteTitles::title(note->record).left(LongestTitle));
    hit.paper = colours::fromLong(note->record.BackColor);
    hit.isInStack = note->record.NoteStackOn;
    hit.isLocked = note->locked;
    hit.inTitle = FoldedText(hit.title).find(m_needle);
    if (note->locked)
        m_texts.remove(tag);
    else
        hit.inText = folded(tag, note->record.Data).find(m_needle);
    if (!m_needle.isEmpty() && !hit.inTitle && !hit.inText)
        return std::nullopt;
    if (!note->locked)
        showLine(hit, note->record.Data, hit.inText.value_or(TextPart{}));
    return hit;
}
