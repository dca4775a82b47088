// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "shell/modInit.h"

#include "drawing/colours.h"
#include "forms/NoteHolder.h"
#include "forms/modForms.h"
#include "forms/modFormsJournal.h"
#include "forms/modFormsSaving.h"
#include "forms/modTimers.h"
#include "model/keySettingsFile.h"
#include "model/modFileIOFolder.h"
#include "model/networkSettingsFile.h"
#include "model/version.h"
#include "notes/modCreateNote.h"
#include "notestack/frmNoteStack.h"
#include "platform/EndSignals.h"
#include "platform/ExitRescue.h"
#include "platform/HeldKeys.h"
#include "platform/SingleInstance.h"
#include "platform/SystemBrowser.h"
#include "platform/SystemChoosers.h"
#include "platform/SystemClock.h"
#include "platform/SystemKeyring.h"
#include "platform/SystemNearby.h"
#include "platform/SystemPrinting.h"
#include "platform/SystemPrompts.h"
#include "platform/SystemSound.h"
#include "platform/displayPlatform.h"
#include "platform/windowStacking.h"
#include "restore/deletions.h"
#include "shell/frmMenu.h"
#include "shell/frmSplash.h"
#include "shell/modInitEnd.h"
#include "shell/panelLines.h"

#include <QApplication>
#include <QDir>
#include <QScreen>
#include <QTimer>

using namespace std::chrono_literals;

