// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notestack/frmNoteStack.h"

#include "controls/SizeGrip.h"
#include "drawing/textShortening.h"
#include "forms/Program.h"
#include "forms/modForms.h"
#include "forms/modFormsJournal.h"
#include "forms/modHelp.h"
#include "notes/commands/LiveNote.h"
#include "notes/commands/NoteAction.h"
#include "notes/commands/NoteMenus.h"
#include "notes/commands/noteKeys.h"
#include "notes/commands/noteTitles.h"
#include "notes/parts/LockOverlay.h"
#include "notes/parts/NoteTitle.h"
#include "notestack/NoteTabs.h"
#include "notestack/StackPage.h"
#include "notestack/TabbedNotes.h"
#include "notestack/stackHome.h"
#include "platform/windowStacking.h"
#include "restore/restoring.h"

#include <QActionGroup>
#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
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
constexpr int ListWidth = 320; ///< Of a title in the list of all.

} // namespace

frmNoteStack::frmNoteStack(Program &program)
    : Form(program.forms, formNames::NoteStack.toString()), NoteHost(program), m_drag(*this)
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
    m_tabs = new NoteTabs(this);
    m_notes = std::make_unique<TabbedNotes>(*m_tabs);
    m_list = new QToolButton(this);
    m_list->setObjectName(QStringLiteral("cmdTabList"));
    m_list->setArrowType(Qt::DownArrow);
    m_list->setAutoRaise(true);
    m_list->setToolTip(tr("All notes"));
    m_list->setAccessibleName(tr("All notes"));
    m_page = new StackPage(this);
    makeTitleBar();
    m_toolbar = new StackToolbar(m_program.pictures(), m_page);
    m_overlay = new LockOverlay(m_page);
    m_empty = new QWidget(m_page);
    m_empty->setObjectName(QStringLiteral("fraEmpty"));
    auto *empty = new QLabel(tr("NoteStack is empty"));
    empty->setObjectName(QStringLiteral("lblEmpty"));
    (new QVBoxLayout(m_empty))->addWidget(empty, 0, Qt::AlignCenter);
    m_grip = new SizeGrip(m_program.pictures(), m_drag, m_page);
    m_drag.setLimits({Twips::design(MinimumDesign.width()), Twips::design(MinimumDesign.height())},
                     WindowDrag::Height::Free);
    m_menus = new NoteMenus(*this, StackHome, *m_menu, Picture);
}

void frmNoteStack::makeTitleBar()
{
    const Pictures &pictures = m_program.pictures();
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
}

void frmNoteStack::connectParts()
{
    connect(m_tabs, &QTabBar::currentChanged, this, &frmNoteStack::tabChosen);
    connect(m_list, &QToolButton::clicked, this, &frmNoteStack::showTabList);
    connect(m_menus, &NoteMenus::chosen, this, &frmNoteStack::run);
    connect(m_exit, &PictureButton::commanded, this, [this] { action().askAndDelete(); });
    connect(m_toolbar, &StackToolbar::commanded, this,
            [this](int index) { toolbarCommanded(static_cast<StackToolbar::Command>(index)); });
    connect(m_toolbar, &StackToolbar::clickedElsewhere, this, [this] { TextLostFocus(); });
    connect(m_overlay, &LockOverlay::clicked, this, [this] { action().unlock(); });
    connect(m_title, &NoteTitle::typed, this, [this] { modForms::armJournal(m_program); });
    connect(m_title, &NoteTitle::edited, this, [this](const QString &text) { titleEdited(text); });
    connect(&m_title->label(), &TitleLabel::pressed, this, [this] { TextLostFocus(); });
    connect(&m_title->label(), &TitleLabel::doubleClicked, this, [this] { action().editTitle(); });
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
    if (LiveNote *note = chosen())
        note->body.setGeometry(m_page->bodyRect());
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
    for (const qint32 tag : tags())
        live(tag)->alarm.Destroy();
}

void frmNoteStack::contextMenuEvent(QContextMenuEvent *event)
{
    if (event->reason() == QContextMenuEvent::Keyboard)
        m_menus->openLong();
}

void frmNoteStack::keyPressEvent(QKeyEvent *event)
{
    const LiveNote *note = chosen();
    if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier)
        m_menus->openLong();
    else if (note == nullptr || !noteKeys::press(*event, *note, action()))
        QWidget::keyPressEvent(event);
}

/// A list of all titles for when there are more tabs than fit.
void frmNoteStack::showTabList()
{
    const QPointer<QMenu> menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("mnuTabList"));
    auto *group = new QActionGroup(menu);
    for (const qint32 tag : tags()) {
        const QString line = textShortening::onOneLine(noteTitles::title(*recordOf(tag)));
        const QString title = textShortening::shortened(line, ListWidth, menu->font());
        QAction *action = menu->addAction(QString(title).replace(u'&', QLatin1String("&&")));
        action->setActionGroup(group);
        action->setCheckable(true);
        action->setChecked(live(tag) == chosen());
        action->setData(tag);
    }
    menu->addSeparator();
    QAction *restore = menu->addAction(tr("&Restore Notes..."));
    restore->setObjectName(QStringLiteral("mnuRestore"));
    const QAction *picked = menu->exec(m_list->mapToGlobal(QPoint(0, m_list->height())));
    // The window may have gone meanwhile, and the menu with it.
    if (menu == nullptr)
        return;
    const bool isRestore = picked == restore;
    const qint32 tag = picked != nullptr ? picked->data().toInt() : 0;
    menu->deleteLater();
    if (isRestore)
        restoring::openRestore(m_program, this);
    else if (live(tag) != nullptr)
        m_tabs->setCurrentIndex(m_notes->indexOf(tag));
}
