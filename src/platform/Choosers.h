// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QFont>
#include <QString>
#include <QStringList>

#include <optional>

class QWidget;

/// What a file chooser is opened with.
struct FileRequest
{
    QString title;
    QStringList filters; ///< As "WAV Files (*.wav)"; the first is selected.
    QString current;     ///< Path of the current file, may be empty; the chooser starts in its folder.

    bool operator==(const FileRequest &) const = default;
};

/// The choosers of files, colours and fonts; a test answers in their place. Nothing chosen is an empty answer.
class Choosers
{
public:
    Choosers() = default;
    Choosers(const Choosers &) = delete;
    Choosers &operator=(const Choosers &) = delete;
    virtual ~Choosers() = default;

    /// The path of an existing file.
    virtual std::optional<QString> openFile(const FileRequest &request, QWidget *owner) = 0;
    /// The paths of existing files; none is Cancel.
    virtual QStringList openFiles(const FileRequest &request, QWidget *owner) = 0;
    /// The path of an existing folder.
    virtual std::optional<QString> folder(const QString &title, QWidget *owner) = 0;
    virtual std::optional<QColor> colour(const QColor &current, QWidget *owner) = 0;
    virtual std::optional<QFont> font(const QFont &current, QWidget *owner) = 0;
};
