// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/commands/noteClipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace noteClipboard
{
namespace
{

QString withLineFeeds(QString text)
{
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(u'\r', u'\n');
    text.replace(QChar(QChar::ParagraphSeparator), QLatin1Char('\n'));
    return text;
}

} // namespace

/// Qt gives the clipboard of Windows the line ends that are usual there.
void copy(const QString &text)
{
    QGuiApplication::clipboard()->setText(withLineFeeds(text));
}

std::optional<QString> text()
{
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    if (data == nullptr || !data->hasText())
        return std::nullopt;
    QString text = withLineFeeds(data->text());
    text.replace(u'\n', QLatin1String("\r\n"));
    return text;
}

} // namespace noteClipboard
