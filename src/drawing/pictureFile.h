// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QString>

/// Reading the picture files of notes. Their bytes are not to be trusted. May be called from any thread.
namespace pictureFile
{

/// The picture, no larger than it takes to cover `cover`, and of 16 million pixels at most. Null for what is no file,
/// no picture of a kind that notes can show, damaged at its head, or of more than 100 million pixels; and for a
/// metafile without a converter.
QImage read(const QString &path, QSize cover);

} // namespace pictureFile
