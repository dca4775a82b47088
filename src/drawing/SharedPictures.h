// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "drawing/SharedPicture.h"

#include <memory>

/// The picture files that are shown just now. One that nobody shows any more goes by itself.
class SharedPictures
{
public:
    /// The file as it is on the disk now. Nothing is read.
    std::shared_ptr<SharedPicture> of(const QString &path);

private:
    QHash<QString, std::weak_ptr<SharedPicture>> m_shown;
};
