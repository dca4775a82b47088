// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "controls/ModalDialog.h"

#include "forms/Program.h"
#include "forms/modForms.h"

ModalDialog::ModalDialog(Program &program, QStringView name, const QString &caption, QWidget *owner)
    : QDialog(owner), Form(program.forms, name.toString()), m_program(program)
{
    setObjectName(formName());
    setWindowTitle(caption);
    setModal(true);
}

ModalDialog::~ModalDialog()
{
    hide();
    modForms::ShowNoteWindows(m_program);
}

void ModalDialog::accept()
{
    const std::optional<Flaw> flaw = findFlaw();
    if (!flaw)
        return QDialog::accept();
    reveal(*flaw->field);
    flaw->field->setFocus();
    // Last, since everything may go while the box is open.
    m_program.prompts().tell(flaw->message, this);
}
