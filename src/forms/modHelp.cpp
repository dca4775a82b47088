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

void ShowHelp(Program &program)
{
    const auto tell = [&program](const QString &text, const QString &caption) {
        program.prompts().tell({text, caption, Message::Icon::Exclamation}, nullptr);
    };
    const QString &page = program.paths().HelpFile;
    if (!QFileInfo(page).isFile())
        tell(QCoreApplication::translate("modHelp", "Web Page not Opened"),
             QCoreApplication::translate("modHelp", "URL Failed"));
    else
        program.browser().open(QUrl::fromLocalFile(page), [tell] {
            tell(QCoreApplication::translate("modHelp", "Could not find associated Browser"),
                 QCoreApplication::translate("modHelp", "Browser Not Found"));
        });
}

} // namespace modHelp
