// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "forms/Progress.h"

#include "forms/Program.h"
#include "forms/frmStatus.h"

#include <QApplication>

Progress::Progress(Program &program, const QString &caption, const QString &text, int total,
                   std::chrono::milliseconds patience)
    : m_program(program), m_patience(patience), m_status(new frmStatus(program))
{
    m_since.start();
    m_status->setWindowTitle(caption);
    m_status->Initialize(text, total);
}

bool Progress::goesOn()
{
    if (std::chrono::milliseconds(m_since.elapsed()) < m_patience)
        return true;
    if (isThere() && !m_status->isVisible()) {
        m_before = QApplication::activeWindow();
        m_status->show();
    }
    QCoreApplication::processEvents();
    return isThere() && !m_status->Cancelled && !m_program.Exiting;
}

void Progress::setValue(int value)
{
    if (isThere())
        m_status->setValue(value);
}

void Progress::close()
{
    if (!isThere())
        return;
    m_status->unload();
    // Before an editor takes the loss of the focus for the end of its edit.
    if (m_before != nullptr && m_before->isVisible())
        m_before->activateWindow();
}

bool Progress::isThere() const
{
    return m_status != nullptr && !m_status->isUnloaded();
}
