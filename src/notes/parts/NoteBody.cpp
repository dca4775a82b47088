// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/parts/NoteBody.h"

#include "forms/modFormsTexts.h"

NoteBody::NoteBody(QWidget *note)
    : QObject(note), m_note(note), m_display(new QWidget(note)), m_text(new NoteText(m_display))
{
    nameControls();
    connect(m_text, &NoteText::pressed, this, &NoteBody::textPressed);
    connect(m_text, &NoteText::addressPressed, this, &NoteBody::addressPressed);
    connect(m_text, &NoteText::markPressed, this, &NoteBody::markPressed);
    connect(m_text, &NoteText::fontWheelTurned, this, &NoteBody::fontWheelTurned);
}

NoteBody::~NoteBody()
{
    delete m_display;
    delete m_editLayer;
}

void NoteBody::setIndex(int index)
{
    m_suffix = QStringLiteral("(%1)").arg(index);
    nameControls();
}

void NoteBody::nameControls()
{
    m_display->setObjectName(QStringLiteral("fraDisplay") + m_suffix);
    m_text->setObjectName(QStringLiteral("lblDisplay") + m_suffix);
    if (m_picture != nullptr)
        m_picture->setObjectName(QStringLiteral("imgDisplay") + m_suffix);
    if (m_editLayer == nullptr)
        return;
    m_editLayer->setObjectName(QStringLiteral("fraText") + m_suffix);
    m_textBox->setObjectName(QStringLiteral("txtText") + m_suffix);
}

void NoteBody::setGeometry(const QRect &rect)
{
    m_rect = rect;
    const QRect inside(QPoint(0, 0), rect.size());
    m_display->setGeometry(rect);
    m_text->setGeometry(inside);
    if (m_picture != nullptr)
        m_picture->setGeometry(inside);
    if (m_editLayer != nullptr) {
        m_editLayer->setGeometry(rect);
        m_textBox->setGeometry(inside);
    }
}

void NoteBody::setShown(bool shown)
{
    m_shown = shown;
    showLayers();
}

void NoteBody::showLayers()
{
    m_display->setVisible(m_shown && !m_editing);
    if (m_editLayer != nullptr)
        m_editLayer->setVisible(m_shown && m_editing);
}

void NoteBody::setLook(const QFont &font, const NoteInk &ink)
{
    m_font = font;
    m_ink = ink;
    m_text->setFont(font);
    m_text->setInk(ink.ink);
    dressTextBox();
}

void NoteBody::changeFont(const QFont &font)
{
    const TextPlace place = m_text->place();
    setLook(font, m_ink);
    m_text->scrollTo(place);
}

void NoteBody::setInk(const NoteInk &ink)
{
    m_ink = ink;
    m_text->setInk(ink.ink);
    dressTextBox();
}

void NoteBody::setText(const QString &text)
{
    m_text->setCaption(modForms::DoubleFirstAmpersand(text));
}

bool NoteBody::setPicture(std::shared_ptr<SharedPicture> picture)
{
    if (picture == nullptr) {
        delete m_picture;
        return true;
    }
    if (m_picture == nullptr) {
        m_picture = new BackgroundPicture(m_display);
        m_picture->lower();
        m_picture->setGeometry(QRect(QPoint(0, 0), m_rect.size()));
        m_picture->show();
        nameControls();
    }
    if (m_picture->setPicture(std::move(picture)))
        return true;
    delete m_picture;
    return false;
}

void NoteBody::makeTextBox()
{
    m_editLayer = new QWidget(m_note);
    m_editLayer->stackUnder(m_display);
    m_textBox = new NoteTextBox(m_editLayer);
    nameControls();
    connect(m_textBox, &NoteTextBox::textChanged, this, &NoteBody::typed);
    connect(m_textBox, &NoteTextBox::left, this, &NoteBody::commit);
    connect(m_textBox, &NoteTextBox::addressPressed, this, &NoteBody::addressPressed);
    connect(m_textBox, &NoteTextBox::fontWheelTurned, this, &NoteBody::fontWheelTurned);
    connect(m_textBox, &NoteTextBox::pasteRefused, this, &NoteBody::pasteRefused, Qt::QueuedConnection);
    dressTextBox();
    setGeometry(m_rect);
}

void NoteBody::dressTextBox()
{
    if (m_textBox == nullptr)
        return;
    m_textBox->setFont(m_font);
    m_textBox->setInk(m_ink.ink, m_ink.paper);
}

void NoteBody::BeginTextEditing(const QString &text)
{
    if (m_editing)
        return;
    prepareTextBox(text);
    m_editing = true;
    showLayers();
    m_textBox->moveCursor(QTextCursor::End);
    m_textBox->setFocus(Qt::MouseFocusReason);
    // Nothing moves under the pointer; what is typed comes into sight at the caret.
    m_textBox->scrollTo(m_text->place());
    emit editingChanged(true);
}

void NoteBody::commit()
{
    if (!m_editing)
        return;
    m_editing = false;
    // Else the focus would go to the next picture.
    if (m_textBox->window()->focusWidget() == m_textBox)
        m_textBox->window()->setFocus();
    const QString text = m_textBox->noteText();
    setText(text);
    m_text->scrollTo(m_textBox->place());
    showLayers();
    emit editingChanged(false);
    emit committed(text);
}

void NoteBody::prepareTextBox(const QString &text)
{
    if (m_textBox == nullptr)
        makeTextBox();
    // The text it still holds keeps its history: what was typed or pasted before can be undone.
    if (m_textBox->noteText() != text)
        m_textBox->setNoteText(text);
}

void NoteBody::replaceMark(const QString &former, qsizetype at, QChar mark)
{
    prepareTextBox(former);
    m_textBox->replaceMark(at, mark);
    const TextPlace place = m_text->place();
    setText(m_textBox->noteText());
    m_text->scrollTo(place);
}

void NoteBody::replaceText(const QString &former, const QString &text)
{
    prepareTextBox(former);
    QTextCursor cursor(m_textBox->document());
    cursor.select(QTextCursor::Document);
    cursor.insertText(text);
    m_textBox->moveCursor(QTextCursor::End);
    setText(text);
}

void NoteBody::forgetText()
{
    setText({});
    if (m_textBox != nullptr)
        m_textBox->setNoteText({});
}
