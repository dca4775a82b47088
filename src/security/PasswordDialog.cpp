// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "security/PasswordDialog.h"

#include "controls/dialogButtons.h"
#include "security/secrets.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

PasswordDialog::PasswordDialog(Program &program, QStringView name, const QString &caption, QWidget *owner)
    : ModalDialog(program, name, caption, owner), m_rows(new QFormLayout(this))
{
    setMinimumWidth(LeastWidth);
    m_rows->setContentsMargins(Margin, Margin, Margin, Margin);
    m_rows->setVerticalSpacing(Margin / 2);
    m_rows->setHorizontalSpacing(Margin * 2 / 3);
    m_rows->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_rows->setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

PasswordDialog::~PasswordDialog()
{
    wipeBoxes();
}

QLabel *PasswordDialog::addText(const QString &name, const QString &text)
{
    auto *label = new QLabel(this);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    m_rows->addRow(label);
    return label;
}

QLineEdit *PasswordDialog::addBox(const QString &suffix, const QString &caption)
{
    auto *box = new QLineEdit(this);
    box->setObjectName(QStringLiteral("txtPwd") + suffix);
    box->setEchoMode(QLineEdit::Password);
    auto *label = new QLabel(caption, this);
    label->setObjectName(QStringLiteral("lblPwd") + suffix);
    label->setBuddy(box);
    m_rows->addRow(label, box);
    m_boxes.push_back(box);
    return box;
}

void PasswordDialog::addButtons()
{
    auto *buttons =
        dialogButtons::make(*this, {{QDialogButtonBox::Ok, "OKButton"}, {QDialogButtonBox::Cancel, "CancelButton"}});
    buttons->setContentsMargins(0, Margin / 2, 0, 0);
    m_rows->addRow(buttons);
}

void PasswordDialog::reject()
{
    wipeBoxes();
    ModalDialog::reject();
}

void PasswordDialog::wipeBoxes()
{
    for (QLineEdit *box : m_boxes)
        secrets::wipe(*box);
}
