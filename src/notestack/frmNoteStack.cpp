// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notestack/frmNoteStack.h"

#include "notes/parts/LockOverlay.h"
#include "notes/parts/NoteTitle.h"
#include "notestack/NoteTabs.h"
#include "notestack/StackNote.h"
#include "notestack/StackPage.h"
#include "platform/windowStacking.h"
#include "forms/Program.h"
#include "forms/modForms.h"
#include "forms/modHelp.h"

#include <QCloseEvent>
#include <QMouseEvent>
#include <QShortcut>
#include <QToolButton>
#include <QVBoxLayout>

namespace
{

constexpr QSize MinimumDesign(2500, 2000); // twips
constexpr QSize UsualDesign(5400, 4200);
constexpr int Margin = 6;
constexpr int TabsHeight = 30;
constexpr int ListSide = 24;
constexpr int Picture = 16;
constexpr int TitleLeft = 26;
constexpr int GripSide = 16;

} // namespace

frmNoteStack::frmNoteStack(Program &program)
    : Form(program.forms, formNames::NoteStack.toString()), m_program(program), m_drag(*this)
{
    setObjectName(formName());
    setWindowTitle(tr("NoteStack - Quillets"));
    setWindowIcon(m_program.pictures().programIcon());
    modForms::RemoveSystemMenuItems(*this, false, false, false, false, false, false, false);
    makeParts();
    connectParts();
    makeShortcuts();
    ScaleNoteStack();
    restorePlace();
    showEmpty();
}

frmNoteStack::~frmNoteStack() = default;

void frmNoteStack::makeParts()
{
    const Pictures &pictures = m_program.pictures();
    m_tabs = new NoteTabs(this);
    m_tabs->addTab(QString());
    m_list = new QToolButton(this);
    m_list->setObjectName(QStringLiteral("cmdTabList"));
    m_list->setArrowType(Qt::DownArrow);
    m_list->setAutoRaise(true);
    m_list->setToolTip(tr("All notes"));
    m_list->setAccessibleName(tr("All notes"));
    m_page = new StackPage(this);
    m_titleBar = new QWidget(m_page);
    m_titleBar->setObjectName(QStringLiteral("fraTitleBar"));
    m_menu = new PictureButton(pictures, QStringLiteral("imgMenu"), m_titleBar);
    m_menu->setPictures(QStringLiteral("menuup.gif"), QStringLiteral("menudown.gif"));
    m_menu->setCaption(tr("Menu"));
    m_menu->setCommandsOnRelease(true);
    m_title = new NoteTitle(m_titleBar);
    m_exit = new PictureButton(pictures, QStringLiteral("imgExit"), m_titleBar);
    m_exit->setPictures(QStringLiteral("minimizeup.gif"), QStringLiteral("closeactive.gif"));
    m_exit->setCaption(tr("Delete"));
    m_toolbar = new StackToolbar(pictures, m_page);
    m_overlay = new LockOverlay(m_page);
    m_empty = new QWidget(m_page);
    m_empty->setObjectName(QStringLiteral("fraEmpty"));
    auto *empty = new QLabel(tr("NoteStack is empty"));
    empty->setObjectName(QStringLiteral("lblEmpty"));
    (new QVBoxLayout(m_empty))->addWidget(empty, 0, Qt::AlignCenter);
    m_grip = new QLabel(m_page);
    m_grip->setObjectName(QStringLiteral("imgResize"));
    m_grip->setCursor(Qt::SizeFDiagCursor);
    m_grip->installEventFilter(this);
    m_drag.setLimits({Twips::design(MinimumDesign.width()), Twips::design(MinimumDesign.height())}, false);
}

void frmNoteStack::connectParts()
{
    connect(m_tabs, &QTabBar::currentChanged, this, &frmNoteStack::tabChosen);
    connect(m_list, &QToolButton::clicked, this, &frmNoteStack::showTabList);
    connect(m_menu, &PictureButton::pressedDown, this, [this] { m_pressedWhileOpen = m_menuOpen; });
    connect(m_menu, &PictureButton::commanded, this, &frmNoteStack::menuCommanded);
    connect(m_exit, &PictureButton::commanded, this, [this] {
        if (const StackNote *note = chosen())
            deleteNote(note->record.Tag);
    });
    connect(m_toolbar, &StackToolbar::commanded, this,
            [this](int index) { toolbarCommanded(static_cast<StackToolbar::Command>(index)); });
    connect(m_toolbar, &StackToolbar::clickedElsewhere, this, &frmNoteStack::TextLostFocus);
    connect(m_overlay, &LockOverlay::clicked, this, &frmNoteStack::unlock);
    connect(m_title, &NoteTitle::edited, this, &frmNoteStack::titleEdited);
    connect(&m_title->label(), &TitleLabel::pressed, this, &frmNoteStack::TextLostFocus);
    connect(&m_title->label(), &TitleLabel::doubleClicked, this, &frmNoteStack::editTitle);
}

