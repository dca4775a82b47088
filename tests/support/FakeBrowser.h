// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Browser.h"

#include <QUrl>

/// Notes the page that was asked for last.
class FakeBrowser final : public Browser
{
public:
    bool isThere = true;
    QUrl last;

    void open(const QUrl &page, const std::function<void()> &notFound) override
    {
        last = page;
        if (!isThere)
            notFound();
    }
};
