// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "net/recentTargets.h"

#include "model/modFileIORecent.h"

QStringList withRecent(QStringList list, const QString &text)
{
    if (list.contains(text))
        return list;
    list.prepend(text);
    list.resize(std::min(list.size(), modFileIO::MostRecent));
    return list;
}
