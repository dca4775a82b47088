// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "forms/Forms.h"

#include "forms/Form.h"

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

std::vector<Form *> Forms::notes() const
{
    std::vector<Form *> result;
    std::copy_if(m_loaded.begin(), m_loaded.end(), std::back_inserter(result),
                 [](const Form *form) { return form->formName() == formNames::Note && form->Tag() != 0; });
    return result;
}

Form *Forms::note(qint32 tag) const
{
    const auto all = notes();
    const auto found = std::find_if(all.begin(), all.end(), [tag](const Form *form) { return form->Tag() == tag; });
    return found == all.end() ? nullptr : *found;
}

Form *Forms::holderOf(qint32 tag) const
{
    const auto found =
        std::find_if(m_loaded.begin(), m_loaded.end(), [tag](Form *form) { return form->recordOf(tag) != nullptr; });
    return found == m_loaded.end() ? nullptr : *found;
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
