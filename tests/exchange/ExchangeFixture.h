// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/ExchangeDialog.h"
#include "net/Exchange.h"
#include "support/ProgramFixture.h"

#include <QComboBox>
#include <QLabel>

/// A program with books and the dialog that sends a note.
template <class Dialog> class ExchangeFixture final : public ProgramFixture
{
public:
    ExchangeFixture()
    {
        program.ProgramOptions.SendBook = home.paths.SendBookFile;
        program.ProgramOptions.AddressBook = home.paths.AddressBookFile;
        note.TitleBarTitle = QStringLiteral("Shopping");
    }
    void open(const QString &text, std::chrono::milliseconds answerTime = std::chrono::seconds(20))
    {
        using namespace std::chrono_literals;
        note.Data = text;
        dialog.reset();
        owner = std::make_unique<QWidget>();
        owner->show();
        dialog = std::make_unique<Dialog>(program, owner.get(), ExchangeTimes{20s, answerTime, 1ms});
        dialog->Initialize(note);
        dialog->show();
        QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
    }
    QComboBox &to() const { return control<QComboBox>(*dialog, "comTo"); }
    void send(const QString &targets) const
    {
        to().setEditText(targets);
        press(*dialog, "cmdSend");
    }
    bool isProgressShown() const { return control<QWidget>(*dialog, "fraProgress").isVisible(); }
    QString result() const { return control<QLabel>(*dialog, "lblResult").text(); }

    clsNoteProps note;
    std::unique_ptr<QWidget> owner;
    std::unique_ptr<Dialog> dialog;
};
