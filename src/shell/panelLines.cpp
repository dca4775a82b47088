// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "shell/panelLines.h"

#include "controls/QuietLine.h"
#include "forms/Program.h"
#include "restore/restoring.h"
#include "shell/modInit.h"

#include <QCoreApplication>

namespace panelLines
{
namespace
{

constexpr int Below = 60;
constexpr QLatin1String JournalLine("journalLine");

/// A place whose lower edge is below the panel.
QRect below(const QWidget &panel)
{
    return panel.frameGeometry().adjusted(0, 0, 0, Below);
}

/// Nothing to decide, and so no box.
QuietLine *tell(Program &program, const QWidget &panel, const QString &text)
{
    auto *line = new QuietLine(program, {text, QCoreApplication::translate("panelLines", "OK"), {}, {}, [] {}});
    line->showBy(below(panel));
    return line;
}

} // namespace

void tellRestored(Program &program, const QWidget &panel, Restored restored)
{
    if (program.Exiting)
        return;
    if (restored.isDamaged)
        restoring::offerRestore(program, below(panel));
    else if (restored.broughtBack > 0)
        tell(program, panel,
             QCoreApplication::translate("panelLines", "Notes brought back that were not saved last time: %1.")
                 .arg(restored.broughtBack));
}

void tellJournal(Program &program, const QWidget &panel, const QString &reason)
{
    if (program.Exiting)
        return;
    if (!reason.isEmpty()) {
        const QString text = QCoreApplication::translate("panelLines", "What you type is not on the disk: %1.");
        tell(program, panel, text.arg(reason))->setProperty(JournalLine.data(), true);
        return;
    }
    for (Form *form : program.forms.loaded())
        if (form->window() != nullptr && form->window()->property(JournalLine.data()).toBool())
            form->unload();
}

} // namespace panelLines
