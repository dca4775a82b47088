// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "restore/frmRestore.h"

#include "controls/dialogButtons.h"
#include "forms/Program.h"
#include "notes/commands/noteTitles.h"
#include "restore/CopyList.h"
#include "restore/KeptNotesModel.h"
#include "restore/NotePreview.h"
#include "security/noteLocks.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSplitter>
#include <QTreeView>

namespace
{

constexpr int Margin = 12;
constexpr QSize UsualSize(900, 580);
constexpr int CopiesWidth = 210;
constexpr int TitleWidth = 190;
constexpr int TextWidth = 210;
constexpr int TodayWidth = 76;

} // namespace

frmRestore::frmRestore(Program &program, QWidget *owner)
    : ModalDialog(program, Name, tr("Restore Notes - Quillets"), owner), m_notes(new KeptNotesModel(this)),
      m_shown(new ShownNotes(*m_notes))
{
    layOut();
    connectParts();
    resize(UsualSize);
}

void frmRestore::layOut()
{
    auto *halves = new QSplitter(this);
    halves->setChildrenCollapsible(false);
    halves->addWidget(makeCopies());
    halves->addWidget(makeNotes());
    halves->setStretchFactor(1, 1);
    halves->setSizes({CopiesWidth, UsualSize.width() - CopiesWidth});
    m_status = new QLabel(this);
    m_status->setObjectName(QStringLiteral("lblStatus"));
    m_status->setTextFormat(Qt::PlainText);
    m_status->setWordWrap(true);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->addWidget(halves, 1);
    layout->addWidget(m_status);
    layout->addWidget(makeButtons());
}

QWidget *frmRestore::makeCopies()
{
    auto *half = new QWidget(this);
    m_list = new CopyList(program(), half);
    auto *head = new QLabel(tr("The notes &as they were"), half);
    head->setBuddy(m_list);
    auto *layout = new QVBoxLayout(half);
    layout->setContentsMargins(0, 0, Margin / 2, 0);
    layout->addWidget(head);
    layout->addWidget(m_list);
    return half;
}

QWidget *frmRestore::makeNotes()
{
    auto *half = new QWidget(this);
    m_filter = new QLineEdit(half);
    m_filter->setObjectName(QStringLiteral("txtFilter"));
    m_filter->setPlaceholderText(tr("Words in title or text"));
    m_filter->setClearButtonEnabled(true);
    auto *caption = new QLabel(tr("&Find:"), half);
    caption->setBuddy(m_filter);
    m_all = new QCheckBox(tr("Show those that are the &same today"), half);
    m_all->setObjectName(QStringLiteral("chkAll"));
    auto *top = new QHBoxLayout;
    top->addWidget(caption);
    top->addWidget(m_filter, 1);
    top->addWidget(m_all);
    m_table = new QTreeView(half);
    m_table->setObjectName(QStringLiteral("trvNotes"));
    m_table->setAccessibleName(tr("Notes of this copy"));
    m_table->setModel(m_shown);
    m_table->setRootIsDecorated(false);
    m_table->setUniformRowHeights(true);
    m_table->setAllColumnsShowFocus(true);
    m_table->header()->setSectionsMovable(false);
    m_table->setColumnWidth(KeptNotesModel::Title, TitleWidth);
    m_table->setColumnWidth(KeptNotesModel::FirstLine, TextWidth);
    m_table->setColumnWidth(KeptNotesModel::Today, TodayWidth);
    m_preview = new NotePreview(half);
    auto *parts = new QSplitter(Qt::Vertical, half);
    parts->setChildrenCollapsible(false);
    parts->addWidget(m_table);
    parts->addWidget(m_preview);
    parts->setStretchFactor(0, 3);
    parts->setStretchFactor(1, 2);
    auto *layout = new QVBoxLayout(half);
    layout->setContentsMargins(Margin / 2, 0, 0, 0);
    layout->addLayout(top);
    layout->addWidget(parts, 1);
    return half;
}

QWidget *frmRestore::makeButtons()
{
    auto *buttons =
        dialogButtons::make(*this, {{QDialogButtonBox::Ok, "cmdOK"}, {QDialogButtonBox::Cancel, "cmdCancel"}});
    m_ok = buttons->button(QDialogButtonBox::Ok);
    m_chooseAll = buttons->addButton(tr("&Choose all shown"), QDialogButtonBox::ResetRole);
    m_chooseAll->setObjectName(QStringLiteral("cmdChooseAll"));
    return buttons;
}