namespace modInit
{
namespace
{

constexpr qint32 DesignBackColor = 0x0000FFFF;
constexpr auto BeforeRestore = 100ms;
constexpr auto BeforeOffer = 500ms; ///< The window manager has placed the panel by then.
constexpr QSize PanelDesignSize(4440, 3540);

void tellFatal(Prompts &prompts, const QString &text)
{
    prompts.tell({text, QStringLiteral("Fatal Program Error"), Message::Icon::Critical}, nullptr);
}

void tellSecondInstance(Prompts &prompts)
{
    tellFatal(prompts, QStringLiteral("You cannot have more than one instance of Quillets running."));
}

DesignLook designLook()
{
    const QFont font = QApplication::font();
    return {DesignBackColor, colours::SystemText, font.family(), static_cast<float>(font.pointSizeF())};
}

/// Switches an option off, with a box, whose file is not there.
void checkFile(Program &program, bool &on, const QString &path, const QString &before, const QString &disabling)
{
    if (!on || QFileInfo(path).isFile())
        return;
    program.prompts().tell({before + path + QStringLiteral(" could not be found.") + u'\n' + disabling,
                            QStringLiteral("File Not Found"), Message::Icon::Critical},
                           nullptr);
    on = false;
}

void nameApplication()
{
    QApplication::setApplicationName(QStringLiteral("quillets"));
    // No display name: window systems would write it behind every caption.
    QApplication::setApplicationVersion(ProgramVersion.toString());
    QGuiApplication::setDesktopFileName(QStringLiteral("org.quillets.Quillets"));
    QApplication::setQuitOnLastWindowClosed(false);
}

/// One box for all; a failed save that follows has the same reason.
void tellOfLoad(Program &program, const LoadReport &report)
{
    QStringList lines;
    if (report.undecodable > 0)
        lines.append(
            QCoreApplication::translate("modInit", "Notes that could not be read: %1.").arg(report.undecodable));
    if (!report.problem.isEmpty())
        lines.append(report.problem);
    if (!report.keptAside.isEmpty()) {
        lines.append(
            QCoreApplication::translate("modInit", "The stored notes were damaged or missing.  A copy was kept:"));
        lines.append(report.keptAside);
    }
    if (lines.isEmpty() || program.Exiting)
        return;
    program.saveFailureTold = program.saveFailureTold || !report.problem.isEmpty();
    program.prompts().tell({lines.join(u'\n'), QStringLiteral("Error"), Message::Icon::Critical}, nullptr);
}

void showPanel(Program &program, frmSplash &splash, frmMenu &panel)
{
    splash.hide();
    panel.show();
    windowStacking::SetForegroundWindow(panel);
    splash.unload();
    modForms::SaveAllNotes(program);
}

int run(Program &program)
{
    const QPointer<frmSplash> splash = new frmSplash(program);
    splash->setStatus(QStringLiteral("Loading program ... "));
    splash->show();
    prepareDataFolder(program);
    SingleInstance folderLock(program.paths().LockFile);
    if (!folderLock.acquire()) {
        delete splash;
        tellSecondInstance(program.prompts());
        return 1;
    }
    splash->setStatus(QStringLiteral("Setting program wide defaults ... "));
    LoadProgramOptions(program);
    const QPointer<frmMenu> panel = new frmMenu(program);
    modForms::ScaleForm(*panel, PanelDesignSize);
    splash->setStatus(QStringLiteral("Loading program components... "));
    const QPointer<frmNoteStack> stack = new frmNoteStack(program);
    stack->Initialize();
    program.noteDeleted = [&program](const DeletedNote &note) { deletions::offerUndo(program, note); };
    EndSignals endSignals;
    saveWhenEnded(program, endSignals);
    splash->setStatus(QStringLiteral("Reading data file ... "));
    program.journalTrouble = [&program, panel](const QString &reason) {
        if (panel != nullptr)
            panelLines::tellJournal(program, *panel, reason);
    };
    modForms::keepJournal(program);
    const Restored restored = restoreNotes(program, splash);
    const ExitRescue rescue([&program] { modForms::rescueNotes(program); });
    if (program.Exiting)
        return 0;
    stack->restoreOrder();
    modTimers::SetAutoSave(program, true);
    showPanel(program, *splash, *panel);
    // Told to end while a box was open: an event loop that has not begun cannot be left.
    if (program.Exiting)
        return 0;
    if (frmNoteStack::wasShown(program))
        stack->show();
    // When what was started is on the screen.
    QTimer::singleShot(0, panel, &frmMenu::answerDesktop);
    QMetaObject::invokeMethod(panel, &frmMenu::startReceiving, Qt::QueuedConnection);
    QTimer::singleShot(BeforeOffer, panel,
                       [&program, panel, restored] { panelLines::tellRestored(program, *panel, restored); });
    const int result = QApplication::exec();
    delete panel;
    return result;
}

} // namespace

bool checkComponents(Program &program)
{
    if (QFileInfo(program.paths().ImagesFolder).isDir())
        return true;
    tellFatal(program.prompts(), QStringLiteral("Certain program components could not be found.\nPlease re-install."));
    return false;
}

void prepareDataFolder(Program &program)
{
    if (modFileIO::prepareDataFolder(program.paths()))
        return;
    const QString folder = program.paths().DataFolder;
    const QString text = QCoreApplication::translate(
        "modInit", "The folder %1 could not be created.\nNotes cannot be saved until it can be.");
    program.prompts().tell({text.arg(folder), QStringLiteral("Error"), Message::Icon::Critical}, nullptr);
}

void LoadProgramOptions(Program &program)
{
    program.DefaultOptions = modFileIO::SetProgramDefaults(program.paths(), designLook());
    program.ProgramOptions = program.DefaultOptions;
    clsprogramoptions &options = program.ProgramOptions;
    modFileIO::LoadOptionsFile(program.paths(), options);
    program.KeySettings = keySettingsFile::load(keySettingsFile::pathIn(program.paths().DataFolder));
    program.NetworkSettings = networkSettingsFile::load(networkSettingsFile::pathIn(program.paths().DataFolder));
    checkFile(program, options.SoundFileOn, options.SoundFile, QStringLiteral("The sound "),
              QStringLiteral("Disabling sound file."));
    checkFile(program, options.BackPicOn, options.PicFile, QStringLiteral("The image "),
              QStringLiteral("Disabling image file."));
    program.BuildNoteDefaults();
}

Restored restoreNotes(Program &program, frmSplash *splash)
{
    const auto create = [&program](clsNoteProps &&note) {
        // The program was told to end meanwhile; what is not restored stays in the file as it is.
        if (program.Exiting)
            return qint32(0);
        const Home home = note.NoteStackOn ? Home::NoteStack : Home::Desktop;
        return modCreateNote::CreateNote(program, std::move(note), home, NoteCreateMode::Load);
    };
    const auto tell = [shown = QPointer<frmSplash>(splash)](int k, int n) {
        if (shown != nullptr && !shown->isUnloaded())
            shown->setStatus(QStringLiteral("Loading previously saved data ... (%1 of %2)").arg(k).arg(n));
    };
    const LoadReport report = modFileIO::LoadDataFile(
        program.file, program.NoteTemplate, modCreateNote::MostNotes - program.NoteCounter, create, tell,
        [] { modTimers::Wait(BeforeRestore); }, program.clock().now());
    // Alarms that came due meanwhile have waited for the end of the load.
    for (NoteHolder *holder : program.forms.holders())
        holder->ResetAlarms();
    if (report.overLimit > 0)
        modCreateNote::tellLimit(program);
    tellOfLoad(program, report);
    return {report.undecodable > 0 || !report.keptAside.isEmpty(), report.broughtBack};
}

int Main(int argc, char *argv[])
{
    displayPlatform::preferX11();
    QApplication app(argc, argv);
    displayPlatform::forgetPreference();
    nameApplication();
    HeldKeys heldKeys;
    app.installEventFilter(&heldKeys);
    SystemPrompts early;
    SingleInstance instance;
    if (!instance.acquire()) {
        tellSecondInstance(early);
        return 1;
    }
    const ProgramPaths paths = ProgramPaths::of(QCoreApplication::applicationDirPath(), QDir::currentPath());
    Services services{std::make_unique<SystemClock>(),    std::make_unique<SystemPrompts>(),
                      std::make_unique<SystemChoosers>(), std::make_unique<SystemPrinting>(),
                      std::make_unique<SystemBrowser>(),  std::make_unique<SystemSound>(paths.SoundModule),
                      std::make_unique<SystemKeyring>(),  std::make_unique<SystemNearby>(),
                      Pictures(paths.ImagesFolder)};
    Program program(std::move(services), paths, QGuiApplication::primaryScreen()->logicalDotsPerInch());
    if (!checkComponents(program))
        return 1;
    QApplication::setWindowIcon(program.pictures().smallIcon());
    return run(program);
}

} // namespace modInit
