// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "drawing/Pictures.h"
#include "drawing/SharedPictures.h"
#include "drawing/Twips.h"
#include "forms/DeletedNote.h"
#include "forms/Forms.h"
#include "model/JournalWriter.h"
#include "model/clsKeySettings.h"
#include "model/clsNetworkSettings.h"
#include "model/clsNoteProps.h"
#include "model/clsprogramoptions.h"
#include "model/modFileIO.h"
#include "model/version.h"

#include <QHash>
#include <QPointer>
#include <QSet>
#include <QTimer>
#include <QWidget>

#include <memory>

class Browser;
class Choosers;
class Clock;
class Keyring;
class Nearby;
class Printing;
class Prompts;
class SoundPlayer;

/// What the parts of the program are handed to reach the world outside; a test hands in its own.
struct Services
{
    std::unique_ptr<Clock> clock;
    std::unique_ptr<Prompts> prompts;
    std::unique_ptr<Choosers> choosers;
    std::unique_ptr<Printing> printing;
    std::unique_ptr<Browser> browser;
    std::unique_ptr<SoundPlayer> sound;
    std::unique_ptr<Keyring> keyring;
    std::unique_ptr<Nearby> nearby;
    Pictures pictures;
};

/// The state that the whole program shares, and its services. Start-up makes one and hands it on by reference; it
/// outlives every window. It decides nothing by itself.
class Program
{
public:
    Program(Services services, const ProgramPaths &paths, double logicalDpi);
    Program(const Program &) = delete;
    Program &operator=(const Program &) = delete;
    ~Program();

    Clock &clock() { return *m_services.clock; }
    Prompts &prompts() { return *m_services.prompts; }
    Choosers &choosers() { return *m_services.choosers; }
    Printing &printing() { return *m_services.printing; }
    Browser &browser() { return *m_services.browser; }
    SoundPlayer &sound() { return *m_services.sound; }
    Keyring &keyring() { return *m_services.keyring; }
    Nearby &nearby() { return *m_services.nearby; }
    const Pictures &pictures() const { return m_services.pictures; }
    const ProgramPaths &paths() const { return file.paths; }

    /// Rebuilds what new notes start from; to be said whenever the options change.
    void BuildNoteDefaults();

    // Display lengths, fixed at start-up.
    const Twips twips;
    const float ScaleFactor;  ///< Twips per design twip.
    const float DialogOffset; ///< Twips.
    const QString VersionText = QStringLiteral("v.") + ProgramVersion.toString();

    qint32 NoteCounter = 0; ///< Notes created or restored in this run; only grows.
    int SaveProgress = 0;   ///< Notes saved in the save-all that is running.
    bool Exiting = false;

    clsprogramoptions DefaultOptions;
    clsprogramoptions ProgramOptions;
    clsNetworkSettings NetworkSettings;
    clsKeySettings KeySettings;
    clsNoteProps NewNoteDefaults;
    clsNoteProps NoteTemplate;

    SharedPictures backgrounds;
    DataFileState file;
    Forms forms;
    QTimer autoSave;
    QTimer journalDue;
    std::unique_ptr<JournalWriter> journal; ///< Null: none is kept.
    /// Said when the journal can no longer be written, with the reason, and with an empty one when it can again.
    std::function<void(const QString &)> journalTrouble;
    bool journalFails = false;
    /// A window that "show or hide all notes" has hidden, and where it was.
    struct HiddenWindow
    {
        QPointer<QWidget> window;
        QPoint place;
    };
    std::vector<HiddenWindow> hiddenWindows;
    QString lastSearch; ///< What was looked for last; with it F3 goes on.
    /// A write failed and the user has been told; told again only after one has succeeded.
    bool saveFailureTold = false;
    QString owedFailure; ///< Why a save failed; told when no batch is open.
    /// Said after the user has deleted a note; for whoever offers to take that back.
    std::function<void(const DeletedNote &)> noteDeleted;
    /// By tag: the picture file that could not be read, which is told once a run.
    QHash<qint32, QString> unreadablePictures;
    /// Tags of the notes whose next alarm makes no sound, because another's of the same burst does.
    QSet<qint32> silentOnce;

private:
    Services m_services;
};
