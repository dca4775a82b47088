// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "dialogs/DesktopGroup.h"

#include "controls/CheckRow.h"
#include "dialogs/pageLayout.h"
#include "platform/GlobalKeys.h"
#include "platform/autostart.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QKeySequenceEdit>
#include <QSignalBlocker>

namespace
{

/// Of what was typed the first chord; the field takes up to four.
QKeySequence chord(const QKeySequence &keys)
{
    return keys.count() > 1 ? QKeySequence(keys[0]) : keys;
}

QString textOf(const QKeySequenceEdit *edit)
{
    return edit == nullptr ? QString() : chord(edit->keySequence()).toString(QKeySequence::PortableText);
}

} // namespace

DesktopGroup::DesktopGroup(QWidget *dialog) : QGroupBox(tr("Desktop"), dialog)
{
    QFormLayout *rows = pageLayout::rowsOf(this);
    if (autostart::isSupported()) {
        m_atLogIn = new CheckRow(QStringLiteral("AtLogIn"), tr("&Start Quillets at log-in"), this);
        rows->addRow(m_atLogIn);
    }
    if (!GlobalKeys::isSupported())
        return;
    m_newNote = addKeys(*rows, "keyNewNote", tr("New note, in all p&rograms:"));
    m_showOrHideAll = addKeys(*rows, "keyShowOrHideAll", tr("Show or hide all, likew&ise:"));
}

bool DesktopGroup::isSupported()
{
    return autostart::isSupported() || GlobalKeys::isSupported();
}

QKeySequenceEdit *DesktopGroup::addKeys(QFormLayout &rows, const char *name, const QString &caption)
{
    auto *edit = new QKeySequenceEdit(this);
    edit->setObjectName(QLatin1String(name));
    edit->setClearButtonEnabled(true);
    connect(edit, &QKeySequenceEdit::keySequenceChanged, edit, [edit](const QKeySequence &keys) {
        if (keys.count() > 1)
            edit->setKeySequence(chord(keys));
    });
    rows.addRow(caption, edit);
    return edit;
}

void DesktopGroup::setFields(bool atLogIn, const clsKeySettings &keys)
{
    if (m_atLogIn != nullptr)
        m_atLogIn->box()->setChecked(atLogIn);
    if (m_newNote == nullptr)
        return;
    m_newNote->setKeySequence(QKeySequence::fromString(keys.NewNote));
    m_showOrHideAll->setKeySequence(QKeySequence::fromString(keys.ShowOrHideAll));
}

bool DesktopGroup::atLogIn() const
{
    return m_atLogIn != nullptr && m_atLogIn->box()->isChecked();
}

clsKeySettings DesktopGroup::keys() const
{
    return {textOf(m_newNote), textOf(m_showOrHideAll)};
}

std::optional<Flaw> DesktopGroup::findFlaw() const
{
    const auto flaw = [](const QString &text, QWidget *field) {
        return Flaw{{text, tr("Key Error"), Message::Icon::Critical}, field};
    };
    for (QKeySequenceEdit *edit : {m_newNote, m_showOrHideAll})
        if (edit != nullptr && !GlobalKeys::canBe(chord(edit->keySequence())))
            return flaw(tr("A key for all programs needs Ctrl, Alt or the Windows key,\nso that it can be typed "
                           "elsewhere.  Please enter another."),
                        edit);
    if (m_newNote != nullptr && !keys().NewNote.isEmpty() && keys().NewNote == keys().ShowOrHideAll)
        return flaw(tr("One key cannot do both.  Please enter another."), m_showOrHideAll);
    return std::nullopt;
}
