// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>

/// A button that shows the chosen file, its path cut where it is too long; "Choose file" where there is none.
class FileButton final : public QPushButton
{
    Q_OBJECT

public:
    /// The end of a path that is cut.
    enum class Cut
    {
        Front, ///< The file's name is seen.
        Back
    };

    FileButton(const QString &name, const QString &accessibleName, Cut cut, QWidget *parent);

    void setPath(const QString &path);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void showPath();

    Cut m_cut;
    QString m_path; ///< One line.
};
