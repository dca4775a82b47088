// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "dialogs/frmOptions.h"
#include "find/frmFind.h"
#include "forms/NoteHolder.h"
#include "forms/Program.h"
#include "forms/modFormsHiding.h"
#include "forms/modFormsSaving.h"
#include "forms/modHelp.h"
#include "forms/showModally.h"
#include "forms/whenAnswered.h"
#include "notes/modCreateNote.h"
#include "platform/DesktopActions.h"
#include "platform/GlobalKeys.h"
#include "platform/Prompts.h"
#include "platform/windowStacking.h"
#include "restore/restoring.h"
#include "shell/PanelMenu.h"
#include "shell/ReceivedNotes.h"
#include "shell/frmAbout.h"
#include "shell/frmMenu.h"
#include "shell/modInitEnd.h"
#include "transfer/noteSources.h"
#include "transfer/windows/noteExport.h"
#include "transfer/windows/noteImport.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMimeData>

#include <array>

// What is commanded on the panel, in the menu of its tray icon and by keys.

void frmMenu::run(PanelCommand command)
{
    if (m_pressGuard || m_program.Exiting || command == PanelCommand::None)
        return;
    if (isVisible())
        windowStacking::SetForegroundWindow(*this);
    runInPlace(command);
}

/// Leaves the panel where it is: what is at the front is what the keys were for.
void frmMenu::runInPlace(PanelCommand command)
{
    if (m_pressGuard || m_program.Exiting)
        return;
    m_pressGuard = true;
    const QPointer<frmMenu> self = this;
    perform(command);
    if (self != nullptr)
        m_pressGuard = false;
}

/// A new note comes where the keys were pressed: in the NoteStack it is a tab. Saving shows no window, which would take
/// what is typed on.
void frmMenu::runFromKeys(PanelCommand command)
{
    Form *stack = m_program.forms.find(formNames::NoteStack);
    if (command == PanelCommand::Save && !m_pressGuard && !m_program.Exiting)
        modForms::SaveAllNotes(m_program);
    else if (command == PanelCommand::New && stack != nullptr && stack->window()->isActiveWindow())
        modCreateNote::createNewNote(m_program, Home::NoteStack, stack->window());
    else
        runInPlace(command);
}

/// The icon can be used while a window is open that waits for an answer, as a dialog of a note is. What moves, unloads
/// or opens windows itself is refused then, with a word. While all notes are saved or moved nothing else is done.
void frmMenu::runFromTray(PanelCommand command)
{
    constexpr std::array Independent{PanelCommand::New, PanelCommand::Show, PanelCommand::Save, PanelCommand::Help,
                                     PanelCommand::Exit};
    const bool isIndependent = std::find(Independent.begin(), Independent.end(), command) != Independent.end();
    QWidget *modal = QApplication::activeModalWidget();
    if (m_program.Exiting || (m_pressGuard && m_program.file.batchDepth > 0))
        return;
    if (!isIndependent && command != PanelCommand::None && modal != nullptr)
        refuse(*modal);
    else if (!m_pressGuard)
        run(command);
    else if (isIndependent)
        perform(command);
}

void frmMenu::answerDesktop()
{
    struct Action
    {
        const char *name;
        PanelCommand command;
    };
    // As the desktop entry names them.
    static constexpr std::array Actions{
        Action{"new-note", PanelCommand::New}, Action{"show-or-hide", PanelCommand::ShowOrHideAll},
        Action{"find", PanelCommand::Find}, Action{"notestack", PanelCommand::NoteStack}};
    auto *desktop = new DesktopActions(this);
    connect(desktop, &DesktopActions::activated, this, [this] { runFromTray(PanelCommand::Show); });
    connect(desktop, &DesktopActions::actionWanted, this, [this](const QString &name) {
        const auto *found = std::find_if(Actions.begin(), Actions.end(),
                                         [&name](const Action &action) { return name == QLatin1String(action.name); });
        if (found != Actions.end())
            runFromTray(found->command);
    });
    desktop->publish();
    m_keys = new GlobalKeys(this);
    connect(m_keys, &GlobalKeys::pressed, this,
            [this](int index) { runFromTray(index == 0 ? PanelCommand::New : PanelCommand::ShowOrHideAll); });
    connect(m_keys, &GlobalKeys::refused, this, [this] {
        whenAnswered(m_program, this, [this] {
            m_program.prompts().tell({tr("The desktop gives Quillets no keys for all programs."),
                                      QStringLiteral("Quillets"), Message::Icon::Exclamation},
                                     isVisible() ? this : nullptr);
        });
    });
    grabKeys();
}

