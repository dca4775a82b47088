// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "drawing/textShortening.h"

#include <QFontMetricsF>

namespace textShortening
{
namespace
{

constexpr qsizetype FirstGuess = 64;
/// Wider than any screen, unless the characters take no room.
constexpr qsizetype MostCharacters = 4096;

class Ruler
{
public:
    Ruler(const QFont &font, int maxWidth) : m_metrics(font), m_maxWidth(maxWidth) {}

    bool fits(const QString &text) const { return m_metrics.horizontalAdvance(text) <= m_maxWidth; }

private:
    QFontMetricsF m_metrics;
    int m_maxWidth;
};

/// Cuts before a character, never through the two halves of one.
QString cutAt(const QString &text, qsizetype length)
{
    if (length > 0 && text.at(length - 1).isHighSurrogate())
        --length;
    return text.left(length) + QStringLiteral("...");
}

/// A length whose beginning no longer fits, found by doubling; the text's length when all of it fits.
qsizetype tooLong(const QString &text, const Ruler &ruler)
{
    const qsizetype most = qMin(MostCharacters, text.size());
    qsizetype length = qMin(FirstGuess, most);
    while (length < most && ruler.fits(text.left(length)))
        length = qMin(length * 2, most);
    return length;
}

} // namespace

QString shortened(const QString &text, int maxWidth, const QFont &font)
{
    const Ruler ruler(font, maxWidth);
    qsizetype bad = tooLong(text, ruler);
    if (bad == text.size() && ruler.fits(text))
        return text;
    qsizetype good = 0;
    while (bad - good > 1) {
        const qsizetype middle = good + (bad - good) / 2;
        (ruler.fits(cutAt(text, middle)) ? good : bad) = middle;
    }
    return cutAt(text, good);
}

QString onOneLine(const QString &text)
{
    QString line = text;
    for (QChar &c : line) {
        const QChar::Category kind = c.category();
        if (kind == QChar::Other_Control || kind == QChar::Separator_Line || kind == QChar::Separator_Paragraph)
            c = u' ';
    }
    return line;
}

} // namespace textShortening
