// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "exchange/frmSend.h"
#include "model/modStreams.h"
#include "net/Packet.h"
#include "net/ScriptedPeer.h"
#include "net/machineIdentity.h"
#include "platform/HeldKeys.h"
#include "support/TestHome.h"
#include "support/TestProgram.h"
#include "support/answerDialog.h"
#include "support/failOnWarnings.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace
{

const ExchangeTimes Times{20s, 20s, 1ms};

/// What a receiver says to a packet of this length.
Script goodReceiver(qsizetype length)
{
    return {{0, "250"}, {4, QByteArray::number(length)}, {length, "300"}};
}

} // namespace

class testSendDialog final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void sends();
    void refusals_data();
    void refusals();
    void oneBoxForEachFailure();
    void closingWhileItSends();
    void enterOnItsButtons();
    void endsWhileABoxIsOpen();
    void goesOnWithoutItsOwner();
    void aliasFromTheBook();
    void recentTargets();
    void keysOfTheTargets();
    void computersNearby();

private:
    QByteArray packet() const;
    QString at(const ScriptedPeer &peer) const { return u"127.0.0.1@%1"_s.arg(peer.port()); }
    QComboBox &to() const { return control<QComboBox>(*m_dialog, "comTo"); }
    bool isProgressShown() const { return control<QWidget>(*m_dialog, "fraProgress").isVisible(); }
    QString result() const { return control<QLabel>(*m_dialog, "lblResult").text(); }
    void send(const QString &targets);

    std::unique_ptr<TestHome> m_home;
    std::unique_ptr<TestProgram> m_test;
    clsNoteProps m_note;
    std::unique_ptr<QWidget> m_owner;
    std::unique_ptr<frmSend> m_dialog;
};

void testSendDialog::init()
{
    failOnWarnings();
    m_home = std::make_unique<TestHome>();
    m_test = std::make_unique<TestProgram>(QDateTime(QDate(2026, 3, 1), QTime(12, 0)), m_home->paths);
    m_test->program.ProgramOptions.NameName = u"Ann"_s;
    m_test->program.ProgramOptions.SendBook = m_home->paths.SendBookFile;
    m_note.TitleBarTitle = u"Shopping"_s;
    m_note.Data = u"eggs"_s;
    m_owner = std::make_unique<QWidget>();
    m_owner->show();
    m_dialog = std::make_unique<frmSend>(m_test->program, m_owner.get(), Times);
    m_dialog->Initialize(m_note);
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
}

void testSendDialog::cleanup()
{
    m_dialog.reset();
    QVERIFY(m_test->prompts.isDone());
}

QByteArray testSendDialog::packet() const
{
    QByteArray record;
    modStreams::EncodeSendRecord(m_note, record);
    return encodePacket({m_test->program.VersionText, machineIdentity(), u"Ann"_s, record});
}

void testSendDialog::send(const QString &targets)
{
    to().setEditText(targets);
    press(*m_dialog, "cmdSend");
}

void testSendDialog::sends()
{
    const int height = m_dialog->height();
    ScriptedPeer one(goodReceiver(packet().size()));
    ScriptedPeer other(goodReceiver(packet().size()));
    send(at(one));
    QVERIFY(isProgressShown());
    QTRY_VERIFY(m_dialog->height() > height);
    QTRY_COMPARE(result(), u"Message sent."_s);
    QCOMPARE(one.received, QList{packet()});
    QTRY_COMPARE(m_dialog->height(), height);
    QVERIFY(m_dialog->isVisible() && !isProgressShown());
    send(at(one) + u" (desk), "_s + at(other));
    QTRY_COMPARE(result(), u"Sent to 2 of 2."_s);
    QCOMPARE(one.received.size() + other.received.size(), 3);
}

void testSendDialog::refusals_data()
{
    QTest::addColumn<QString>("targets");
    QTest::addColumn<QString>("caption");
    QTest::newRow("nothing") << u"  "_s << u"No Remote Host Specified"_s;
    QTest::newRow("unknown alias") << u"10.0.0.1, bob"_s << u"Host Address Resolution Error"_s;
    QTest::newRow("commas") << u" , ,"_s << u"Host Address Resolution Error"_s;
}

