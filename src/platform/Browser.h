// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class QUrl;

/// Opens a page in the user's browser; a test only notes what was asked for.
class Browser
{
public:
    Browser() = default;
    Browser(const Browser &) = delete;
    Browser &operator=(const Browser &) = delete;
    virtual ~Browser() = default;

    /// Goes on at once. `notFound` is called, at once or later from the event loop, when no program was found that
    /// opens such pages.
    virtual void open(const QUrl &page, const std::function<void()> &notFound) = 0;
};
