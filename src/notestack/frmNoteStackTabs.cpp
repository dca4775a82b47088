// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notestack/frmNoteStack.h"

#include "notes/commands/noteDressing.h"
#include "notes/commands/noteTitles.h"
#include "notes/parts/LockOverlay.h"
#include "notes/parts/NoteTitle.h"
#include "drawing/textShortening.h"
#include "notestack/NoteTabs.h"
#include "notestack/StackNote.h"
#include "notestack/StackPage.h"
#include "drawing/colours.h"
#include "security/noteLocks.h"
#include "forms/Program.h"
#include "forms/modForms.h"

#include <QActionGroup>
#include <QMenu>
#include <QToolButton>

namespace
{
constexpr int ListWidth = 320; ///< Of a title in the list of all.
}

std::optional<size_t> frmNoteStack::indexOf(qint32 tag) const
{
    const auto found =
        std::find_if(m_notes.begin(), m_notes.end(), [tag](const auto &note) { return note->record.Tag == tag; });
    return found == m_notes.end() ? std::nullopt : std::optional(static_cast<size_t>(found - m_notes.begin()));
}

StackNote *frmNoteStack::noteAt(int index) const
{
    const bool inside = index >= 0 && static_cast<size_t>(index) < m_notes.size();
    return inside ? m_notes[static_cast<size_t>(index)].get() : nullptr;
}

StackNote *frmNoteStack::chosen() const
{
    return noteAt(m_tabs->currentIndex());
}

int frmNoteStack::noteCount() const
{
    return static_cast<int>(m_notes.size());
}

int frmNoteStack::NumOfQuillets() const
{
    return m_tabs->count();
}

int frmNoteStack::AddANote(const clsNoteProps &record)
{
    commitEditing();
    auto note = std::make_unique<StackNote>();
    StackNote *added = note.get();
    added->record = record;
    // Boxes may open while the tab is dressed: a note that opens locked is locked from the start.
    added->locked = noteLocks::opensLocked(record);
    added->body = std::make_unique<NoteBody>(m_page);
    added->body->setShown(false);
    const qint32 tag = record.Tag;
    added->alarm = std::make_unique<NoteAlarm>(m_program, [this, tag] { return recordOf(tag); });
    connectBody(*added);
    const int index = noteCount();
    m_notes.push_back(std::move(note));
    added->body->setIndex(index);
    {
        const QSignalBlocker quiet(m_tabs);
        if (index > 0)
            m_tabs->addTab(QString());
        m_tabs->setCurrentIndex(index);
    }
    ApplyTabAppearance(*added);
    // A box may have been open, and the note may have left and come back meanwhile as another.
    if (const auto now = indexOf(tag))
        ApplyTabState(*m_notes[*now]);
    SetActivatedForm();
    return index;
}

void frmNoteStack::connectBody(StackNote &note)
{
    const qint32 tag = note.record.Tag;
    connect(note.body.get(), &NoteBody::textPressed, this, [this](Qt::MouseButton button, QPoint at) {
        StackNote *pressed = chosen();
        if (pressed != nullptr && button == Qt::LeftButton)
            beginTextEditing(*pressed);
        else if (pressed != nullptr)
            openShortMenu(at);
    });
    connect(note.body.get(), &NoteBody::editingChanged, this, [this, tag](bool editing) {
        const clsNoteProps *record = recordOf(tag);
        if (record != nullptr && chosen() != nullptr && chosen()->record.Tag == tag)
            m_toolbar->setStatus(editing ? tr("Editing ...") : record->DateCreated);
    });
    connect(note.body.get(), &NoteBody::committed, this, [this, tag](const QString &text) {
        if (clsNoteProps *record = recordOf(tag)) {
            record->Data = text;
            record->SaveTag = 1;
        }
    });
    connect(note.alarm.get(), &NoteAlarm::fired, this, [this, tag] { AlarmCont(tag); });
    connect(note.alarm.get(), &NoteAlarm::armedChanged, this, [this] {
        if (const StackNote *shown = chosen())
            m_toolbar->showState(&shown->record);
    });
}

void frmNoteStack::AddFrmNote(const clsNoteProps &note)
{
    AddANote(note);
    showStack();
}

