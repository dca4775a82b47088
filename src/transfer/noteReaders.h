// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "transfer/CarriedNote.h"

#include <vector>

/// What the files of other programs hold. Formatting is left out; a file that is not of its kind gives nothing.
namespace noteReaders
{

/// `name` is the file's, without its suffix: the title.
CarriedNote ofText(const QString &name, const QByteArray &bytes);
/// A first heading is the title.
CarriedNote ofMarkdown(const QString &name, const QByteArray &bytes);
/// A note of Gnote, an XML file; nothing for a template.
std::optional<CarriedNote> ofGnote(const QByteArray &bytes);
/// The file of a pad's text, as the pad's own file names it.
QString xpadContent(const QByteArray &info);
/// A pad of xpad: its text, the file that tells its looks, and the one that tells those of the pads without own ones.
CarriedNote ofXpad(const QByteArray &content, const QByteArray &info, const QByteArray &defaultStyle);
/// The journal entries of a calendar, as KNotes keeps its notes.
std::vector<CarriedNote> ofCalendar(const QByteArray &bytes);

} // namespace noteReaders
