// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "net/ReplyDigits.h"

#include <algorithm>

namespace
{

/// More than any true replies together.
constexpr qsizetype MostGathered = 64;

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool mayBecome(QByteArrayView wanted, QByteArrayView gathered)
{
    return wanted.startsWith(gathered.first(std::min(gathered.size(), wanted.size())));
}

} // namespace

void ReplyDigits::add(QByteArrayView piece)
{
    m_latest = m_gathered.size();
    for (const char c : piece.first(std::min(piece.size(), MostGathered)))
        if (c != ' ' && c != '\r' && c != '\n' && m_gathered.size() < MostGathered)
            m_gathered += c;
}

bool ReplyDigits::takeCode(QByteArrayView code)
{
    if (!mayBecome(code, m_gathered))
        m_gathered.remove(0, std::exchange(m_latest, 0));
    if (!mayBecome(code, m_gathered))
        m_gathered.clear();
    if (m_gathered.size() < code.size())
        return false;
    const auto next = std::find_if(m_gathered.cbegin() + code.size(), m_gathered.cend(), isDigit);
    m_gathered.remove(0, next - m_gathered.cbegin());
    m_latest = 0;
    return true;
}

ReplyDigits::Match ReplyDigits::takeNumber(QByteArrayView number, QByteArrayView nextCode)
{
    const QByteArrayView rest = QByteArrayView(m_gathered).sliced(std::min(m_gathered.size(), number.size()));
    if (!mayBecome(number, m_gathered) || !mayBecome(nextCode, rest))
        return Match::No;
    if (m_gathered.size() < number.size())
        return Match::Undecided;
    m_gathered.remove(0, number.size());
    m_latest = 0;
    return Match::Yes;
}
