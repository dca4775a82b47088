// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "forms/modFormsHiding.h"

#include "forms/Form.h"
#include "forms/NoteHolder.h"
#include "forms/Program.h"
#include "platform/displayPlatform.h"

#include <QWidget>

#include <algorithm>

namespace modForms
{
namespace
{

using HiddenWindow = Program::HiddenWindow;

/// Those that went, or were shown by something else, are no longer hidden.
void forgetShown(std::vector<HiddenWindow> &hidden)
{
    std::erase_if(hidden, [](const HiddenWindow &row) { return row.window == nullptr || row.window->isVisible(); });
}

void showAgain(const HiddenWindow &row)
{
    if (row.window == nullptr || row.window->isVisible())
        return;
    row.window->show();
    // The frame of a window may be added to its place by a show.
    if (!displayPlatform::hidesPlaces() && row.window->pos() != row.place)
        row.window->move(row.place);
}

void hideAll(Program &program)
{
    for (NoteHolder *holder : program.forms.holders())
        holder->commitEditing();
    for (Form *form : program.forms.loaded()) {
        QWidget *window = form->window();
        if (form->holder() == nullptr || window == nullptr || !window->isVisible())
            continue;
        program.hiddenWindows.push_back({window, window->pos()});
        window->hide();
    }
}

} // namespace

void ShowOrHideAll(Program &program)
{
    forgetShown(program.hiddenWindows);
    if (program.hiddenWindows.empty())
        return hideAll(program);
    for (const HiddenWindow &row : std::exchange(program.hiddenWindows, {}))
        showAgain(row);
}

bool isHiddenWithAll(const Program &program, Form &form)
{
    const auto &hidden = program.hiddenWindows;
    return std::any_of(hidden.begin(), hidden.end(),
                       [&form](const HiddenWindow &row) { return row.window == form.window(); });
}

void bringBack(Program &program, Form &form)
{
    const auto hidden = program.hiddenWindows;
    for (const HiddenWindow &row : hidden)
        if (row.window == form.window())
            showAgain(row);
    forgetShown(program.hiddenWindows);
}

} // namespace modForms
