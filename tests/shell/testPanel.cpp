// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/modStreams.h"
#include "model/networkSettingsFile.h"
#include "net/NoteSender.h"
#include "net/samplePackets.h"
#include "notestack/StackFixture.h"
#include "restore/frmRestore.h"
#include "shell/ReceivedLine.h"
#include "shell/ReceivedNotes.h"
#include "shell/frmMenu.h"

#include <QSignalSpy>
#include <QTcpServer>
#include <QToolButton>

#include <limits>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using End = ExchangeResult::End;

namespace
{

quint16 freePort()
{
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    return server.serverPort();
}

/// A panel that takes notes of other computers.
struct Receiving final : NoteFixture
{
    Receiving()
    {
        program.ProgramOptions.ListeningPort = port;
        panel.show();
        panel.startReceiving();
    }
    /// Until the sender has been told how it ended.
    std::optional<End> send(const Packet &packet = samplePacket(u"text"_s)) const
    {
        NoteSender sender({20s, 20s});
        QSignalSpy spy(&sender, &NoteSender::finished);
        sender.start(encodePacket(packet), {u"127.0.0.1"_s, {}, port});
        if (!spy.wait())
            return std::nullopt;
        return spy.first().first().value<ExchangeResult>().end;
    }
    bool isThere(qint32 tag = 1) const
    {
        return QTest::qWaitFor([this, tag] { return at(tag) != nullptr; });
    }
    QColor middleOf(qint32 tag) const
    {
        return at(tag)->grab().toImage().pixelColor(at(tag)->width() / 2, at(tag)->height() / 2);
    }
    ReceivedLine &line() const { return *panel.findChild<ReceivedLine *>(); }

    const quint16 port = freePort();
    frmMenu panel{program};
};

/// A panel beside a NoteStack.
struct BesideStack
{
    BesideStack() { panel.show(); }
    QWidget *row() const { return panel.findChild<QLabel *>(u"lblSave"_s)->parentWidget(); }

    StackFixture f;
    frmMenu panel{f.program};
};

void rightClick(QWidget &target, QContextMenuEvent::Reason reason)
{
    QContextMenuEvent event(reason, QPoint(5, 5), target.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&target, &event);
}

/// The window of the dated copies, which opens next, goes again.
void closeCopies(bool &opened)
{
    answerDialog(frmRestore::Name.toString(), [&opened](QDialog &dialog) {
        opened = true;
        dialog.reject();
    });
}

} // namespace

/// The panel: notes of other computers, from the port to the window, and the way to the copies.
class testPanel final : public QObject
{
    Q_OBJECT

private slots:
    void receivedBecomesANote()
    {
        Receiving r;
        r.program.NoteTemplate.FlashOn = true;
        QVERIFY(r.send() == End::Done);
        QVERIFY(r.isThere() && r.at(1)->isVisible());
        QVERIFY(r.at(1)->GetThisNoteProps()->DateCreated.endsWith(u" (Ann, desk (127.0.0.1))"));
        QCOMPARE(r.storedTexts(), QStringList(u"text"_s));
        const QColor paper = r.middleOf(1);
        r.test.clock.advance(1);
        QTRY_VERIFY(r.middleOf(1) != paper);
        // Whatever its texts hold.
        Packet packet = samplePacket(u"text"_s);
        packet.senderName = u"A\nnn\u202E"_s;
        clsNoteProps note;
        note.TitleBarTitle = u"Pay\u202Eexe.\u0007\n"_s;
        note.DateCreated = u"today\n\u202E"_s;
        note.FrmHeight = note.FontSize = std::numeric_limits<float>::quiet_NaN();
        packet.record.clear();
        modStreams::EncodeSendRecord(note, packet.record);
        QVERIFY(r.send(packet) == End::Done && r.isThere(2));
        QCOMPARE(r.at(2)->GetThisNoteProps()->TitleBarTitle, u"Payexe.  "_s);
        QVERIFY(r.at(2)->GetThisNoteProps()->DateCreated.startsWith(u"today  (A nn, "));
        modForms::SaveAllNotes(r.program);
        QVERIFY(!modForms::hasUnsavedNotes(r.program));
    }

    void waitsForAnswers_data()
    {
        const Rows<bool> row; // whether it is a form
        row("dialog of the program", true);
        row("box or chooser", false);
    }

    void waitsForAnswers()
    {
        Receiving r;
        r.program.NoteTemplate.SoundFileOn = true;
        r.program.NoteTemplate.SoundFile = r.soundFile();
        QDialog box;
        std::optional<Form> form;
        if (std::get<0>(fetchRow<bool>()))
            form.emplace(r.program.forms, u"frmOther"_s);
        box.setModal(true);
        box.show();
        QVERIFY(r.send() == End::Done);
        QVERIFY(r.isThere());
        r.test.clock.advance(1);
        QTest::qWait(50);
        QVERIFY(!r.at(1)->isVisible() && r.test.sound.played.isEmpty());
        QCOMPARE(r.stored().size(), size_t(1));
        box.hide();
        QTRY_VERIFY(r.at(1)->isVisible());
        r.test.clock.advance(1);
        QTRY_COMPARE(r.test.sound.played.size(), 1);
    }

    void ringsOnceForABurst()
    {
        Receiving r;
        r.program.NoteTemplate.SoundFileOn = true;
        r.program.NoteTemplate.SoundFile = r.soundFile();
        for (qint32 tag = 1; tag <= 4; ++tag)
            QVERIFY(r.send() == End::Done && r.isThere(tag));
        r.test.clock.advance(1);
        QTRY_VERIFY(!r.at(4)->GetThisNoteProps()->AlarmOn);
        QCOMPARE(r.test.sound.played.size(), 1);
        r.test.clock.advance(60);
        QVERIFY(r.send() == End::Done && r.isThere(5));
        r.test.clock.advance(1);
        QTRY_COMPARE(r.test.sound.played.size(), 2);
    }

