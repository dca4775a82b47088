// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Choosers.h"

/// The choosers of the desktop.
class SystemChoosers final : public Choosers
{
public:
    std::optional<QString> openFile(const FileRequest &request, QWidget *owner) override;
    QStringList openFiles(const FileRequest &request, QWidget *owner) override;
    std::optional<QString> folder(const QString &title, QWidget *owner) override;
    std::optional<QColor> colour(const QColor &current, QWidget *owner) override;
    std::optional<QFont> font(const QFont &current, QWidget *owner) override;
};
