// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/PortalKeys.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>

#include <algorithm>

using namespace Qt::StringLiterals;

/// As the portal has it: a name and what is told of it.
struct PortalShortcut
{
    QString id;
    QVariantMap told;
};
Q_DECLARE_METATYPE(PortalShortcut)

QDBusArgument &operator<<(QDBusArgument &argument, const PortalShortcut &shortcut);
QDBusArgument &operator<<(QDBusArgument &argument, const PortalShortcut &shortcut)
{
    argument.beginStructure();
    argument << shortcut.id << shortcut.told;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, PortalShortcut &shortcut);
const QDBusArgument &operator>>(const QDBusArgument &argument, PortalShortcut &shortcut)
{
    argument.beginStructure();
    argument >> shortcut.id >> shortcut.told;
    argument.endStructure();
    return argument;
}

namespace
{

const QString Service = u"org.freedesktop.portal.Desktop"_s;
const QString Path = u"/org/freedesktop/portal/desktop"_s;
const QString Shortcuts = u"org.freedesktop.portal.GlobalShortcuts"_s;
const QString Request = u"org.freedesktop.portal.Request"_s;

/// In the words that the portal takes; nothing for a key whose name there is not sure, which leaves it to the user.
QString trigger(const QKeySequence &keys)
{
    const QKeyCombination chord = keys[0];
    QString text;
    if (chord.keyboardModifiers() & Qt::ControlModifier)
        text += u"CTRL+"_s;
    if (chord.keyboardModifiers() & Qt::AltModifier)
        text += u"ALT+"_s;
    if (chord.keyboardModifiers() & Qt::ShiftModifier)
        text += u"SHIFT+"_s;
    if (chord.keyboardModifiers() & Qt::MetaModifier)
        text += u"LOGO+"_s;
    const Qt::Key key = chord.key();
    if (key >= Qt::Key_F1 && key <= Qt::Key_F35)
        return text + u"F%1"_s.arg(key - Qt::Key_F1 + 1);
    const bool isPlain = (key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9);
    return isPlain ? text + QChar(key).toLower() : QString();
}

} // namespace

PortalKeys::~PortalKeys()
{
    closeSession();
}

bool PortalKeys::isThere()
{
    const QDBusConnectionInterface *bus = QDBusConnection::sessionBus().interface();
    return bus != nullptr && bus->isServiceRegistered(Service).value();
}

void PortalKeys::want(const QList<Wanted> &wanted)
{
    forgetRequest();
    closeSession();
    m_wanted = wanted;
    m_wanted.removeIf([](const Wanted &one) { return one.keys.isEmpty(); });
    if (m_wanted.isEmpty())
        return;
    QDBusConnection::sessionBus().connect(Service, Path, Shortcuts, u"Activated"_s, this,
                                          SLOT(activated(QDBusObjectPath, QString, qulonglong, QVariantMap)));
    request(u"CreateSession"_s, {}, {{u"session_handle_token"_s, u"quillets"_s}},
            [this](const QVariantMap &results) { bind(results.value(u"session_handle"_s).toString()); });
}

void PortalKeys::bind(const QString &session)
{
    if (session.isEmpty())
        return refuse();
    m_session = session;
    qDBusRegisterMetaType<PortalShortcut>();
    qDBusRegisterMetaType<QList<PortalShortcut>>();
    QList<PortalShortcut> shortcuts;
    for (const Wanted &one : m_wanted) {
        QVariantMap told{{u"description"_s, one.description}};
        if (const QString preferred = trigger(one.keys); !preferred.isEmpty())
            told.insert(u"preferred_trigger"_s, preferred);
        shortcuts.append({one.id, told});
    }
    request(u"BindShortcuts"_s,
            {QVariant::fromValue(QDBusObjectPath(session)), QVariant::fromValue(shortcuts), QString()}, {},
            [](const QVariantMap &) {});
}

/// The answer comes as a signal of an object that the portal makes; its name is known before the call.
void PortalKeys::request(const QString &method, QVariantList arguments, QVariantMap options, Next next)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    const QString token = u"quillets%1"_s.arg(++m_count);
    const QString sender = bus.baseService().mid(1).replace(u'.', u'_');
    m_request = Path + u"/request/"_s + sender + u'/' + token;
    m_next = std::move(next);
    bus.connect(Service, m_request, Request, u"Response"_s, this, SLOT(answered(uint, QVariantMap)));
    options.insert(u"handle_token"_s, token);
    arguments.append(options);
    auto message = QDBusMessage::createMethodCall(Service, Path, Shortcuts, method);
    message.setArguments(arguments);
    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, path = m_request] {
        watcher->deleteLater();
        if (watcher->isError() && path == m_request)
            refuse();
    });
}

void PortalKeys::answered(uint code, const QVariantMap &results)
{
    const Next next = std::exchange(m_next, {});
    forgetRequest();
    if (code != 0)
        refuse();
    else if (next)
        next(results);
}

void PortalKeys::activated(const QDBusObjectPath &session, const QString &id, qulonglong, const QVariantMap &)
{
    if (session.path() == m_session)
        emit pressed(id);
}

void PortalKeys::forgetRequest()
{
    if (!m_request.isEmpty())
        QDBusConnection::sessionBus().disconnect(Service, m_request, Request, u"Response"_s, this,
                                                 SLOT(answered(uint, QVariantMap)));
    m_request.clear();
    m_next = {};
}

void PortalKeys::closeSession()
{
    if (!m_session.isEmpty())
        QDBusConnection::sessionBus().send(
            QDBusMessage::createMethodCall(Service, m_session, u"org.freedesktop.portal.Session"_s, u"Close"_s));
    m_session.clear();
}

void PortalKeys::refuse()
{
    forgetRequest();
    closeSession();
    emit refused();
}
