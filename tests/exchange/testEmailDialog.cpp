// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "drawing/endlessRuns.h"
#include "exchange/ExchangeFixture.h"
#include "exchange/frmEmail.h"
#include "net/ScriptedMailServer.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QUrlQuery>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using Answer = Prompts::Answer;
using Replies = QList<QByteArray>;

namespace
{

const Replies Good{"220 hi\r\n", "250 a\r\n", "250 b\r\n", "250 c\r\n",
                   "250 d\r\n",  "354 e\r\n", "250 f\r\n", "221 g\r\n"};

} // namespace

class testEmailDialog final : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_fixture.emplace();
        m_fixture->program.ProgramOptions.EmailAddress = u" me@home.x "_s;
        m_fixture->program.ProgramOptions.SMTPServer = u" 127.0.0.1 "_s;
        m_fixture->open(u"2 l milk\n.eggs"_s);
    }
    void cleanup() { m_fixture.reset(); }

    /// Its libraries take megabytes, which plain mail does not need. The first test: the servers of others have them.
    void loadsNoEncryption()
    {
        m_fixture->program.NetworkSettings.MailPort = 1; // Nobody listens there.
        m_fixture->boxOf([this] { m_fixture->send(u"a@b.c"_s); });
        QFile libraries(u"/proc/self/maps"_s);
        QVERIFY(!libraries.open(QIODevice::ReadOnly) || !libraries.readAll().contains("opensslbackend"));
    }

    void tabOrderAndSmallestSize()
    {
        for (const char *const next : {"txtSubject", "txtBody", "cmdSend", "CancelButton"}) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget()->objectName(), QLatin1StringView(next));
        }
        m_fixture->dialog->resize(m_fixture->dialog->minimumSize());
        for (const char *const name : {"cmdMailProgram", "cmdSend", "CancelButton"}) {
            const auto &button = control<QWidget>(*m_fixture->dialog, name);
            QVERIFY(button.width() >= button.sizeHint().width());
        }
    }

    void sends()
    {
        ScriptedMailServer server(Good);
        use(server);
        TestHome::setContents(m_fixture->home.paths.AddressBookFile, "alias ann Ann <a@b.c>\r\n");
        const int height = m_fixture->dialog->height();
        m_fixture->send(u"ann, d@e.f"_s);
        QVERIFY(m_fixture->isProgressShown());
        QVERIFY(m_fixture->dialog->height() > height);
        QTRY_COMPARE(m_fixture->result(), u"Message sent."_s);
        QCOMPARE(m_fixture->dialog->height(), height);
        QCOMPARE(server.heard.first(5),
                 (Replies{"HELO Quillets", "mail from: me@home.x", "rcpt to: a@b.c", "rcpt to: d@e.f", "data"}));
        const QByteArray &content = server.heard.at(5);
        QVERIFY(
            content.contains("\r\nTo: Ann <a@b.c>, d@e.f\r\nFrom: Quillets User <me@home.x>\r\nSubject: Shopping\r\n"));
        QVERIFY(content.endsWith("\r\n\r\n2 l milk\r\n..eggs\r\n"));
        QCOMPARE(modFileIO::LoadRecentList(m_fixture->home.paths, RecentList::Email), QStringList{u"ann, d@e.f"_s});
    }

    void refusals()
    {
        for (const auto &[to, caption] :
             {std::pair(u"  "_s, u"E-mail address error"_s), {u"bob"_s, u"E-mail Address Resolution Error"_s}}) {
            const Message told = m_fixture->boxOf([this, &target = to] { m_fixture->send(target); });
            QCOMPARE(told.caption, caption);
            QVERIFY(told.icon == Message::Icon::Critical && !m_fixture->isProgressShown());
        }
    }

    void failureWithDetails()
    {
        ScriptedMailServer server({"220 hi\r\n", "554 no\u202E\r\n"});
        use(server);
        m_fixture->open(u"text"_s, 200ms);
        m_fixture->test.prompts.expect(Answer::Ok);
        m_fixture->send(u"a@b.c"_s);
        QTRY_COMPARE(m_fixture->result(), u"E-mail canceled"_s);
        const Message &told = m_fixture->test.prompts.last;
        QCOMPARE(told.caption, u"No Response"_s);
        QVERIFY(told.details.contains(u"554 no") && !told.details.contains(u'\u202E'));
    }

    void stopping()
    {
        ScriptedMailServer server({"220 hi\r\n"});
        use(server);
        m_fixture->send(u"a@b.c"_s);
        QTRY_VERIFY(!server.heard.isEmpty());
        press(*m_fixture->dialog, "CancelButton");
        QVERIFY(m_fixture->dialog->isVisible());
        press(*m_fixture->dialog, "cmdStop");
        QTRY_COMPARE(m_fixture->result(), u"E-mail canceled"_s);
    }

    /// Asked for where the keyring has none, again after a failure, and kept only when the server took it.
    void passwords()
    {
        ScriptedMailServer server({});
        use(server);
        m_fixture->program.NetworkSettings.MailSecurity = clsNetworkSettings::Security::StartTls;
        m_fixture->program.NetworkSettings.MailUser = u" ann "_s;
        bool isAsked = false;
        const auto answer = [&isAsked](const char *button) {
            isAsked = false;
            // Behind the question to the keyring.
            QTimer::singleShot(0, qApp, [&isAsked, button] {
                answerDialog(u"frmMailPassword"_s, [&isAsked, button](QDialog &dialog) {
                    isAsked = true;
                    QTest::keyClicks(&control<QLineEdit>(dialog, "txtPassword"), u"secret"_s);
                    press(dialog, button);
                });
            });
        };
        answer("CancelButton");
        m_fixture->send(u"a@b.c"_s);
        QTRY_VERIFY(isAsked);
        QVERIFY(server.heard.isEmpty());
        QTRY_COMPARE(m_fixture->result(), u"E-mail canceled"_s);
        // Who stops while the keyring is asked hears no more of it.
        m_fixture->send(u"a@b.c"_s);
        press(*m_fixture->dialog, "cmdStop");
        QTest::qWait(50);
        QVERIFY(!m_fixture->isProgressShown() && server.heard.isEmpty());
        m_fixture->program.NetworkSettings.MailPort = 1;
        for (int k = 0; k < 2; ++k) {
            answer("OKButton");
            m_fixture->boxOf([this] { m_fixture->send(u"a@b.c"_s); });
            QVERIFY(isAsked && m_fixture->test.keyring.passwords.isEmpty());
        }
        m_fixture->test.keyring.passwords.insert(u"ann@127.0.0.1"_s, u"kept"_s);
        m_fixture->open(u"text"_s);
        m_fixture->boxOf([this] { m_fixture->send(u"a@b.c"_s); });
    }

    void mailProgram()
    {
        m_fixture->to().setEditText(u"Ann <a&b@c.d>, e@f.g"_s);
        control<QLineEdit>(*m_fixture->dialog, "txtSubject").setText(u"50% & more? \u00E9"_s);
        pressByKey(*m_fixture->dialog, "cmdMailProgram");
        QCOMPARE(
            m_fixture->test.browser.last.toEncoded(),
            QByteArray("mailto:a%26b@c.d,e@f.g?subject=50%25%20%26%20more%3F%20%C3%A9&body=2%20l%20milk%0D%0A.eggs"));
        m_fixture->test.browser.isThere = false;
        m_fixture->boxOf([this] { press(*m_fixture->dialog, "cmdMailProgram"); });
        control<QPlainTextEdit>(*m_fixture->dialog, "txtBody").setPlainText(u"words "_s.repeated(100'000));
        m_fixture->boxOf([this] { press(*m_fixture->dialog, "cmdMailProgram"); });
    }

    void missingOptionsAreTold()
    {
        Program &program = m_fixture->program;
        const auto isMissing = [this, &program] {
            return frmEmail::isMissingOptions(program, m_fixture->note, nullptr);
        };
        QVERIFY(!isMissing());
        program.ProgramOptions.SMTPServer.clear();
        for (const Answer reply : {Answer::Ok, Answer::Second}) {
            const Message told = m_fixture->boxOf([&isMissing] { QVERIFY(isMissing()); }, reply);
            QVERIFY(told.caption == u"No Server Name" && told.enter == Message::Enter::Ok);
            QCOMPARE(m_fixture->test.browser.last.isEmpty(), reply == Answer::Ok);
        }
    }

    void endlessLine()
    {
        const QString line(endlessRuns::Longest + 1, u'x');
        m_fixture->open(line);
        QVERIFY(control<QPlainTextEdit>(*m_fixture->dialog, "txtBody").toPlainText().isEmpty());
        ScriptedMailServer server(Good);
        use(server);
        m_fixture->send(u"a@b.c, d@e.f"_s);
        QTRY_COMPARE(m_fixture->result(), u"Message sent."_s);
        QVERIFY(server.heard.at(5).size() > line.size());
    }

private:
    void use(const ScriptedMailServer &server) { m_fixture->program.NetworkSettings.MailPort = server.serverPort(); }

    std::optional<ExchangeFixture<frmEmail>> m_fixture;
};

QTEST_MAIN(testEmailDialog)
#include "testEmailDialog.moc"
