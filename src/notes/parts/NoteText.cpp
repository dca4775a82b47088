// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/parts/NoteText.h"

#include "forms/modFormsTexts.h"

#include <QPainter>

#include <cmath>

namespace
{

constexpr QMargins Air(6, 6, 6, 2);
constexpr qreal TabDistance = 80;
constexpr qreal NarrowestLetter = 2;
constexpr qsizetype SpareCharacters = 4096;
constexpr QSizeF MoreMark(4, 9);
constexpr qreal MoreMarkBottom = 20; ///< From the lower edge: above the grip of the NoteStack.
constexpr float MoreMarkOpacity = 0.6F;

} // namespace

NoteText::NoteText(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setCursor(Qt::IBeamCursor);
    setMouseTracking(true);
}

NoteText::~NoteText() = default;

bool NoteText::isLineEnd(QChar c)
{
    return c == u'\n' || c == u'\r' || c == QChar::ParagraphSeparator;
}

QMargins NoteText::air()
{
    return Air;
}

void NoteText::setCaption(const QString &caption)
{
    setText(caption);
    m_shown = modForms::shownCaption(caption);
    setAccessibleName(m_shown);
    m_firstLine = 0;
    m_scroll = 0;
    m_found = {};
    forget();
}

void NoteText::setInk(const QColor &ink)
{
    m_ink = ink;
    update();
}

void NoteText::forget()
{
    m_paragraphs.clear();
    m_next = 0;
    m_complete = false;
    m_height = 0;
    update();
}

/// More characters than this can never be seen of one paragraph.
qsizetype NoteText::mostCharacters() const
{
    const qreal lines = (m_scroll + height()) / qMax(1.0, QFontMetricsF(font()).lineSpacing()) + 1;
    return static_cast<qsizetype>(lines * width() / NarrowestLetter) + SpareCharacters;
}

NoteText::Paragraph NoteText::laidOut(const QString &text, qreal top) const
{
    Paragraph paragraph{std::make_unique<QTextLayout>(text, font()), m_next, top, 0};
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTabStopDistance(TabDistance);
    paragraph.layout->setTextOption(option);
    const qreal lineWidth = qMax(0, width() - Air.left() - Air.right());
    paragraph.layout->beginLayout();
    for (QTextLine line = paragraph.layout->createLine(); line.isValid(); line = paragraph.layout->createLine()) {
        line.setLeadingIncluded(true);
        line.setLineWidth(lineWidth);
        line.setPosition({0, paragraph.height});
        paragraph.height += line.height();
    }
    paragraph.layout->endLayout();
    return paragraph;
}

void NoteText::layOutTo(qreal bottom)
{
    while (!m_complete && m_height < bottom) {
        const qsizetype limit = qMin(m_shown.size(), m_next + mostCharacters());
        qsizetype end = m_next;
        while (end < limit && !isLineEnd(m_shown.at(end)))
            ++end;
        Paragraph paragraph = laidOut(m_shown.mid(m_next, end - m_next), m_height);
        m_height += paragraph.height;
        m_paragraphs.push_back(std::move(paragraph));
        m_complete = end >= m_shown.size();
        if (m_complete)
            break;
        const bool twoCharacters = m_shown.at(end) == u'\r' && end + 1 < m_shown.size() && m_shown.at(end + 1) == u'\n';
        m_next = isLineEnd(m_shown.at(end)) ? end + (twoCharacters ? 2 : 1) : end;
    }
}

void NoteText::paintEvent(QPaintEvent *)
{
    layOutTo(m_scroll + height());
    QPainter painter(this);
    painter.setPen(m_ink);
    painter.setClipRect(rect().marginsRemoved({Air.left(), Air.top(), Air.right(), 1}));
    const QPointF origin(Air.left(), Air.top() - m_scroll);
    for (const Paragraph &paragraph : m_paragraphs) {
        const qreal top = paragraph.top - m_scroll;
        if (top < height() && top + paragraph.height > -Air.top())
            paragraph.layout->draw(&painter, origin + QPointF(0, paragraph.top), marksOf(paragraph));
    }
    // Half a pixel may be left of where it is scrolled to.
    if (!m_complete || m_height - m_scroll > visibleHeight() + 1)
        paintMoreMark(painter);
}

