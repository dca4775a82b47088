// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "exchange/mailProgram.h"

#include "forms/Program.h"
#include "platform/Browser.h"
#include "platform/Prompts.h"

#include <QCoreApplication>
#include <QPointer>
#include <QUrl>
#include <QWidget>

namespace
{

/// Systems hand no longer text from one program to the other.
constexpr qsizetype LongestMail = 100'000;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(mailProgram)
};

QByteArray encoded(QString text)
{
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n').remove(QChar::Null);
    return QUrl::toPercentEncoding(text.replace(u'\n', QStringLiteral("\r\n")));
}

} // namespace

QUrl mailProgram::address(const QStringList &recipients, const QString &subject, const QString &body)
{
    QList<QByteArray> to;
    for (const QString &recipient : recipients)
        to.append(QUrl::toPercentEncoding(recipient, "@"));
    return QUrl::fromEncoded("mailto:" + to.join(',') + "?subject=" + encoded(subject) + "&body=" + encoded(body));
}

void mailProgram::open(Program &program, const QUrl &mail, QWidget *owner)
{
    const auto tell = [&program, owner = QPointer<QWidget>(owner)](const QString &text) {
        program.prompts().tell({text, QStringLiteral("Quillets"), Message::Icon::Exclamation}, owner);
    };
    if (mail.toEncoded().size() > LongestMail)
        tell(Texts::tr("This note is too long to be handed to a mail program."));
    else
        program.browser().open(mail, [tell] { tell(Texts::tr("No mail program could be found.")); });
}