void frmNoteStack::ApplyTabAppearance(StackNote &note)
{
    note.ink = NoteInk::from(note.record.BackColor, note.record.ForeColor);
    note.body->setLook(noteDressing::textFont(note.record, font()), note.ink);
    if (!note.locked)
        note.body->setText(note.record.Data);
    if (const auto index = indexOf(note.record.Tag))
        m_tabs->setInk(static_cast<int>(*index), note.ink);
    noteDressing::dressPicture(m_program, note.record, *note.body, this);
}

void frmNoteStack::ApplyTabState(StackNote &note)
{
    if (note.record.TitleBarTitle.isEmpty())
        note.record.TempTitle = QString::number(note.record.Tag);
    showTitle(note);
    if (noteLocks::opensLocked(note.record))
        ShowLockLayer(note, true);
    const qint32 tag = note.record.Tag;
    noteDressing::checkSound(m_program, note.record, this);
    if (const auto now = indexOf(tag))
        ArmTabAlarm(*m_notes[*now]);
}

void frmNoteStack::showTitle(StackNote &note)
{
    const QString title = noteTitles::title(note.record);
    if (const auto index = indexOf(note.record.Tag))
        m_tabs->setTitle(static_cast<int>(*index), title);
    if (&note == chosen())
        m_title->setTitle(title);
}

void frmNoteStack::tabChosen()
{
    const bool blankTitle = m_title->isBlank();
    commitEditing();
    ShowNewTitle();
    // Events run while the box is open: the tabs have to have changed first.
    if (blankTitle)
        QMetaObject::invokeMethod(
            this, [this] { noteTitles::tellBlank(m_program, this); }, Qt::QueuedConnection);
}

void frmNoteStack::ShowNewTitle()
{
    if (!isEmpty())
        SetActivatedForm();
}

void frmNoteStack::SetActivatedForm()
{
    if (isEmpty())
        showEmpty();
    else
        showChosen();
}

void frmNoteStack::showChosen()
{
    StackNote *note = chosen();
    if (note == nullptr)
        return;
    for (const auto &other : m_notes)
        if (other.get() != note)
            other->body->setShown(false);
    m_empty->hide();
    dressPage(*note);
    m_title->setTitle(noteTitles::title(note->record));
    m_toolbar->showState(&note->record);
    m_toolbar->setStatus(note->body->isEditing() ? tr("Editing ...") : note->record.DateCreated);
    note->body->setGeometry(m_page->bodyRect());
    note->body->setShown(!note->locked);
    m_exit->setVisible(!note->locked);
    m_overlay->setVisible(note->locked);
    m_grip->raise();
}

void frmNoteStack::dressPage(const StackNote &note)
{
    m_page->setInk(note.ink);
    for (PictureButton *button : {m_menu, m_exit})
        button->setInk(note.ink.buttonInk);
    m_title->setInk(note.ink.ink, note.ink.paper);
    m_toolbar->setInk(note.ink.buttonInk, note.ink.faintInk);
    m_overlay->setInk(note.ink.ink, note.ink.paper);
    QColor grip = note.ink.ink;
    grip.setAlphaF(0.5F);
    m_grip->setPixmap(m_program.pictures().shape(QStringLiteral("resize.gif"), grip, devicePixelRatioF()));
}

void frmNoteStack::showEmpty()
{
    StackNote none;
    none.ink = NoteInk::from(colours::toLong(palette().color(QPalette::Base)),
                             colours::toLong(palette().color(QPalette::Text)));
    dressPage(none);
    m_tabs->setEmpty(0);
    m_title->setTitle(QStringLiteral("Quillets"));
    m_toolbar->showState(nullptr);
    m_toolbar->setStatus(QStringLiteral("Quillets"));
    m_overlay->setVisible(false);
    m_exit->setVisible(true);
    m_empty->show();
    m_empty->raise();
    m_grip->raise();
}

/// What is behind the removed tab moves up by one, once, whatever it holds.
void frmNoteStack::removeTab(size_t index)
{
    const auto gone = std::move(m_notes[index]);
    gone->alarm->Destroy();
    m_notes.erase(m_notes.begin() + static_cast<std::ptrdiff_t>(index));
    renumber(index);
    {
        const QSignalBlocker quiet(m_tabs);
        if (m_tabs->count() > 1)
            m_tabs->removeTab(static_cast<int>(index));
        m_tabs->setCurrentIndex(qMin(static_cast<int>(index), m_tabs->count() - 1));
    }
    if (m_titleTag == gone->record.Tag)
        m_title->giveUp();
    gone->body->setShown(false);
    gone->body.release()->deleteLater();
    gone->alarm.release()->deleteLater();
    SetActivatedForm();
}

