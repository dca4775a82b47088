// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "shell/frmMenu.h"

#include "controls/SizeGrip.h"
#include "forms/Program.h"
#include "forms/modForms.h"
#include "forms/modFormsJournal.h"
#include "platform/TrayIcon.h"
#include "platform/windowStacking.h"
#include "shell/PanelLogo.h"
#include "shell/PanelRow.h"
#include "shell/ProgramKeys.h"
#include "shell/ReceivedLine.h"
#include "shell/ReceivedNotes.h"
#include "shell/TrayMenu.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QLabel>
#include <QShortcut>

namespace
{

constexpr QSize SmallestPanel(300, 220);

struct Row
{
    PanelRow::Names names;
    const char *caption;
    int key; ///< Pressed with Alt.
};

/// In the order of the commands.
constexpr std::array<Row, 8> Rows{{
    {{"imgNewUp", "imgNewDown", "lblNew", "panelnew"}, QT_TRANSLATE_NOOP("frmMenu", "New Desktop Quillet"), Qt::Key_N},
    {{"imgNoteStackUp", "imgNoteStackDown", "lblNoteStack", "panelnotestack"},
     QT_TRANSLATE_NOOP("frmMenu", "View NoteStack"),
     Qt::Key_V},
    {{"imgDtoNUp", "imgDtoNDown", "lblDtoN", "paneldton"}, QT_TRANSLATE_NOOP("frmMenu", "All to NoteStack"), Qt::Key_A},
    {{"imgNtoDUp", "imgNtoDDown", "lblNtoD", "panelntod"}, QT_TRANSLATE_NOOP("frmMenu", "All to Desktop"), Qt::Key_D},
    {{"imgSaveUp", "imgSaveDown", "lblSave", "panelsave"},
     QT_TRANSLATE_NOOP("frmMenu", "Save All Quillets"),
     Qt::Key_S},
    {{"imgOptionsUp", "imgOptionsDown", "lblOptions", "paneloptions"},
     QT_TRANSLATE_NOOP("frmMenu", "Quillets Options"),
     Qt::Key_O},
    {{"imgHelpUp", "imgHelpDown", "lblHelp", "panelhelp"}, QT_TRANSLATE_NOOP("frmMenu", "Quillets Help"), Qt::Key_H},
    {{"imgExitUp", "imgExitDown", "lblExit", "panelexit"}, QT_TRANSLATE_NOOP("frmMenu", "Quillets Exit"), Qt::Key_X},
}};

} // namespace

frmMenu::frmMenu(Program &program)
    : Form(program.forms, formNames::Menu.toString()), m_program(program), m_drag(*this),
      m_received(new ReceivedNotes(program, this))
{
    setObjectName(formName());
    setWindowTitle(tr("Menu - Quillets"));
    setWindowIcon(m_program.pictures().programIcon());
    m_drag.setLimits(SmallestPanel, WindowDrag::Height::Free);
    setMinimumSize(SmallestPanel);
    makeLogo();
    makeRows();
    makeGrip();
    makeTray();
    makeReceived();
    setAcceptDrops(true);
    makeShortcuts();
}

frmMenu::~frmMenu()
{
    m_program.forms.changed = nullptr;
}

void frmMenu::makeLogo()
{
    m_logo = new PanelLogo(m_program.pictures().programIcon(), this);
    connect(m_logo, &PanelLogo::pressed, this, [this] { run(PanelCommand::About); });
    m_name = new QLabel(QStringLiteral("Quillets"), this);
    m_name->setObjectName(QStringLiteral("lblName"));
    QFont serif(QStringLiteral("Times New Roman"), 17, QFont::Bold);
    serif.setStyleHint(QFont::Serif);
    m_name->setFont(serif);
    m_name->setAlignment(Qt::AlignCenter);
    m_about = new QLabel(tr("Sticky notes\nfor the desktop"), this);
    m_about->setObjectName(QStringLiteral("lblAbout"));
    m_about->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    m_about->setForegroundRole(QPalette::PlaceholderText);
    QFont small = m_about->font();
    small.setPointSizeF(8);
    m_about->setFont(small);
}

