// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "dialogChecks.h"
#include "dialogs/frmOptions.h"
#include "model/modFileIOOptions.h"
#include "model/networkSettingsFile.h"
#include "support/TestHome.h"
#include "support/failOnWarnings.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace
{

const QDateTime Now(QDate(2026, 3, 1), QTime(12, 0));

void type(const QWidget &dialog, const char *name, const QString &text)
{
    auto &box = control<QLineEdit>(dialog, name);
    box.setFocus();
    box.selectAll();
    if (text.isEmpty())
        QTest::keyClick(&box, Qt::Key_Delete);
    for (const QChar c : text) // One by one: every beginning of the text is a change.
        box.insert(c);
}

} // namespace

class testOptionsDialog final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void everythingCanBeReadAndReached();
    void acceptedOptionsAreKept();
    void cancelAndDefaults();
    void numbers_data();
    void numbers();
    void checks_data();
    void checks();
    void network();
    void failedSaveIsTold();
    void startAtLogIn();

private:
    Program &program() { return m_test->program; }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<TestProgram> m_test;
    std::unique_ptr<frmOptions> m_dialog;
};

void testOptionsDialog::init()
{
    failOnWarnings();
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_folder->path()).mkdir(u"Data"_s));
    m_test = std::make_unique<TestProgram>(Now, ProgramPaths::under(m_folder->path(), m_folder->path()));
    program().DefaultOptions = modFileIO::SetProgramDefaults(program().paths(), {0xFFFF, 0, u"Sans"_s, 9});
    program().ProgramOptions = program().DefaultOptions;
    m_dialog = std::make_unique<frmOptions>(program(), nullptr);
    m_dialog->Initialize(program().ProgramOptions);
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
}

void testOptionsDialog::cleanup()
{
    m_dialog.reset();
    QVERIFY(m_test->prompts.isDone());
}

void testOptionsDialog::everythingCanBeReadAndReached()
{
    checkPages(*m_dialog);
}

void testOptionsDialog::acceptedOptionsAreKept()
{
    const QString name = u"\"Zo\u00EB\"; a=b \U0001F4DD"_s;
    for (const char *box : {"txtName", "txtNameTitle", "txtOrg", "txtEmailAddress", "txtSmtpServer"})
        type(*m_dialog, box, name);
    type(*m_dialog, "txtSizeHeight", u"2.5"_s);
    type(*m_dialog, "txtListeningPort", u"65535"_s);
    for (const char *box : {"chkOnTop", "chkToolbar", "chkTitle", "chkPwd1", "chkPwd2", "chkFlash"})
        control<QCheckBox>(*m_dialog, box).click();
    press(*m_dialog, "cmdOK");
    QVERIFY(m_dialog->OptionsResult(program().ProgramOptions));
    clsprogramoptions expected = program().DefaultOptions;
    expected.NameName = expected.NameTitle = expected.Org = expected.EmailAddress = expected.SMTPServer = name;
    expected.FrmHeight = 3600;
    expected.ListeningPort = 65535;
    expected.OnTopOn = expected.TitleBarOn = expected.PwdOpenCloseOn = expected.PwdReadonlyOn = true;
    expected.ToolBarOn = expected.FlashOn = false;
    QVERIFY(program().ProgramOptions == expected);
    QVERIFY(program().NoteTemplate.FrmHeight == 3600 && program().NoteTemplate.PwdReadonlyOn);
    clsprogramoptions readBack;
    QVERIFY(modFileIO::LoadOptionsFile(program().paths(), readBack) && readBack == expected);
}

