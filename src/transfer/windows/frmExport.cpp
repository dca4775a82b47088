// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "transfer/windows/frmExport.h"

#include "controls/dialogButtons.h"
#include "drawing/colours.h"
#include "drawing/textShortening.h"
#include "forms/Program.h"
#include "notes/commands/noteTitles.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

namespace
{

constexpr QSize UsualSize(380, 420);
constexpr int Swatch = 16;
constexpr int Margin = 16;
constexpr qsizetype LongestTitle = 200;

QPixmap swatch(qint32 colour)
{
    QPixmap picture(Swatch, Swatch);
    picture.fill(colours::fromLong(colour));
    return picture;
}

} // namespace

frmExport::frmExport(Program &program, QWidget *owner)
    : ModalDialog(program, u"frmExport", tr("Export notes - Quillets"), owner),
      m_all(new QCheckBox(tr("&All notes"), this)), m_notes(new QListWidget(this)), m_format(new QComboBox(this))
{
    m_all->setObjectName(QStringLiteral("chkAll"));
    m_notes->setObjectName(QStringLiteral("lstNotes"));
    m_notes->setAccessibleName(tr("Notes to export"));
    m_notes->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_format->setObjectName(QStringLiteral("cmbFormat"));
    m_format->addItems({tr("Text (.txt)"), tr("Markdown (.md)")});
    listNotes();
    layOut();
    showAll();
    connect(m_all, &QCheckBox::clicked, this, &frmExport::checkAll);
    connect(m_notes, &QListWidget::itemChanged, this, &frmExport::showAll);
}

void frmExport::layOut()
{
    auto *format = new QFormLayout;
    format->addRow(tr("Export &as:"), m_format);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->addWidget(m_all);
    layout->addWidget(m_notes);
    layout->addLayout(format);
    layout->addSpacing(Margin / 2);
    layout->addWidget(
        dialogButtons::make(*this, {{QDialogButtonBox::Ok, "OKButton"}, {QDialogButtonBox::Cancel, "CancelButton"}}));
    resize(UsualSize);
}

void frmExport::listNotes()
{
    for (const qint32 tag : program().forms.tags()) {
        const clsNoteProps &note = *program().forms.recordOf(tag);
        const QString title = textShortening::onOneLine(noteTitles::title(note).left(LongestTitle));
        auto *item = new QListWidgetItem(swatch(note.BackColor), title, m_notes);
        item->setData(Qt::UserRole, tag);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Checked);
    }
}

std::vector<qint32> frmExport::checkedTags() const
{
    std::vector<qint32> tags;
    for (int row = 0; row < m_notes->count(); ++row)
        if (m_notes->item(row)->checkState() == Qt::Checked)
            tags.push_back(m_notes->item(row)->data(Qt::UserRole).toInt());
    return tags;
}

/// A click never leads to the state in between.
void frmExport::checkAll()
{
    const bool on = static_cast<int>(checkedTags().size()) < m_notes->count();
    for (int row = 0; row < m_notes->count(); ++row)
        m_notes->item(row)->setCheckState(on ? Qt::Checked : Qt::Unchecked);
}

void frmExport::showAll()
{
    const auto count = static_cast<int>(checkedTags().size());
    m_all->setCheckState(count == 0 ? Qt::Unchecked : count == m_notes->count() ? Qt::Checked : Qt::PartiallyChecked);
}

std::optional<Flaw> frmExport::findFlaw()
{
    if (!checkedTags().empty())
        return std::nullopt;
    return Flaw{{tr("Please choose a note."), tr("Error"), Message::Icon::Critical}, m_notes};
}

std::vector<qint32> frmExport::ExportResult() const
{
    return isAccepted() ? checkedTags() : std::vector<qint32>();
}

noteFiles::Format frmExport::format() const
{
    return m_format->currentIndex() == 0 ? noteFiles::Format::Text : noteFiles::Format::Markdown;
}
