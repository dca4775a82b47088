// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "forms/frmStatus.h"

#include "forms/Program.h"
#include "forms/modForms.h"
#include "platform/windowStacking.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace
{
constexpr QSize DesignSize(4200, 1500); // twips
constexpr int Margin = 16;
} // namespace

frmStatus::frmStatus(Program &program)
    : QWidget(nullptr, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      Form(program.forms, formNames::Status.toString()), m_text(new QLabel(this)), m_bar(new QProgressBar(this))
{
    setObjectName(formName());
    setWindowModality(Qt::ApplicationModal);
    setWindowIcon(program.pictures().programIcon());
    m_text->setObjectName(QStringLiteral("lblStatus"));
    m_bar->setObjectName(QStringLiteral("prgStatus"));
    m_bar->setAccessibleName(tr("Progress"));
    m_bar->setRange(0, 0);
    auto *cancel = new QPushButton(tr("Cancel"), this);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    // Windows that open meanwhile take the release of the button away.
    connect(cancel, &QPushButton::pressed, this, [this] { Cancelled = true; });

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->addWidget(m_text);
    layout->addWidget(m_bar);
    layout->addWidget(cancel, 0, Qt::AlignRight);
    modForms::ScaleForm(*this, DesignSize);
    windowStacking::keepAboveNotes(*this);
}

void frmStatus::Initialize(const QString &text, int total)
{
    m_text->setText(text);
    m_bar->setRange(0, qMax(total, 1));
    m_bar->setValue(0);
}

void frmStatus::setValue(int value)
{
    m_bar->setValue(value);
    m_bar->repaint();
}

void frmStatus::closeEvent(QCloseEvent *event)
{
    Cancelled = true;
    event->ignore();
}

void frmStatus::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        Cancelled = true;
    else
        QWidget::keyPressEvent(event);
}
