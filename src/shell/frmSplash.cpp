// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "shell/frmSplash.h"

#include "forms/Program.h"
#include "forms/modForms.h"
#include "model/version.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QPainter>
#include <QScreen>

namespace
{

constexpr QSize DesignSize(4500, 3000);
constexpr int Margin = 28;
constexpr int LogoSize = 64;
constexpr int StatusGap = 6;
constexpr QColor Paper(0xFF, 0xFF, 0xE6);
constexpr QColor Ink(0x2B, 0x2B, 0x22);
constexpr QColor FaintInk(0x6B, 0x6B, 0x5C);
constexpr QColor Outline(0xC9, 0xC5, 0x8E);

QLabel *label(QWidget *parent, const QString &name, const QString &text, qreal points, const QColor &ink)
{
    auto *made = new QLabel(text, parent);
    made->setObjectName(name);
    made->setTextFormat(Qt::PlainText);
    QFont font = made->font();
    font.setPointSizeF(points);
    made->setFont(font);
    QPalette palette = made->palette();
    palette.setColor(QPalette::WindowText, ink);
    made->setPalette(palette);
    return made;
}

} // namespace

frmSplash::frmSplash(Program &program)
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint), Form(program.forms, formNames::Splash.toString())
{
    setObjectName(formName());
    setWindowTitle(QStringLiteral("Quillets"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    auto *logo = new QLabel(this);
    logo->setObjectName(QStringLiteral("imgQuilletsLogo"));
    logo->setPixmap(program.pictures().programIcon().pixmap(QSize(LogoSize, LogoSize), devicePixelRatioF()));
    auto *name = label(this, QStringLiteral("lblName"), QStringLiteral("Quillets"), 22, Ink);
    QFont serif(QStringLiteral("Times New Roman"), 24, QFont::Bold);
    serif.setStyleHint(QFont::Serif);
    name->setFont(serif);
    auto *version = label(this, QStringLiteral("lblVersion"), tr("Version  %1").arg(ProgramVersion), 9, FaintInk);
    auto *copy = label(this, QStringLiteral("lblCopy"),
                       tr("Version %1 (August 2000)\nPlatforms: MS Windows 95, 98, NT ").arg(ProgramVersion), 9, Ink);
    auto *status = label(this, QStringLiteral("lblTxtStatus"), tr("Status:"), 8.5, FaintInk);
    m_info = label(this, QStringLiteral("lblInfo"), {}, 8.5, Ink);

    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin - 8);
    layout->setHorizontalSpacing(14);
    layout->addWidget(logo, 0, 0, 2, 1);
    layout->addWidget(name, 0, 1, Qt::AlignBottom);
    layout->addWidget(version, 1, 1, Qt::AlignTop);
    layout->addWidget(copy, 3, 0, 1, 2);
    auto *row = new QHBoxLayout;
    row->setSpacing(StatusGap);
    row->addWidget(status);
    row->addWidget(m_info, 1);
    layout->addLayout(row, 5, 0, 1, 2);
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(2, 1);
    layout->setRowStretch(4, 2);
    modForms::ScaleForm(*this, DesignSize);
    move(QGuiApplication::primaryScreen()->availableGeometry().center() - rect().center());
}

void frmSplash::setStatus(const QString &text)
{
    m_info->setText(text);
    m_info->repaint();
}

void frmSplash::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Paper);
    painter.setPen(Outline);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.drawLine(Margin, height() - 58, width() - Margin, height() - 58);
}
