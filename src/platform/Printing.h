// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>
#include <memory>

class QPagedPaintDevice;

/// Where notes are printed; a test gives paper of its own.
class Printing
{
public:
    Printing() = default;
    Printing(const Printing &) = delete;
    Printing &operator=(const Printing &) = delete;
    virtual ~Printing() = default;

    /// Paper of the default printer, without a dialog and with the whole sheet to draw on; null when there is no
    /// printer. `jobName` is what a queue shows.
    virtual std::unique_ptr<QPagedPaintDevice> paper(const QString &jobName) = 0;
    /// Gives up what was drawn on that paper, as far as the system takes pages back; before the drawing is ended.
    virtual void giveUp(QPagedPaintDevice &paper) = 0;
};
