// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "shell/ReceivedNotes.h"

#include "exchange/noticeBox.h"
#include "forms/Form.h"
#include "forms/NoteHolder.h"
#include "forms/Program.h"
#include "forms/modFormsSaving.h"
#include "forms/whenAnswered.h"
#include "model/logs.h"
#include "model/modStreams.h"
#include "model/networkSettingsFile.h"
#include "net/modSend.h"
#include "net/visibleText.h"
#include "notes/modCreateNote.h"
#include "platform/Clock.h"
#include "platform/Nearby.h"
#include "platform/windowStacking.h"

#include <QCoreApplication>
#include <QSysInfo>
#include <QWidget>

#include <algorithm>

namespace
{

constexpr qint64 BurstSeconds = 5;

/// The hosts behind the aliases of the send book.
QStringList bookHosts(const Program &program)
{
    QStringList hosts;
    for (const SendBookEntry &entry : modSend::entriesOf(bookFile::load(program.ProgramOptions.SendBook)))
        hosts.append(entry.host);
    return hosts;
}

} // namespace

ReceivedNotes::ReceivedNotes(Program &program, QWidget *panel)
    : QObject(panel), m_program(program), m_panel(panel), m_server(m_policy)
{
    m_server.setObjectName(QStringLiteral("tcpSendServer"));
    m_policy.setBookHosts([&program] { return bookHosts(program); });
    m_server.setRoom([&program] { return program.NoteCounter < modCreateNote::MostNotes; });
    connect(&m_server, &NoteReceiver::received, this, &ReceivedNotes::take);
    connect(&m_server, &NoteReceiver::failed, this, &ReceivedNotes::tell);
    connect(&m_server, &NoteReceiver::noRoom, this,
            [this] { whenAnswered(m_program, this, [this] { modCreateNote::tellLimit(m_program, m_panel); }); });
    settingsChanged();
}

void ReceivedNotes::start()
{
    const auto listening = m_server.listen(m_program.ProgramOptions.ListeningPort);
    if (!listening)
        return tell(listening.error());
    m_port = listening.value();
    announce();
}

/// What is on its way through the event loop belongs to somebody who believes that it has arrived.
void ReceivedNotes::stop()
{
    QCoreApplication::sendPostedEvents(&m_server, QEvent::MetaCall);
    m_server.close();
    m_isStopped = true;
    announce();
}

void ReceivedNotes::settingsChanged()
{
    m_policy.setSettings(m_program.NetworkSettings);
    announce();
}

/// Others nearby learn of a computer that can receive, if its user wants that.
void ReceivedNotes::announce()
{
    const QString &user = m_program.ProgramOptions.NameName;
    const QString computer = QSysInfo::machineHostName();
    const quint16 port = m_program.NetworkSettings.AnnounceOn && !m_isStopped ? m_port : quint16(0);
    const QString name = user.isEmpty() ? computer : tr("%1 on %2").arg(user, computer);
    const auto announced = std::pair(name, port);
    if (std::exchange(m_announced, announced) != announced)
        m_program.nearby().announce(name, port);
}

void ReceivedNotes::tell(const Notice &notice)
{
    whenAnswered(m_program, this, [this, notice] { noticeBox::tell(m_program, notice, m_panel); });
}

void ReceivedNotes::take(const Packet &packet, const QHostAddress &peer)
{
    const QString identity = visibleText::line(packet.identity);
    const QString name = visibleText::line(packet.senderName);
    auto decoded = modStreams::DecodeReceivedRecord(packet.record, 0, identity, name, m_program.clock().now(),
                                                    m_program.NoteTemplate);
    if (!decoded) {
        qCInfo(logs::net) << "packet of" << peer << "dropped:" << toText(decoded.error());
        return;
    }
    clsNoteProps record = std::move(decoded).value().note;
    for (QString *const text : {&record.TitleBarTitle, &record.DateCreated})
        *text = visibleText::line(*text);
    if (m_program.Exiting)
        keep(std::move(record));
    else
        create(std::move(record), name.isEmpty() ? identity : name, peer);
}

