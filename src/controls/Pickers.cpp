// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "controls/Pickers.h"

#include <QLocale>

DatePicker::DatePicker(QWidget *parent) : Picker(parent)
{
    setDisplayFormat(QStringLiteral("ddd, MM/dd/yyyy"));
    setCalendarPopup(true);
}

TimePicker::TimePicker(QWidget *parent) : Picker(parent)
{
    const bool halfDays = QLocale().timeFormat(QLocale::ShortFormat).contains(u'a', Qt::CaseInsensitive);
    setDisplayFormat(halfDays ? QStringLiteral("hh:mm:ss AP") : QStringLiteral("HH:mm:ss"));
}
