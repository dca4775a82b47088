// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QDialog>
#include <QTest>
#include <QTimer>

#include <functional>

/// Acts in place of a person in the dialog that opens next. It fails the test when another one opens, or none, or
/// when the dialog is still open afterwards.
inline void answerDialog(const QString &name, const std::function<void(QDialog &)> &act)
{
    QTimer::singleShot(0, qApp, [name, act] {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (dialog == nullptr || dialog->objectName() != name) {
            QTest::qFail(qPrintable(QStringLiteral("No dialog ") + name), __FILE__, __LINE__);
            return;
        }
        act(*dialog);
        if (!dialog->isVisible())
            return;
        QTest::qFail(qPrintable(QStringLiteral("Still open: ") + name), __FILE__, __LINE__);
        dialog->reject();
    });
}

/// The control of that name; a missing one ends the test program.
template <class Control> Control &control(const QWidget &window, const char *name)
{
    auto *found = window.findChild<Control *>(QLatin1String(name));
    if (found == nullptr)
        qFatal("No control %s", name);
    return *found;
}

/// As a person does it.
inline void press(const QWidget &window, const char *name)
{
    QTest::mouseClick(&control<QWidget>(window, name), Qt::LeftButton);
}

/// The same with Enter, on a window that is shown.
inline void pressByKey(const QWidget &window, const char *name)
{
    auto &pressed = control<QWidget>(window, name);
    pressed.setFocus();
    QTest::keyClick(&pressed, Qt::Key_Return);
}
