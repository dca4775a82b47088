// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Form.h"

#include <QKeySequence>
#include <QTimer>
#include <QWidget>

#include <chrono>
#include <functional>

class Program;

/// A line that tells something and offers to do something about it, in a small borderless window that nobody has to
/// answer. It goes when it is pressed, by Escape or its cross, after a while, or when another one comes.
class QuietLine final : public QWidget, public Form
{
    Q_OBJECT

public:
    struct Offer
    {
        QString text;
        QString action;
        QKeySequence keys;                 ///< In any window of the program but in a text that is edited; may be empty.
        std::chrono::milliseconds lasts{}; ///< Zero: until it is answered.
        std::function<void()> accepted;    ///< Said when the line has gone.
    };

    QuietLine(Program &program, Offer offer);

    /// Near the lower edge of a window that stands, or stood, there.
    void showBy(const QRect &place);
    QWidget *window() override { return this; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void makeParts();
    void accept();
    void timeIsUp();
    void begin();

    Program &m_program;
    Offer m_offer;
    QTimer m_end{this}; // timEnd
};
