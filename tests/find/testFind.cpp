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
    void init();
    void cleanup() { m_fixture.reset(); }
    void findsInTitlesAndTexts();
    void neverInLockedTexts();
    void followsTheNotes();
    void showsThePlace_data();
    void showsThePlace();
    void goesOnInTheNote();
    void newNotesAreShownBesideIt();

private:
    QWidget &window() const { return *m_fixture->program.forms.find(formNames::Find)->window(); }
    HitList &list() const { return *window().findChild<HitList *>(); }
    void type(const QString &text) const { NoteFixture::control<QLineEdit>(window(), "txtFind").setText(text); }
    QStringList rows() const;
    void press(Qt::Key key) const { QTest::keyClick(&NoteFixture::control<QLineEdit>(window(), "txtFind"), key); }

    std::unique_ptr<StackFixture> m_fixture;
};

void testFind::init()
{
    failOnWarnings();
    m_fixture = std::make_unique<StackFixture>();
}

QStringList testFind::rows() const
{
    // A long search ends in a later slice.
    QCoreApplication::processEvents();
    QStringList all;
    for (int i = 0; i < list().count(); ++i)
        all.append(list().model()->index(i, 0).data(Qt::AccessibleTextRole).toString());
    return all;
}

void testFind::findsInTitlesAndTexts()
{
    m_fixture->create(m_fixture->record(u"Shopping\r\n  a Café\u0301 crème, please\r\nmilk"_s));
    m_fixture->add(
        m_fixture->record(u"CAFETERIA of the office, which has a very long line in front of the word cafe"_s));
    m_fixture->create(u"something else"_s);
    frmFind::open(m_fixture->program);
    QCOMPARE(rows().size(), 3);
    type(u"cafe"_s);
    QCOMPARE(rows(), (QStringList{u"Shopping\r\n, Desktop, a Café\u0301 crème, please"_s.replace(u"\r\n"_s, u"  "_s),
                                  u"CAFETERIA , NoteStack, CAFETERIA of the office, which has a very long line in "
                                  "front of the word cafe"_s}));
    type(u"milk"_s);
    QCOMPARE(rows().size(), 1);
    type(u"nowhere"_s);
    QCOMPARE(rows(), QStringList());
    press(Qt::Key_Return);
    press(Qt::Key_Escape);
    QCOMPARE(m_fixture->program.forms.find(formNames::Find), nullptr);
}

void testFind::neverInLockedTexts()
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

void testFind::followsTheNotes()
{
    frmNote *note = m_fixture->create(u"first"_s);
    frmFind::open(m_fixture->program);
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

void testFind::showsThePlace_data()
{
    QTest::addColumn<bool>("inStack");
    QTest::newRow("desktop") << false;
    QTest::newRow("NoteStack") << true;
}

void testFind::showsThePlace()
{
    QFETCH(bool, inStack);
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
void testFind::goesOnInTheNote()
{
    frmNote *note = m_fixture->create(u"a\r\nb A\r\n\r\nc á"_s);
    m_fixture->program.lastSearch = u"a"_s;
    const auto &text = NoteFixture::control<NoteText>(*note, "lblDisplay");
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

void testFind::newNotesAreShownBesideIt()
{
    frmFind::open(m_fixture->program);
    QVERIFY(m_fixture->create(u"new"_s)->isVisible());
}

QTEST_MAIN(testFind)
#include "testFind.moc"
