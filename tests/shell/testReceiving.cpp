// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "forms/modFormsSaving.h"
#include "model/networkSettingsFile.h"
#include "net/NoteSender.h"
#include "net/samplePackets.h"
#include "notes/NoteFixture.h"
#include "shell/ReceivedLine.h"
#include "shell/ReceivedNotes.h"
#include "shell/frmMenu.h"

#include <QDialog>
#include <QMenu>
#include <QSignalSpy>
#include <QTcpServer>

#include <limits>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace
{

quint16 freePort()
{
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    return server.serverPort();
}

} // namespace

/// Notes of other computers, from the port to the window.
class testReceiving final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void becomesANote();
    void hostileTexts();
    void waitsForAnswers_data();
    void waitsForAnswers();
    void ringsOnceForABurst();
    void lookingAtNotes();
    void blocking();
    void limitIsToldOnce();
    void portInUse();
    void announcing();
    void arrivesAsTheProgramEnds();

private:
    void send(const Packet &packet = samplePacket(u"text"_s));
    frmNote *received(qint32 tag = 1) const { return m_fixture->at(tag); }
    ReceivedLine &line() const { return *m_panel->findChild<ReceivedLine *>(); }

    std::unique_ptr<NoteFixture> m_fixture;
    std::unique_ptr<frmMenu> m_panel;
    quint16 m_port = 0;
};

void testReceiving::init()
{
    failOnWarnings();
    m_fixture = std::make_unique<NoteFixture>();
    m_port = freePort();
    m_fixture->program.ProgramOptions.ListeningPort = m_port;
    m_panel = std::make_unique<frmMenu>(m_fixture->program);
    m_panel->show();
    m_panel->startReceiving();
}

void testReceiving::cleanup()
{
    QVERIFY(m_fixture->test.prompts.isDone());
    m_panel.reset();
    m_fixture.reset();
}

/// Until the sender has been told that it was received.
void testReceiving::send(const Packet &packet)
{
    NoteSender sender({20s, 20s});
    QSignalSpy spy(&sender, &NoteSender::finished);
    sender.start(encodePacket(packet), {u"127.0.0.1"_s, {}, m_port});
    QVERIFY(spy.wait());
    QCOMPARE(spy.first().first().value<ExchangeResult>().end, ExchangeResult::End::Done);
}

void testReceiving::becomesANote()
{
    m_fixture->program.NoteTemplate.FlashOn = true;
    send();
    QTRY_VERIFY(received() != nullptr && received()->isVisible());
    QVERIFY(received()->GetThisNoteProps()->DateCreated.endsWith(u" (Ann, desk (127.0.0.1))"));
    QCOMPARE(m_fixture->stored().size(), size_t(1));
    QCOMPARE(m_fixture->stored().front().Data, u"text"_s);
    const QColor paper = received()->grab().toImage().pixelColor(received()->width() / 2, received()->height() / 2);
    m_fixture->test.clock.advance(1);
    QTRY_VERIFY(received()->grab().toImage().pixelColor(received()->width() / 2, received()->height() / 2) != paper);
}

void testReceiving::hostileTexts()
{
    Packet packet = samplePacket(u"text"_s);
    packet.senderName = u"A\nnn\u202E"_s;
    clsNoteProps note;
    note.TitleBarTitle = u"Pay\u202Eexe.\u0007\n"_s;
    note.DateCreated = u"today\n\u202E"_s;
    note.Data = u"http://x.invalid"_s;
    note.FrmHeight = note.FontSize = std::numeric_limits<float>::quiet_NaN();
    packet.record.clear();
    modStreams::EncodeSendRecord(note, packet.record);
    send(packet);
    QTRY_VERIFY(received() != nullptr);
    QCOMPARE(received()->GetThisNoteProps()->TitleBarTitle, u"Payexe.  "_s);
    QVERIFY(received()->GetThisNoteProps()->DateCreated.startsWith(u"today  (A nn, "));
    modForms::SaveAllNotes(m_fixture->program);
    QVERIFY(!modForms::hasUnsavedNotes(m_fixture->program));
}

void testReceiving::waitsForAnswers_data()
{
    QTest::addColumn<bool>("isForm");
    QTest::newRow("dialog of the program") << true;
    QTest::newRow("box or chooser") << false;
}

void testReceiving::waitsForAnswers()
{
    QFETCH(bool, isForm);
    clsNoteProps &start = m_fixture->program.NoteTemplate;
    start.SoundFileOn = true;
    start.SoundFile = m_fixture->home.paths.DataFolder + u"/ring.wav"_s;
    TestHome::setContents(start.SoundFile, "RIFF");
    QDialog box;
    std::optional<Form> form;
    if (isForm)
        form.emplace(m_fixture->program.forms, u"frmOther"_s);
    box.setModal(true);
    box.show();
    send();
    QTRY_VERIFY(received() != nullptr);
    m_fixture->test.clock.advance(1);
    QTest::qWait(50);
    QVERIFY(!received()->isVisible());
    QVERIFY(m_fixture->test.sound.played.isEmpty());
    QCOMPARE(m_fixture->stored().size(), size_t(1));
    box.hide();
    QTRY_VERIFY(received()->isVisible());
    m_fixture->test.clock.advance(1);
    QTRY_COMPARE(m_fixture->test.sound.played.size(), 1);
}

