// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

/// The replies of a receiver: digits without any framing, which may come in pieces or several at once.
class ReplyDigits
{
public:
    enum class Match
    {
        Undecided,
        Yes,
        No
    };

    void clear() { m_gathered.clear(); }
    void add(QByteArrayView piece);
    /// Takes the code from the front. What contradicts it is forgotten, as far as the latest piece, which may begin
    /// anew.
    bool takeCode(QByteArrayView code);
    /// Takes the number from the front: nothing else may follow than the code that comes next.
    Match takeNumber(QByteArrayView number, QByteArrayView nextCode);

private:
    QByteArray m_gathered;
    qsizetype m_latest = 0; ///< Where the latest piece begins.
};
