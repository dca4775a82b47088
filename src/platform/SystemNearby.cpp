// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/SystemNearby.h"

#ifdef QUILLETS_HAS_DBUS
#include "platform/BusProbe.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

using namespace Qt::StringLiterals;

namespace
{

const QString Service = u"org.freedesktop.Avahi"_s;
const QString ServiceType = u"_quillets._tcp"_s;
constexpr int AnyInterface = -1;
constexpr int AnyProtocol = -1;
constexpr uint OurOwn = 16; ///< Of the flags of what is found.
constexpr int HostArgument = 5;
constexpr int PortArgument = 8;

QDBusMessage call(const QString &path, const QString &interface, const QString &method, const QVariantList &arguments)
{
    QDBusMessage message = QDBusMessage::createMethodCall(Service, path, Service + u'.' + interface, method);
    message.setArguments(arguments);
    // Nobody is started who does not run.
    message.setAutoStartService(false);
    return message;
}

} // namespace

struct SystemNearby::Bus
{
    QDBusConnection connection = QDBusConnection::systemBus();
    QString browser; ///< Path of what looks for others; empty while nothing does.
    QString group;   ///< Path of what announces this computer; empty while nothing does.

    /// The reply comes from the event loop, unless the context has gone by then; errors are passed over.
    template <class Then> void ask(const QDBusMessage &message, QObject *context, Then then)
    {
        auto *watcher = new QDBusPendingCallWatcher(connection.asyncCall(message), context);
        QObject::connect(watcher, &QDBusPendingCallWatcher::finished, context, [watcher, then = std::move(then)] {
            watcher->deleteLater();
            if (!watcher->isError())
                then(watcher->reply().arguments());
        });
    }
    void release(QString &path, const QString &interface)
    {
        if (!path.isEmpty())
            connection.send(call(path, interface, u"Free"_s, {}));
        path.clear();
    }
};

SystemNearby::SystemNearby(QObject *parent) : Nearby(parent), m_probe(new BusProbe(this))
{
    connect(m_probe, &BusProbe::answered, this, &SystemNearby::busAnswered);
}

SystemNearby::~SystemNearby()
{
    if (m_bus == nullptr)
        return;
    m_bus->release(m_bus->browser, u"ServiceBrowser"_s);
    m_bus->release(m_bus->group, u"EntryGroup"_s);
}

void SystemNearby::look()
{
    if (std::exchange(m_isLooking, true))
        return;
    m_waitsToLook = true;
    m_probe->ask();
}

/// A bus that answered just now does not keep anybody waiting.
void SystemNearby::busAnswered()
{
    const bool looks = std::exchange(m_waitsToLook, false);
    const Announced announced = std::exchange(m_waitsToAnnounce, {});
    if (m_bus == nullptr && (looks || announced.port != 0))
        m_bus = std::make_unique<Bus>();
    if (looks)
        beginLooking();
    if (announced.port != 0)
        beginAnnouncing(announced);
}

void SystemNearby::beginLooking()
{
    // Before the browser is there: it tells what it knows at once.
    m_bus->connection.connect(Service, QString(), Service + u".ServiceBrowser"_s, u"ItemNew"_s, this,
                              SLOT(itemNew(int, int, QString, QString, QString, uint)));
    const auto begun = [this](const QVariantList &reply) {
        m_bus->release(m_bus->browser, u"ServiceBrowser"_s);
        m_bus->browser = reply.value(0).value<QDBusObjectPath>().path();
        if (!m_isLooking)
            m_bus->release(m_bus->browser, u"ServiceBrowser"_s);
    };
    m_bus->ask(
        call(u"/"_s, u"Server"_s, u"ServiceBrowserNew"_s, {AnyInterface, AnyProtocol, ServiceType, QString(), uint(0)}),
        this, begun);
}

void SystemNearby::stopLooking()
{
    if (!std::exchange(m_isLooking, false) || std::exchange(m_waitsToLook, false))
        return;
    m_bus->connection.disconnect(Service, QString(), Service + u".ServiceBrowser"_s, u"ItemNew"_s, this,
                                 SLOT(itemNew(int, int, QString, QString, QString, uint)));
    m_bus->release(m_bus->browser, u"ServiceBrowser"_s);
}

void SystemNearby::itemNew(int interface, int protocol, const QString &name, const QString &type, const QString &domain,
                           uint flags)
{
    if (!m_isLooking || type != ServiceType || (flags & OurOwn) != 0)
        return;
    m_bus->ask(
        call(u"/"_s, u"Server"_s, u"ResolveService"_s, {interface, protocol, name, type, domain, AnyProtocol, uint(0)}),
        this, [this, name](const QVariantList &reply) {
            resolved(name, reply.value(HostArgument).toString(), reply.value(PortArgument).toUInt());
        });
}

void SystemNearby::resolved(const QString &name, const QString &host, uint port)
{
    if (m_isLooking && !host.isEmpty() && port > 0 && port <= std::numeric_limits<quint16>::max())
        emit found({name, host, static_cast<quint16>(port)});
}

void SystemNearby::announce(const QString &name, quint16 port)
{
    ++m_announcement;
    if (m_bus != nullptr)
        m_bus->release(m_bus->group, u"EntryGroup"_s);
    m_waitsToAnnounce = {name, port};
    if (port != 0)
        m_probe->ask();
}

void SystemNearby::beginAnnouncing(const Announced &announced)
{
    qDBusRegisterMetaType<QList<QByteArray>>();
    const auto add = [this, announcement = m_announcement, announced](const QVariantList &reply) {
        QString group = reply.value(0).value<QDBusObjectPath>().path();
        if (announcement != m_announcement)
            return m_bus->release(group, u"EntryGroup"_s);
        m_bus->group = group;
        m_bus->connection.send(
            call(group, u"EntryGroup"_s, u"AddService"_s,
                 {AnyInterface, AnyProtocol, uint(0), announced.name, ServiceType, QString(), QString(),
                  QVariant::fromValue(announced.port), QVariant::fromValue(QList<QByteArray>())}));
        m_bus->connection.send(call(group, u"EntryGroup"_s, u"Commit"_s, {}));
    };
    m_bus->ask(call(u"/"_s, u"Server"_s, u"EntryGroupNew"_s, {}), this, add);
}

#else

class BusProbe
{
};

struct SystemNearby::Bus
{
};

SystemNearby::SystemNearby(QObject *parent) : Nearby(parent) {}
SystemNearby::~SystemNearby() = default;
void SystemNearby::look() {}
void SystemNearby::busAnswered() {}
void SystemNearby::beginLooking() {}
void SystemNearby::beginAnnouncing(const Announced &) {}
void SystemNearby::stopLooking() {}
void SystemNearby::itemNew(int, int, const QString &, const QString &, const QString &, uint) {}
void SystemNearby::resolved(const QString &, const QString &, uint) {}
void SystemNearby::announce(const QString &, quint16) {}

#endif
