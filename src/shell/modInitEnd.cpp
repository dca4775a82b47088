// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "shell/modInitEnd.h"

#include "forms/Form.h"
#include "forms/Program.h"
#include "forms/modForms.h"
#include "forms/modFormsJournal.h"
#include "forms/modFormsSaving.h"
#include "platform/EndSignals.h"
#include "platform/Prompts.h"
#include "platform/windowStacking.h"

#include <QApplication>
#include <QDialog>
#include <QScopedValueRollback>
#include <QSessionManager>

namespace modInit
{
namespace
{

/// Answers what is open with Cancel, the innermost first.
void closeModalWindows()
{
    constexpr int Deepest = 16;
    for (int i = 0; i < Deepest; ++i) {
        QWidget *modal = QApplication::activeModalWidget();
        if (modal == nullptr)
            return;
        if (auto *dialog = qobject_cast<QDialog *>(modal))
            dialog->reject();
        else
            modal->close();
    }
}

} // namespace

void saveWhenEnded(Program &program, EndSignals &endSignals)
{
    QObject::connect(&endSignals, &EndSignals::endRequested, qApp, [&program] {
        program.Exiting = true;
        modForms::SaveAllNotes(program);
        modForms::CloseAllWindows(program);
        closeModalWindows();
        QCoreApplication::exit();
    });
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, qApp, [&program](QSessionManager &manager) {
        const bool mayAsk = manager.allowsInteraction();
        const QScopedValueRollback told(program.saveFailureTold, program.saveFailureTold || !mayAsk);
        modForms::SaveAllNotes(program);
        if (mayAsk)
            manager.release();
    });
}

void ExitProgram(Program &program)
{
    Form *panel = program.forms.find(formNames::Menu);
    if (program.Exiting || program.file.LoadingData)
        return;
    if (panel != nullptr)
        windowStacking::SetForegroundWindow(*panel->window());
    modForms::SaveAllNotes(program);
    if (modForms::hasUnsavedNotes(program)) {
        const QString text = QCoreApplication::translate(
            "modInit", "Some changes could not be saved and will be lost.\nEnd the program all the same?");
        if (program.prompts().ask({text, QStringLiteral("Quillets"), Message::Icon::Exclamation,
                                   Message::Buttons::OkCancel, Message::Enter::Cancel},
                                  panel != nullptr ? panel->window() : nullptr) != Prompts::Answer::Ok)
            return;
    }
    program.Exiting = true;
    modForms::discardJournal(program);
    modForms::CloseAllWindows(program);
    if (panel != nullptr)
        panel->unload();
    QCoreApplication::exit();
}

} // namespace modInit
