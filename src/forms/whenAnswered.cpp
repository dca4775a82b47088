// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "forms/whenAnswered.h"

#include "forms/modForms.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

namespace
{

/// Looks whenever a window closes, and goes when it has called.
class AnswerWatch final : public QObject
{
public:
    AnswerWatch(Program &program, QObject *context, std::function<void()> then)
        : QObject(context), m_program(program), m_then(std::move(then))
    {
        qApp->installEventFilter(this);
        lookLater();
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::WindowUnblocked ||
            (event->type() == QEvent::Hide && watched->isWidgetType() && static_cast<QWidget *>(watched)->isWindow()))
            lookLater();
        return false;
    }

private:
    void lookLater()
    {
        QMetaObject::invokeMethod(
            this, [this] { look(); }, Qt::QueuedConnection);
    }
    void look()
    {
        if (m_then == nullptr || modForms::isAnswerAwaited(m_program))
            return;
        qApp->removeEventFilter(this);
        deleteLater();
        std::exchange(m_then, nullptr)();
    }

    Program &m_program;
    std::function<void()> m_then;
};

} // namespace

void whenAnswered(Program &program, QObject *context, std::function<void()> then)
{
    new AnswerWatch(program, context, std::move(then));
}
