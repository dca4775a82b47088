// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <vector>

/// The order of the tabs from start to start. The data file holds notes by the time they were written, and tags change
/// with every start, so notes are told apart by a key of their record.
namespace stackOrder
{

struct Note
{
    qint32 tag;
    QString key;
};

/// The tags in the order of the keys that were kept; notes that were not there before stand behind the others, in the
/// order in which they came.
std::vector<qint32> sorted(const std::vector<Note> &notes, const QStringList &kept);

} // namespace stackOrder