QList<QTextLayout::FormatRange> NoteText::marksOf(const Paragraph &paragraph) const
{
    const qsizetype from = qMax(m_found.start - paragraph.begin, qsizetype(0));
    const qsizetype to = qMin(m_found.start + m_found.length - paragraph.begin, paragraph.layout->text().size());
    if (m_found.length == 0 || from >= to)
        return {};
    QTextCharFormat marked;
    marked.setBackground(palette().highlight());
    marked.setForeground(palette().highlightedText());
    return {{static_cast<int>(from), static_cast<int>(to - from), marked}};
}

void NoteText::forgetFound()
{
    m_found = {};
    update();
}

void NoteText::showFound(qsizetype at, qsizetype length)
{
    m_found = {at, length};
    while (!m_complete && m_next <= at)
        layOutTo(m_height + 1);
    int line = 0;
    for (const Paragraph &paragraph : m_paragraphs) {
        const qsizetype inside = at - paragraph.begin;
        if (inside <= paragraph.layout->text().size()) {
            line += paragraph.layout->lineForTextPosition(static_cast<int>(inside)).lineNumber();
            break;
        }
        line += paragraph.layout->lineCount();
    }
    // With a line above it, as far as there is one; where it is seen already nothing moves.
    const qreal top = topOfLine(line);
    if (top < m_scroll || top + QFontMetricsF(font()).lineSpacing() > m_scroll + visibleHeight())
        scrollToLine(line - 1);
    update();
}

/// In the margin, where no letter comes.
void NoteText::paintMoreMark(QPainter &painter) const
{
    QColor ink = m_ink;
    ink.setAlphaF(MoreMarkOpacity);
    painter.setClipping(false);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ink, 1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const qreal x = width() - 3.5;
    const qreal bottom = qMax(qMin(height() - 2.0, MoreMark.height() + 1), height() - MoreMarkBottom) + 0.5;
    const qreal half = MoreMark.width() / 2;
    painter.drawLine(QPointF(x, bottom - MoreMark.height()), QPointF(x, bottom));
    painter.drawPolyline(QPolygonF{{x - half, bottom - half}, {x, bottom}, {x + half, bottom - half}});
}

void NoteText::resizeEvent(QResizeEvent *event)
{
    if (event->size().width() != event->oldSize().width())
        forget();
    QLabel::resizeEvent(event);
}

void NoteText::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange)
        forget();
    QLabel::changeEvent(event);
}

int NoteText::linesAbove(qreal y) const
{
    int count = 0;
    for (const Paragraph &paragraph : m_paragraphs) {
        if (paragraph.top >= y)
            break;
        for (int i = 0; i < paragraph.layout->lineCount(); ++i)
            count += paragraph.top + paragraph.layout->lineAt(i).y() < y ? 1 : 0;
    }
    return count;
}

qreal NoteText::topOfLine(int line)
{
    int before = 0;
    for (size_t i = 0;; ++i) {
        if (i == m_paragraphs.size())
            layOutTo(m_height + 1);
        if (i == m_paragraphs.size())
            return m_height;
        const QTextLayout &layout = *m_paragraphs[i].layout;
        if (line < before + layout.lineCount())
            return m_paragraphs[i].top + layout.lineAt(line - before).y();
        before += layout.lineCount();
    }
}

qreal NoteText::visibleHeight() const
{
    return height() - Air.top() - Air.bottom() - 1;
}

void NoteText::scrollToLine(int line)
{
    // As far as the text box goes, to a pixel.
    const qreal top = topOfLine(qMax(0, line));
    layOutTo(top + height());
    const qreal lowest = qMax(0.0, m_height - visibleHeight());
    m_firstLine = top <= lowest ? qMax(0, line) : linesAbove(lowest);
    m_scroll = std::round(topOfLine(m_firstLine));
    update();
}

TextPlace NoteText::place() const
{
    TextPlace place{0, m_firstLine};
    for (const Paragraph &paragraph : m_paragraphs) {
        if (place.line < paragraph.layout->lineCount())
            break;
        place.line -= paragraph.layout->lineCount();
        ++place.paragraph;
    }
    return place;
}

void NoteText::scrollTo(TextPlace place)
{
    // Every paragraph above it is laid out.
    if (place.paragraph > LastReachable)
        place = {};
    int line = place.line;
    for (size_t i = 0; i < static_cast<size_t>(place.paragraph); ++i) {
        if (i == m_paragraphs.size())
            layOutTo(m_height + 1);
        if (i == m_paragraphs.size())
            break;
        line += m_paragraphs[i].layout->lineCount();
    }
    scrollToLine(line);
}
