// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "security/frmEnterPwd.h"

#include "shell/common/Program.h"
#include "shell/common/modForms.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {
constexpr int Margin = 18;
constexpr int LeastWidth = 340;
} // namespace

frmEnterPwd::frmEnterPwd(Program &program, QWidget *owner)
    : QDialog(owner), Form(program.forms, Name.toString()), m_program(program), m_desc(new QLabel(this)),
      m_entry(new QLineEdit(this))
{
    setObjectName(formName());
    setWindowTitle(tr("Enter Password"));
    setModal(true);
    auto *please = new QLabel(tr("Please enter your password to procede."), this);
    please->setObjectName(QStringLiteral("lblPlease"));
    m_desc->setObjectName(QStringLiteral("lblDesc"));
    m_desc->setTextFormat(Qt::PlainText);
    m_desc->setText(tr("Password authentication."));
    m_entry->setObjectName(QStringLiteral("txtPwd"));
    m_entry->setEchoMode(QLineEdit::Password);
    auto *caption = new QLabel(tr("Password:"), this);
    caption->setObjectName(QStringLiteral("lblPwd"));
    caption->setBuddy(m_entry);
    m_entry->setAccessibleName(tr("Password"));

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("OKButton"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("CancelButton"));
    connect(buttons, &QDialogButtonBox::accepted, this, &frmEnterPwd::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &frmEnterPwd::reject);

    auto *layout = new QFormLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setVerticalSpacing(Margin / 2);
    layout->addRow(m_desc);
    layout->addRow(please);
    layout->addRow(caption, m_entry);
    layout->addRow(buttons);
    setMinimumWidth(LeastWidth);
}

frmEnterPwd::~frmEnterPwd()
{
    m_typed.fill(QChar());
    m_entry->clear();
    modForms::ShowNoteWindows(m_program);
}

void frmEnterPwd::Initialize(const QString &description)
{
    m_desc->setText(description);
}

bool frmEnterPwd::passOn(const QString &stored) const
{
    return m_accepted && m_typed == stored;
}

int frmEnterPwd::descriptionWidth() const
{
    return LeastWidth - 2 * Margin;
}

QFont frmEnterPwd::descriptionFont() const
{
    return m_desc->font();
}

void frmEnterPwd::accept()
{
    m_typed = m_entry->text();
    m_accepted = true;
    QDialog::accept();
}

void frmEnterPwd::reject()
{
    m_entry->clear();
    m_typed.clear();
    m_accepted = false;
    QDialog::reject();
}