void frmRestore::connectParts()
{
    connect(m_list, &QListWidget::currentRowChanged, this, &frmRestore::showCopy);
    connect(m_filter, &QLineEdit::textChanged, m_shown, &ShownNotes::setWords);
    connect(m_filter, &QLineEdit::textChanged, this, &frmRestore::showShown);
    connect(m_all, &QCheckBox::toggled, m_shown, &ShownNotes::setAll);
    connect(m_all, &QCheckBox::toggled, this, &frmRestore::showShown);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &frmRestore::showNote);
    connect(m_notes, &QAbstractItemModel::dataChanged, this, &frmRestore::showChosen);
    connect(m_chooseAll, &QPushButton::clicked, this, &frmRestore::chooseAllShown);
    connect(m_preview, &NotePreview::unlockWanted, this, &frmRestore::unlock);
}

void frmRestore::Initialize()
{
    m_list->fill();
    showChosen();
    m_list->setFocus();
}

void frmRestore::showCopy()
{
    std::optional<CopyReading> reading = m_list->read();
    if (!reading)
        return;
    m_flaw = reading->flaw();
    m_notes->setNotes(std::move(reading->notes));
    showShown();
}

/// Other notes are to be seen, of which one is always the current one.
void frmRestore::showShown()
{
    if (!m_table->currentIndex().isValid())
        m_table->setCurrentIndex(m_shown->index(0, 0));
    showChosen();
    showNote();
}

int frmRestore::currentNote() const
{
    const QModelIndex current = m_table->currentIndex();
    return current.isValid() ? m_shown->mapToSource(current).row() : -1;
}

void frmRestore::showNote()
{
    // The Space key marks the column that it is on.
    if (const QModelIndex current = m_table->currentIndex(); current.column() > 0)
        m_table->selectionModel()->setCurrentIndex(current.siblingAtColumn(0), QItemSelectionModel::NoUpdate);
    const int row = currentNote();
    m_preview->show(row < 0 ? nullptr : &m_notes->at(row));
}

void frmRestore::showChosen()
{
    int chosen = 0;
    for (const KeptNote &note : m_notes->notes())
        chosen += note.isChosen ? 1 : 0;
    m_ok->setText(chosen > 0 ? tr("Restore (%1)").arg(chosen) : tr("Restore"));
    m_ok->setEnabled(chosen > 0);
    m_chooseAll->setEnabled(m_shown->rowCount() > 0);
    showStatus();
}

void frmRestore::showStatus()
{
    if (m_list->count() == 0)
        m_status->setText(tr("There are no copies yet. One is kept at the first start of each day."));
    else if (!m_flaw.isEmpty())
        m_status->setText(m_flaw);
    else if (m_shown->rowCount() == 0 && m_filter->text().isEmpty())
        m_status->setText(tr("All notes of this copy are there today, with the same title and text."));
    else
        m_status->setText(tr("Chosen notes come back as new ones; nothing that is there is replaced."));
}

void frmRestore::chooseAllShown()
{
    for (int row = 0; row < m_shown->rowCount(); ++row)
        m_notes->choose(m_shown->mapToSource(m_shown->index(row, 0)).row(), true);
}

/// A box or the password dialog may have been open: the note of the row is the same, since this window is modal.
bool frmRestore::uncover(int row)
{
    const KeptNote kept = m_notes->at(row);
    clsNoteProps asked = kept.note;
    asked.Pwd = *kept.password;
    const QPointer<frmRestore> self = this;
    if (!noteLocks::checkUnlocking(program(), asked, noteTitles::promptTitle(asked, 0), this) || self == nullptr)
        return false;
    m_notes->uncover(row);
    showNote();
    return true;
}

void frmRestore::unlock()
{
    if (const int row = currentNote(); row >= 0 && m_notes->at(row).isCovered())
        uncover(row);
}

bool frmRestore::uncoverChosen()
{
    const QPointer<frmRestore> self = this;
    for (int row = 0; row < m_notes->rowCount(); ++row) {
        const KeptNote &kept = m_notes->at(row);
        if (kept.isChosen && kept.isCovered() && !kept.comesBackLocked() && (!uncover(row) || self == nullptr))
            return false;
    }
    return true;
}

void frmRestore::accept()
{
    if (uncoverChosen())
        ModalDialog::accept();
}

std::vector<clsNoteProps> frmRestore::RestoreResult() const
{
    std::vector<clsNoteProps> result;
    for (const KeptNote &kept : m_notes->notes())
        if (isAccepted() && kept.isChosen)
            result.push_back(kept.note);
    return result;
}
