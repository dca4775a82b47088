// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/ExchangeDialog.h"
#include "model/clsNoteProps.h"
#include "net/MailSender.h"
#include "net/modEmail.h"
#include "platform/WindowDrag.h"

#include <optional>

class MailPassword;
class QLineEdit;
class QPlainTextEdit;
class SizeGrip;

/// Mails a note through the user's server, or hands it to the desktop's mail program. It works on its own copy of the
/// note.
class frmEmail final : public ExchangeDialog
{
    Q_OBJECT

public:
    frmEmail(Program &program, QWidget *owner, ExchangeTimes times = MailSender::UsualTimes);

    /// Tells what the options lack for mailing, and offers the desktop's mail program instead; true when something is
    /// missing.
    static bool isMissingOptions(Program &program, const clsNoteProps &record, QWidget *owner);

    void Initialize(const clsNoteProps &record);

protected:
    void send() override;
    void stop() override;
    bool isSending() const override { return m_isPreparing || m_sender.isRunning(); }
    void bookChanged() override { m_book.reset(); }
    void resizeEvent(QResizeEvent *event) override;

private:
    void makeFields();
    void makeGrip();
    const QList<AddressBookEntry> &book();
    QString body() const;
    void openInMailProgram();
    void prepare(const QList<MailRecipient> &recipients);
    void start(const QList<MailRecipient> &recipients, const QString &password);
    void finish(const ExchangeResult &result);

    QLineEdit *m_subject = nullptr;   // txtSubject
    QPlainTextEdit *m_body = nullptr; // txtBody
    WindowDrag m_drag;
    SizeGrip *m_grip = nullptr; // imgResize
    QString m_unshown;          ///< A text that no text box can show in time; empty where the box has the text.
    std::optional<QList<AddressBookEntry>> m_book; ///< As it was read; none until it is needed.
    MailPassword *m_password;
    MailSender m_sender;
    bool m_isPreparing = false; ///< The password is being asked for.
};
