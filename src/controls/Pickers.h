// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDateEdit>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QTimeEdit>

#include <utility>

/// A picker of dates or times into which they can be typed as they are written, "9:05" or "06/20/2032": a separator
/// leads to the next section only where the last digit has not done so already, digits overwrite the section that the
/// caret is in, and a section of letters, as the weekday, gives way to the next one.
template <typename Edit> class Picker : public Edit
{
public:
    using Edit::Edit;

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        const QString text = event->text();
        const bool isDigit = text.size() == 1 && text.front().isDigit();
        const bool isSeparator = text.size() == 1 && (text.front().isPunct() || text == u" ");
        if (isSeparator) {
            if (std::exchange(m_typed, false))
                select(this->currentSectionIndex() + 1);
            return;
        }
        if (isDigit && !m_typed)
            select(this->currentSectionIndex());
        const int section = this->currentSectionIndex();
        Edit::keyPressEvent(event);
        m_typed = isDigit && this->currentSectionIndex() == section;
    }

    void focusInEvent(QFocusEvent *event) override
    {
        Edit::focusInEvent(event);
        m_typed = false;
        if (event->reason() != Qt::MouseFocusReason)
            select(0);
    }

    void mousePressEvent(QMouseEvent *event) override
    {
        m_typed = false;
        Edit::mousePressEvent(event);
    }

private:
    /// The section, or the first behind it that holds a number.
    void select(int index)
    {
        const QStringList formats = this->displayFormat().split(QRegularExpression(QStringLiteral("[^A-Za-z]+")));
        while (index < this->sectionCount() && index < formats.size() && formats.at(index) == u"ddd")
            ++index;
        if (index >= this->sectionCount())
            return;
        this->setCurrentSectionIndex(index);
        this->setSelectedSection(this->currentSection());
    }

    bool m_typed = false; ///< Digits, into the current section.
};

/// Weekday, month, day and year.
class DatePicker final : public Picker<QDateEdit>
{
public:
    explicit DatePicker(QWidget *parent);
};

/// Hours, minutes and seconds, in half days where the locale writes times so.
class TimePicker final : public Picker<QTimeEdit>
{
public:
    explicit TimePicker(QWidget *parent);
};
