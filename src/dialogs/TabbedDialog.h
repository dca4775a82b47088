// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/ModalDialog.h"

#include <vector>

class QDialogButtonBox;
class QTabWidget;

/// A dialog of several pages with OK and Cancel below them.
class TabbedDialog : public ModalDialog
{
    Q_OBJECT

protected:
    TabbedDialog(Program &program, QStringView name, const QString &caption, QWidget *owner);

    /// A page whose content is `content`; its first field gets the focus when the page is chosen.
    void addPage(const QString &name, const QString &caption, QWidget *content, QWidget *firstField);
    /// OK and Cancel; said after the last page, so that the Tab key comes to them last.
    QDialogButtonBox *addButtons();
    void reveal(QWidget &field) override;
    void showEvent(QShowEvent *event) override;

private:
    void choosePage(int page);
    void stepPage(int step);

    QTabWidget *m_tabs; // TabOptions
    std::vector<QWidget *> m_firstFields;
};
