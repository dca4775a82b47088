// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "find/frmFind.h"

#include "find/HitList.h"
#include "find/NoteSearch.h"
#include "forms/Program.h"
#include "forms/modForms.h"
#include "notes/commands/LiveNote.h"
#include "notes/commands/NoteHost.h"
#include "notes/commands/noteFinding.h"
#include "platform/windowStacking.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace
{
constexpr QSize DesignSize(5000, 4600); // twips
constexpr int Margin = 8;
} // namespace

frmFind::frmFind(Program &program)
    : Form(program.forms, formNames::Find.toString()), m_program(program), m_search(new NoteSearch(program, this)),
      m_text(new QLineEdit(this)), m_hits(new HitList(this)), m_count(new QLabel(this))
{
    setObjectName(formName());
    setWindowTitle(tr("Find - Quillets"));
    setWindowIcon(program.pictures().programIcon());
    m_text->setObjectName(QStringLiteral("txtFind"));
    m_text->setPlaceholderText(tr("Find in all notes"));
    m_text->setAccessibleName(tr("Find in all notes"));
    m_text->setClearButtonEnabled(true);
    m_text->installEventFilter(this);
    m_count->setObjectName(QStringLiteral("lblCount"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    for (QWidget *part : std::initializer_list<QWidget *>{m_text, m_hits, m_count})
        layout->addWidget(part);
    connect(m_text, &QLineEdit::textChanged, this, &frmFind::begin);
    connect(m_hits, &HitList::opened, this, &frmFind::showNote);
    connect(m_search, &NoteSearch::found, this, [this](const std::vector<Hit> &hits, bool isFirst) {
        isFirst ? m_hits->showHits(hits) : m_hits->append(hits);
    });
    connect(m_search, &NoteSearch::finished, this, &frmFind::tellCount);
    modForms::ScaleForm(*this, DesignSize);
}

void frmFind::open(Program &program)
{
    auto *window = dynamic_cast<frmFind *>(program.forms.find(formNames::Find));
    if (window == nullptr) {
        window = new frmFind(program);
        windowStacking::keepAboveNotes(*window);
    }
    window->m_text->setText(program.lastSearch);
    window->m_text->selectAll();
    window->m_text->setFocus();
    window->begin();
    window->show();
    windowStacking::SetForegroundWindow(*window);
}

void frmFind::begin()
{
    m_program.lastSearch = m_text->text();
    m_search->begin(m_text->text());
}

void frmFind::tellCount()
{
    const int count = m_hits->count();
    m_count->setText(count == 1 ? tr("1 note") : tr("%1 notes").arg(count));
}

/// The note may have changed since it was found, or be gone.
void frmFind::showNote()
{
    const Hit *chosen = m_hits->chosen();
    if (chosen == nullptr)
        return;
    const Hit hit = *chosen;
    NoteHost *host = NoteHost::of(m_program, hit.tag);
    if (host == nullptr)
        return begin();
    host->reveal(hit.tag);
    LiveNote *note = host->live(hit.tag);
    if (note == nullptr || note->locked || !hit.inText)
        return;
    if (note->record.FrmScrolledOn)
        host->runOwn(NoteCommand::Scrolled);
    noteFinding::showFirst(note->body, m_program.lastSearch);
}

void frmFind::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    // The notes may have changed meanwhile.
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && !isUnloaded())
        begin();
}

void frmFind::closeEvent(QCloseEvent *event)
{
    event->accept();
    // The folded texts go with it.
    if (!isUnloaded())
        unload();
}

void frmFind::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    if (key == Qt::Key_Escape)
        close();
    else if (key == Qt::Key_Return || key == Qt::Key_Enter)
        showNote();
    else if (key == Qt::Key_F6)
        modForms::activateNext(m_program, *this);
    else
        QWidget::keyPressEvent(event);
}

/// The arrows go through the list while one types.
bool frmFind::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_text || event->type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key != Qt::Key_Up && key != Qt::Key_Down && key != Qt::Key_PageUp && key != Qt::Key_PageDown)
        return false;
    return QCoreApplication::sendEvent(m_hits, event);
}
