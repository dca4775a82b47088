// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "net/SenderPolicy.h"

#include "net/addresses.h"

#include <QHostInfo>
#include <QPointer>

#include <memory>

namespace
{

/// A stranger makes this computer look up no more names than these.
constexpr qsizetype MostNames = 64;

/// One question whose names are being looked up.
struct Inquiry
{
    QHostAddress sender;
    SenderPolicy::Answer answer;
    qsizetype open = 0; ///< Names without a result.
    bool isAnswered = false;

    void tell(bool isAdmitted)
    {
        if (!std::exchange(isAnswered, true))
            answer(isAdmitted);
    }
    void hear(const QHostInfo &info)
    {
        --open;
        for (const QHostAddress &address : info.addresses())
            if (plainAddress(address) == sender)
                return tell(true);
        if (open == 0)
            tell(false);
    }
};

} // namespace

void SenderPolicy::setSettings(const clsNetworkSettings &settings)
{
    m_settings = settings;
    m_blocked.clear();
    for (const QString &text : settings.BlockedSenders)
        if (const QHostAddress address(text); !address.isNull())
            m_blocked.insert(plainAddress(address));
}

void SenderPolicy::ask(const QHostAddress &sender, QObject *context, const Answer &answer)
{
    const QHostAddress plain = plainAddress(sender);
    if (isRefused(plain))
        answer(false);
    else if (m_settings.AcceptFrom == clsNetworkSettings::Senders::Everybody)
        answer(true);
    else
        askBook(plain, context, answer);
}

bool SenderPolicy::isRefused(const QHostAddress &sender) const
{
    return m_settings.AcceptFrom == clsNetworkSettings::Senders::Nobody || m_blocked.contains(sender) ||
           !(m_settings.FarSendersOn || isNearby(sender));
}

void SenderPolicy::askBook(const QHostAddress &sender, QObject *context, const Answer &answer)
{
    QSet<QString> names;
    for (const QString &host : m_bookHosts()) {
        const QHostAddress address(host);
        if (plainAddress(address) == sender)
            return answer(true);
        if (address.isNull() && names.size() < MostNames)
            names.insert(host.toLower());
    }
    if (names.isEmpty())
        return answer(false);
    const auto inquiry = std::make_shared<Inquiry>(Inquiry{sender, answer, names.size()});
    for (const QString &name : std::as_const(names))
        QHostInfo::lookupHost(name, context, [inquiry](const QHostInfo &info) { inquiry->hear(info); });
}
