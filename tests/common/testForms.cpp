// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "common/PlainNote.h"
#include "support/TestProgram.h"
#include "support/failOnWarnings.h"

#include <QPointer>

using namespace Qt::StringLiterals;

class testForms final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void findsWhatIsLoaded();
    void closesEveryWindow();
    void dialogsHideNotes();
    void tellsThatAnotherProgramIsActive();

private:
    std::unique_ptr<TestProgram> m_test;
};

void testForms::init()
{
    failOnWarnings();
    m_test = std::make_unique<TestProgram>(QDateTime(QDate(2026, 3, 1), QTime(12, 0)));
}

void testForms::findsWhatIsLoaded()
{
    Program &program = m_test->program;
    Forms &forms = program.forms;
    int changes = 0;
    forms.changed = [&changes] { ++changes; };
    PlainForm panel(program, formNames::Menu.toString());
    PlainNote without(program, 0);
    PlainNote second(program, 2);
    auto *first = new PlainNote(program, 1);
    QCOMPARE(forms.loaded(), (std::vector<Form *>{&panel, &without, &second, first}));
    QCOMPARE(forms.notes(), (std::vector<Form *>{&second, first}));
    QCOMPARE(forms.find(formNames::Note), &without);
    QCOMPARE(forms.find(formNames::NoteStack), nullptr);
    QCOMPARE(forms.note(1), first);
    QCOMPARE(forms.note(0), nullptr);
    QCOMPARE(forms.holderOf(2), &second);
    const QPointer<QWidget> window = first;
    first->unload();
    first->unload();
    QVERIFY(first->isUnloaded() && !forms.isLoaded(first) && forms.notes().size() == 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(window == nullptr);
    QCOMPARE(changes, 5);
    forms.changed = nullptr;
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

void testForms::tellsThatAnotherProgramIsActive()
{
    Program &program = m_test->program;
    PlainNote hooked(program, 1);
    PlainNote unhooked(program, 2);
    for (PlainNote *note : {&hooked, &hooked, &unhooked})
        modForms::HookWindow(program.forms, *note);
    modForms::UnhookWindow(unhooked);
    emit qGuiApp->applicationStateChanged(Qt::ApplicationActive);
    QCOMPARE(hooked.timesLeft, 0);
    emit qGuiApp->applicationStateChanged(Qt::ApplicationInactive);
    QCOMPARE(hooked.timesLeft, 1);
    QCOMPARE(unhooked.timesLeft, 0);
}

QTEST_MAIN(testForms)
#include "testForms.moc"
