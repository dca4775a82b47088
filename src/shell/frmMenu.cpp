// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "shell/frmMenu.h"

#include "notes/modCreateNote.h"
#include "platform/WindowStacking.h"
#include "shell/PanelRow.h"
#include "shell/common/Program.h"
#include "shell/common/modForms.h"
#include "shell/modInit.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QLabel>

namespace {

constexpr int RowHeight = 30;
constexpr int RowReach = 10; ///< How far a row begins left of its picture and ends before the panel's edge.
constexpr int LogoSide = 64;
constexpr int LogoGap = 10;

struct RowText
{
    const char *name;
    const char *caption;
};

constexpr std::array<RowText, 8> Rows{{
    {"New", QT_TRANSLATE_NOOP("frmMenu", "New Desktop Quillet")},
    {"NoteStack", QT_TRANSLATE_NOOP("frmMenu", "View NoteStack")},
    {"DtoN", QT_TRANSLATE_NOOP("frmMenu", "All to NoteStack")},
    {"NtoD", QT_TRANSLATE_NOOP("frmMenu", "All to Desktop")},
    {"Save", QT_TRANSLATE_NOOP("frmMenu", "Save All Quillets")},
    {"Options", QT_TRANSLATE_NOOP("frmMenu", "Quillets Options")},
    {"Help", QT_TRANSLATE_NOOP("frmMenu", "Quillets Help")},
    {"Exit", QT_TRANSLATE_NOOP("frmMenu", "Quillets Exit")},
}};

} // namespace

frmMenu::frmMenu(Program &program) : Form(program.forms, formNames::Menu.toString()), m_program(program)
{
    setObjectName(formName());
    setWindowTitle(tr("Menu - Quillets"));
    makeLogo();
    makeRows();
}

void frmMenu::makeLogo()
{
    m_logo = new QLabel(this);
    m_logo->setObjectName(QStringLiteral("imgQuilletsLogo"));
    m_logo->setPixmap(m_program.pictures().programIcon().pixmap(QSize(LogoSide, LogoSide), devicePixelRatioF()));
    m_logo->setAlignment(Qt::AlignCenter);
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
    const std::array<std::function<void()>, Commands> commands{
        [this] { modCreateNote::createNewNote(m_program, false); },
        {},
        {},
        {},
        [this] { modForms::SaveAllWithProgress(m_program); },
        {},
        {},
        [this] { modInit::ExitProgram(m_program); },
    };
    for (size_t i = 0; i < Rows.size(); ++i) {
        auto *row = new PanelRow(m_program.pictures(), QLatin1String(Rows[i].name), tr(Rows[i].caption), this);
        m_rows[i] = row;
        if (!commands[i]) {
            row->setEnabled(false);
            row->setToolTip(tr("Not in this version yet."));
            continue;
        }
        connect(row, &PanelRow::commanded, this, [this, command = commands[i]] { run(command); });
    }
}

void frmMenu::run(const std::function<void()> &command)
{
    if (m_pressGuard)
        return;
    m_pressGuard = true;
    windowStacking::SetForegroundWindow(*this);
    const QPointer<frmMenu> self = this;
    command();
    if (self != nullptr)
        m_pressGuard = false;
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
    const int nameHeight = m_name->sizeHint().height();
    const int aboutHeight = m_about->sizeHint().height();
    const int logoWidth = pictureLeft - RowReach;
    int logoTop = (height() - LogoSide - nameHeight - aboutHeight - LogoGap) / 2;
    m_logo->setGeometry(0, logoTop, logoWidth, LogoSide);
    m_name->setGeometry(0, logoTop += LogoSide + LogoGap, logoWidth, nameHeight);
    m_about->setGeometry(0, logoTop + nameHeight, logoWidth, aboutHeight);
}

void frmMenu::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    ResizeForm();
}

void frmMenu::closeEvent(QCloseEvent *event)
{
    event->accept();
    if (m_program.Exiting)
        return;
    m_program.Exiting = true;
    modForms::CloseAllWindows(m_program);
    QCoreApplication::quit();
}
