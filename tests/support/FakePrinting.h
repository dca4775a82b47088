// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Printing.h"

#include <QBuffer>
#include <QPdfWriter>

/// Prints into memory.
class FakePrinting final : public Printing
{
public:
    bool hasPrinter = true;
    QString lastJob;
    bool gaveUp = false;

    void giveUp(QPagedPaintDevice &) override { gaveUp = true; }
    std::unique_ptr<QPagedPaintDevice> paper(const QString &jobName) override
    {
        lastJob = jobName;
        if (!hasPrinter)
            return nullptr;
        m_sheets.close();
        m_sheets.setData({});
        m_sheets.open(QIODevice::WriteOnly);
        auto writer = std::make_unique<QPdfWriter>(&m_sheets);
        writer->setPageSize(QPageSize(QPageSize::A4));
        writer->setPageMargins({});
        return writer;
    }
    /// Of the last job.
    qsizetype pageCount() const { return m_sheets.data().count("/Type /Page\n"); }
    bool hasPictures() const { return m_sheets.data().contains("/Subtype /Image"); }

private:
    QBuffer m_sheets;
};
