// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/commands/noteFinding.h"

#include "notes/parts/NoteBody.h"
#include "search/FoldedText.h"

namespace
{

void showFrom(NoteBody &body, const QString &text, qsizetype from)
{
    if (const auto part = FoldedText(body.searchedText()).findRound(Needle(text), from))
        body.showFound(part->at, part->length);
}

} // namespace

void noteFinding::showNext(NoteBody &body, const QString &text)
{
    showFrom(body, text, body.searchedTo());
}

void noteFinding::showFirst(NoteBody &body, const QString &text)
{
    showFrom(body, text, 0);
}
