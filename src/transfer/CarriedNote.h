// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

/// A note on its way in or out: what programs of this kind have in common.
struct CarriedNote
{
    QString title;
    QString text;                       ///< Lines parted by CR LF.
    QDateTime date{};                   ///< Invalid where it is not known.
    std::optional<qint32> backColour{}; ///< 0x00BBGGRR
    std::optional<qint32> textColour{};

    bool operator==(const CarriedNote &) const = default;
};
