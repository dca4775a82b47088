// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "dialogChecks.h"
#include "dialogs/frmOptions.h"
#include "model/modFileIOOptions.h"
#include "model/networkSettingsFile.h"

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
    void init()
    {
        m_fixture.emplace();
        program().DefaultOptions = modFileIO::SetProgramDefaults(program().paths(), {0xFFFF, 0, u"Sans"_s, 9});
        program().ProgramOptions = program().DefaultOptions;
        open();
        QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    }
    void cleanup()
    {
        m_dialog.reset();
        m_fixture.reset();
    }

    void everythingCanBeReadAndReached() { checkPages(*m_dialog); }

    void acceptedOptionsAreKept()
    {
        const QString name = u"\"Zo\u00EB\"; a=b \U0001F4DD"_s;
        for (const char *box : {"txtName", "txtNameTitle", "txtOrg", "txtEmailAddress", "txtSmtpServer"})
            type(*m_dialog, box, name);
        type(*m_dialog, "txtSizeHeight", u"2.5"_s);
        type(*m_dialog, "txtListeningPort", u"65535"_s);
        for (const char *box : {"chkOnTop", "chkToolbar", "chkTitle", "chkPwd1", "chkPwd2", "chkFlash"})
            control<QCheckBox>(*m_dialog, box).click();
        accept();
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

    void cancelAndDefaults()
    {
        program().ProgramOptions.NameName = u"Jane"_s;
        open();
        const clsprogramoptions before = program().ProgramOptions;
        press(*m_dialog, "cmdDefaults");
        QVERIFY(control<QLineEdit>(*m_dialog, "txtName").text().isEmpty());
        press(*m_dialog, "cmdCancel");
        QVERIFY(!m_dialog->OptionsResult(program().ProgramOptions) && program().ProgramOptions == before);
        QVERIFY(!QFile::exists(program().paths().OptionsFile));
        m_dialog->show();
        accept();
        QVERIFY(program().ProgramOptions == program().DefaultOptions);
    }

    void numbers_data()
    {
        const Rows<QByteArray, QString, QString> row; // box, text, shown
        for (const QString &text : u"1e400,-1,abc,\u0661,2abc,nan,1e38,1 2,"_s.split(u','))
            row(u"width "_s + text, "txtSizeWidth", text, u"1.5"_s);
        row("width", "txtSizeWidth", u" 0.49 "_s, u"0.49"_s);
        for (const QString &text : u"70000,-5,14 20,1.5,80x,99999999999"_s.split(u','))
            row(u"port "_s + text, "txtListeningPort", text, u"1420"_s);
        row("no port", "txtListeningPort", {}, u"0"_s);
        row("port", "txtListeningPort", u"0080"_s, u"80"_s);
    }

    void numbers()
    {
        const auto [box, text, shown] = fetchRow<QByteArray, QString, QString>();
        control<QTabWidget>(*m_dialog, "TabOptions").setCurrentIndex(box == "txtSizeWidth" ? 0 : 3);
        type(*m_dialog, box.constData(), text);
        control<QWidget>(*m_dialog, "cmdCancel").setFocus();
        QCOMPARE(control<QLineEdit>(*m_dialog, box.constData()).text(), shown);
    }

    void checks_data()
    {
        const Rows<QByteArray, QString, QString, QByteArray> row; // box, value, caption, focus
        row("picture", "chkBackPic", {}, u"Background Picture Error"_s, "cmdPicFile");
        row("sound", "chkSoundFile", {}, u"Alarm Sound Error"_s, "cmdSoundFile");
        for (const QString &wrong : {u"0.49"_s, u"5.01"_s, u"0"_s})
            row(u"height "_s + wrong, "txtSizeHeight", wrong, u"Quillet Dimensions Error"_s, "txtSizeHeight");
        for (const QString &right : {u"0.5"_s, u"5"_s})
            row(u"height "_s + right, "txtSizeHeight", right, {}, {});
    }

    void checks()
    {
        const auto [box, value, caption, focus] = fetchRow<QByteArray, QString, QString, QByteArray>();
        if (value.isEmpty())
            control<QCheckBox>(*m_dialog, box.constData()).click();
        else
            type(*m_dialog, box.constData(), value);
        control<QTabWidget>(*m_dialog, "TabOptions").setCurrentIndex(3);
        checkOk(m_fixture->test, *m_dialog, caption, focus);
    }

    void network()
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
        open();
        press(*m_dialog, "cmdDefaults");
        accept();
        QVERIFY(networkSettingsFile::load(path) == clsNetworkSettings{.BlockedSenders = expected.BlockedSenders});
    }

    void failedSaveIsTold()
    {
        QVERIFY(QDir(program().paths().DataFolder).removeRecursively());
        const Message told = m_fixture->boxOf([this] { accept(); });
        QVERIFY(told.text.startsWith(u"The options could not be saved.\n"));
    }

    void startAtLogIn()
    {
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
        const QTemporaryDir config;
        const QByteArray before = qgetenv("XDG_CONFIG_HOME");
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(config.path()));
        QFile entry(config.filePath(u"autostart/org.quillets.Quillets.desktop"_s));
        const auto isOn = [this]() -> QCheckBox & { return control<QCheckBox>(*m_dialog, "chkAtLogIn"); };
        const auto start = [this, isOn](bool on) {
            open();
            isOn().setChecked(on);
            accept();
        };
        start(false);
        QVERIFY(!entry.exists());
        start(true);
        QVERIFY(entry.open(QIODevice::ReadOnly));
        const QByteArray text = entry.readAll();
        QVERIFY(text.contains("\nPath=" + QFileInfo(program().paths().DataFolder).path().toUtf8() + '\n'));
        QVERIFY(text.contains("\nExec=\"" + QCoreApplication::applicationFilePath().toUtf8() + "\"\n"));
        // Switched off by the desktop's own tool.
        TestHome::setContents(entry.fileName(), text + "Hidden=true\n");
        open();
        QVERIFY(!isOn().isChecked());
        start(true);
        start(false);
        QVERIFY(!entry.exists());
        qputenv("XDG_CONFIG_HOME", before);
#else
        QSKIP("The start at log-in is the desktop's own matter here.");
#endif
    }

private:
    Program &program()
    {
        return m_fixture->program;
    }
    void open()
    {
        m_dialog = std::make_unique<frmOptions>(program(), nullptr);
        m_dialog->Initialize(program().ProgramOptions);
        m_dialog->show();
    }
    void accept()
    {
        press(*m_dialog, "cmdOK");
        QVERIFY(m_dialog->OptionsResult(program().ProgramOptions));
    }

    std::optional<ProgramFixture> m_fixture;
    std::unique_ptr<frmOptions> m_dialog;
};

QTEST_MAIN(testOptionsDialog)
#include "testOptionsDialog.moc"