/// Without a window, while the program ends.
void ReceivedNotes::keep(clsNoteProps record)
{
    noteMoves::stamp(m_program, record, Home::Desktop, NoteCreateMode::Load);
    modForms::saveNote(m_program, record);
}

void ReceivedNotes::create(clsNoteProps record, const QString &sender, const QHostAddress &peer)
{
    const QPointer<ReceivedNotes> self = this;
    const qint32 tag = modCreateNote::CreateNote(m_program, std::move(record), Home::Desktop, NoteCreateMode::Load);
    if (self == nullptr)
        return;
    Form *form = m_program.forms.note(tag);
    if (form == nullptr)
        return;
    qCInfo(logs::net) << "note received from" << peer;
    ringOnce(tag);
    m_notes.push_back({tag, sender, peer});
    form->window()->installEventFilter(this);
    emit changed();
    // Last: a failure is told in a box.
    noteMoves::settle(m_program, tag);
}

/// Notes that come together make one sound; so do those that wait to be shown.
void ReceivedNotes::ringOnce(qint32 tag)
{
    const QDateTime now = m_program.clock().now();
    const bool isWaiting = std::any_of(m_notes.begin(), m_notes.end(), [this](const ReceivedNote &note) {
        const clsNoteProps *record = m_program.forms.recordOf(note.tag);
        return record != nullptr && record->AlarmOn && !m_program.silentOnce.contains(note.tag);
    });
    const bool isBurst = isWaiting || (m_rang.isValid() && qAbs(m_rang.secsTo(now)) < BurstSeconds);
    if (isBurst)
        m_program.silentOnce.insert(tag);
    else
        m_rang = now;
}

qsizetype ReceivedNotes::unseen() const
{
    return std::count_if(m_notes.begin(), m_notes.end(), [](const ReceivedNote &note) { return !note.isLookedAt; });
}

void ReceivedNotes::show(qint32 tag)
{
    lookedAt(tag);
    if (Form *form = m_program.forms.note(tag))
        windowStacking::SetForegroundWindow(*form->window());
    else if (StackHolder *stack = m_program.forms.stack(); stack != nullptr && m_program.forms.recordOf(tag) != nullptr)
        stack->showStack();
}

void ReceivedNotes::lookedAt(qint32 tag)
{
    const auto note =
        std::find_if(m_notes.begin(), m_notes.end(), [tag](const ReceivedNote &n) { return n.tag == tag; });
    if (note == m_notes.end() || std::exchange(note->isLookedAt, true))
        return;
    emit changed();
}

/// A note is looked at when its window gets the focus, and when it goes from the desktop: somebody has done that.
bool ReceivedNotes::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::WindowActivate) {
        for (const ReceivedNote &note : std::vector(m_notes))
            if (Form *form = m_program.forms.note(note.tag); form != nullptr && form->window() == watched)
                lookedAt(note.tag);
    } else if (event->type() == QEvent::DeferredDelete) {
        QMetaObject::invokeMethod(this, &ReceivedNotes::forgetGone, Qt::QueuedConnection);
    }
    return false;
}

void ReceivedNotes::forgetGone()
{
    for (ReceivedNote &note : m_notes)
        note.isLookedAt = note.isLookedAt || m_program.forms.note(note.tag) == nullptr;
    std::erase_if(m_notes, [this](const ReceivedNote &note) { return m_program.forms.recordOf(note.tag) == nullptr; });
    emit changed();
}

void ReceivedNotes::block(const QHostAddress &address)
{
    QStringList &blocked = m_program.NetworkSettings.BlockedSenders;
    if (!blocked.contains(address.toString()))
        blocked.append(address.toString());
    settingsChanged();
    const auto saved =
        networkSettingsFile::save(networkSettingsFile::pathIn(m_program.paths().DataFolder), m_program.NetworkSettings);
    if (!saved)
        tell({tr("The options could not be saved.\n%1").arg(saved.error()), tr("Error")});
}
