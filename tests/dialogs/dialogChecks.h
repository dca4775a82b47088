// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "support/ProgramFixture.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QLabel>
#include <QSet>
#include <QTabWidget>

/// Looks at every page of a dialog for what nobody could read or reach.
inline void checkPages(const QDialog &dialog)
{
    auto *tabs = dialog.findChild<QTabWidget *>(QStringLiteral("TabOptions"));
    for (int page = 0; page < tabs->count(); ++page) {
        tabs->setCurrentIndex(page);
        QSet<QChar> letters;
        for (const QCheckBox *box : dialog.findChildren<QCheckBox *>()) {
            const auto *mark =
                dialog.findChild<QWidget *>(QString(box->objectName()).replace(0, 3, QStringLiteral("sha")));
            const QPoint corner = mark->mapFrom(&dialog, box->mapTo(&dialog, QPoint()));
            QVERIFY2(!box->isVisible() || mark->rect().contains(QRect(corner, box->size())),
                     qPrintable(box->objectName()));
        }
        for (QWidget *widget : dialog.findChildren<QWidget *>()) {
            const auto *label = qobject_cast<QLabel *>(widget);
            const auto *button = qobject_cast<QAbstractButton *>(widget);
            if (!widget->isVisible() || (label == nullptr && button == nullptr))
                continue;
            const QString text = label != nullptr ? label->text() : button->text();
            QVERIFY2(widget->width() >= widget->minimumSizeHint().width(), qPrintable(text));
            const qsizetype mark = text.indexOf(QLatin1Char('&'));
            const QChar letter = mark < 0 ? QChar() : text.at(mark + 1).toLower();
            QVERIFY2(mark < 0 || !letters.contains(letter), qPrintable(text));
            letters.insert(letter);
            QVERIFY2(button == nullptr || !(button->text() + button->accessibleName()).isEmpty(),
                     qPrintable(widget->objectName()));
        }
    }
    tabs->setCurrentIndex(0);
}

/// Presses OK: without a caption the dialog closes; with one it stays, after a box, at the field named.
inline void checkOk(TestProgram &test, const QDialog &dialog, const QString &caption, const QByteArray &field)
{
    if (!caption.isEmpty())
        test.prompts.expect(Prompts::Answer::Ok);
    press(dialog, "cmdOK");
    QCOMPARE(dialog.isVisible(), !caption.isEmpty());
    if (caption.isEmpty())
        return;
    QCOMPARE(test.prompts.last.caption, caption);
    QCOMPARE(test.prompts.last.icon, Message::Icon::Critical);
    QVERIFY(control<QWidget>(dialog, field.constData()).isVisible());
    QVERIFY(control<QWidget>(dialog, field.constData()).hasFocus());
}
