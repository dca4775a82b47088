// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "dialogs/AppearanceFields.h"

#include <QWidget>

class QLabel;

/// Tells a note's font in words and shows it, in the note's colours.
class FontPreview final : public QWidget
{
    Q_OBJECT

public:
    explicit FontPreview(QWidget *parent);

    void showFields(const AppearanceFields &fields);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    QLabel *addRow(int row, const QString &suffix, const QString &caption);
    void fitName();

    QString m_fontName;
    QLabel *m_name;
    QLabel *m_size;
    QLabel *m_style;
    QLabel *m_sample;
};