void frmNoteStack::renumber(size_t from)
{
    for (size_t i = from; i < m_notes.size(); ++i)
        m_notes[i]->body->setIndex(static_cast<int>(i));
}

void frmNoteStack::ShowLockLayer(StackNote &note, bool locked)
{
    if (locked) {
        if (&note == chosen())
            m_title->giveUp();
        note.body->commit();
        note.body->forgetText();
    } else {
        note.body->setText(note.record.Data);
    }
    note.locked = locked;
    if (&note == chosen())
        showChosen();
}

void frmNoteStack::lockform(int index)
{
    if (StackNote *note = index < 0 ? chosen() : noteAt(index))
        ShowLockLayer(*note, true);
}

void frmNoteStack::lockNote(qint32 tag)
{
    if (const auto index = indexOf(tag))
        ShowLockLayer(*m_notes[*index], true);
}

/// A list of all titles for when there are more tabs than fit.
void frmNoteStack::showTabList()
{
    const QPointer<QMenu> menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("mnuTabList"));
    auto *group = new QActionGroup(menu);
    for (int i = 0; i < noteCount(); ++i) {
        const QString title = textShortening::shortened(noteTitles::title(m_notes[static_cast<size_t>(i)]->record),
                                                        ListWidth, menu->font());
        QAction *action = menu->addAction(QString(title).replace(u'&', QLatin1String("&&")));
        action->setActionGroup(group);
        action->setCheckable(true);
        action->setChecked(i == m_tabs->currentIndex());
        action->setData(m_notes[static_cast<size_t>(i)]->record.Tag);
    }
    const QAction *picked = menu->exec(m_list->mapToGlobal(QPoint(0, m_list->height())));
    // The window may have gone meanwhile, and the menu with it.
    if (menu == nullptr)
        return;
    const qint32 tag = picked != nullptr ? picked->data().toInt() : 0;
    menu->deleteLater();
    if (const auto index = indexOf(tag); index && tag != 0)
        m_tabs->setCurrentIndex(static_cast<int>(*index));
}

void frmNoteStack::SaveThisStackSys()
{
    SaveThisStack([](int) { return true; });
}

void frmNoteStack::SaveThisStack(const std::function<bool(int)> &goOn)
{
    std::vector<qint32> tags;
    for (const auto &note : m_notes)
        tags.push_back(note->record.Tag);
    for (size_t i = 0; i < tags.size() && goOn(static_cast<int>(i)); ++i)
        if (clsNoteProps *record = recordOf(tags[i]))
            modForms::saveNote(m_program, *record);
}

std::vector<qint32> frmNoteStack::changedTags() const
{
    std::vector<qint32> tags;
    for (const auto &note : m_notes)
        if (note->record.SaveTag == 1)
            tags.push_back(note->record.Tag);
    return tags;
}

void frmNoteStack::rescue(const std::function<void(const clsNoteProps &)> &write) const
{
    for (const auto &note : m_notes) {
        clsNoteProps record = note->record;
        if (note->body->isEditing())
            record.Data = note->body->typedText();
        if (record.SaveTag == 1 || note->body->isEditing())
            write(record);
    }
}

void frmNoteStack::markUnsaved(qint32 tag)
{
    if (clsNoteProps *record = recordOf(tag))
        record->SaveTag = 1;
}

clsNoteProps *frmNoteStack::recordOf(qint32 tag)
{
    const auto index = indexOf(tag);
    return index ? &m_notes[*index]->record : nullptr;
}

void frmNoteStack::recordChanged(qint32 tag)
{
    auto index = indexOf(tag);
    if (!index)
        return;
    ApplyTabAppearance(*m_notes[*index]);
    index = indexOf(tag);
    if (!index)
        return;
    ArmTabAlarm(*m_notes[*index]);
    ShowNewTitle();
}

void frmNoteStack::ArmTabAlarm(StackNote &note)
{
    note.alarm->ArmNoteAlarm();
    if (&note == chosen())
        m_toolbar->showState(&note.record);
}

void frmNoteStack::ResetAlarms()
{
    for (const auto &note : m_notes)
        ArmTabAlarm(*note);
}

void frmNoteStack::TextLostFocus()
{
    if (StackNote *note = chosen())
        note->body->commit();
}

void frmNoteStack::commitEditing()
{
    m_title->commitQuietly();
    for (const auto &note : m_notes)
        note->body->commit();
}
