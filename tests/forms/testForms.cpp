// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "forms/PlainNote.h"
#include "support/TestProgram.h"
#include "support/failOnWarnings.h"

#include <QPointer>

using namespace Qt::StringLiterals;

class testForms final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void closesEveryWindow();
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
    // What a dialog within a dialog says when it goes; the notes wait for the outer one.
    modForms::ShowNoteWindows(program);
    QVERIFY(!note.isVisible());
    dialog.hide();
    modForms::ShowNoteWindows(program);
    QVERIFY(note.isVisible());
}

QTEST_MAIN(testForms)
#include "testForms.moc"
