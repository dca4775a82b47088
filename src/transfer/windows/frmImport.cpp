// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "transfer/windows/frmImport.h"

#include "controls/dialogButtons.h"
#include "forms/Program.h"
#include "platform/Choosers.h"
#include "platform/Prompts.h"

#include <QCheckBox>
#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace
{

constexpr QSize UsualSize(380, 340);
constexpr int Margin = 16;
constexpr qsizetype MostTold = 10; ///< File names in a box.

} // namespace

frmImport::frmImport(Program &program, QWidget *owner)
    : ModalDialog(program, u"frmImport", tr("Import notes - Quillets"), owner), m_sources(new QListWidget(this)),
      m_stack(new QCheckBox(tr("Into the &NoteStack"), this))
{
    m_sources->setObjectName(QStringLiteral("lstSources"));
    m_sources->setAccessibleName(tr("Notes to import"));
    m_stack->setObjectName(QStringLiteral("chkNoteStack"));
    m_stack->setChecked(true);
    auto *files = new QPushButton(tr("Choose &files ..."), this);
    files->setObjectName(QStringLiteral("cmdFiles"));
    connect(files, &QPushButton::clicked, this, &frmImport::chooseFiles);
    auto *told = new QLabel(tr("Text and Markdown files, and the notes of other programs where there are some. "
                               "Formatting becomes plain text."),
                            this);
    told->setWordWrap(true);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->addWidget(told);
    layout->addWidget(m_sources);
    layout->addWidget(files, 0, Qt::AlignLeft);
    layout->addWidget(m_stack);
    layout->addSpacing(Margin / 2);
    layout->addWidget(
        dialogButtons::make(*this, {{QDialogButtonBox::Ok, "OKButton"}, {QDialogButtonBox::Cancel, "CancelButton"}}));
    resize(UsualSize);
}

void frmImport::Initialize(const std::vector<noteSources::Source> &sources, const QStringList &files)
{
    for (const auto &source : sources) {
        const auto count = static_cast<int>(source.notes.size());
        addRow(count == 1 ? tr("%1: 1 note").arg(source.program) : tr("%1: %2 notes").arg(source.program).arg(count),
               source.notes);
    }
    if (!files.isEmpty())
        addFiles(files);
}

void frmImport::addRow(const QString &caption, std::vector<CarriedNote> notes)
{
    auto *item = new QListWidgetItem(caption, m_sources);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item->setCheckState(Qt::Checked);
    m_notes.push_back(std::move(notes));
}

void frmImport::addFiles(const QStringList &paths)
{
    QStringList refused;
    for (const QString &path : paths) {
        noteSources::Read read = noteSources::ofFiles({path});
        if (read.notes.empty())
            refused.append(QFileInfo(path).fileName());
        else
            addRow(QFileInfo(path).fileName(), std::move(read.notes));
    }
    if (refused.isEmpty())
        return;
    const QString more = refused.size() > MostTold ? QStringLiteral("\n...") : QString();
    program().prompts().tell(
        {tr("These files hold no notes that can be read:\n") + refused.mid(0, MostTold).join(u'\n') + more,
         tr("Import"), Message::Icon::Exclamation},
        this);
}

void frmImport::chooseFiles()
{
    const QPointer<frmImport> self = this;
    const QStringList paths = program().choosers().openFiles(
        {tr("Import notes"), {tr("Notes (*.txt *.text *.md *.markdown *.note *.ics)"), tr("All files (*)")}, {}}, this);
    if (self != nullptr && isVisible() && !paths.isEmpty())
        addFiles(paths);
}

std::vector<CarriedNote> frmImport::checkedNotes() const
{
    std::vector<CarriedNote> notes;
    for (int row = 0; row < m_sources->count(); ++row)
        if (m_sources->item(row)->checkState() == Qt::Checked)
            notes.insert(notes.end(), m_notes[static_cast<size_t>(row)].begin(),
                         m_notes[static_cast<size_t>(row)].end());
    return notes;
}

std::optional<Flaw> frmImport::findFlaw()
{
    if (!checkedNotes().empty())
        return std::nullopt;
    return Flaw{{tr("Please choose something to import."), tr("Error"), Message::Icon::Critical}, m_sources};
}

std::vector<CarriedNote> frmImport::ImportResult() const
{
    return isAccepted() ? checkedNotes() : std::vector<CarriedNote>();
}

bool frmImport::intoNoteStack() const
{
    return m_stack->isChecked();
}
