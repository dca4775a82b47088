// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>

/// A button that shows the chosen file, cut at its front where the path is too long; "Choose file" where there is none.
class FileButton final : public QPushButton
{
    Q_OBJECT

public:
    FileButton(const QString &name, const QString &accessibleName, QWidget *parent);

    void setPath(const QString &path);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void showPath();

    QString m_path;
};
