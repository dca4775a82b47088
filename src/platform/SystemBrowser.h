// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Browser.h"

#include <QObject>

/// The browser of the desktop. Where a command of the desktop finds and starts it (xdg-open), how that ends tells
/// whether there is one.
class SystemBrowser final : public QObject, public Browser
{
    Q_OBJECT

public:
    void open(const QUrl &page, const std::function<void()> &notFound) override;

private:
    void run(const QString &opener, const QUrl &page, const std::function<void()> &notFound);
};