void testOptionsDialog::cancelAndDefaults()
{
    program().ProgramOptions.NameName = u"Jane"_s;
    m_dialog->Initialize(program().ProgramOptions);
    const clsprogramoptions before = program().ProgramOptions;
    press(*m_dialog, "cmdDefaults");
    QVERIFY(control<QLineEdit>(*m_dialog, "txtName").text().isEmpty());
    press(*m_dialog, "cmdCancel");
    QVERIFY(!m_dialog->OptionsResult(program().ProgramOptions) && program().ProgramOptions == before);
    QVERIFY(!QFile::exists(program().paths().OptionsFile));
    m_dialog->show();
    press(*m_dialog, "cmdOK");
    QVERIFY(m_dialog->OptionsResult(program().ProgramOptions) && program().ProgramOptions == program().DefaultOptions);
}

void testOptionsDialog::numbers_data()
{
    QTest::addColumn<QByteArray>("box");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    const QByteArray width("txtSizeWidth");
    const QByteArray port("txtListeningPort");
    for (const QString &text :
         {u"1e400"_s, u"-1"_s, u"abc"_s, u"\u0661"_s, u"2abc"_s, u"nan"_s, u"1e38"_s, u"1 2"_s, u""_s})
        QTest::addRow("width %s", qPrintable(text)) << width << text << u"1.5"_s;
    QTest::newRow("width") << width << u" 0.49 "_s << u"0.49"_s;
    for (const QString &text : {u"70000"_s, u"-5"_s, u"14 20"_s, u"1.5"_s, u"80x"_s, u"99999999999"_s})
        QTest::addRow("port %s", qPrintable(text)) << port << text << u"1420"_s;
    QTest::newRow("no port") << port << u""_s << u"0"_s;
    QTest::newRow("port") << port << u"0080"_s << u"80"_s;
}

void testOptionsDialog::numbers()
{
    QFETCH(QByteArray, box);
    QFETCH(QString, text);
    QFETCH(QString, shown);
    control<QTabWidget>(*m_dialog, "TabOptions").setCurrentIndex(box == "txtSizeWidth" ? 0 : 3);
    type(*m_dialog, box.constData(), text);
    control<QWidget>(*m_dialog, "cmdCancel").setFocus();
    QCOMPARE(control<QLineEdit>(*m_dialog, box.constData()).text(), shown);
}

void testOptionsDialog::checks_data()
{
    QTest::addColumn<QByteArray>("box");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QByteArray>("focus");
    QTest::newRow("picture") << QByteArray("chkBackPic") << QString() << u"Background Picture Error"_s
                             << QByteArray("cmdPicFile");
    QTest::newRow("sound") << QByteArray("chkSoundFile") << QString() << u"Alarm Sound Error"_s
                           << QByteArray("cmdSoundFile");
    for (const QString &wrong : {u"0.49"_s, u"5.01"_s, u"0"_s})
        QTest::addRow("height %s", qPrintable(wrong))
            << QByteArray("txtSizeHeight") << wrong << u"Quillet Dimensions Error"_s << QByteArray("txtSizeHeight");
    for (const QString &right : {u"0.5"_s, u"5"_s})
        QTest::addRow("height %s", qPrintable(right))
            << QByteArray("txtSizeHeight") << right << QString() << QByteArray();
}

void testOptionsDialog::checks()
{
    QFETCH(QByteArray, box);
    QFETCH(QString, value);
    QFETCH(QString, caption);
    if (value.isEmpty())
        control<QCheckBox>(*m_dialog, box.constData()).click();
    else
        type(*m_dialog, box.constData(), value);
    control<QTabWidget>(*m_dialog, "TabOptions").setCurrentIndex(3);
    QFETCH(QByteArray, focus);
    checkOk(*m_test, *m_dialog, caption, focus);
}

