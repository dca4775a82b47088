// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/SystemPrinting.h"

#include <QPrinter>
#include <QPrinterInfo>

std::unique_ptr<QPagedPaintDevice> SystemPrinting::paper(const QString &jobName)
{
    const QPrinterInfo info = QPrinterInfo::defaultPrinter();
    // Without a printer a QPrinter would turn into one that makes files.
    if (info.isNull())
        return nullptr;
    auto printer = std::make_unique<QPrinter>(info, QPrinter::HighResolution);
    printer->setDocName(jobName);
    printer->setFullPage(true);
    return printer;
}

void SystemPrinting::giveUp(QPagedPaintDevice &paper)
{
    // Where this is false, as with CUPS of this Qt, the pages that are ready come out.
    static_cast<void>(static_cast<QPrinter &>(paper).abort());
}
