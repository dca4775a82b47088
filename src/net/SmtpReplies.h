// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QStringList>

#include <optional>

/// One reply of a mail server.
struct SmtpReply
{
    int code = 0;      ///< 0 where its last line begins with no code.
    QStringList lines; ///< Each with its code, cut where it is too long to be read.
};

/// Puts the replies of a mail server together from pieces of any size. A reply counts when its last line is whole; it
/// may have many lines. What a server says without end is cut.
class SmtpReplies
{
public:
    void clear();
    void add(QByteArrayView bytes);
    /// The next whole reply.
    std::optional<SmtpReply> take();
    /// The lines of all that was not taken; nothing is left.
    QStringList drain();
    /// Nothing has arrived that was not taken.
    bool isEmpty() const { return m_replies.isEmpty() && m_reply.lines.isEmpty() && m_line.isEmpty(); }

private:
    void endLine();

    QByteArray m_line; ///< That which is not whole.
    SmtpReply m_reply; ///< That which is not whole.
    QList<SmtpReply> m_replies;
};
