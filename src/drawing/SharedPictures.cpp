// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "drawing/SharedPictures.h"

#include <QDateTime>
#include <QFileInfo>

std::shared_ptr<SharedPicture> SharedPictures::of(const QString &path)
{
    m_shown.removeIf([](const auto &shown) { return shown.value().expired(); });
    const QFileInfo file(path);
    const QString key = QStringLiteral("quillets/background/%1/%2/%3")
                            .arg(file.absoluteFilePath())
                            .arg(file.size())
                            .arg(file.lastModified().toMSecsSinceEpoch());
    std::weak_ptr<SharedPicture> &shown = m_shown[key];
    std::shared_ptr<SharedPicture> picture = shown.lock();
    if (picture == nullptr) {
        picture = std::make_shared<SharedPicture>(path, key, m_rested);
        shown = picture;
    }
    return picture;
}
