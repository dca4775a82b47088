// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "dialogs/TabbedDialog.h"

#include "forms/Program.h"
#include "forms/modForms.h"

#include <QDialogButtonBox>
#include <QFrame>
#include <QPushButton>
#include <QShortcut>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

namespace
{
constexpr int Margin = 12;
}

TabbedDialog::TabbedDialog(Program &program, const QString &formName, const QString &caption, QWidget *owner)
    : QDialog(owner), Form(program.forms, formName), m_program(program), m_tabs(new QTabWidget(this))
{
    setObjectName(formName);
    setWindowTitle(caption);
    setModal(true);
    m_tabs->setObjectName(QStringLiteral("TabOptions"));
    // The pressed tab is shown only after this signal.
    connect(m_tabs, &QTabWidget::tabBarClicked, this, &TabbedDialog::choosePage, Qt::QueuedConnection);
    auto *forward = new QShortcut(QKeySequence(QStringLiteral("Ctrl+Tab")), this);
    connect(forward, &QShortcut::activated, this, [this] { stepPage(1); });
    auto *back = new QShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+Tab")), this);
    connect(back, &QShortcut::activated, this, [this] { stepPage(-1); });
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(Margin);
    layout->addWidget(m_tabs);
}

TabbedDialog::~TabbedDialog()
{
    modForms::ShowNoteWindows(m_program);
}

void TabbedDialog::addPage(const QString &name, const QString &caption, QWidget *content, QWidget *firstField)
{
    auto *page = new QFrame(m_tabs);
    page->setObjectName(name);
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->addWidget(content);
    m_tabs->addTab(page, caption);
    m_firstFields.push_back(firstField);
}

QDialogButtonBox *TabbedDialog::addButtons()
{
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("cmdOK"));
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdCancel"));
    connect(buttons, &QDialogButtonBox::accepted, this, &TabbedDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &TabbedDialog::reject);
    layout()->addWidget(buttons);
    return buttons;
}

void TabbedDialog::select(int page, QWidget *field)
{
    m_tabs->setCurrentIndex(page);
    field->setFocus();
}

void TabbedDialog::accept()
{
    if (isInOrder())
        QDialog::accept();
}

void TabbedDialog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    choosePage(m_tabs->currentIndex());
}

void TabbedDialog::choosePage(int page)
{
    if (page >= 0 && page < m_tabs->count())
        m_firstFields[static_cast<size_t>(page)]->setFocus(Qt::TabFocusReason);
}

void TabbedDialog::stepPage(int step)
{
    const int pages = m_tabs->count();
    m_tabs->setCurrentIndex((m_tabs->currentIndex() + step + pages) % pages);
    choosePage(m_tabs->currentIndex());
}
