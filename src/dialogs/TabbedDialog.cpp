// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "dialogs/TabbedDialog.h"

#include "controls/dialogButtons.h"

#include <QFrame>
#include <QShortcut>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

namespace
{
constexpr int Margin = 12;
}

TabbedDialog::TabbedDialog(Program &program, QStringView name, const QString &caption, QWidget *owner)
    : ModalDialog(program, name, caption, owner), m_tabs(new QTabWidget(this))
{
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
    auto *buttons =
        dialogButtons::make(*this, {{QDialogButtonBox::Ok, "cmdOK"}, {QDialogButtonBox::Cancel, "cmdCancel"}});
    layout()->addWidget(buttons);
    return buttons;
}

void TabbedDialog::reveal(QWidget &field)
{
    for (int page = 0; page < m_tabs->count(); ++page)
        if (m_tabs->widget(page)->isAncestorOf(&field))
            m_tabs->setCurrentIndex(page);
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
