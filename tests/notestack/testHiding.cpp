// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "forms/modFormsHiding.h"
#include "notestack/StackFixture.h"

using namespace Qt::StringLiterals;

/// Hiding all notes for a while.
class testHiding final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_fixture.reset(); }
    void bringsBackWhatItHid();
    void newNotesAndAlarmsAreSeen();
    void dialogsBringNothingBack();
    void nothingOfItIsStored();

private:
    std::unique_ptr<StackFixture> m_fixture;
};

void testHiding::init()
{
    failOnWarnings();
    m_fixture = std::make_unique<StackFixture>();
}

void testHiding::bringsBackWhatItHid()
{
    frmNote *first = m_fixture->create(u"first"_s);
    frmNote *second = m_fixture->create(u"second"_s);
    first->move(300, 200);
    m_fixture->stack.hide();
    QTest::keyClicks(&NoteFixture::edit(*second), u" typed"_s);
    modForms::ShowOrHideAll(m_fixture->program);
    QVERIFY(!first->isVisible() && !second->isVisible());
    QCOMPARE(second->GetThisNoteProps()->Data, u"second typed"_s);
    second->ToTheNoteStack();
    m_fixture->deleteUnloaded();
    modForms::ShowOrHideAll(m_fixture->program);
    QVERIFY(first->isVisible() && !m_fixture->stack.isVisible());
    QCOMPARE(first->pos(), QPoint(300, 200));
    modForms::ShowOrHideAll(m_fixture->program);
    QVERIFY(!first->isVisible());
}

void testHiding::newNotesAndAlarmsAreSeen()
{
    frmNote *hidden = m_fixture->create(u"hidden"_s);
    frmNote *alarmed = m_fixture->create(m_fixture->alarmed(m_fixture->record(u"alarmed"_s)));
    modForms::ShowOrHideAll(m_fixture->program);
    QVERIFY(!alarmed->isVisible());
    QVERIFY(m_fixture->create(u"new"_s)->isVisible());
    m_fixture->test.clock.advance(120);
    QVERIFY(alarmed->isVisible() && !hidden->isVisible());
    // The second time brings back the rest.
    modForms::ShowOrHideAll(m_fixture->program);
    QVERIFY(hidden->isVisible() && alarmed->isVisible());
}

void testHiding::dialogsBringNothingBack()
{
    frmNote *note = m_fixture->create(u"text"_s);
    modForms::ShowOrHideAll(m_fixture->program);
    modForms::ShowNoteWindows(m_fixture->program);
    QVERIFY(!note->isVisible());
    modForms::ShowOrHideAll(m_fixture->program);
    note->hide();
    modForms::ShowNoteWindows(m_fixture->program);
    QVERIFY(note->isVisible());
}

void testHiding::nothingOfItIsStored()
{
    frmNote *note = m_fixture->create(u"text"_s);
    modForms::SaveAllNotes(m_fixture->program);
    modForms::ShowOrHideAll(m_fixture->program);
    QVERIFY(!modForms::hasUnsavedNotes(m_fixture->program));
    QVERIFY(!note->isVisible() && !m_fixture->stack.isVisible());
    QVERIFY(frmNoteStack::wasShown(m_fixture->program));
    m_fixture->stack.keepPlace();
    QVERIFY(frmNoteStack::wasShown(m_fixture->program));
}

QTEST_MAIN(testHiding)
#include "testHiding.moc"
