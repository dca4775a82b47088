// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/parts/NoteTitle.h"

#include "drawing/textShortening.h"
#include "notes/parts/focusLoss.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>

namespace
{

constexpr qreal TitlePoints = 9.5;
constexpr int LabelIndent = 0;
constexpr int LeastEditorWidth = 60; ///< It lies over the buttons of a note too narrow for a title.

bool breaksLine(QChar c)
{
    return c.category() == QChar::Other_Control || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
}

QPalette textPalette(QPalette palette, const QColor &ink, const QColor &paper)
{
    palette.setColor(QPalette::WindowText, ink);
    palette.setColor(QPalette::Text, ink);
    palette.setColor(QPalette::Base, paper);
    return palette;
}

} // namespace

TitleLabel::TitleLabel(const QString &name, QWidget *parent) : QLabel(parent)
{
    setObjectName(name);
    setTextFormat(Qt::PlainText);
    setIndent(LabelIndent);
    setFont(NoteTitle::font());
}

void TitleLabel::setInk(const QColor &ink)
{
    setPalette(textPalette(palette(), ink, palette().color(QPalette::Base)));
}

void TitleLabel::mousePressEvent(QMouseEvent *event)
{
    event->setAccepted(event->button() == Qt::LeftButton);
    if (event->isAccepted())
        emit pressed(event->globalPosition().toPoint());
}

void TitleLabel::mouseMoveEvent(QMouseEvent *event)
{
    if (event->buttons().testFlag(Qt::LeftButton))
        emit dragged(event->globalPosition().toPoint());
}

void TitleLabel::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    // Moves are compressed: the last one may be told by the release alone.
    emit dragged(event->globalPosition().toPoint());
    emit released();
}

void TitleLabel::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        emit doubleClicked();
}

QFont NoteTitle::font()
{
    QFont font(QStringLiteral("Times New Roman"));
    font.setStyleHint(QFont::Serif);
    font.setPointSizeF(TitlePoints);
    return font;
}

QString NoteTitle::shownTitle() const
{
    const QString shown = m_label->text();
    return shown.isEmpty() || shown == textShortening::Dots ? m_title : shown;
}

NoteTitle::NoteTitle(QWidget *strip) : QObject(strip), m_label(new TitleLabel(QStringLiteral("lblTitle"), strip)) {}

void NoteTitle::setGeometry(const QRect &rect)
{
    m_label->setGeometry(rect);
    if (m_editor != nullptr)
        m_editor->setGeometry(editorRect());
    showFitting();
}

void NoteTitle::setVisible(bool visible)
{
    m_visible = visible;
    m_label->setVisible(visible && !m_editing);
    if (m_editor != nullptr)
        m_editor->setVisible(visible && m_editing);
}

void NoteTitle::setInk(const QColor &ink, const QColor &paper)
{
    m_ink = ink;
    m_paper = paper;
    m_label->setInk(ink);
    if (m_editor != nullptr)
        m_editor->setPalette(textPalette(m_editor->palette(), ink, paper));
}

void NoteTitle::setTitle(const QString &title)
{
    // Titles come from files too: one line, whatever they hold.
    m_title = title;
    std::replace_if(m_title.begin(), m_title.end(), breaksLine, QChar(u' '));
    showFitting();
}

/// A title without any room keeps what it showed last; it is still printed.
void NoteTitle::showFitting()
{
    if (m_label->width() > 0)
        m_label->setText(textShortening::shortened(m_title, m_label->width(), m_label->font()));
}

QRect NoteTitle::editorRect() const
{
    const QRect place = m_label->geometry();
    return {place.topLeft(), place.size().expandedTo({LeastEditorWidth, 0})};
}

void NoteTitle::makeEditor()
{
    m_editor = new QLineEdit(m_label->parentWidget());
    m_editor->setObjectName(QStringLiteral("txtTitle"));
    m_editor->setAccessibleName(tr("Title of the note"));
    m_editor->setFrame(false);
    m_editor->setFont(m_label->font());
    m_editor->setTextMargins(-2, 0, 0, 0);
    m_editor->setMaxLength(INT_MAX);
    m_editor->setGeometry(editorRect());
    connect(m_editor, &QLineEdit::textChanged, this, &NoteTitle::typed);
    m_editor->installEventFilter(this);
    m_editor->setPalette(textPalette(m_editor->palette(), m_ink, m_paper));
}

void NoteTitle::beginEditing(const QString &text)
{
    if (m_editor == nullptr)
        makeEditor();
    m_editing = true;
    m_editor->setText(text);
    setVisible(m_visible);
    m_editor->raise();
    m_editor->setFocus(Qt::OtherFocusReason);
    m_editor->selectAll();
}

void NoteTitle::closeEditor()
{
    m_editing = false;
    // Else the focus would go to the next picture.
    if (m_editor->window()->focusWidget() == m_editor)
        m_editor->window()->setFocus();
    setVisible(m_visible);
}

void NoteTitle::endEditing()
{
    if (!m_editing)
        return;
    const QString text = m_editor->text();
    closeEditor();
    emit edited(text);
}

void NoteTitle::commitQuietly()
{
    if (isBlank())
        giveUp();
    endEditing();
}

void NoteTitle::giveUp()
{
    if (!m_editing)
        return;
    closeEditor();
    emit typed();
}

void NoteTitle::editorLeft(Qt::FocusReason reason)
{
    if (reason == Qt::ActiveWindowFocusReason)
        onceFocusStaysLost(m_editor, [this] { endEditing(); });
    else if (reason != Qt::PopupFocusReason)
        // The line edit itself handles the event first; its owner may open a box.
        QMetaObject::invokeMethod(this, &NoteTitle::endEditing, Qt::QueuedConnection);
}

bool NoteTitle::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_editor && event->type() == QEvent::FocusOut) {
        editorLeft(static_cast<QFocusEvent *>(event)->reason());
    } else if (watched == m_editor && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Escape)
            giveUp();
        else if (key == Qt::Key_Return || key == Qt::Key_Enter)
            endEditing();
        else
            return false;
        return true;
    }
    return false;
}
