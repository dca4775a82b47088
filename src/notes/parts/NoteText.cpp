// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/parts/NoteText.h"

#include "shell/common/modForms.h"

#include <QMouseEvent>
#include <QPainter>
#include <QTextLayout>
#include <QWheelEvent>

#include <cmath>

namespace
{

constexpr QMargins Air(6, 6, 6, 2);
constexpr qreal TabDistance = 80;
constexpr qreal NarrowestLetter = 2;
constexpr qsizetype SpareCharacters = 4096;
constexpr int StepsPerNotch = 120;
constexpr int LinesPerNotch = 3;

bool endsParagraph(QChar c)
{
    return c == u'\n' || c == u'\r' || c == QChar::ParagraphSeparator;
}

} // namespace

NoteText::NoteText(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setCursor(Qt::IBeamCursor);
}

NoteText::~NoteText() = default;

QMargins NoteText::air()
{
    return Air;
}

void NoteText::setCaption(const QString &caption)
{
    setText(caption);
    m_shown = modForms::shownCaption(caption);
    setAccessibleName(m_shown);
    m_scroll = 0;
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
    Paragraph paragraph{std::make_unique<QTextLayout>(text, font()), top, 0};
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
        while (end < limit && !endsParagraph(m_shown.at(end)))
            ++end;
        Paragraph paragraph = laidOut(m_shown.mid(m_next, end - m_next), m_height);
        m_height += paragraph.height;
        m_paragraphs.push_back(std::move(paragraph));
        m_complete = end >= m_shown.size();
        if (m_complete)
            break;
        const bool twoCharacters = m_shown.at(end) == u'\r' && end + 1 < m_shown.size() && m_shown.at(end + 1) == u'\n';
        m_next = endsParagraph(m_shown.at(end)) ? end + (twoCharacters ? 2 : 1) : end;
    }
}

void NoteText::paintEvent(QPaintEvent *)
{
    layOutTo(m_scroll + height());
    QPainter painter(this);
    painter.setPen(m_ink);
    painter.setClipRect(rect().marginsRemoved({Air.left(), m_scroll > 0 ? 0 : Air.top(), Air.right(), 1}));
    const QPointF origin(Air.left(), Air.top() - m_scroll);
    for (const Paragraph &paragraph : m_paragraphs) {
        const qreal top = paragraph.top - m_scroll;
        if (top < height() && top + paragraph.height > -Air.top())
            paragraph.layout->draw(&painter, origin + QPointF(0, paragraph.top));
    }
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

void NoteText::mousePressEvent(QMouseEvent *event)
{
    event->accept();
    emit pressed(event->button(), event->globalPosition().toPoint());
}

void NoteText::wheelEvent(QWheelEvent *event)
{
    const qreal notches = event->angleDelta().y() / static_cast<qreal>(StepsPerNotch);
    const qreal target = m_scroll - notches * LinesPerNotch * QFontMetricsF(font()).lineSpacing();
    const qreal visible = height() - Air.top() - Air.bottom();
    layOutTo(qMax(0.0, target) + height());
    m_scroll = std::round(std::clamp(target, 0.0, qMax(0.0, m_height - visible)));
    event->accept();
    update();
}
