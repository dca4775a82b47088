// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "exchange/ExchangeFixture.h"
#include "exchange/frmSend.h"
#include "model/modStreams.h"
#include "net/Packet.h"
#include "net/ScriptedPeer.h"
#include "net/machineIdentity.h"
#include "platform/HeldKeys.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QPlainTextEdit>

using namespace Qt::StringLiterals;

class testSendDialog final : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_fixture.emplace();
        m_fixture->program.ProgramOptions.NameName = u"Ann"_s;
        m_fixture->open(u"eggs"_s);
    }
    void cleanup() { m_fixture.reset(); }

    void sends()
    {
        const int height = m_fixture->dialog->height();
        ScriptedPeer one(goodReceiver());
        ScriptedPeer other(goodReceiver());
        m_fixture->send(at(one));
        QVERIFY(m_fixture->isProgressShown());
        QTRY_VERIFY(m_fixture->dialog->height() > height);
        QTRY_COMPARE(m_fixture->result(), u"Message sent."_s);
        QCOMPARE(one.received, QList{packet()});
        QTRY_COMPARE(m_fixture->dialog->height(), height);
        QVERIFY(m_fixture->dialog->isVisible() && !m_fixture->isProgressShown());
        m_fixture->owner.reset(); // It goes on without its owner.
        m_fixture->send(at(one) + u" (desk), "_s + at(other));
        QTRY_COMPARE(m_fixture->result(), u"Sent to 2 of 2."_s);
        QCOMPARE(one.received.size() + other.received.size(), 3);
    }

    void refusals()
    {
        for (const auto &[targets, caption] : {std::pair(u"  "_s, u"No Remote Host Specified"_s),
                                               {u"10.0.0.1, bob"_s, u"Host Address Resolution Error"_s}}) {
            const Message told = m_fixture->boxOf([this, &all = targets] { m_fixture->send(all); });
            QCOMPARE(told.caption, caption);
            QVERIFY(told.icon == Message::Icon::Critical && !m_fixture->isProgressShown());
        }
        QVERIFY(modFileIO::LoadRecentList(m_fixture->home.paths, RecentList::Send).isEmpty());
    }

    void oneBoxForEachFailure()
    {
        ScriptedPeer good(goodReceiver());
        ScriptedPeer closes({{0, "250", Turn::Then::Close}});
        m_fixture->test.prompts.expect(Prompts::Answer::Ok);
        m_fixture->test.prompts.whileOpen = [this] { QVERIFY(!m_fixture->isProgressShown()); };
        m_fixture->send(at(closes) + u", "_s + at(good));
        QTRY_COMPARE(m_fixture->result(), u"Sent to 1 of 2."_s);
        QVERIFY(m_fixture->test.prompts.last.text.startsWith(u"An error has occured.  Server said: \n"));
        QCOMPARE(good.received.size(), 1);
    }

    void closingWhileItSends()
    {
        ScriptedPeer silent({});
        m_fixture->send(at(silent));
        QTRY_COMPARE(silent.received.size(), 1);
        press(*m_fixture->dialog, "CancelButton");
        QTest::keyClick(m_fixture->dialog.get(), Qt::Key_Escape);
        press(*m_fixture->dialog, "cmdSend");
        QVERIFY(m_fixture->dialog->isVisible() && m_fixture->isProgressShown());
        press(*m_fixture->dialog, "cmdStop");
        QTRY_COMPARE(m_fixture->result(), u"Send canceled."_s);
        QCOMPARE(silent.received.size(), 1);
        m_fixture->send(at(silent));
        m_fixture->dialog->close();
        QVERIFY(!m_fixture->dialog->isVisible());
        QTRY_VERIFY(!m_fixture->isProgressShown());
    }

    void enterOnItsButtons()
    {
        ScriptedPeer silent({});
        m_fixture->send(at(silent));
        pressByKey(*m_fixture->dialog, "cmdStop");
        QTRY_COMPARE(m_fixture->result(), u"Send canceled."_s);
        const qsizetype begun = silent.received.size();
        pressByKey(*m_fixture->dialog, "CancelButton");
        QVERIFY(!m_fixture->dialog->isVisible());
        QCOMPARE(silent.received.size(), begun);
    }

    /// As at the end of the program: nothing more is sent.
    void endsWhileABoxIsOpen()
    {
        ScriptedPeer closes({{0, "250", Turn::Then::Close}});
        ScriptedPeer next({{0, "250"}});
        const QPointer<QWidget> dialog = m_fixture->dialog.get();
        m_fixture->test.prompts.expect(Prompts::Answer::Ok);
        m_fixture->test.prompts.whileOpen = [this] { m_fixture->dialog.release()->unload(); };
        m_fixture->send(at(closes) + u", "_s + at(next));
        QTRY_VERIFY(!dialog);
        QTcpSocket another;
        another.connectToHost(QHostAddress::LocalHost, next.port());
        QTRY_COMPARE(another.bytesAvailable(), 3);
        QCOMPARE(next.received.size(), 1);
    }

    void aliasFromTheBook()
    {
        ScriptedPeer good(goodReceiver());
        TestHome::setContents(m_fixture->home.paths.SendBookFile, "alias bob none.invalid\r\n");
        m_fixture->to().setEditText(u"lost"_s);
        emit m_fixture->to().activated(0);
        answerDialog(u"frmBook"_s, [&](QDialog &editor) {
            QCOMPARE(editor.windowTitle(), u"Send Book - Quillets"_s);
            auto &box = control<QPlainTextEdit>(editor, "txtAddress(0)");
            box.setPlainText(at(good) + u" (desk)\n"_s);
            press(editor, "cmdSelect");
        });
        QTRY_COMPARE(m_fixture->to().currentText(), u"bob"_s);
        QCOMPARE(TestHome::contents(m_fixture->home.paths.SendBookFile),
                 "alias bob " + at(good).toLatin1() + " (desk)\r\n");
        press(*m_fixture->dialog, "cmdSend");
        QTRY_COMPARE(m_fixture->result(), u"Message sent."_s);
        emit m_fixture->to().activated(0);
        bool isClosed = false;
        answerDialog(u"frmBook"_s, [&](QDialog &editor) {
            press(editor, "cmdCancel");
            isClosed = true;
        });
        QTRY_VERIFY(isClosed);
        QTRY_VERIFY(m_fixture->to().hasFocus());
        QCOMPARE(m_fixture->to().currentText(), QString());
    }

    void recentTargets()
    {
        const ScriptedPeer silent({});
        const QString host = at(silent);
        for (const QString &name : {u" (a)"_s, u" (b)"_s, u" (a)"_s}) {
            m_fixture->send(host + name);
            press(*m_fixture->dialog, "cmdStop");
            QTRY_VERIFY(!m_fixture->isProgressShown());
        }
        const QStringList recent{host + u" (b)"_s, host + u" (a)"_s};
        QCOMPARE(modFileIO::LoadRecentList(m_fixture->home.paths, RecentList::Send), recent);
        QVERIFY(m_fixture->to().count() == 3 && m_fixture->to().itemText(0) == u"* View send book *");
        QCOMPARE(m_fixture->to().itemText(1), recent.first());
        // One that the file gives back in another form is still known.
        const QString parted = u" %1 (a;b)"_s.arg(host);
        for (int k = 0; k < 2; ++k) {
            m_fixture->send(parted);
            press(*m_fixture->dialog, "cmdStop");
            QTRY_VERIFY(!m_fixture->isProgressShown());
        }
        QCOMPARE(m_fixture->to().itemText(1), parted);
        QCOMPARE(m_fixture->to().itemText(2), recent.first());
        TestHome::setContents(m_fixture->home.paths.MiscFile, "\r\na;b;c;d;e;f;g;h;i;j;k;l\r\n");
        m_fixture->open(u"eggs"_s);
        QCOMPARE(m_fixture->to().count(), 11);
    }

    void keysOfTheTargets()
    {
        HeldKeys heldKeys;
        qApp->installEventFilter(&heldKeys);
        for (const char key : {'a', ' ', ' ', ' ', 'b'})
            QTest::keyClick(m_fixture->dialog->windowHandle(), key);
        QCOMPARE(m_fixture->to().currentText(), u"a   b"_s);
        m_fixture->to().clearEditText();
        m_fixture->to().addItem(u"127.0.0.1@9 (recent)"_s);
        QTest::keyClicks(m_fixture->to().lineEdit(), u"127.0.0.1@9"_s);
        QCOMPARE(m_fixture->to().currentText(), u"127.0.0.1@9"_s);
        QTest::keyClick(&m_fixture->to(), Qt::Key_Down);
        QVERIFY(m_fixture->to().view()->isVisible());
        QCOMPARE(m_fixture->to().currentText(), u"127.0.0.1@9"_s);
        m_fixture->to().hidePopup();
    }

    void computersNearby()
    {
        FakeNearby &nearby = m_fixture->test.nearby;
        nearby.there = {{u"Ann, (\u202Ehome)\n"_s, u"desk.local"_s, 1420},
                        {u"Bob"_s, u"lab.local"_s, 1500},
                        {u"Bob"_s, u"lab.local"_s, 1500},
                        {u"Eve"_s, u"10.0.0.1, all"_s, 1420}};
        m_fixture->to().setEditText(u"typed"_s);
        QTest::keyClick(&m_fixture->to(), Qt::Key_Down);
        QVERIFY(nearby.isLooking);
        QCOMPARE(m_fixture->to().count(), 3);
        QCOMPARE(m_fixture->to().itemText(1), u"desk.local (Ann home)"_s);
        QCOMPARE(m_fixture->to().itemText(2), u"lab.local@1500 (Bob)"_s);
        m_fixture->to().view()->setCurrentIndex(m_fixture->to().model()->index(2, 0));
        QTest::keyClick(m_fixture->to().view(), Qt::Key_Return);
        QTRY_VERIFY(!nearby.isLooking);
        QCOMPARE(m_fixture->to().currentText(), u"lab.local@1500 (Bob)"_s);
        QCOMPARE(m_fixture->to().count(), 1);
    }

private:
    QByteArray packet() const
    {
        QByteArray record;
        modStreams::EncodeSendRecord(m_fixture->note, record);
        return encodePacket({m_fixture->program.VersionText, machineIdentity(), u"Ann"_s, record});
    }

    /// Takes the note.
    Script goodReceiver() const
    {
        const qsizetype length = packet().size();
        return {{0, "250"}, {4, QByteArray::number(length)}, {length, "300"}};
    }
    static QString at(const ScriptedPeer &peer) { return u"127.0.0.1@%1"_s.arg(peer.port()); }

    std::optional<ExchangeFixture<frmSend>> m_fixture;
};

QTEST_MAIN(testSendDialog)
#include "testSendDialog.moc"
