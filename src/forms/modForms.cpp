// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "forms/modForms.h"

#include "forms/Form.h"
#include "forms/NoteHolder.h"
#include "forms/Program.h"
#include "forms/modFormsHiding.h"
#include "forms/modFormsJournal.h"
#include "platform/windowStacking.h"

#include <QApplication>
#include <QPointer>
#include <QWidget>

#include <array>

namespace modForms
{
namespace
{

/// Name of the object through which a window is watched; it goes with the window.
constexpr auto WatcherName = "NoteWindowProc";

/// What a watched window is told when another program becomes active.
void NoteWindowProc(Form &form, Qt::ApplicationState state)
{
    if (state == Qt::ApplicationInactive && form.holder() != nullptr)
        form.holder()->TextLostFocus();
}

bool isOwnKind(const Form &form)
{
    constexpr std::array Own{formNames::Note,   formNames::NoteStack, formNames::Menu, formNames::Splash,
                             formNames::Status, formNames::QuietLine, formNames::Find};
    return std::find(Own.begin(), Own.end(), form.formName()) != Own.end();
}

} // namespace

void ScaleForm(QWidget &form, QSize designTwips)
{
    form.resize(Twips::design(designTwips.width()), Twips::design(designTwips.height()));
}

void RemoveSystemMenuItems(QWidget &form, bool, bool, bool r2, bool r3, bool r4, bool, bool r6)
{
    Qt::WindowFlags flags =
        form.windowFlags() | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint;
    flags.setFlag(Qt::WindowMinimizeButtonHint, !r3);
    flags.setFlag(Qt::WindowMaximizeButtonHint, !r4);
    flags.setFlag(Qt::WindowCloseButtonHint, !r6);
    form.setWindowFlags(flags);
    if (r2)
        form.setFixedSize(form.size());
}

void HookWindow(Forms &forms, Form &form)
{
    UnhookWindow(form);
    auto *watcher = new QObject(form.window());
    watcher->setObjectName(QLatin1String(WatcherName));
    QObject::connect(qGuiApp, &QGuiApplication::applicationStateChanged, watcher,
                     [&forms, form = &form](Qt::ApplicationState state) {
                         if (forms.isLoaded(form))
                             NoteWindowProc(*form, state);
                     });
}

void UnhookWindow(Form &form)
{
    if (QWidget *window = form.window())
        delete window->findChild<QObject *>(QLatin1String(WatcherName), Qt::FindDirectChildrenOnly);
}

void ShowNoteWindows(Program &program)
{
    // A dialog within a dialog leaves this to the outer one.
    if (isAnswerAwaited(program))
        return;
    for (Form *form : program.forms.notes()) {
        QWidget *window = form->window();
        if (window != nullptr && !window->isVisible() && !isHiddenWithAll(program, *form))
            window->show();
    }
}

bool IsDialogShowing(const Program &program)
{
    const auto all = program.forms.loaded();
    return std::any_of(all.begin(), all.end(), [](Form *form) {
        return !isOwnKind(*form) && form->window() != nullptr && form->window()->isVisible();
    });
}

bool isAnswerAwaited(const Program &program)
{
    return IsDialogShowing(program) || QApplication::activeModalWidget() != nullptr;
}

void activateNext(Program &program, Form &from)
{
    constexpr std::array Kinds{formNames::Note, formNames::NoteStack, formNames::Menu, formNames::QuietLine,
                               formNames::Find};
    auto all = program.forms.loaded();
    const auto at = std::find(all.begin(), all.end(), &from);
    if (at == all.end())
        return;
    std::rotate(all.begin(), at + 1, all.end());
    const auto next = std::find_if(all.begin(), all.end(), [&](Form *form) {
        return std::find(Kinds.begin(), Kinds.end(), form->formName()) != Kinds.end() && form->window()->isVisible();
    });
    if (next != all.end())
        windowStacking::SetForegroundWindow(*(*next)->window());
}

void CloseAllWindows(Program &program)
{
    program.autoSave.stop();
    endJournal(program);
    const auto all = program.forms.loaded();
    for (Form *form : all)
        form->keepPlace();
    for (auto form = all.rbegin(); form != all.rend(); ++form) {
        if (!program.forms.isLoaded(*form) || (*form)->formName() == formNames::Menu)
            continue;
        if (QWidget *window = (*form)->window())
            window->hide();
        (*form)->Destroy();
        (*form)->unload();
    }
    if (Form *panel = program.forms.find(formNames::Menu))
        panel->window()->hide();
}

} // namespace modForms
