// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "exchange/ProgressFrame.h"

#include "net/Exchange.h"

#include <QGridLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

ProgressFrame::ProgressFrame(QWidget *parent)
    : QGroupBox(tr("Note Transmission Progress "), parent), m_step(new QLabel(this)), m_bar(new QProgressBar(this)),
      m_stop(new QPushButton(tr("St&op"), this))
{
    setObjectName(QStringLiteral("fraProgress"));
    auto *status = new QLabel(tr("Status:"), this);
    status->setObjectName(QStringLiteral("lblStatus"));
    m_step->setObjectName(QStringLiteral("lblProgress"));
    m_step->setTextFormat(Qt::PlainText);
    m_bar->setObjectName(QStringLiteral("proProgress"));
    m_bar->setAccessibleName(tr("Progress"));
    m_bar->setTextVisible(false);
    m_stop->setObjectName(QStringLiteral("cmdStop"));
    begin();
    auto *layout = new QGridLayout(this);
    layout->addWidget(status, 0, 0);
    layout->addWidget(m_step, 0, 1, 1, 2);
    layout->addWidget(m_bar, 1, 0, 1, 2);
    layout->addWidget(m_stop, 1, 2);
    layout->setColumnStretch(1, 1);
}

void ProgressFrame::begin()
{
    m_step->setText(tr("Sending ..."));
    m_bar->setValue(0);
}

void ProgressFrame::follow(Exchange &exchange)
{
    connect(&exchange, &Exchange::lengthKnown, this, [this](int bytes) {
        m_bar->setRange(0, bytes);
        m_bar->setValue(0);
    });
    connect(&exchange, &Exchange::progressed, m_bar, &QProgressBar::setValue);
    connect(&exchange, &Exchange::stepChanged, m_step, &QLabel::setText);
}

QString ProgressFrame::step() const
{
    return m_step->text();
}