void frmMenu::grabKeys()
{
    if (m_keys == nullptr)
        return;
    const clsKeySettings &settings = m_program.KeySettings;
    const QList<QKeySequence> taken =
        m_keys->grab({{QKeySequence::fromString(settings.NewNote), tr("New note")},
                      {QKeySequence::fromString(settings.ShowOrHideAll), tr("Show or hide all notes")}});
    if (!taken.isEmpty())
        m_program.prompts().tell({tr("Another program has the key %1.  It does nothing in Quillets.")
                                      .arg(taken.first().toString(QKeySequence::NativeText)),
                                  QStringLiteral("Quillets"), Message::Icon::Exclamation},
                                 isVisible() ? this : nullptr);
}

void frmMenu::refuse(QWidget &modal)
{
    windowStacking::SetForegroundWindow(modal);
    if (std::exchange(m_refusing, true))
        return;
    const QPointer<frmMenu> self = this;
    m_program.prompts().tell(
        {tr("Please close the open window first."), QStringLiteral("Quillets"), Message::Icon::Exclamation}, &modal);
    if (self != nullptr)
        m_refusing = false;
}

void frmMenu::contextMenuEvent(QContextMenuEvent *event)
{
    openPanelMenu(event->globalPos());
}

void frmMenu::openPanelMenu(QPoint where)
{
    auto *menu = new PanelMenu(this);
    // The menu goes with its choice: what is chosen is carried out when it has.
    connect(menu, &PanelMenu::commanded, this, &frmMenu::runInPlace, Qt::QueuedConnection);
    menu->popup(where);
}

namespace
{

/// The files of a drop that notes can be made of.
QStringList noteFilesOf(const QMimeData &dropped)
{
    QStringList paths;
    for (const QUrl &url : dropped.urls())
        if (url.isLocalFile() && noteSources::isKnown(url.toLocalFile()))
            paths.append(url.toLocalFile());
    return paths;
}

} // namespace

void frmMenu::dragEnterEvent(QDragEnterEvent *event)
{
    event->setAccepted(!noteFilesOf(*event->mimeData()).isEmpty());
}

/// Asked of what was let in.
void frmMenu::dragMoveEvent(QDragMoveEvent *event)
{
    event->accept();
}

void frmMenu::dropEvent(QDropEvent *event)
{
    event->setDropAction(Qt::CopyAction);
    event->accept();
    // A dialog opens: whoever the files come from is let go first.
    QMetaObject::invokeMethod(
        this, [this, paths = noteFilesOf(*event->mimeData())] { importFiles(paths); }, Qt::QueuedConnection);
}

void frmMenu::importFiles(const QStringList &paths)
{
    if (m_pressGuard || m_program.Exiting || QApplication::activeModalWidget() != nullptr)
        return;
    m_pressGuard = true;
    const QPointer<frmMenu> self = this;
    windowStacking::SetForegroundWindow(*this);
    noteImport::run(m_program, this, paths);
    if (self != nullptr)
        m_pressGuard = false;
}

void frmMenu::perform(PanelCommand command)
{
    switch (command) {
    case PanelCommand::New:
        modCreateNote::createNewNote(m_program, Home::Desktop, isVisible() ? this : nullptr);
        break;
    case PanelCommand::Save:
        modForms::SaveAllWithProgress(m_program);
        break;
    case PanelCommand::Help:
        modHelp::ShowHelp(m_program);
        break;
    case PanelCommand::Exit:
        modInit::ExitProgram(m_program);
        break;
    case PanelCommand::Show:
        showMenu();
        break;
    case PanelCommand::AllToNoteStack:
        modForms::TransferAllToNoteStack(m_program);
        break;
    case PanelCommand::Options:
        openOptions();
        break;
    case PanelCommand::NoteStack:
    case PanelCommand::AllToDesktop:
        if (StackHolder *stack = m_program.forms.stack())
            command == PanelCommand::NoteStack ? stack->showStack() : stack->TransferAllToDesktop();
        break;
    case PanelCommand::About:
        openAbout();
        break;
    case PanelCommand::Find:
        frmFind::open(m_program);
        break;
    case PanelCommand::Restore:
        restoring::openRestore(m_program, isVisible() ? this : nullptr);
        break;
    case PanelCommand::Export:
        noteExport::run(m_program, isVisible() ? this : nullptr);
        break;
    case PanelCommand::Import:
        noteImport::run(m_program, isVisible() ? this : nullptr);
        break;
    case PanelCommand::ShowOrHideAll:
        modForms::ShowOrHideAll(m_program);
        break;
    case PanelCommand::None:
        break;
    }
}

void frmMenu::openOptions()
{
    const QPointer<frmOptions> dialog = new frmOptions(m_program, isVisible() ? this : nullptr);
    dialog->Initialize(m_program.ProgramOptions);
    if (!showModally(dialog))
        return;
    dialog->OptionsResult(m_program.ProgramOptions);
    m_received->settingsChanged();
    dialog->unload();
    if (isVisible())
        windowStacking::SetForegroundWindow(*this);
    grabKeys();
}

void frmMenu::openAbout()
{
    const QPointer<frmAbout> dialog = new frmAbout(m_program, isVisible() ? this : nullptr);
    if (showModally(dialog))
        dialog->unload();
}