void testSendDialog::refusals()
{
    QFETCH(QString, targets);
    m_test->prompts.expect(Prompts::Answer::Ok);
    send(targets);
    QTEST(m_test->prompts.last.caption, "caption");
    QCOMPARE(m_test->prompts.last.icon, Message::Icon::Critical);
    QVERIFY(!isProgressShown());
    QVERIFY(modFileIO::LoadRecentList(m_home->paths, RecentList::Send).isEmpty());
}

void testSendDialog::oneBoxForEachFailure()
{
    ScriptedPeer good(goodReceiver(packet().size()));
    ScriptedPeer closes({{0, "250", Turn::Then::Close}});
    m_test->prompts.expect(Prompts::Answer::Ok);
    m_test->prompts.whileOpen = [this] { QVERIFY(!isProgressShown()); };
    send(at(closes) + u", "_s + at(good));
    QTRY_COMPARE(result(), u"Sent to 1 of 2."_s);
    QVERIFY(m_test->prompts.last.text.startsWith(u"An error has occured.  Server said: \n"));
    QCOMPARE(good.received.size(), 1);
}

void testSendDialog::closingWhileItSends()
{
    ScriptedPeer silent({});
    send(at(silent));
    QTRY_COMPARE(silent.received.size(), 1);
    press(*m_dialog, "CancelButton");
    QTest::keyClick(m_dialog.get(), Qt::Key_Escape);
    press(*m_dialog, "cmdSend");
    QVERIFY(m_dialog->isVisible() && isProgressShown());
    press(*m_dialog, "cmdStop");
    QTRY_COMPARE(result(), u"Send canceled."_s);
    QCOMPARE(silent.received.size(), 1);
    send(at(silent));
    m_dialog->close();
    QVERIFY(!m_dialog->isVisible());
    QTRY_VERIFY(!isProgressShown());
}

void testSendDialog::enterOnItsButtons()
{
    ScriptedPeer silent({});
    send(at(silent));
    pressByKey(*m_dialog, "cmdStop");
    QTRY_COMPARE(result(), u"Send canceled."_s);
    pressByKey(*m_dialog, "CancelButton");
    QVERIFY(!m_dialog->isVisible());
}

/// As at the end of the program: nothing more is sent.
void testSendDialog::endsWhileABoxIsOpen()
{
    ScriptedPeer closes({{0, "250", Turn::Then::Close}});
    ScriptedPeer next({{0, "250"}});
    const QPointer<QWidget> dialog = m_dialog.get();
    m_test->prompts.expect(Prompts::Answer::Ok);
    m_test->prompts.whileOpen = [this] { m_dialog.release()->unload(); };
    send(at(closes) + u", "_s + at(next));
    QTRY_VERIFY(!dialog);
    QTcpSocket another;
    another.connectToHost(QHostAddress::LocalHost, next.port());
    QTRY_COMPARE(another.bytesAvailable(), 3);
    QCOMPARE(next.received.size(), 1);
}

void testSendDialog::goesOnWithoutItsOwner()
{
    ScriptedPeer good(goodReceiver(packet().size()));
    m_owner.reset();
    send(at(good));
    QTRY_COMPARE(result(), u"Message sent."_s);
}

void testSendDialog::aliasFromTheBook()
{
    ScriptedPeer good(goodReceiver(packet().size()));
    TestHome::setContents(m_home->paths.SendBookFile, "alias bob none.invalid\r\n");
    to().setEditText(u"lost"_s);
    emit to().activated(0);
    answerDialog(u"frmBook"_s, [&](QDialog &editor) {
        QCOMPARE(editor.windowTitle(), u"Send Book - Quillets"_s);
        auto &box = control<QPlainTextEdit>(editor, "txtAddress(0)");
        box.setPlainText(at(good) + u" (desk)\n"_s);
        press(editor, "cmdSelect");
    });
    QTRY_COMPARE(to().currentText(), u"bob"_s);
    QCOMPARE(TestHome::contents(m_home->paths.SendBookFile), "alias bob " + at(good).toLatin1() + " (desk)\r\n");
    press(*m_dialog, "cmdSend");
    QTRY_COMPARE(result(), u"Message sent."_s);
    emit to().activated(0);
    bool isClosed = false;
    answerDialog(u"frmBook"_s, [&](QDialog &editor) {
        press(editor, "cmdCancel");
        isClosed = true;
    });
    QTRY_VERIFY(isClosed);
    QTRY_VERIFY(to().hasFocus());
    QCOMPARE(to().currentText(), QString());
}

