// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/BusProbe.h"

#include <QLocalSocket>

using namespace Qt::StringLiterals;

namespace
{

struct Place
{
    QString name;
    QLocalSocket::SocketOption kind = QLocalSocket::NoOptions;
};

/// "unix:path=...,guid=...;...": the first that is a socket of this computer.
Place busPlace()
{
    const QByteArray addresses = qEnvironmentVariableIsSet("DBUS_SYSTEM_BUS_ADDRESS")
                                     ? qgetenv("DBUS_SYSTEM_BUS_ADDRESS")
                                     : QByteArrayLiteral("unix:path=/var/run/dbus/system_bus_socket");
    for (const QByteArray &address : addresses.split(';')) {
        if (!address.startsWith("unix:"))
            continue;
        for (const QByteArray &part : address.mid(5).split(',')) {
            const QString value =
                QString::fromLocal8Bit(QByteArray::fromPercentEncoding(part.mid(part.indexOf('=') + 1)));
            if (part.startsWith("path="))
                return {value};
            if (part.startsWith("abstract="))
                return {value, QLocalSocket::AbstractNamespaceOption};
        }
    }
    return {};
}

} // namespace

BusProbe::BusProbe(QObject *parent) : QObject(parent), m_socket(new QLocalSocket(this))
{
    connect(m_socket, &QLocalSocket::connected, this, &BusProbe::greet);
    connect(m_socket, &QLocalSocket::readyRead, this, &BusProbe::hear);
}

void BusProbe::ask()
{
    const Place place = busPlace();
    if (m_socket->state() != QLocalSocket::UnconnectedState || place.name.isEmpty())
        return;
    m_socket->setSocketOptions(place.kind);
    m_socket->connectToServer(place.name);
}

/// Asks how one may log in.
void BusProbe::greet()
{
    m_socket->write("\0AUTH\r\n", 7);
}

/// Whatever it says.
void BusProbe::hear()
{
    m_socket->abort();
    emit answered();
}
