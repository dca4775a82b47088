// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QString>

#include <algorithm>
#include <optional>
#include <vector>

namespace notePrinting
{

inline constexpr float LineWidth = 8600.0F; ///< Twips, not scaled.

/// Where a line that is too wide ends. Both end a line at a carriage return and drop line feeds.
enum class LineEnd : quint8
{
    BehindLimit, ///< After the first blank or tab behind the limit.
    BeforeLimit, ///< After the last blank or tab before it.
};

/// The lines of a text, one after the other, of at most LineWidth as measured on the display. Linear in the text; a
/// line is measured a few times, not at each of its words.
class LinesOnPaper
{
public:
    LinesOnPaper(const QString &text, const QFont &font, float twipsPerPixel, LineEnd end);

    std::optional<QString> next();
    /// Characters of the text, and how many of them are in the lines so far.
    qsizetype total() const { return m_text.size(); }
    qsizetype done() const { return std::min(m_from, m_text.size()); }

private:
    void beginParagraph();
    /// The end of the line that begins at m_from, which goes behind it.
    qsizetype lineEnd();
    /// The first of the paragraph's blanks, from m_blank on, at which the line is too wide; their number if none.
    std::size_t firstTooWide() const;
    bool isTooWide(std::size_t blank) const;

    QString m_text;
    QFontMetricsF m_metrics;
    qreal m_limit; ///< Pixels.
    LineEnd m_end;
    qsizetype m_from = 0;
    qsizetype m_paragraphEnd = -1;
    std::vector<qsizetype> m_blanks; ///< Of the paragraph, by place; its end last where lines end before the limit.
    std::size_t m_blank = 0;         ///< The first of the line.
    std::size_t m_inLastLine = 1;    ///< Blanks of the line before.
};

} // namespace notePrinting