void frmNoteStack::makeShortcuts()
{
    const auto step = [this](int by) {
        const int tabs = m_tabs->count();
        m_tabs->setCurrentIndex((m_tabs->currentIndex() + by + tabs) % tabs);
    };
    const auto add = [this](const QKeySequence &keys, const auto &action) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
    };
    add(QKeySequence(Qt::CTRL | Qt::Key_Tab), [step] { step(1); });
    add(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab), [step] { step(-1); });
    add(QKeySequence(Qt::CTRL | Qt::Key_PageDown), [step] { step(1); });
    add(QKeySequence(Qt::CTRL | Qt::Key_PageUp), [step] { step(-1); });
    add(QKeySequence(Qt::Key_F1), [this] { modHelp::ShowHelp(m_program); });
    add(QKeySequence(Qt::Key_F2), [this] { editTitle(); });
    add(QKeySequence(Qt::Key_F6), [this] { modForms::activateNext(m_program, *this); });
}

/// The controls are laid out in pixels; what is left to scale is the size that the window first has.
void frmNoteStack::ScaleNoteStack()
{
    modForms::ScaleForm(*this, UsualDesign);
}

void frmNoteStack::Initialize()
{
    modForms::HookWindow(m_program.forms, *this);
}

/// The smallest layout is kept when the window is made smaller still.
void frmNoteStack::layOut()
{
    const int width = qMax(this->width(), Twips::design(MinimumDesign.width()));
    const int height = qMax(this->height(), Twips::design(MinimumDesign.height()));
    m_tabs->setGeometry(Margin, Margin, width - 2 * Margin - ListSide, TabsHeight);
    m_list->setGeometry(width - Margin - ListSide, Margin, ListSide, ListSide);
    const int top = Margin + TabsHeight - 4;
    m_page->setGeometry(Margin, top, width - 2 * Margin, height - top - Margin);
    m_tabs->stackUnder(m_page);
    m_titleBar->setGeometry(m_page->titleRect());
    const int pictureTop = (m_titleBar->height() - Picture) / 2;
    m_menu->setGeometry(5, pictureTop, Picture, Picture);
    m_exit->setGeometry(m_titleBar->width() - Picture - 5, pictureTop, Picture, Picture);
    m_title->setGeometry({TitleLeft, 0, m_titleBar->width() - TitleLeft - Picture - 10, m_titleBar->height()});
    m_toolbar->setGeometry(m_page->toolbarRect());
    m_overlay->setGeometry(m_page->coverRect());
    m_empty->setGeometry(m_page->coverRect());
    m_grip->setGeometry(m_page->width() - GripSide - 1, m_page->height() - GripSide - 1, GripSide, GripSide);
    if (StackNote *note = chosen())
        note->body->setGeometry(m_page->bodyRect());
    m_grip->raise();
}

void frmNoteStack::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    if (!isMinimized())
        layOut();
}

void frmNoteStack::showStack()
{
    if (isMinimized())
        setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    windowStacking::SetForegroundWindow(*this);
}

void frmNoteStack::hideStack()
{
    commitEditing();
    hide();
    if (Form *panel = m_program.forms.find(formNames::Menu); panel != nullptr && panel->window()->isVisible())
        windowStacking::SetForegroundWindow(*panel->window());
}

/// The frame's close button hides: the notes stay loaded until the program ends.
void frmNoteStack::closeEvent(QCloseEvent *event)
{
    event->setAccepted(m_closing);
    if (!m_closing)
        hideStack();
}

void frmNoteStack::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (!event->spontaneous())
        keepPlace();
}

void frmNoteStack::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    if (!event->spontaneous() && !m_closing && !m_program.Exiting)
        keepPlace();
}

void frmNoteStack::Destroy()
{
    if (!m_closing)
        m_title->giveUp();
    m_closing = true;
    modForms::UnhookWindow(*this);
    for (const auto &note : m_notes)
        note->alarm->Destroy();
}

bool frmNoteStack::eventFilter(QObject *, QEvent *event)
{
    const auto *mouse = dynamic_cast<QMouseEvent *>(event);
    if (mouse == nullptr)
        return false;
    if (event->type() == QEvent::MouseButtonPress && mouse->button() == Qt::LeftButton)
        m_drag.press(WindowDrag::HitTest::BottomRight, mouse->globalPosition().toPoint());
    else if (event->type() == QEvent::MouseMove)
        m_drag.move(mouse->globalPosition().toPoint());
    else if (event->type() == QEvent::MouseButtonRelease)
        m_drag.release();
    return true;
}
