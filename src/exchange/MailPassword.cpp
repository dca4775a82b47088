// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "exchange/MailPassword.h"

#include "exchange/frmMailPassword.h"
#include "forms/Program.h"
#include "forms/showModally.h"
#include "platform/Keyring.h"

MailPassword::MailPassword(Program &program, QWidget *window) : QObject(window), m_program(program), m_window(window) {}

void MailPassword::ask(const QString &account, Got got, std::function<void()> gaveUp)
{
    const int question = ++m_question;
    if (std::exchange(m_account, account) != account) {
        m_password.clear();
        m_isRefused = false;
    }
    const auto found = [this, question, got = std::move(got), gaveUp = std::move(gaveUp)](const QString &password) {
        if (question != m_question)
            return;
        if (!password.isEmpty())
            got(password);
        else
            askUser(question, got, gaveUp);
    };
    if (m_password.isEmpty() && !m_isRefused)
        return m_program.keyring().read(account, this, found);
    QMetaObject::invokeMethod(
        this, [this, found] { found(m_password); }, Qt::QueuedConnection);
}

void MailPassword::askUser(int question, const Got &got, const std::function<void()> &gaveUp)
{
    const QPointer<MailPassword> self = this;
    const QPointer<frmMailPassword> dialog = new frmMailPassword(m_program, m_account, m_window);
    const bool isThere = showModally(dialog);
    if (self == nullptr || !isThere)
        return;
    const bool isGiven = dialog->isAccepted() && !dialog->password().isEmpty();
    m_password = isGiven ? dialog->password() : QString();
    m_isToBeKept = isGiven && dialog->isToBeKept();
    dialog->unload();
    m_window->activateWindow();
    if (question == m_question)
        isGiven ? got(m_password) : gaveUp();
}

void MailPassword::accepted()
{
    m_isRefused = false;
    if (std::exchange(m_isToBeKept, false))
        m_program.keyring().keep(m_account, m_password);
}

void MailPassword::refused()
{
    m_password.clear();
    m_isToBeKept = false;
    m_isRefused = true;
}