    void lookingAtNotes()
    {
        Receiving r;
        QVERIFY(!r.line().isVisible());
        // Without a screen a window that is shown gets the focus.
        QDialog box;
        box.setModal(true);
        box.show();
        QVERIFY(r.send() == End::Done && r.send() == End::Done);
        QTRY_COMPARE(r.line().text(), u"2 new notes received"_s);
        QVERIFY(r.line().isVisible());
        r.at(1)->show();
        QTRY_COMPARE(r.line().text(), u"1 new note received"_s);
        box.hide();
        r.at(2)->letGo(2);
        NoteFixture::deleteUnloaded();
        QTRY_COMPARE(r.line().text(), u"Received notes"_s);
        r.at(1)->letGo(1);
        NoteFixture::deleteUnloaded();
        QTRY_VERIFY(!r.line().isVisible());
    }

    void blocking()
    {
        Receiving r;
        QVERIFY(r.send() == End::Done);
        QTRY_VERIFY(r.line().isVisible());
        r.line().click();
        auto &menu = control<QMenu>(r.line(), "mnuReceived");
        QCOMPARE(menu.actions().first()->text(), u"\"Title\" from Ann (127.0.0.1)"_s);
        QCOMPARE(menu.actions().last()->text(), u"Block this sender: Ann (127.0.0.1)"_s);
        menu.actions().last()->trigger();
        menu.hide();
        const auto stored = networkSettingsFile::load(networkSettingsFile::pathIn(r.home.paths.DataFolder));
        QCOMPARE(stored.BlockedSenders, QStringList{u"127.0.0.1"_s});
        QVERIFY(r.send() == End::Failed);
    }

    void limitIsToldOnce()
    {
        Receiving r;
        r.program.NoteCounter = modCreateNote::MostNotes;
        r.test.prompts.expect(Prompts::Answer::Ok);
        NoteSender one({20s, 200ms});
        NoteSender other({20s, 200ms});
        QSignalSpy spy(&other, &NoteSender::finished);
        for (NoteSender *sender : {&one, &other})
            sender->start(encodePacket(samplePacket()), {u"127.0.0.1"_s, {}, r.port});
        QVERIFY(spy.wait());
        QTRY_VERIFY(r.test.prompts.isDone());
        QVERIFY(r.test.prompts.last.text.startsWith(u"You cannot have more than 100 Quillets."));
    }

    void portInUse()
    {
        Receiving r;
        frmMenu second(r.program);
        QCOMPARE(r.boxOf([&second] { second.startReceiving(); }),
                 (Message{u"Port is in use.  Networking disabled."_s, u"Error"_s, Message::Icon::Critical}));
    }

    void announcing()
    {
        Receiving r;
        const FakeNearby &nearby = r.test.nearby;
        QCOMPARE(nearby.port, quint16(0));
        r.program.NetworkSettings.AnnounceOn = true;
        r.program.ProgramOptions.NameName = u"Ann"_s;
        r.panel.findChild<ReceivedNotes *>()->settingsChanged();
        QCOMPARE(nearby.port, r.port);
        QVERIFY(nearby.name.startsWith(u"Ann on "));
        r.panel.keepPlace();
        QCOMPARE(nearby.port, quint16(0));
    }

    /// The sender was told that it was received.
    void arrivesAsTheProgramEnds()
    {
        Receiving r;
        QVERIFY(r.send() == End::Done);
        r.program.Exiting = true;
        r.panel.keepPlace();
        QCOMPARE(r.stored().size(), size_t(1));
    }

    void leadsToTheCopies_data()
    {
        const Rows<void (*)(BesideStack &)> row; // open
        row("a click on the panel", [](BesideStack &t) { rightClick(t.panel, QContextMenuEvent::Mouse); });
        row("a click on a row", [](BesideStack &t) { rightClick(*t.row(), QContextMenuEvent::Mouse); });
        row("the Menu key", [](BesideStack &t) { rightClick(*t.row(), QContextMenuEvent::Keyboard); });
        row("its other keys", [](BesideStack &t) {
            t.panel.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&t.panel));
            QTest::keyClick(t.panel.focusWidget(), Qt::Key_F10, Qt::ShiftModifier);
        });
    }

    void leadsToTheCopies()
    {
        BesideStack t;
        std::get<0>(fetchRow<void (*)(BesideStack &)>())(t);
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(menu != nullptr && menu->objectName() == u"mnuPanel");
        bool opened = false;
        control<QAction>(*menu, "mnuRestore").trigger();
        menu->close();
        // The command comes from the event loop.
        QTimer::singleShot(0, qApp, [&opened] { closeCopies(opened); });
        QTRY_VERIFY(opened);
    }

    /// There with an empty NoteStack too.
    void leadsThereFromTheStack()
    {
        BesideStack t;
        bool opened = false;
        QTimer::singleShot(0, qApp, [&opened] {
            auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            QVERIFY(menu != nullptr);
            menu->setActiveAction(&control<QAction>(*menu, "mnuRestore"));
            closeCopies(opened);
            QTest::keyClick(menu, Qt::Key_Return);
        });
        control<QToolButton>(t.f.stack, "cmdTabList").click();
        QVERIFY(opened);
    }
};

QTEST_MAIN(testPanel)
#include "testPanel.moc"
