// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Printing.h"

/// The default printer of the system. Costs nothing until something is printed.
class SystemPrinting final : public Printing
{
public:
    std::unique_ptr<QPagedPaintDevice> paper(const QString &jobName) override;
    void giveUp(QPagedPaintDevice &paper) override;
};
