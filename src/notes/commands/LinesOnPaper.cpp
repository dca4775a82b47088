// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/commands/LinesOnPaper.h"

#include <algorithm>
#include <ranges>

namespace notePrinting
{
namespace
{

bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t';
}

QString withoutLineFeeds(QString text)
{
    return text.remove(u'\n');
}

} // namespace

LinesOnPaper::LinesOnPaper(const QString &text, const QFont &font, float twipsPerPixel, LineEnd end)
    : m_text(withoutLineFeeds(text)), m_metrics(font), m_limit(static_cast<qreal>(LineWidth / twipsPerPixel)),
      m_end(end)
{}

std::optional<QString> LinesOnPaper::next()
{
    if (m_from >= m_text.size())
        return std::nullopt;
    if (m_paragraphEnd < m_from)
        beginParagraph();
    const qsizetype from = m_from;
    const qsizetype end = lineEnd();
    return m_text.sliced(from, end - from);
}

void LinesOnPaper::beginParagraph()
{
    const qsizetype found = m_text.indexOf(u'\r', m_from);
    m_paragraphEnd = found < 0 ? m_text.size() : found;
    m_blanks.clear();
    m_blank = 0;
    for (qsizetype at = m_from; at < m_paragraphEnd; ++at)
        if (isBlank(m_text[at]))
            m_blanks.push_back(at);
    if (m_end == LineEnd::BeforeLimit)
        m_blanks.push_back(m_paragraphEnd);
}

qsizetype LinesOnPaper::lineEnd()
{
    std::size_t wide = firstTooWide();
    // The first word stays on the line, however wide it is.
    if (m_end == LineEnd::BeforeLimit && wide == m_blank)
        ++wide;
    if (wide >= m_blanks.size()) {
        m_from = m_paragraphEnd + 1;
        return m_paragraphEnd;
    }
    const std::size_t last = m_end == LineEnd::BeforeLimit ? wide - 1 : wide;
    m_inLastLine = last + 1 - m_blank;
    m_blank = last + 1;
    return m_from = m_blanks[last] + 1;
}

std::size_t LinesOnPaper::firstTooWide() const
{
    // Lines hold about as many words as the one before: from there in growing steps, then between the last two.
    std::size_t low = m_blank;
    std::size_t high = std::min(m_blank + m_inLastLine, m_blanks.size());
    for (std::size_t step = 1; high < m_blanks.size() && !isTooWide(high); step *= 2) {
        low = high + 1;
        high = std::min(high + step, m_blanks.size());
    }
    for (std::size_t step = 1; low < high; step *= 2) {
        const std::size_t at = high - std::min(step, high - low);
        if (!isTooWide(at)) {
            low = at + 1;
            break;
        }
        high = at;
    }
    const auto places = std::views::iota(low, high);
    return *std::ranges::partition_point(places, [this](std::size_t at) { return !isTooWide(at); });
}

bool LinesOnPaper::isTooWide(std::size_t blank) const
{
    const qsizetype end = m_blanks[blank];
    if (m_end == LineEnd::BeforeLimit)
        return m_metrics.horizontalAdvance(m_text.sliced(m_from, end - m_from).trimmed()) > m_limit;
    return m_metrics.horizontalAdvance(m_text.sliced(m_from, end + 1 - m_from)) > m_limit;
}

} // namespace notePrinting
