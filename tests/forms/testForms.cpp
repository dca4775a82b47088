// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "forms/SavingFixture.h"
#include "forms/modFormsTexts.h"
#include "forms/modNumerics.h"
#include "forms/modTimers.h"
#include "support/compareRow.h"

#include <QElapsedTimer>
#include <QPointer>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// Windows that close and hide, and the texts and waits of all of them.
class testForms final : public QObject
{
    Q_OBJECT

private slots:
    void closesEveryWindow()
    {
        SavingFixture f(6);
        PlainForm panel(f.program, formNames::Menu.toString());
        panel.show();
        std::vector<QPointer<QWidget>> windows{new PlainForm(f.program, u"frmOptions"_s)};
        for (PlainNote *note : f.notes) {
            note->show();
            windows.emplace_back(note);
        }
        // One that takes another along, of those that come before it and of those that come after.
        f.notes[3]->destroyed = [&f] {
            f.notes[1]->unload();
            f.notes[5]->unload();
        };
        f.program.autoSave.start(1000);
        modForms::CloseAllWindows(f.program);
        QCOMPARE(f.program.forms.loaded(), std::vector<Form *>{&panel});
        QVERIFY(!panel.isVisible() && !f.program.autoSave.isActive());
        f.deleteUnloaded();
        for (const auto &window : windows)
            QVERIFY(window == nullptr);
    }

    void dialogsHideNotes()
    {
        SavingFixture f;
        for (const QStringView own : {formNames::NoteStack, formNames::Menu, formNames::Splash, formNames::Status}) {
            PlainForm form(f.program, own.toString());
            form.show();
            QVERIFY2(!modForms::IsDialogShowing(f.program), qPrintable(own.toString()));
        }
        PlainNote note(f.program, 1);
        PlainForm dialog(f.program, u"frmOptions"_s);
        QVERIFY(!modForms::IsDialogShowing(f.program));
        dialog.show();
        QVERIFY(modForms::IsDialogShowing(f.program) && !note.isVisible());
        // What a dialog within a dialog says when it goes; the notes wait for the outer one.
        modForms::ShowNoteWindows(f.program);
        QVERIFY(!note.isVisible());
        dialog.hide();
        modForms::ShowNoteWindows(f.program);
        QVERIFY(note.isVisible());
    }

    void captions()
    {
        QCOMPARE(modForms::DoubleFirstAmpersand(u"a & b & c"_s), u"a && b & c"_s);
        for (const QString &text : {u"none"_s, u"&"_s, u"&&"_s, u"&&&"_s, u"a&b&&c"_s, u"R&D && more"_s, u"end&"_s})
            QCOMPARE(modForms::shownCaption(modForms::DoubleFirstAmpersand(text)), text);
    }

    void fileKinds()
    {
        for (const QStringView path :
             {u"a.dib", u"a.bmp", u"a.gif", u"a.jpg", u"a.wmf", u"a.emf", u"a.ico", u"a.cur", u" x.gif ", u"gif"})
            QVERIFY2(modForms::IsPictureFile(path), qPrintable(path.toString()));
        for (const QStringView path : {u"", u"if", u"a.GIF", u"a.png", u"a.jpeg", u"a.gif.exe", u"a.wav"})
            QVERIFY2(!modForms::IsPictureFile(path), qPrintable(path.toString()));
        QVERIFY(modForms::IsSoundFile(u"ring.wav ") && !modForms::IsSoundFile(u"ring.WAV") &&
                !modForms::IsSoundFile(u"ring.gif"));
    }

    void flattening()
    {
        const auto row = [](const char *name, const QString &text, const QString &flat) {
            compareRow(name, modForms::FlattenText(text), flat);
        };
        row("empty", u""_s, u""_s);
        row("nothing but edges", u" \t\r\n \r\n"_s, u""_s);
        row("lines", u"milk\r\nbread\r\n\r\neggs"_s, u"milk, bread, , eggs"_s);
        row("edges go", u"\r\n  milk\tand honey \r\n"_s, u"milk and honey"_s);
        row("a lone line feed goes", u"a\nb"_s, u"ab"_s);
        row("a lone return", u"a\rb"_s, u"a, b"_s);
        row("zeros at the end", u"a"_s + QChar() + u' ' + QChar(), u"a"_s);
    }

    void waiting()
    {
        bool handled = false;
        QTimer::singleShot(10ms, this, [&handled] { handled = true; });
        QElapsedTimer time;
        time.start();
        modTimers::Wait(60ms);
        QVERIFY(handled && time.elapsed() >= 59);
    }
};

QTEST_MAIN(testForms)
#include "testForms.moc"
