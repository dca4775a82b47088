// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/displayPlatform.h"

#include <QGuiApplication>

namespace displayPlatform
{
namespace
{

constexpr char PlatformVariable[] = "QT_QPA_PLATFORM";
bool preferenceSet = false;

} // namespace

void preferX11()
{
    if (qEnvironmentVariableIsSet(PlatformVariable) || qEnvironmentVariableIsEmpty("DISPLAY") ||
        qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        return;
    qputenv(PlatformVariable, "xcb;wayland");
    preferenceSet = true;
}

void forgetPreference()
{
    if (preferenceSet)
        qunsetenv(PlatformVariable);
    preferenceSet = false;
}

bool hidesPlaces()
{
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

bool isX11InWayland()
{
    return QGuiApplication::platformName() == QLatin1String("xcb") && !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

} // namespace displayPlatform
