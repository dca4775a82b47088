// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "shell/frmMenu.h"

#include "forms/showModally.h"
#include "dialogs/frmOptions.h"
#include "notes/modCreateNote.h"
#include "platform/TrayIcon.h"
#include "platform/windowStacking.h"
#include "shell/PanelRow.h"
#include "forms/Program.h"
#include "forms/modForms.h"
#include "forms/modHelp.h"
#include "shell/frmAbout.h"
#include "shell/modInit.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QLabel>
#include <QMenu>
#include <QShortcut>

namespace
{

constexpr int RowHeight = 30;
constexpr int RowReach = 10; ///< How far a row begins left of its picture and ends before the panel's edge.
constexpr int LogoSide = 64;
constexpr int LogoGap = 10;
constexpr int GripSide = 16;
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

frmMenu::frmMenu(Program &program) : Form(program.forms, formNames::Menu.toString()), m_program(program), m_drag(*this)
{
    setObjectName(formName());
    setWindowTitle(tr("Menu - Quillets"));
    setWindowIcon(m_program.pictures().programIcon());
    m_drag.setLimits(SmallestPanel, false);
    setMinimumSize(SmallestPanel);
    makeLogo();
    makeRows();
    makeGrip();
    makeTray();
    makeShortcuts();
}

frmMenu::~frmMenu()
{
    m_program.forms.changed = nullptr;
}

void frmMenu::makeLogo()
{
    m_logo = new QLabel(this);
    m_logo->setObjectName(QStringLiteral("imgQuilletsLogo"));
    m_logo->setAccessibleName(tr("About Quillets"));
    m_logo->setPixmap(m_program.pictures().programIcon().pixmap(QSize(LogoSide, LogoSide), devicePixelRatioF()));
    m_logo->setAlignment(Qt::AlignCenter);
    m_logo->setFocusPolicy(Qt::TabFocus);
    m_logo->installEventFilter(this);
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
        const auto command = static_cast<Command>(i);
        auto *row = new PanelRow(m_program.pictures(), Rows[i].names, tr(Rows[i].caption), this);
        row->setShortcut(QKeyCombination(Qt::ALT, static_cast<Qt::Key>(Rows[i].key)));
        connect(row, &PanelRow::commanded, this, [this, command] { run(command); });
        m_rows[i] = row;
    }
}

void frmMenu::makeShortcuts()
{
    setTabOrder(m_rows.back(), m_logo);
    m_rows.front()->setFocus();
    connect(new QShortcut(Qt::Key_F1, this), &QShortcut::activated, this, [this] { run(Command::Help); });
    connect(new QShortcut(Qt::Key_F6, this), &QShortcut::activated, this,
            [this] { modForms::activateNext(m_program, *this); });
}

void frmMenu::makeGrip()
{
    m_grip = new QLabel(this);
    m_grip->setObjectName(QStringLiteral("imgResize"));
    m_grip->setCursor(Qt::SizeFDiagCursor);
    QColor ink = palette().color(QPalette::WindowText);
    ink.setAlphaF(0.45F);
    m_grip->setPixmap(m_program.pictures().shape(QStringLiteral("resize.gif"), ink, devicePixelRatioF()));
    m_grip->installEventFilter(this);
}

void frmMenu::makeTray()
{
    struct Entry
    {
        const char *name;
        const char *caption;
        Command command;
    };
    constexpr std::array<Entry, 11> Entries{{
        {"mnuAbout", QT_TR_NOOP("About Quillets"), Command::About},
        {"mnuShow", QT_TR_NOOP("Show Menu"), Command::Show},
        {"mnuExit", QT_TR_NOOP("Exit Program"), Command::Exit},
        {"mnuHelp", QT_TR_NOOP("Help"), Command::Help},
        {"mnuAllNoteStack", QT_TR_NOOP("All to NoteStack"), Command::AllToNoteStack},
        {"mnuAllDesktop", QT_TR_NOOP("All to Desktop"), Command::AllToDesktop},
        {"mnuSave", QT_TR_NOOP("Save"), Command::Save},
        {"mnuOptions", QT_TR_NOOP("View Options"), Command::Options},
        {"mnuNotestack", QT_TR_NOOP("View Notestack"), Command::NoteStack},
        {"mnuNew", QT_TR_NOOP("New Quillet"), Command::New},
        {"mnuCancel", QT_TR_NOOP("Cancel"), Command::None},
    }};
    m_popup = new QMenu(this);
    m_popup->setObjectName(QStringLiteral("mnuPopup"));
    for (const Entry &entry : Entries) {
        QAction *action = m_popup->addAction(tr(entry.caption));
        action->setObjectName(QLatin1String(entry.name));
        connect(action, &QAction::triggered, this, [this, command = entry.command] { runFromTray(command); });
    }
    m_tray = new TrayIcon(m_program.pictures().programIcon(), m_popup, this);
    connect(m_tray, &TrayIcon::doubleClicked, this, [this] { runFromTray(Command::New); });
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, &frmMenu::comeBackWithoutTray);
    m_program.forms.changed = [this] { QMetaObject::invokeMethod(this, &frmMenu::showTip, Qt::QueuedConnection); };
}

void frmMenu::run(Command command)
{
    if (m_pressGuard || m_program.Exiting || command == Command::None)
        return;
    m_pressGuard = true;
    if (isVisible())
        windowStacking::SetForegroundWindow(*this);
    const QPointer<frmMenu> self = this;
    perform(command);
    if (self != nullptr)
        m_pressGuard = false;
}

