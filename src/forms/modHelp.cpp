// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "forms/modHelp.h"

#include "forms/Program.h"
#include "platform/Browser.h"
#include "platform/Prompts.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QUrl>

namespace modHelp
{

namespace
{

void tell(Program &program, const QString &text, const QString &caption)
{
    program.prompts().tell({text, caption, Message::Icon::Exclamation}, nullptr);
}

} // namespace

void openPage(Program &program, const QUrl &page)
{
    program.browser().open(page, [&program] {
        tell(program, QCoreApplication::translate("modHelp", "Could not find associated Browser"),
             QCoreApplication::translate("modHelp", "Browser Not Found"));
    });
}

void ShowHelp(Program &program)
{
    const QString &page = program.paths().HelpFile;
    if (QFileInfo(page).isFile())
        openPage(program, QUrl::fromLocalFile(page));
    else
        tell(program, QCoreApplication::translate("modHelp", "Web Page not Opened"),
             QCoreApplication::translate("modHelp", "URL Failed"));
}

} // namespace modHelp
