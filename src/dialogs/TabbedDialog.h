// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Form.h"

#include <QDialog>

#include <functional>
#include <vector>

class Program;
class QDialogButtonBox;
class QFrame;
class QTabWidget;

/// A dialog of several pages with OK and Cancel below them. OK closes it only when the subclass finds everything in
/// order; the result is asked for by the caller.
class TabbedDialog : public QDialog, public Form
{
    Q_OBJECT

public:
    ~TabbedDialog() override;

    QWidget *window() override { return this; }

protected:
    TabbedDialog(Program &program, const QString &formName, const QString &caption, QWidget *owner);

    /// A page whose content is `content`; its first field gets the focus when the page is chosen.
    void addPage(const QString &name, const QString &caption, QWidget *content, QWidget *firstField);
    /// OK and Cancel; said after the last page, so that the Tab key comes to them last.
    QDialogButtonBox *addButtons();
    void select(int page, QWidget *field);
    /// Says itself what is not in order, and where.
    virtual bool isInOrder() = 0;
    void accept() override;
    void showEvent(QShowEvent *event) override;

    Program &program() { return m_program; }

private:
    void choosePage(int page);
    void stepPage(int step);

    Program &m_program;
    QTabWidget *m_tabs; // TabOptions
    std::vector<QWidget *> m_firstFields;
};
