// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

/// Windows metafiles (wmf, emf; formats as in MS-WMF and MS-EMF). They are programs for drawing, so a converter that
/// the user has installed draws them in a process of its own, with limits of time, memory and size, in a private
/// folder. May be called from any thread; waits for the converter, for at most ten seconds.
namespace metafile
{

/// Bytes of a file's head that `kind` wants.
inline constexpr qint64 HeadLength = 44;

/// "wmf", "emf" or nothing, by the head of a file.
QByteArray kind(const QByteArray &head);

/// The drawing as a picture of about that width, as PNG; empty without a converter, or when none can read it.
QByteArray toPng(const QString &path, const QByteArray &kind, int width);

} // namespace metafile
