// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "restore/CopyList.h"

#include "forms/Program.h"
#include "platform/Clock.h"

#include <QLocale>

namespace
{

constexpr int RowGap = 3;
constexpr qint64 ReadAtOnce = 8 * 1024 * 1024; ///< Bytes, while the window is waited for.

QString dayOf(QDate date, QDate today)
{
    if (date == today)
        return CopyList::tr("Today");
    if (date == today.addDays(-1))
        return CopyList::tr("Yesterday");
    return QLocale().toString(date, QStringLiteral("ddd d MMM yyyy"));
}

QString labelOf(const datedCopies::Copy &copy, QDate today, const QString &summary)
{
    return CopyList::tr("%1, %2\n%3")
        .arg(dayOf(copy.date, today), copy.time.toString(QStringLiteral("HH:mm")), summary);
}

} // namespace

CopyList::CopyList(Program &program, QWidget *parent) : QListWidget(parent), m_program(program)
{
    setObjectName(QStringLiteral("lstCopies"));
    setSpacing(RowGap);
    connect(&m_summaries, &QTimer::timeout, this, &CopyList::summariseNext);
}

void CopyList::fill()
{
    m_copies = datedCopies::list(m_program.paths());
    const QDate today = m_program.clock().now().date();
    for (const datedCopies::Copy &copy : m_copies)
        addItem(labelOf(copy, today, {}));
    setCurrentRow(newestThatDiffers());
    m_summaries.start(0);
}

std::optional<CopyReading> CopyList::read() const
{
    const int row = currentRow();
    return row < 0 ? std::nullopt : std::optional(readCopy(m_program, m_copies[static_cast<size_t>(row)]));
}

CopyReading CopyList::readRow(int row)
{
    const datedCopies::Copy &copy = m_copies[static_cast<size_t>(row)];
    CopyReading reading = readCopy(m_program, copy);
    item(row)->setText(labelOf(copy, m_program.clock().now().date(), reading.summary()));
    return reading;
}

int CopyList::newestThatDiffers()
{
    qint64 bytes = 0;
    while (m_summarised < count()) {
        bytes += m_copies[static_cast<size_t>(m_summarised)].size;
        if (bytes > ReadAtOnce)
            break;
        const int row = m_summarised++;
        if (readRow(row).differs())
            return row;
    }
    return 0;
}

void CopyList::summariseNext()
{
    if (m_summarised < count())
        readRow(m_summarised++);
    else
        m_summaries.stop();
}
