// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/SystemChoosers.h"
#include "platform/HeldKeys.h"
#include "platform/SystemPrompts.h"
#include "forms/PlainNote.h"
#include "support/TestProgram.h"
#include "support/failOnWarnings.h"

#include <QPointer>

#include <QPlainTextEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

class testForms final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void closesEveryWindow();
    void boxesGoWithTheirOwners();
    void heldKeysDoOneThing();
    void dialogsHideNotes();

private:
    std::unique_ptr<TestProgram> m_test;
};

void testForms::init()
{
    failOnWarnings();
    m_test = std::make_unique<TestProgram>(QDateTime(QDate(2026, 3, 1), QTime(12, 0)));
}

void testForms::closesEveryWindow()
{
    Program &program = m_test->program;
    PlainForm panel(program, formNames::Menu.toString());
    panel.show();
    std::vector<QPointer<QWidget>> windows;
    std::vector<PlainNote *> notes;
    for (qint32 tag = 1; tag <= 6; ++tag) {
        notes.push_back(new PlainNote(program, tag));
        notes.back()->show();
        windows.emplace_back(notes.back());
    }
    windows.emplace_back(new PlainForm(program, u"frmOptions"_s));
    // One that takes another along, of those that come before it and of those that come after.
    notes[3]->destroyed = [&] {
        notes[1]->unload();
        notes[5]->unload();
    };
    program.autoSave.start(1000);
    modForms::CloseAllWindows(program);
    QCOMPARE(program.forms.loaded(), std::vector<Form *>{&panel});
    QVERIFY(!panel.isVisible() && !program.autoSave.isActive());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    for (const auto &window : windows)
        QVERIFY(window == nullptr);
}

/// Whoever goes while a box or a chooser of its own is open takes it along; nothing was answered then.
void testForms::boxesGoWithTheirOwners()
{
    const auto whileOneIsOpen = [](auto ask) {
        auto *owner = new QWidget;
        owner->show();
        QTimer::singleShot(0, owner, [owner] { delete owner; });
        return ask(owner);
    };
    MessageBoxes boxes;
    DesktopChoosers choosers;
    QVERIFY(whileOneIsOpen([&](QWidget *owner) { return boxes.ask({u"text"_s}, owner); }) == Prompts::Answer::Cancel);
    QVERIFY(!whileOneIsOpen([&](QWidget *owner) { return choosers.colour(Qt::red, owner); }));
    QVERIFY(!whileOneIsOpen([&](QWidget *owner) { return choosers.font(QFont(), owner); }));
    QVERIFY(!whileOneIsOpen([&](QWidget *owner) { return choosers.openFile({u"title"_s, {}, {}}, owner); }));
}

void testForms::heldKeysDoOneThing()
{
    HeldKeys heldKeys;
    qApp->installEventFilter(&heldKeys);
    QWidget window;
    QPushButton button(&window);
    QPlainTextEdit text(&window);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    int pressed = 0;
    connect(&button, &QPushButton::clicked, &window, [&] {
        ++pressed;
        text.setFocus();
    });
    const auto press = [&window] { QTest::keyPress(window.windowHandle(), Qt::Key_Space); };
    button.setFocus();
    press();
    QTest::keyRelease(window.windowHandle(), Qt::Key_Space);
    for (int repeat = 0; repeat < 3; ++repeat)
        press();
    QVERIFY(pressed == 1 && text.toPlainText().isEmpty());
    QTest::qWait(150); // A person presses again.
    for (int repeat = 0; repeat < 3; ++repeat)
        press();
    QCOMPARE(text.toPlainText(), u"   "_s);
}

void testForms::dialogsHideNotes()
{
    Program &program = m_test->program;
    for (const QStringView own : {formNames::NoteStack, formNames::Menu, formNames::Splash, formNames::Status}) {
        PlainForm form(program, own.toString());
        form.show();
        QVERIFY2(!modForms::IsDialogShowing(program), qPrintable(own.toString()));
    }
    PlainNote note(program, 1);
    PlainForm dialog(program, u"frmOptions"_s);
    QVERIFY(!modForms::IsDialogShowing(program));
    dialog.show();
    QVERIFY(modForms::IsDialogShowing(program));
    QVERIFY(!note.isVisible());
    modForms::ShowNoteWindows(program);
    QVERIFY(note.isVisible());
}

QTEST_MAIN(testForms)
#include "testForms.moc"