void frmMenu::makeRows()
{
    for (size_t i = 0; i < Rows.size(); ++i) {
        const auto command = static_cast<PanelCommand>(i);
        auto *row = new PanelRow(m_program.pictures(), Rows[i].names, tr(Rows[i].caption), this);
        row->setShortcut(QKeyCombination(Qt::ALT, static_cast<Qt::Key>(Rows[i].key)));
        connect(row, &PanelRow::commanded, this, [this, command] { run(command); });
        m_rows[i] = row;
    }
}

void frmMenu::makeShortcuts()
{
    setTabOrder(m_rows.back(), m_logo);
    setTabOrder(m_logo, m_receivedLine);
    m_rows.front()->setFocus();
    connect(new ProgramKeys(this), &ProgramKeys::commanded, this, &frmMenu::runFromKeys);
    connect(new QShortcut(Qt::Key_F1, this), &QShortcut::activated, this, [this] { run(PanelCommand::Help); });
    connect(new QShortcut(Qt::Key_F6, this), &QShortcut::activated, this,
            [this] { modForms::activateNext(m_program, *this); });
    // Where the Menu key opens it, which Qt tells apart from these keys.
    connect(new QShortcut(Qt::SHIFT | Qt::Key_F10, this), &QShortcut::activated, this, [this] {
        const QWidget *place = focusWidget() != nullptr ? focusWidget() : this;
        openPanelMenu(place->mapToGlobal(place->rect().center()));
    });
}

void frmMenu::makeGrip()
{
    m_grip = new SizeGrip(m_program.pictures(), m_drag, this);
    dressGrip();
}

void frmMenu::dressGrip()
{
    QColor ink = palette().color(QPalette::WindowText);
    ink.setAlphaF(0.45F);
    m_grip->setInk(ink);
}

void frmMenu::makeTray()
{
    m_tray = new TrayMenu(m_program.pictures().programIcon(), this);
    connect(m_tray, &TrayMenu::commanded, this, &frmMenu::runFromTray);
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, &frmMenu::comeBackWithoutTray);
    m_program.forms.changed = [this] { QMetaObject::invokeMethod(this, &frmMenu::showTip, Qt::QueuedConnection); };
}

void frmMenu::makeReceived()
{
    m_receivedLine = new ReceivedLine(m_program, *m_received, this);
    connect(m_received, &ReceivedNotes::changed, this, [this] {
        ResizeForm();
        showTip();
    });
}

void frmMenu::startReceiving()
{
    m_received->start();
}

/// The windows are closed after this.
void frmMenu::keepPlace()
{
    m_received->stop();
}

void frmMenu::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && m_grip != nullptr)
        dressGrip();
    if (event->type() != QEvent::WindowStateChange)
        return;
    if (isMinimized())
        // The window system is told of the hiding after it has finished minimising.
        QMetaObject::invokeMethod(this, &frmMenu::minimised, Qt::QueuedConnection);
    else if (isVisible())
        m_tray->setVisible(false);
}

/// Without a tray the panel stays minimised in the task bar; the icon comes when a tray does.
void frmMenu::minimised()
{
    if (!isMinimized() || m_program.Exiting)
        return;
    showTip();
    m_tray->setVisible(true);
    m_inTray = TrayIcon::isThere();
    if (m_inTray)
        hide();
}

/// The tray may have gone, with the icon that led back here.
void frmMenu::comeBackWithoutTray()
{
    if (!m_inTray || TrayIcon::isThere() || m_program.Exiting)
        return;
    m_inTray = false;
    showMinimized();
}

void frmMenu::showMenu()
{
    m_inTray = false;
    m_tray->setVisible(false);
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    windowStacking::SetForegroundWindow(*this);
}

void frmMenu::showTip()
{
    m_tray->setCount(static_cast<int>(m_program.forms.tags().size()), ReceivedLine::textFor(m_received->unseen()));
}

void frmMenu::closeEvent(QCloseEvent *event)
{
    event->accept();
    m_tray->setVisible(false);
    if (m_program.Exiting)
        return;
    m_program.Exiting = true;
    modForms::discardJournal(m_program);
    modForms::CloseAllWindows(m_program);
    QCoreApplication::exit();
}
