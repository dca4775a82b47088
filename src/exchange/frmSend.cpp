// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "exchange/frmSend.h"

#include "exchange/TargetBox.h"
#include "forms/Program.h"
#include "model/modStreams.h"
#include "net/Packet.h"
#include "net/machineIdentity.h"
#include "platform/Nearby.h"

#include <QLayout>
#include <QPointer>

frmSend::frmSend(Program &program, QWidget *owner, ExchangeTimes times)
    : ExchangeDialog(
          program, {u"frmSend", tr("Send this note"), tr("* View send book *"), frmBook::Book::Send, RecentList::Send},
          owner),
      m_run(times)
{
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    follow(m_run.sender());
    listNearby();
    connect(&m_run, &SendRun::targetBegun, this, [this] { showProgress(true); });
    connect(&m_run, &SendRun::targetFinished, this,
            [this](const SendTarget &, const ExchangeResult &result) { finishTarget(result); });
    connect(&m_run, &SendRun::finished, this, &frmSend::finish);
}

/// Others of the network are looked for while the list is open.
void frmSend::listNearby()
{
    Nearby &nearby = program().nearby();
    connect(&targetBox(), &TargetBox::listOpened, &nearby, &Nearby::look);
    connect(&targetBox(), &TargetBox::listClosed, &nearby, &Nearby::stopLooking);
    connect(&nearby, &Nearby::found, this, [this](const NearbyComputer &computer) {
        if (const QString target = modSend::nearbyTarget(computer.name, computer.host, computer.port);
            !target.isEmpty())
            targetBox().addNearby(target);
    });
}

frmSend::~frmSend()
{
    program().nearby().stopLooking();
}

void frmSend::Initialize(const clsNoteProps &record)
{
    m_note = record;
    focusTargets();
}

const QList<SendBookEntry> &frmSend::book()
{
    if (!m_book)
        m_book = modSend::entriesOf(bookFile::load(program().ProgramOptions.SendBook));
    return *m_book;
}

QByteArray frmSend::packet() const
{
    QByteArray record;
    modStreams::EncodeSendRecord(m_note, record);
    return encodePacket({program().VersionText, machineIdentity(), program().ProgramOptions.NameName, record});
}

void frmSend::send()
{
    if (isSending())
        return;
    if (targets().trimmed().isEmpty())
        return tell(modSend::noTarget());
    const auto resolved = modSend::resolveTargets(targets(), book());
    if (!resolved)
        return tell(resolved.error());
    keepRecent();
    showResult({});
    m_wanted = resolved.value().size();
    m_reached = 0;
    m_run.start(packet(), resolved.value());
}

void frmSend::finishTarget(const ExchangeResult &result)
{
    showProgress(false);
    if (result.end == ExchangeResult::End::Done)
        ++m_reached;
    if (result.end != ExchangeResult::End::Failed)
        return;
    const QPointer<frmSend> self = this;
    tell(result.notice);
    // The program may have ended while the box was open.
    if (self && isUnloaded())
        m_run.stop();
}

void frmSend::finish()
{
    showResult(m_wanted > 1 ? tr("Sent to %1 of %2.").arg(m_reached).arg(m_wanted) : lastStep());
}
