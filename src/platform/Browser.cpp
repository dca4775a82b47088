// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/Browser.h"

#include <QDesktopServices>
#include <QUrl>

bool DesktopBrowser::open(const QUrl &page)
{
    return QDesktopServices::openUrl(page);
}