void testSendDialog::recentTargets()
{
    ScriptedPeer silent({});
    for (int k = 0; k <= 11; ++k) {
        send(u"%1 (%2)"_s.arg(at(silent)).arg(k % 11));
        press(*m_dialog, "cmdStop");
        QTRY_VERIFY(!isProgressShown());
    }
    const QStringList recent = modFileIO::LoadRecentList(m_home->paths, RecentList::Send);
    QCOMPARE(recent.size(), 10);
    QVERIFY(recent.first().endsWith(u"(0)") && recent.last().endsWith(u"(2)"));
    QCOMPARE(to().count(), 11);
    QCOMPARE(to().itemText(0), u"* View send book *"_s);
    QCOMPARE(to().itemText(1), recent.first());
    // One that the file gives back in another form is still known.
    const QString parted = u" %1 (a;b)"_s.arg(at(silent));
    for (int k = 0; k < 2; ++k) {
        send(parted);
        press(*m_dialog, "cmdStop");
        QTRY_VERIFY(!isProgressShown());
    }
    QCOMPARE(to().itemText(1), parted);
    QCOMPARE(to().itemText(2), recent.first());
    TestHome::setContents(m_home->paths.MiscFile, "\r\na;b;c;d;e;f;g;h;i;j;k;l\r\n");
    QCOMPARE(control<QComboBox>(frmSend(m_test->program, nullptr, Times), "comTo").count(), 11);
}

void testSendDialog::keysOfTheTargets()
{
    HeldKeys heldKeys;
    qApp->installEventFilter(&heldKeys);
    for (const char key : {'a', ' ', ' ', ' ', 'b'})
        QTest::keyClick(m_dialog->windowHandle(), key);
    QCOMPARE(to().currentText(), u"a   b"_s);
    to().clearEditText();
    to().addItem(u"127.0.0.1@9 (recent)"_s);
    QTest::keyClicks(to().lineEdit(), u"127.0.0.1@9"_s);
    QCOMPARE(to().currentText(), u"127.0.0.1@9"_s);
    QTest::keyClick(&to(), Qt::Key_Down);
    QVERIFY(to().view()->isVisible());
    QCOMPARE(to().currentText(), u"127.0.0.1@9"_s);
    to().hidePopup();
}

void testSendDialog::computersNearby()
{
    FakeNearby &nearby = m_test->nearby;
    nearby.there = {{u"Ann, (\u202Ehome)\n"_s, u"desk.local"_s, 1420},
                    {u"Bob"_s, u"lab.local"_s, 1500},
                    {u"Bob"_s, u"lab.local"_s, 1500},
                    {u"Eve"_s, u"10.0.0.1, all"_s, 1420}};
    to().setEditText(u"typed"_s);
    QTest::keyClick(&to(), Qt::Key_Down);
    QVERIFY(nearby.isLooking);
    QCOMPARE(to().count(), 3);
    QCOMPARE(to().itemText(1), u"desk.local (Ann home)"_s);
    QCOMPARE(to().itemText(2), u"lab.local@1500 (Bob)"_s);
    to().view()->setCurrentIndex(to().model()->index(2, 0));
    QTest::keyClick(to().view(), Qt::Key_Return);
    QTRY_VERIFY(!nearby.isLooking);
    QCOMPARE(to().currentText(), u"lab.local@1500 (Bob)"_s);
    QCOMPARE(to().count(), 1);
}

QTEST_MAIN(testSendDialog)
#include "testSendDialog.moc"