/// The icon can be used while a command of the panel has a dialog open; what opens one itself then waits its turn.
/// While all notes are saved or moved nothing else is done.
void frmMenu::runFromTray(Command command)
{
    constexpr std::array Independent{Command::New, Command::Show, Command::Save, Command::Help, Command::Exit};
    const bool isBusy = m_program.file.batchDepth > 0;
    if (!m_pressGuard)
        run(command);
    else if (!isBusy && !m_program.Exiting &&
             std::find(Independent.begin(), Independent.end(), command) != Independent.end())
        perform(command);
}

void frmMenu::perform(Command command)
{
    switch (command) {
    case Command::New:
        modCreateNote::createNewNote(m_program, false, isVisible() ? this : nullptr);
        break;
    case Command::Save:
        modForms::SaveAllWithProgress(m_program);
        break;
    case Command::Help:
        modHelp::ShowHelp(m_program);
        break;
    case Command::Exit:
        modInit::ExitProgram(m_program);
        break;
    case Command::Show:
        showMenu();
        break;
    case Command::AllToNoteStack:
        modForms::TransferAllToNoteStack(m_program);
        break;
    case Command::Options:
        openOptions();
        break;
    case Command::NoteStack:
    case Command::AllToDesktop:
        if (Form *stack = m_program.forms.find(formNames::NoteStack))
            command == Command::NoteStack ? stack->showStack() : stack->TransferAllToDesktop();
        break;
    case Command::About:
        openAbout();
        break;
    case Command::None:
        break;
    }
}

void frmMenu::openOptions()
{
    const QPointer<frmOptions> dialog = new frmOptions(m_program, isVisible() ? this : nullptr);
    dialog->Initialize(m_program.ProgramOptions);
    if (!showModally(dialog))
        return;
    dialog->OptionsResult(m_program.ProgramOptions);
    dialog->unload();
    if (isVisible())
        windowStacking::SetForegroundWindow(*this);
}

void frmMenu::openAbout()
{
    const QPointer<frmAbout> dialog = new frmAbout(m_program, isVisible() ? this : nullptr);
    if (showModally(dialog))
        dialog->unload();
}

/// The column of pictures stands in the middle, the captions to the right of it, the logo to the left.
void frmMenu::ResizeForm()
{
    const QSize picture = m_rows.front()->pictureSize();
    const int pictureLeft = width() / 2 - picture.width() / 2;
    const int rowHeight = qMin(RowHeight, height() / static_cast<int>(Commands));
    int top = (height() - rowHeight * static_cast<int>(Commands)) / 2;
    for (PanelRow *row : m_rows) {
        const int left = pictureLeft - RowReach;
        row->layOut(QRect(left, top, width() - left - RowReach, rowHeight), pictureLeft);
        top += rowHeight;
    }
    layOutLogo(pictureLeft - RowReach);
    m_grip->setGeometry(width() - GripSide, height() - GripSide, GripSide, GripSide);
}

void frmMenu::layOutLogo(int width)
{
    const int nameHeight = m_name->sizeHint().height();
    const int aboutHeight = m_about->sizeHint().height();
    int top = (height() - LogoSide - nameHeight - aboutHeight - LogoGap) / 2;
    m_logo->setGeometry((width - LogoSide) / 2, top, LogoSide, LogoSide);
    top += LogoSide + LogoGap;
    m_name->setGeometry(0, top, width, nameHeight);
    m_about->setGeometry(0, top + nameHeight, width, aboutHeight);
}

void frmMenu::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    if (!isMinimized())
        ResizeForm();
}

void frmMenu::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
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
    const Form *stack = m_program.forms.find(formNames::NoteStack);
    const auto count = static_cast<int>(m_program.forms.notes().size()) + (stack != nullptr ? stack->noteCount() : 0);
    m_tray->setTip(count == 1 ? tr("Quillets\n1 note") : tr("Quillets\n%1 notes").arg(count));
}

bool frmMenu::logoKeyPressed(const QKeyEvent &event)
{
    const bool isPress = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter || event.key() == Qt::Key_Space;
    if (isPress)
        run(Command::About);
    return isPress;
}

bool frmMenu::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_logo && event->type() == QEvent::KeyPress)
        return logoKeyPressed(*static_cast<QKeyEvent *>(event));
    if (watched == m_logo && (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut))
        m_logo->setFrameShape(event->type() == QEvent::FocusIn ? QFrame::StyledPanel : QFrame::NoFrame);
    const auto *mouse = dynamic_cast<QMouseEvent *>(event);
    if (mouse == nullptr)
        return false;
    if (watched == m_logo) {
        if (event->type() == QEvent::MouseButtonRelease && mouse->button() == Qt::LeftButton)
            run(Command::About);
        return true;
    }
    if (event->type() == QEvent::MouseButtonPress && mouse->button() == Qt::LeftButton)
        m_drag.press(WindowDrag::HitTest::BottomRight, mouse->globalPosition().toPoint());
    else if (event->type() == QEvent::MouseMove)
        m_drag.move(mouse->globalPosition().toPoint());
    else if (event->type() == QEvent::MouseButtonRelease)
        m_drag.release();
    return true;
}

void frmMenu::closeEvent(QCloseEvent *event)
{
    event->accept();
    m_tray->setVisible(false);
    if (m_program.Exiting)
        return;
    m_program.Exiting = true;
    modForms::CloseAllWindows(m_program);
    QCoreApplication::exit();
}
