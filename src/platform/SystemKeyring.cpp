// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/SystemKeyring.h"

#include <QObject>
#include <QString>

#include <qt6keychain/keychain.h>

namespace
{

const QString Service = QStringLiteral("Quillets");

} // namespace

void SystemKeyring::read(const QString &account, QObject *context, std::function<void(const QString &)> found)
{
    // It deletes itself at its end.
    auto *job = new QKeychain::ReadPasswordJob(Service);
    job->setKey(account);
    job->setInsecureFallback(false);
    QObject::connect(job, &QKeychain::Job::finished, context, [job, found = std::move(found)] {
        found(job->error() == QKeychain::NoError ? job->textData() : QString());
    });
    job->start();
}

void SystemKeyring::keep(const QString &account, const QString &password)
{
    auto *job = new QKeychain::WritePasswordJob(Service);
    job->setKey(account);
    job->setInsecureFallback(false);
    job->setTextData(password);
    job->start();
}
