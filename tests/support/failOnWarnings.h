// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QRegularExpression>
#include <QTest>

/// To be said by the `init` of a test that shows windows: any warning of Qt's fails the test. Allowed is one that the
/// platform without a screen gives of itself whenever a window has a smallest or a fixed size.
inline void failOnWarnings()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral("^(?!This plugin does not support propagateSizeHints)")));
}
