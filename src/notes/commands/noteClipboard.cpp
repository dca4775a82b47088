// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/commands/noteClipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace noteClipboard
{

void copy(const QString &text)
{
    QGuiApplication::clipboard()->setText(text);
}

std::optional<QString> text()
{
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    if (data == nullptr || !data->hasText())
        return std::nullopt;
    QString text = data->text();
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(u'\r', u'\n');
    text.replace(QChar(QChar::ParagraphSeparator), QLatin1Char('\n'));
    text.replace(u'\n', QLatin1String("\r\n"));
    return text;
}

} // namespace noteClipboard
