// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "drawing/endlessRuns.h"
#include "exchange/frmEmail.h"
#include "net/ScriptedMailServer.h"
#include "support/TestHome.h"
#include "support/TestProgram.h"
#include "support/answerDialog.h"
#include "support/failOnWarnings.h"

#include <QComboBox>
#include <QLabel>
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
    void init();
    void cleanup();
    void loadsNoEncryption();
    void tabOrder();
    void smallestSize();
    void sends();
    void refusals_data();
    void refusals();
    void failureWithDetails();
    void stopping();
    void passwords();
    void mailProgram();
    void missingOptions_data();
    void missingOptions();
    void endlessLine();

private:
    void open(const QString &text = u"2 l milk\n.eggs"_s, std::chrono::milliseconds wait = 20s);
    void use(const ScriptedMailServer &server) { m_test->program.NetworkSettings.MailPort = server.serverPort(); }
    QString result() const { return control<QLabel>(*m_dialog, "lblResult").text(); }
    void send(const QString &to);

    std::unique_ptr<TestHome> m_home;
    std::unique_ptr<TestProgram> m_test;
    std::unique_ptr<frmEmail> m_dialog;
};

void testEmailDialog::init()
{
    failOnWarnings();
    m_home = std::make_unique<TestHome>();
    m_test = std::make_unique<TestProgram>(QDateTime(QDate(2026, 3, 1), QTime(12, 0)), m_home->paths);
    clsprogramoptions &options = m_test->program.ProgramOptions;
    options.AddressBook = m_home->paths.AddressBookFile;
    options.EmailAddress = u" me@home.x "_s;
    options.SMTPServer = u" 127.0.0.1 "_s;
    open();
}

void testEmailDialog::cleanup()
{
    m_dialog.reset();
    QVERIFY(m_test->prompts.isDone());
}

void testEmailDialog::open(const QString &text, std::chrono::milliseconds wait)
{
    m_dialog = std::make_unique<frmEmail>(m_test->program, nullptr, ExchangeTimes{20s, wait, 1ms});
    clsNoteProps note;
    note.TitleBarTitle = u"Shopping"_s;
    note.Data = text;
    m_dialog->Initialize(note);
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
}

void testEmailDialog::send(const QString &to)
{
    control<QComboBox>(*m_dialog, "comTo").setEditText(to);
    press(*m_dialog, "cmdSend");
}

/// Its libraries take megabytes, which plain mail does not need. The first test, since the server of others has them.
void testEmailDialog::loadsNoEncryption()
{
    m_test->program.NetworkSettings.MailPort = 1; // Nobody listens there.
    m_test->prompts.expect(Answer::Ok);
    send(u"a@b.c"_s);
    QTRY_VERIFY(m_test->prompts.isDone());
    QFile libraries(u"/proc/self/maps"_s);
    QVERIFY(!libraries.open(QIODevice::ReadOnly) || !libraries.readAll().contains("opensslbackend"));
}

void testEmailDialog::tabOrder()
{
    for (const char *const next : {"txtSubject", "txtBody", "cmdSend", "CancelButton"}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget()->objectName(), QLatin1StringView(next));
    }
}

void testEmailDialog::smallestSize()
{
    m_dialog->resize(m_dialog->minimumSize());
    for (const char *const name : {"cmdMailProgram", "cmdSend", "CancelButton"})
        QVERIFY(control<QWidget>(*m_dialog, name).width() >= control<QWidget>(*m_dialog, name).sizeHint().width());
}

void testEmailDialog::sends()
{
    ScriptedMailServer server(Good);
    use(server);
    TestHome::setContents(m_home->paths.AddressBookFile, "alias ann Ann <a@b.c>\r\n");
    const int height = m_dialog->height();
    send(u"ann, d@e.f"_s);
    QVERIFY(control<QWidget>(*m_dialog, "fraProgress").isVisible());
    QVERIFY(m_dialog->height() > height);
    QTRY_COMPARE(result(), u"Message sent."_s);
    QCOMPARE(m_dialog->height(), height);
    QCOMPARE(server.heard.first(5),
             (Replies{"HELO Quillets", "mail from: me@home.x", "rcpt to: a@b.c", "rcpt to: d@e.f", "data"}));
    const QByteArray &content = server.heard.at(5);
    QVERIFY(content.contains("\r\nTo: Ann <a@b.c>, d@e.f\r\nFrom: Quillets User <me@home.x>\r\nSubject: Shopping\r\n"));
    QVERIFY(content.endsWith("\r\n\r\n2 l milk\r\n..eggs\r\n"));
    QCOMPARE(modFileIO::LoadRecentList(m_home->paths, RecentList::Email), QStringList{u"ann, d@e.f"_s});
}

void testEmailDialog::refusals_data()
{
    QTest::addColumn<QString>("to");
    QTest::addColumn<QString>("caption");
    QTest::newRow("nobody") << u"  "_s << u"E-mail address error"_s;
    QTest::newRow("unknown alias") << u"bob"_s << u"E-mail Address Resolution Error"_s;
}

void testEmailDialog::refusals()
{
    QFETCH(QString, to);
    m_test->prompts.expect(Answer::Ok);
    send(to);
    QTEST(m_test->prompts.last.caption, "caption");
    QCOMPARE(m_test->prompts.last.icon, Message::Icon::Critical);
    QVERIFY(!control<QWidget>(*m_dialog, "fraProgress").isVisible());
}

