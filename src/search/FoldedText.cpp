// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "search/FoldedText.h"

#include <algorithm>

namespace
{

constexpr qsizetype MarkDistance = 512;
constexpr char32_t SharpS = 0xDF;

/// The character at `at`, which goes on to the one behind it; half a character stands for itself.
char32_t take(const QString &text, qsizetype &at)
{
    const QChar first = text.at(at++);
    if (first.isHighSurrogate() && at < text.size() && text.at(at).isLowSurrogate())
        return QChar::surrogateToUcs4(first, text.at(at++));
    return first.unicode();
}

bool isAccent(char32_t character)
{
    return QChar::category(character) == QChar::Mark_NonSpacing;
}

void append(QString &folded, char32_t character)
{
    const char32_t small = QChar::toCaseFolded(character);
    if (small == SharpS)
        folded += u"ss";
    else if (!isAccent(small))
        folded += QChar::fromUcs4(small);
}

/// Without case, accents and what only looks different.
void appendFolded(QString &folded, char32_t character)
{
    if (character < 0x80) {
        const auto letter = static_cast<char16_t>(character);
        folded += QChar(letter).toCaseFolded();
        return;
    }
    const QString parts = QChar::decomposition(character);
    if (parts.isEmpty())
        return append(folded, character);
    for (qsizetype at = 0; at < parts.size();)
        append(folded, take(parts, at));
}

} // namespace

Needle::Needle(const QString &text)
{
    QString folded;
    for (qsizetype at = 0; at < text.size();)
        appendFolded(folded, take(text, at));
    m_matcher.setPattern(folded);
}

FoldedText::FoldedText(const QString &text) : m_text(text)
{
    fold();
}

bool FoldedText::isOf(const QString &text) const
{
    // Nobody writes into a text that is shared: as long as it is held here its letters stay the same.
    return text.constData() == m_text.constData() && text.size() == m_text.size();
}

void FoldedText::fold()
{
    m_folded.reserve(m_text.size());
    bool isOneToOne = true;
    qsizetype nextMark = 0;
    for (qsizetype at = 0; at < m_text.size();) {
        if (at >= nextMark) {
            m_marks.push_back({at, m_folded.size()});
            nextMark += MarkDistance;
        }
        const Mark before{at, m_folded.size()};
        appendFolded(m_folded, take(m_text, at));
        isOneToOne = isOneToOne && at - before.text == m_folded.size() - before.folded;
    }
    if (isOneToOne)
        m_marks = {};
}

qsizetype FoldedText::foldedOf(qsizetype wanted) const
{
    if (m_marks.empty())
        return wanted;
    const auto behind = std::upper_bound(m_marks.begin(), m_marks.end(), wanted,
                                         [](qsizetype at, const Mark &mark) { return at < mark.text; });
    const Mark &mark = *std::prev(behind);
    QString between;
    for (qsizetype at = mark.text; at < wanted && at < m_text.size();)
        appendFolded(between, take(m_text, at));
    return mark.folded + between.size();
}

qsizetype FoldedText::textOf(qsizetype folded) const
{
    if (m_marks.empty())
        return folded;
    const auto behind = std::upper_bound(m_marks.begin(), m_marks.end(), folded,
                                         [](qsizetype at, const Mark &mark) { return at < mark.folded; });
    const Mark &mark = *std::prev(behind);
    QString between;
    for (qsizetype at = mark.text; at < m_text.size();) {
        const qsizetype begin = at;
        appendFolded(between, take(m_text, at));
        if (mark.folded + between.size() > folded)
            return begin;
    }
    return m_text.size();
}

/// Behind the character at `at` and the accents that follow it.
qsizetype FoldedText::endOf(qsizetype at) const
{
    take(m_text, at);
    for (qsizetype next = at; next < m_text.size() && isAccent(take(m_text, next));)
        at = next;
    return at;
}

std::optional<TextPart> FoldedText::find(const Needle &needle, qsizetype from) const
{
    if (needle.isEmpty() || from >= m_text.size())
        return std::nullopt;
    const qsizetype found = needle.matcher().indexIn(m_folded, foldedOf(qMax(qsizetype(0), from)));
    if (found < 0)
        return std::nullopt;
    const qsizetype at = textOf(found);
    return TextPart{at, endOf(textOf(found + needle.matcher().pattern().size() - 1)) - at};
}

std::optional<TextPart> FoldedText::findRound(const Needle &needle, qsizetype from) const
{
    const auto found = find(needle, from);
    return found ? found : find(needle, 0);
}
