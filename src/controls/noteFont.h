// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>

/// The font of a note as records keep it.
namespace noteFont
{

/// The stored font over the base, which keeps its family where none is stored. Shown is a size that can be drawn: from
/// 1 to 400 points, the usual 9 for what is no size at all.
QFont drawable(const QString &family, float points, bool bold, bool italic, QFont base = {});

/// Of any record that has a font.
template <class Record> QFont of(const Record &record, const QFont &base = {})
{
    return drawable(record.FontName, record.FontSize, record.FontBoldOn, record.FontItalicOn, base);
}

} // namespace noteFont
