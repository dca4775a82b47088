// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/SystemKeyring.h"

#include <QAbstractEventDispatcher>
#include <QObject>
#include <QString>

#ifdef QUILLETS_HAS_DBUS
#include <QDBusConnection>
#include <QDBusServiceWatcher>
#endif
#include <qt6keychain/keychain.h>

#include <utility>

namespace
{

const QString Service = QStringLiteral("Quillets");

/// Hands on the first answer and goes with it, or with its context.
class KeyringQuestion final : public QObject
{
public:
    KeyringQuestion(QObject *context, std::function<void(const QString &)> found)
        : QObject(context), m_found(std::move(found))
    {}

    void answer(const QString &password)
    {
        deleteLater();
        if (const auto found = std::exchange(m_found, nullptr))
            found(password);
    }

private:
    std::function<void(const QString &)> m_found;
};

#ifdef QUILLETS_HAS_DBUS

/// The library hears the secret service through GLib, whose events not every loop of Qt's handles.
bool isHeard()
{
    return QAbstractEventDispatcher::instance()->inherits("QEventDispatcherGlib");
}

/// Where the service goes while it asks the user, the library waits for ever, and lets every later job wait behind. The
/// job is not deleted: an answer of the library's would still come to it.
void endWithService(QKeychain::Job &job)
{
    auto *watcher = new QDBusServiceWatcher(QStringLiteral("org.freedesktop.secrets"), QDBusConnection::sessionBus(),
                                            QDBusServiceWatcher::WatchForUnregistration, &job);
    QObject::connect(watcher, &QDBusServiceWatcher::serviceUnregistered, &job, [&job, watcher] {
        watcher->deleteLater();
        emit job.finished(&job);
    });
}

#else

bool isHeard()
{
    return true;
}

void endWithService(QKeychain::Job &) {}

#endif

/// It deletes itself at its end.
template <class Job> Job *newJob(const QString &account)
{
    auto *job = new Job(Service);
    job->setKey(account);
    job->setInsecureFallback(false);
    endWithService(*job);
    return job;
}

} // namespace

void SystemKeyring::read(const QString &account, QObject *context, std::function<void(const QString &)> found)
{
    auto *question = new KeyringQuestion(context, std::move(found));
    if (!isHeard()) {
        QMetaObject::invokeMethod(
            question, [question] { question->answer({}); }, Qt::QueuedConnection);
        return;
    }
    auto *job = newJob<QKeychain::ReadPasswordJob>(account);
    QObject::connect(job, &QKeychain::Job::finished, question, [job, question] {
        question->answer(job->error() == QKeychain::NoError ? job->textData() : QString());
    });
    job->start();
}

void SystemKeyring::keep(const QString &account, const QString &password)
{
    if (!isHeard())
        return;
    auto *job = newJob<QKeychain::WritePasswordJob>(account);
    job->setTextData(password);
    job->start();
}
