// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "net/SmtpReplies.h"

namespace
{

constexpr qsizetype LongestLine = 1000;
constexpr qsizetype MostLines = 100;
constexpr qsizetype MostReplies = 100;
constexpr qsizetype CodeLength = 3;

int codeOf(QByteArrayView line)
{
    bool isNumber = false;
    const int code = line.size() < CodeLength ? 0 : line.first(CodeLength).toInt(&isNumber);
    return isNumber && code >= 100 ? code : 0;
}

bool goesOn(QByteArrayView line)
{
    return codeOf(line) != 0 && line.size() > CodeLength && line.at(CodeLength) == '-';
}

} // namespace

void SmtpReplies::clear()
{
    *this = SmtpReplies();
}

void SmtpReplies::add(QByteArrayView bytes)
{
    for (const char c : bytes) {
        if (c == '\r' || c == '\n')
            endLine();
        else if (m_line.size() < LongestLine)
            m_line += c;
    }
}

std::optional<SmtpReply> SmtpReplies::take()
{
    if (m_replies.isEmpty())
        return std::nullopt;
    return m_replies.takeFirst();
}

QStringList SmtpReplies::drain()
{
    QStringList lines;
    for (const SmtpReply &reply : std::as_const(m_replies))
        lines += reply.lines;
    lines += m_reply.lines;
    clear();
    return lines;
}

void SmtpReplies::endLine()
{
    const QByteArray line = std::exchange(m_line, {});
    if (line.isEmpty() || m_replies.size() >= MostReplies)
        return;
    if (m_reply.lines.size() < MostLines)
        m_reply.lines.append(QString::fromUtf8(line));
    if (goesOn(line))
        return;
    m_reply.code = codeOf(line);
    m_replies.append(std::exchange(m_reply, {}));
}
