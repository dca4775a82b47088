// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

class QUrl;

/// Opens a page in the user's browser; a test only notes what was asked for.
class Browser
{
public:
    Browser() = default;
    Browser(const Browser &) = delete;
    Browser &operator=(const Browser &) = delete;
    virtual ~Browser() = default;

    /// False when no program was found that opens such pages.
    virtual bool open(const QUrl &page) = 0;
};

class DesktopBrowser final : public Browser
{
public:
    bool open(const QUrl &page) override;
};
