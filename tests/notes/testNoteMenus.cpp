// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/NoteFixture.h"

#include <QMenu>

using namespace Qt::StringLiterals;
using Answer = Prompts::Answer;

namespace
{

/// The entries as they are read: "-" a separator, "+" checked, "(...)" disabled, "[...]" what a submenu holds.
QString described(const QMenu &menu)
{
    QStringList entries;
    for (const QAction *action : menu.actions()) {
        QString entry = action->isSeparator() ? u"-"_s : action->text();
        if (action->isChecked())
            entry += u'+';
        if (!action->isEnabled())
            entry = u'(' + entry + u')';
        if (action->menu() != nullptr)
            entry += u'[' + described(*action->menu()) + u']';
        entries.append(entry);
    }
    return entries.join(u' ');
}

} // namespace

class testNoteMenus final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void menuOfThePicture_data();
    void menuOfThePicture();
    void menuOfTheText();
    void onTop();

private:
    std::unique_ptr<NoteFixture> m_fixture;
};

void testNoteMenus::init()
{
    failOnWarnings();
    m_fixture = std::make_unique<NoteFixture>();
}

void testNoteMenus::cleanup()
{
    QVERIFY(m_fixture->test.prompts.isDone());
    m_fixture.reset();
}

void testNoteMenus::menuOfThePicture_data()
{
    QTest::addColumn<clsNoteProps>("record");
    QTest::addColumn<QString>("properties");
    QTest::addColumn<bool>("locked");
    clsNoteProps record = NoteFixture().program.NoteTemplate;
    record.ToolBarOn = record.OnTopOn = false;
    record.PwdReadonlyOn = record.PwdOpenCloseOn = false;
    QTest::newRow("plain") << record << u"Password Alarm Toolbar Scrolled On Top (Locked)"_s << false;
    clsNoteProps all = record;
    all.ToolBarOn = all.OnTopOn = all.FrmScrolledOn = all.AlarmOn = all.PwdOn = true;
    QTest::newRow("all") << all << u"Password+ Alarm+ Toolbar+ Scrolled+ On Top+ Locked"_s << false;
    all.PwdOpenCloseOn = true;
    QTest::newRow("locked") << all << u"(Password+) (Alarm+) (Toolbar+) Scrolled+ On Top+ Locked+"_s << true;
    record.PwdOn = record.PwdOpenCloseOn = true;
    QTest::newRow("locked, little on") << record << u"(Password+) (Alarm) (Toolbar) Scrolled On Top Locked+"_s << true;
}

void testNoteMenus::menuOfThePicture()
{
    QFETCH(clsNoteProps, record);
    QFETCH(QString, properties);
    QFETCH(bool, locked);
    frmNote *note = m_fixture->create(record);
    NoteFixture::openMenu(*note);
    const QString menu = described(NoteFixture::control<QMenu>(*note, "mnuPopupIco"));
    const QString open = u"To NoteStack Print - Title - Properties[%1] - Actions[Settings Send E-mail - Delete] Help"_s;
    const QString shut = u"(To NoteStack) (Print) - (Title) - Properties[%1] - "
                         "Actions[(Settings) (Send) (E-mail) - (Delete)] (Help)"_s;
    QCOMPARE(menu, (locked ? shut : open).arg(properties));
}

void testNoteMenus::menuOfTheText()
{
    frmNote *note = m_fixture->create(u"text"_s);
    NoteFixture::openMenu(*note, false);
    const auto &menu = NoteFixture::control<QMenu>(*note, "mnuPopup");
    QCOMPARE(described(menu), u"To NoteStack Print - Copy Paste"_s);
    note->GetThisNoteProps()->PwdOn = note->GetThisNoteProps()->PwdReadonlyOn = true;
    NoteFixture::openMenu(*note, false);
    QCOMPARE(described(menu), u"To NoteStack Print - Copy (Paste)"_s);
}

void testNoteMenus::onTop()
{
    frmNote *note = m_fixture->create(u"text"_s);
    const bool before = note->GetThisNoteProps()->OnTopOn;
    for (int turn = 0; turn < 2; ++turn) {
        NoteFixture::choose(*note, "mnuOnTop");
        QCOMPARE(note->windowFlags().testFlag(Qt::WindowStaysOnTopHint), note->GetThisNoteProps()->OnTopOn);
        QVERIFY(note->isVisible());
    }
    QCOMPARE(note->GetThisNoteProps()->OnTopOn, before);
}

QTEST_MAIN(testNoteMenus)
#include "testNoteMenus.moc"
