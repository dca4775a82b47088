// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "forms/Forms.h"

#include "forms/Form.h"
#include "forms/NoteHolder.h"

#include <QWidget>

#include <algorithm>

Form::Form(Forms &forms, QString formName) : m_forms(&forms), m_formName(std::move(formName))
{
    forms.add(this);
}

Form::~Form()
{
    if (m_forms != nullptr)
        m_forms->remove(this);
}

void Form::unload()
{
    if (m_forms == nullptr)
        return;
    m_forms->remove(this);
    m_forms = nullptr;
    if (QWidget *widget = window()) {
        widget->hide();
        widget->deleteLater();
    }
}

bool Forms::isLoaded(const Form *form) const
{
    return std::find(m_loaded.begin(), m_loaded.end(), form) != m_loaded.end();
}

Form *Forms::find(QStringView formName) const
{
    const auto found =
        std::find_if(m_loaded.begin(), m_loaded.end(), [&](const Form *form) { return form->formName() == formName; });
    return found == m_loaded.end() ? nullptr : *found;
}

StackHolder *Forms::stack() const
{
    return dynamic_cast<StackHolder *>(find(formNames::NoteStack));
}

std::vector<Form *> Forms::notes() const
{
    std::vector<Form *> result;
    std::copy_if(m_loaded.begin(), m_loaded.end(), std::back_inserter(result), [](Form *form) {
        return form->formName() == formNames::Note && form->holder() != nullptr && !form->holder()->tags().empty();
    });
    return result;
}

Form *Forms::note(qint32 tag) const
{
    const auto all = notes();
    const auto found =
        std::find_if(all.begin(), all.end(), [tag](Form *form) { return form->holder()->recordOf(tag) != nullptr; });
    return found == all.end() ? nullptr : *found;
}

std::vector<NoteHolder *> Forms::holders() const
{
    std::vector<NoteHolder *> result;
    for (Form *form : m_loaded)
        if (NoteHolder *holder = form->holder())
            result.push_back(holder);
    Form *stack = find(formNames::NoteStack);
    std::stable_partition(result.begin(), result.end(),
                          [stack](const NoteHolder *holder) { return stack == nullptr || holder != stack->holder(); });
    return result;
}

std::vector<qint32> Forms::tags() const
{
    std::vector<qint32> result;
    for (const NoteHolder *holder : holders()) {
        const auto tags = holder->tags();
        result.insert(result.end(), tags.begin(), tags.end());
    }
    return result;
}

NoteHolder *Forms::holderOf(qint32 tag) const
{
    for (Form *form : m_loaded)
        if (NoteHolder *holder = form->holder(); holder != nullptr && holder->recordOf(tag) != nullptr)
            return holder;
    return nullptr;
}

clsNoteProps *Forms::recordOf(qint32 tag) const
{
    NoteHolder *holder = holderOf(tag);
    return holder != nullptr ? holder->recordOf(tag) : nullptr;
}

void Forms::add(Form *form)
{
    m_loaded.push_back(form);
    if (changed)
        changed();
}

void Forms::remove(Form *form)
{
    std::erase(m_loaded, form);
    if (changed)
        changed();
}
