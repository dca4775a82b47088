// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/Flaw.h"
#include "forms/Form.h"

#include <QDialog>

class Program;

/// A form that blocks the window it belongs to until OK or Cancel. Both only hide it; its result is asked for by the
/// caller, who then unloads it. When the last one goes, the notes that came hidden meanwhile are shown.
class ModalDialog : public QDialog, public Form
{
    Q_OBJECT

public:
    ~ModalDialog() override;

    QWidget *window() override { return this; }
    /// OK closed it.
    bool isAccepted() const { return result() == Accepted; }

protected:
    ModalDialog(Program &program, QStringView name, const QString &caption, QWidget *owner);

    Program &program() const { return m_program; }
    /// What keeps OK from closing the dialog; asked at each OK.
    virtual std::optional<Flaw> findFlaw() { return std::nullopt; }
    /// Brings a field into sight that is about to get the focus.
    virtual void reveal(QWidget &) {}
    /// Closes the dialog, or tells its first flaw. The dialog may be gone when this returns.
    void accept() override;

private:
    Program &m_program;
};
