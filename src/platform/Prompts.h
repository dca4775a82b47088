// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QWidget;

/// What a message box shows. The caption is the window's title.
struct Message
{
    enum class Icon
    {
        None,
        Exclamation,
        Critical
    };
    enum class Buttons
    {
        Ok,
        OkCancel
    };

    /// What the Enter key means.
    enum class Enter
    {
        Ok,
        Cancel ///< For what OK would give up.
    };

    QString text;
    QString caption = QStringLiteral("Quillets");
    Icon icon = Icon::None;
    Buttons buttons = Buttons::Ok;
    Enter enter = Enter::Ok;
    QString details{}; ///< For who asks for them by a button of the box; it is not there without.
    QString second{};  ///< Caption of another button beside OK; empty: there is none.

    bool operator==(const Message &) const = default;
};

/// Everything that is asked of the person at the screen goes through here, so that a test can answer in their place.
/// Events run while a question is open: whoever asks looks again at what it holds when the answer is there.
class Prompts
{
public:
    enum class Answer
    {
        Ok,
        Cancel,
        Second
    };

    Prompts() = default;
    Prompts(const Prompts &) = delete;
    Prompts &operator=(const Prompts &) = delete;
    virtual ~Prompts() = default;

    /// Closing the box in any other way than by OK is Cancel.
    virtual Answer ask(const Message &message, QWidget *owner) = 0;
    void tell(const Message &message, QWidget *owner) { ask(message, owner); }
};
