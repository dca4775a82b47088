// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "exchange/noticeBox.h"

#include "forms/Program.h"
#include "net/visibleText.h"

Message noticeBox::messageOf(const Notice &notice)
{
    Message message{notice.text, notice.caption, notice.isCritical ? Message::Icon::Critical : Message::Icon::None};
    message.details = visibleText::lines(notice.details);
    return message;
}

void noticeBox::tell(Program &program, const Notice &notice, QWidget *owner)
{
    program.prompts().tell(messageOf(notice), owner);
}
