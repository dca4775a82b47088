// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "drawing/SharedPicture.h"

#include <memory>

/// The picture files that are shown just now. One that nobody shows any more goes by itself.
class SharedPictures
{
public:
    /// `rested` is called when drawing has left memory that is used no more.
    explicit SharedPictures(std::function<void()> rested) : m_rested(std::move(rested)) {}

    /// The file as it is on the disk now. Nothing is read.
    std::shared_ptr<SharedPicture> of(const QString &path);

private:
    std::function<void()> m_rested;
    QHash<QString, std::weak_ptr<SharedPicture>> m_shown;
};
