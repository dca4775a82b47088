// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Prompts.h"

#include <QTest>

#include <deque>
#include <functional>

/// Answers boxes in place of a person. A box that nobody expects fails the test.
class ScriptedPrompts final : public Prompts
{
public:
    void expect(Answer answer) { m_answers.push_back(answer); }
    /// Every expected box has been shown.
    bool isDone() const { return m_answers.empty(); }

    Answer ask(const Message &message, QWidget *) override
    {
        last = message;
        if (whileOpen)
            std::exchange(whileOpen, nullptr)();
        if (m_answers.empty()) {
            QTest::qFail(qPrintable(QStringLiteral("Unexpected box: ") + message.text), __FILE__, __LINE__);
            return Answer::Cancel;
        }
        const Answer answer = m_answers.front();
        m_answers.pop_front();
        return answer;
    }

    Message last;
    /// What goes on behind the next box.
    std::function<void()> whileOpen;

private:
    std::deque<Answer> m_answers;
};
