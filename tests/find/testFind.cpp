// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "find/HitList.h"
#include "find/frmFind.h"
#include "notes/parts/NoteText.h"
#include "notestack/StackFixture.h"

using namespace Qt::StringLiterals;

/// The window that looks for a text in all notes.
class testFind final : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_fixture.emplace(); }
    void cleanup() { m_fixture.reset(); }

    void findsInTitlesAndTexts()
    {
        m_fixture->create(m_fixture->record(u"Shopping\r\n  a Café\u0301 crème, please\r\nmilk"_s));
        const QString longLine = u"CAFETERIA of the office, which has a very long line in front of the word cafe"_s;
        m_fixture->add(m_fixture->record(longLine));
        m_fixture->create(u"something else"_s);
        frmFind::open(m_fixture->program);
        QCOMPARE(rows().size(), 3);
        type(u"cafe"_s);
        QCOMPARE(rows(), (QStringList{u"Shopping  , Desktop, a Café\u0301 crème, please"_s,
                                      u"CAFETERIA , NoteStack, "_s + longLine}));
        type(u"milk"_s);
        QCOMPARE(rows().size(), 1);
        type(u"nowhere"_s);
        QCOMPARE(rows(), QStringList());
        press(Qt::Key_Return);
        press(Qt::Key_Escape);
        QCOMPARE(m_fixture->program.forms.find(formNames::Find), nullptr);
    }

    void neverInLockedTexts()
    {
        clsNoteProps record = m_fixture->protectedRecord(u"the secret"_s, false, true);
        record.TitleBarTitle = u"Safe"_s;
        m_fixture->create(record);
        const qint32 stacked = m_fixture->add(record);
        frmFind::open(m_fixture->program);
        type(u"secret"_s);
        QCOMPARE(rows(), QStringList());
        type(u"safe"_s);
        QCOMPARE(rows(), (QStringList{u"Safe, Desktop, Locked"_s, u"Safe, NoteStack, Locked"_s}));
        press(Qt::Key_Return);
        m_fixture->stack.setLocked(stacked, false);
        type(u"secret"_s);
        QCOMPARE(rows(), QStringList{u"Safe, NoteStack, the secret"_s});
        // Locked since it was found.
        m_fixture->stack.setLocked(stacked, true);
        press(Qt::Key_Return);
        QVERIFY(m_fixture->isLocked() && m_fixture->isUnseen(u"secret"_s));
    }

    void followsTheNotes()
    {
        frmFind::open(m_fixture->program);
        frmNote *note = m_fixture->create(u"first"_s);
        QVERIFY(note->isVisible()); // Beside it, as beside no dialog.
        type(u"second"_s);
        QCOMPARE(rows().size(), 0);
        QTest::keyClicks(&NoteFixture::edit(*note), u" and second"_s);
        type(u"Second"_s);
        QCOMPARE(rows().size(), 1);
        note->remove(note->Tag());
        m_fixture->deleteUnloaded();
        press(Qt::Key_Return);
        QCOMPARE(rows().size(), 0);
    }

    void showsThePlace_data()
    {
        const Rows<bool> row; // inStack
        row("desktop", false);
        row("NoteStack", true);
    }

    void showsThePlace()
    {
        const auto [inStack] = fetchRow<bool>();
        clsNoteProps record = m_fixture->record(u"line\r\n"_s.repeated(80) + u"here it is\r\n"_s);
        record.FrmScrolledOn = true;
        const qint32 tag = inStack ? m_fixture->add(record) : m_fixture->create(record)->Tag();
        m_fixture->add(m_fixture->record(u"another"_s));
        m_fixture->stack.hide();
        frmFind::open(m_fixture->program);
        type(u"HERE"_s);
        press(Qt::Key_Return);
        auto *host = dynamic_cast<NoteHost *>(m_fixture->program.forms.holderOf(tag));
        QVERIFY(host->hostWindow().isVisible() && host->chosen()->tag() == tag);
        const auto *text = host->hostWindow().findChild<NoteText *>(inStack ? u"lblDisplay(0)"_s : u"lblDisplay"_s);
        QVERIFY(text->isVisible() && text->height() > 20);
        QCOMPARE(text->endOfFound(), record.Data.indexOf(u"here"_s) + 4);
        QVERIFY(text->place().paragraph > 60);
    }

    /// In the text that is shown, and in the one that is edited.
    void goesOnInTheNote()
    {
        frmNote *note = m_fixture->create(u"a\r\nb A\r\n\r\nc á"_s);
        m_fixture->program.lastSearch = u"a"_s;
        const auto &text = control<NoteText>(*note, "lblDisplay");
        for (const qsizetype end : {1, 6, 13, 1}) {
            QTest::keyClick(note, Qt::Key_F3);
            QCOMPARE(text.endOfFound(), end);
        }
        QPlainTextEdit &box = NoteFixture::edit(*note);
        QCOMPARE(text.endOfFound(), 0);
        for (const int end : {1, 5, 10}) {
            QTest::keyClick(&box, Qt::Key_F3);
            QCOMPARE(box.textCursor().selectionEnd(), end);
        }
        QCOMPARE(note->GetThisNoteProps()->Data, u"a\r\nb A\r\n\r\nc á"_s);
    }

private:
    QWidget &window() const { return *m_fixture->program.forms.find(formNames::Find)->window(); }
    HitList &list() const { return *window().findChild<HitList *>(); }
    void type(const QString &text) const { control<QLineEdit>(window(), "txtFind").setText(text); }
    QStringList rows() const
    {
        // A long search ends in a later slice.
        QCoreApplication::processEvents();
        QStringList all;
        for (int i = 0; i < list().count(); ++i)
            all.append(list().model()->index(i, 0).data(Qt::AccessibleTextRole).toString());
        return all;
    }

    void press(Qt::Key key) const { QTest::keyClick(&control<QLineEdit>(window(), "txtFind"), key); }

    std::optional<StackFixture> m_fixture;
};

QTEST_MAIN(testFind)
#include "testFind.moc"
