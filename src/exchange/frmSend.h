// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/ExchangeDialog.h"
#include "model/clsNoteProps.h"
#include "net/SendRun.h"
#include "net/modSend.h"

#include <optional>

/// Sends a note to other computers. It works on its own copy of the note.
class frmSend final : public ExchangeDialog
{
    Q_OBJECT

public:
    frmSend(Program &program, QWidget *owner, ExchangeTimes times = NoteSender::UsualTimes);

    ~frmSend() override;

    void Initialize(const clsNoteProps &record);

protected:
    void send() override;
    void stop() override { m_run.stop(); }
    bool isSending() const override { return m_run.isRunning(); }
    void bookChanged() override { m_book.reset(); }

private:
    void listNearby();
    const QList<SendBookEntry> &book();
    QByteArray packet() const;
    void finishTarget(const ExchangeResult &result);
    void finish();

    clsNoteProps m_note;
    std::optional<QList<SendBookEntry>> m_book; ///< As it was read; none until it is needed.
    SendRun m_run;
    qsizetype m_wanted = 0; ///< Targets of the run.
    qsizetype m_reached = 0;
};
