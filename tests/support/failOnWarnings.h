// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QRegularExpression>
#include <QTest>

/// To be said by the `init` of a test that shows windows: any warning of Qt's fails the test. Allowed is what the
/// platform without a screen says of itself when a window is raised, a menu opens or a window has a smallest size.
inline void failOnWarnings()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral("^(?!This plugin does not support )")));
}