void testEmailDialog::failureWithDetails()
{
    ScriptedMailServer server({"220 hi\r\n", "554 no\u202E\r\n"});
    use(server);
    open(u"text"_s, 200ms);
    m_test->prompts.expect(Answer::Ok);
    send(u"a@b.c"_s);
    QTRY_COMPARE(result(), u"E-mail canceled"_s);
    QCOMPARE(m_test->prompts.last.caption, u"No Response"_s);
    QVERIFY(m_test->prompts.last.details.contains(u"554 no"));
    QVERIFY(!m_test->prompts.last.details.contains(u'\u202E'));
}

void testEmailDialog::stopping()
{
    ScriptedMailServer server({"220 hi\r\n"});
    use(server);
    send(u"a@b.c"_s);
    QTRY_VERIFY(!server.heard.isEmpty());
    press(*m_dialog, "CancelButton");
    QVERIFY(m_dialog->isVisible());
    press(*m_dialog, "cmdStop");
    QTRY_COMPARE(result(), u"E-mail canceled"_s);
    press(*m_dialog, "CancelButton");
    QVERIFY(!m_dialog->isVisible());
}

/// Asked for where the keyring has none, again after a failure, and kept only when the server took it.
void testEmailDialog::passwords()
{
    ScriptedMailServer server({});
    use(server);
    m_test->program.NetworkSettings.MailSecurity = clsNetworkSettings::Security::StartTls;
    m_test->program.NetworkSettings.MailUser = u" ann "_s;
    const QString account = u"ann@127.0.0.1"_s;
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
    send(u"a@b.c"_s);
    QTRY_VERIFY(isAsked);
    QVERIFY(server.heard.isEmpty());
    QTRY_COMPARE(result(), u"E-mail canceled"_s);
    // Who stops while the keyring is asked hears no more of it.
    send(u"a@b.c"_s);
    press(*m_dialog, "cmdStop");
    QTest::qWait(50);
    QVERIFY(!control<QWidget>(*m_dialog, "fraProgress").isVisible() && server.heard.isEmpty());
    m_test->program.NetworkSettings.MailPort = 1;
    for (int k = 0; k < 2; ++k) {
        m_test->prompts.expect(Answer::Ok);
        answer("OKButton");
        send(u"a@b.c"_s);
        QTRY_VERIFY(isAsked && m_test->prompts.isDone());
        QVERIFY(m_test->keyring.passwords.isEmpty());
    }
    m_test->keyring.passwords.insert(account, u"kept"_s);
    open();
    m_test->prompts.expect(Answer::Ok);
    send(u"a@b.c"_s);
    QTRY_VERIFY(m_test->prompts.isDone());
}

void testEmailDialog::mailProgram()
{
    control<QComboBox>(*m_dialog, "comTo").setEditText(u"Ann <a&b@c.d>, e@f.g"_s);
    control<QLineEdit>(*m_dialog, "txtSubject").setText(u"50% & more? \u00E9"_s);
    pressByKey(*m_dialog, "cmdMailProgram");
    QCOMPARE(m_test->browser.last.toEncoded(),
             QByteArray("mailto:a%26b@c.d,e@f.g?subject=50%25%20%26%20more%3F%20%C3%A9&body=2%20l%20milk%0D%0A.eggs"));
    m_test->browser.isThere = false;
    m_test->prompts.expect(Answer::Ok);
    press(*m_dialog, "cmdMailProgram");
    control<QPlainTextEdit>(*m_dialog, "txtBody").setPlainText(u"words "_s.repeated(100'000));
    m_test->prompts.expect(Answer::Ok);
    press(*m_dialog, "cmdMailProgram");
}

void testEmailDialog::missingOptions_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("server");
    QTest::addColumn<QString>("caption");
    QTest::newRow("both") << u" "_s << QString() << u"Need E-mail Address or Server Name"_s;
    QTest::newRow("address") << QString() << u"mail.x"_s << u"No E-mail Address"_s;
    QTest::newRow("server") << u"a@b.c"_s << QString() << u"No Server Name"_s;
    QTest::newRow("nothing") << u"a@b.c"_s << u"mail.x"_s << QString();
}

void testEmailDialog::missingOptions()
{
    QFETCH(QString, caption);
    QFETCH(QString, address);
    QFETCH(QString, server);
    m_test->program.ProgramOptions.EmailAddress = address;
    m_test->program.ProgramOptions.SMTPServer = server;
    clsNoteProps note;
    note.TitleBarTitle = u"Title"_s;
    for (const Answer reply : {Answer::Ok, Answer::Second}) {
        if (!caption.isEmpty())
            m_test->prompts.expect(reply);
        QCOMPARE(frmEmail::isMissingOptions(m_test->program, note, nullptr), !caption.isEmpty());
        if (caption.isEmpty())
            continue;
        QCOMPARE(m_test->prompts.last.caption, caption);
        QCOMPARE(m_test->prompts.last.enter, Message::Enter::Ok);
        QCOMPARE(m_test->browser.last.isEmpty(), reply == Answer::Ok);
    }
}

void testEmailDialog::endlessLine()
{
    const QString line(endlessRuns::Longest + 1, u'x');
    open(line);
    QVERIFY(control<QPlainTextEdit>(*m_dialog, "txtBody").toPlainText().isEmpty());
    ScriptedMailServer server(Good);
    use(server);
    send(u"a@b.c, d@e.f"_s);
    QTRY_COMPARE(result(), u"Message sent."_s);
    QVERIFY(server.heard.at(5).size() > line.size());
}

QTEST_MAIN(testEmailDialog)
#include "testEmailDialog.moc"