void testOptionsDialog::network()
{
    control<QTabWidget>(*m_dialog, "TabOptions").setCurrentIndex(3);
    QTest::keyClick(&control<QWidget>(*m_dialog, "comAcceptFrom"), Qt::Key_Down);
    QTest::keyClick(&control<QWidget>(*m_dialog, "comMailSecurity"), Qt::Key_End);
    control<QCheckBox>(*m_dialog, "chkFarSenders").click();
    control<QCheckBox>(*m_dialog, "chkAnnounce").click();
    QTest::keyClicks(&control<QLineEdit>(*m_dialog, "txtBlockedSenders"), u"10.0.0.1,fe80::9; "_s);
    type(*m_dialog, "txtMailPort", u"4650"_s);
    QTest::keyClicks(&control<QLineEdit>(*m_dialog, "txtMailUser"), u"ann@x.example"_s);
    press(*m_dialog, "cmdOK");
    QVERIFY(program().NetworkSettings == clsNetworkSettings());
    QVERIFY(m_dialog->OptionsResult(program().ProgramOptions));
    const clsNetworkSettings expected{.AcceptFrom = clsNetworkSettings::Senders::SendBook,
                                      .FarSendersOn = true,
                                      .BlockedSenders = {u"10.0.0.1"_s, u"fe80::9"_s},
                                      .AnnounceOn = true,
                                      .MailSecurity = clsNetworkSettings::Security::Tls,
                                      .MailPort = 4650,
                                      .MailUser = u"ann@x.example"_s};
    QVERIFY(program().NetworkSettings == expected);
    const QString path = networkSettingsFile::pathIn(program().paths().DataFolder);
    QVERIFY(networkSettingsFile::load(path) == expected);
    m_dialog->Initialize(program().ProgramOptions);
    m_dialog->show();
    press(*m_dialog, "cmdDefaults");
    press(*m_dialog, "cmdOK");
    QVERIFY(m_dialog->OptionsResult(program().ProgramOptions));
    QVERIFY(networkSettingsFile::load(path) == clsNetworkSettings{.BlockedSenders = expected.BlockedSenders});
}

void testOptionsDialog::failedSaveIsTold()
{
    QVERIFY(QDir(m_folder->filePath(u"Data"_s)).removeRecursively());
    press(*m_dialog, "cmdOK");
    m_test->prompts.expect(Prompts::Answer::Ok);
    QVERIFY(m_dialog->OptionsResult(program().ProgramOptions));
    QVERIFY(m_test->prompts.last.text.startsWith(u"The options could not be saved.\n"));
}

void testOptionsDialog::startAtLogIn()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    const QTemporaryDir config;
    const QByteArray before = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(config.path()));
    QFile entry(config.filePath(u"autostart/org.quillets.Quillets.desktop"_s));
    const auto accept = [this](bool on) {
        m_dialog = std::make_unique<frmOptions>(program(), nullptr);
        m_dialog->Initialize(program().ProgramOptions);
        m_dialog->show();
        control<QCheckBox>(*m_dialog, "chkAtLogIn").setChecked(on);
        press(*m_dialog, "cmdOK");
        QVERIFY(m_dialog->OptionsResult(program().ProgramOptions));
    };
    accept(false);
    QVERIFY(!entry.exists());
    accept(true);
    QVERIFY(entry.open(QIODevice::ReadOnly));
    const QByteArray text = entry.readAll();
    QVERIFY(text.contains("\nPath=" + QFileInfo(program().paths().DataFolder).path().toUtf8() + '\n'));
    QVERIFY(text.contains("\nExec=\"" + QCoreApplication::applicationFilePath().toUtf8() + "\"\n"));
    // Switched off by the desktop's own tool.
    TestHome::setContents(entry.fileName(), text + "Hidden=true\n");
    m_dialog = std::make_unique<frmOptions>(program(), nullptr);
    m_dialog->Initialize(program().ProgramOptions);
    QVERIFY(!control<QCheckBox>(*m_dialog, "chkAtLogIn").isChecked());
    accept(true);
    accept(false);
    QVERIFY(!entry.exists());
    qputenv("XDG_CONFIG_HOME", before);
#else
    QSKIP("The start at log-in is the desktop's own matter here.");
#endif
}

QTEST_MAIN(testOptionsDialog)
#include "testOptionsDialog.moc"
