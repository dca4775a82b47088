// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <optional>

class Program;
class QWidget;

/// The password of one account of a mail server: from the keyring, else from the user, who is asked where there is
/// none and again after the server has refused it. It is nowhere but in the keyring and, as long as this lives, in
/// memory.
class MailPassword final : public QObject
{
    Q_OBJECT

public:
    MailPassword(Program &program, QWidget *window);

    using Got = std::function<void(const QString &)>;

    /// `got` is called once, from the event loop, with the password; `gaveUp` instead when the user closed the
    /// question. Neither after `forget`.
    void ask(const QString &account, Got got, std::function<void()> gaveUp);
    /// Whoever waits for it waits no longer.
    void forget() { ++m_question; }
    /// The server took it: it is kept if the user wants that.
    void accepted();
    /// The talk failed, perhaps because of it.
    void refused();

private:
    void askUser(int question, const Got &got, const std::function<void()> &gaveUp);

    Program &m_program;
    QWidget *m_window;
    int m_question = 0; ///< Only the answer to the last one counts.
    QString m_account;
    QString m_password;
    bool m_isToBeKept = false;
    bool m_isRefused = false; ///< What the keyring has may be wrong.
};