void testReceiving::ringsOnceForABurst()
{
    clsNoteProps &start = m_fixture->program.NoteTemplate;
    start.SoundFileOn = true;
    start.SoundFile = m_fixture->home.paths.DataFolder + u"/ring.wav"_s;
    TestHome::setContents(start.SoundFile, "RIFF");
    for (qint32 tag = 1; tag <= 4; ++tag) {
        send();
        QTRY_VERIFY(received(tag) != nullptr);
    }
    m_fixture->test.clock.advance(1);
    QTRY_VERIFY(!received(4)->GetThisNoteProps()->AlarmOn);
    QCOMPARE(m_fixture->test.sound.played.size(), 1);
    m_fixture->test.clock.advance(60);
    send();
    QTRY_VERIFY(received(5) != nullptr);
    m_fixture->test.clock.advance(1);
    QTRY_COMPARE(m_fixture->test.sound.played.size(), 2);
}

void testReceiving::lookingAtNotes()
{
    QVERIFY(!line().isVisible());
    // Without a screen a window that is shown gets the focus.
    QDialog box;
    box.setModal(true);
    box.show();
    send();
    send();
    QTRY_COMPARE(line().text(), u"2 new notes received"_s);
    QVERIFY(line().isVisible());
    received(1)->show();
    QTRY_COMPARE(line().text(), u"1 new note received"_s);
    box.hide();
    received(2)->letGo(2);
    NoteFixture::deleteUnloaded();
    QTRY_COMPARE(line().text(), u"Received notes"_s);
    received(1)->letGo(1);
    NoteFixture::deleteUnloaded();
    QTRY_VERIFY(!line().isVisible());
}

void testReceiving::blocking()
{
    send();
    QTRY_VERIFY(line().isVisible());
    line().click();
    auto &menu = NoteFixture::control<QMenu>(line(), "mnuReceived");
    QCOMPARE(menu.actions().first()->text(), u"\"Title\" from Ann (127.0.0.1)"_s);
    QCOMPARE(menu.actions().last()->text(), u"Block this sender: Ann (127.0.0.1)"_s);
    menu.actions().last()->trigger();
    menu.hide();
    const auto stored = networkSettingsFile::load(networkSettingsFile::pathIn(m_fixture->home.paths.DataFolder));
    QCOMPARE(stored.BlockedSenders, QStringList{u"127.0.0.1"_s});
    NoteSender sender({20s, 20s});
    QSignalSpy spy(&sender, &NoteSender::finished);
    sender.start(encodePacket(samplePacket()), {u"127.0.0.1"_s, {}, m_port});
    QVERIFY(spy.wait());
    QCOMPARE(spy.first().first().value<ExchangeResult>().end, ExchangeResult::End::Failed);
}

void testReceiving::limitIsToldOnce()
{
    m_fixture->program.NoteCounter = modCreateNote::MostNotes;
    m_fixture->test.prompts.expect(Prompts::Answer::Ok);
    NoteSender one({20s, 200ms});
    NoteSender other({20s, 200ms});
    QSignalSpy spy(&other, &NoteSender::finished);
    one.start(encodePacket(samplePacket()), {u"127.0.0.1"_s, {}, m_port});
    other.start(encodePacket(samplePacket()), {u"127.0.0.1"_s, {}, m_port});
    QVERIFY(spy.wait());
    QTRY_VERIFY(m_fixture->test.prompts.isDone());
    QVERIFY(m_fixture->test.prompts.last.text.startsWith(u"You cannot have more than 100 Quillets."));
}

void testReceiving::portInUse()
{
    frmMenu second(m_fixture->program);
    m_fixture->test.prompts.expect(Prompts::Answer::Ok);
    second.startReceiving();
    QTRY_VERIFY(m_fixture->test.prompts.isDone());
    QCOMPARE(m_fixture->test.prompts.last,
             (Message{u"Port is in use.  Networking disabled."_s, u"Error"_s, Message::Icon::Critical}));
}

void testReceiving::announcing()
{
    const FakeNearby &nearby = m_fixture->test.nearby;
    QCOMPARE(nearby.port, quint16(0));
    m_fixture->program.NetworkSettings.AnnounceOn = true;
    m_fixture->program.ProgramOptions.NameName = u"Ann"_s;
    m_panel->findChild<ReceivedNotes *>()->settingsChanged();
    QCOMPARE(nearby.port, m_port);
    QVERIFY(nearby.name.startsWith(u"Ann on "));
    m_panel->keepPlace();
    QCOMPARE(nearby.port, quint16(0));
}

/// The sender was told that it was received.
void testReceiving::arrivesAsTheProgramEnds()
{
    send();
    m_fixture->program.Exiting = true;
    m_panel->keepPlace();
    QCOMPARE(m_fixture->stored().size(), size_t(1));
}

QTEST_MAIN(testReceiving)
#include "testReceiving.moc"
