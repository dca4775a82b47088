// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "security/frmChangePwd.h"
#include "security/frmEnterPwd.h"
#include "security/frmNewPwd.h"
#include "security/frmPwdSettings.h"
#include "security/secrets.h"
#include "support/TestProgram.h"
#include "support/answerDialog.h"
#include "support/failOnWarnings.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace
{

const QDateTime Now(QDate(2026, 3, 1), QTime(12, 0));

void enter(const QWidget &dialog, const char *name, const QString &text)
{
    control<QLineEdit>(dialog, name).setText(text);
}

void enterBoth(const QDialog &dialog, const QString &first, const QString &second)
{
    enter(dialog, "txtPwd1", first);
    enter(dialog, "txtPwd2", second);
}

/// Gives a new password, or cancels where it is empty.
void answerNewPassword(const QString &password)
{
    answerDialog(u"frmNewPwd"_s, [password](QDialog &dialog) {
        enterBoth(dialog, password, password);
        press(dialog, password.isEmpty() ? "CancelButton" : "OKButton");
    });
}

void answerPassword(const QString &password, const char *button)
{
    answerDialog(u"frmEnterPwd"_s, [password, button](QDialog &dialog) {
        QCOMPARE(control<QLabel>(dialog, "lblDesc").text(), u"Disabling password protection."_s);
        enter(dialog, "txtPwd", password);
        press(dialog, button);
    });
}

clsNoteProps protectedNote()
{
    clsNoteProps note;
    note.PwdOn = true;
    note.Pwd = u"old"_s;
    note.PwdReadonlyOn = true;
    return note;
}

} // namespace

class testPasswordDialogs final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void newPassword_data();
    void newPassword();
    void currentPasswordIsVerified();
    void cancelIsNeverRight();
    void everyBoxIsMasked();
    void wipingKeepsWhatOthersHold();
    void switchingOn();
    void switchingOff_data();
    void switchingOff();
    void changing();
    void cancelDropsAll();

private:
    Program &program() { return m_test->program; }
    QDialog &open(const clsNoteProps &note);
    /// Presses what is refused.
    void pressInVain(const char *name, const Message &told);

    std::unique_ptr<TestProgram> m_test;
    std::unique_ptr<frmPwdSettings> m_settings;
};

void testPasswordDialogs::init()
{
    failOnWarnings();
    m_test = std::make_unique<TestProgram>(Now);
    m_settings = std::make_unique<frmPwdSettings>(program(), nullptr);
}

void testPasswordDialogs::cleanup()
{
    m_settings.reset();
    QVERIFY(m_test->prompts.isDone());
}

QDialog &testPasswordDialogs::open(const clsNoteProps &note)
{
    m_settings->Initialize(note);
    m_settings->show();
    return *m_settings;
}

void testPasswordDialogs::pressInVain(const char *name, const Message &told)
{
    m_test->prompts.expect(Prompts::Answer::Ok);
    press(*m_settings, name);
    QVERIFY(m_test->prompts.last == told);
}

void testPasswordDialogs::newPassword_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::addColumn<QString>("message");
    const QString differ = u"Sorry.  These passwords do not match.  Please try again."_s;
    QTest::newRow("equal") << u"a b"_s << u"a b"_s << QString();
    QTest::newRow("letter case") << u"abc"_s << u"abC"_s << differ;
    QTest::newRow("composed and not") << u"\u00E9"_s << u"e\u0301"_s << differ;
    QTest::newRow("second empty") << u"abc"_s << QString() << differ;
    QTest::newRow("empty") << QString() << QString() << u"Sorry.  You must enter a non-zero length password."_s;
}

void testPasswordDialogs::newPassword()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    QFETCH(QString, message);
    frmNewPwd dialog(program(), nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    enterBoth(dialog, first, second);
    if (!message.isEmpty())
        m_test->prompts.expect(Prompts::Answer::Ok);
    press(dialog, "OKButton");
    QCOMPARE(dialog.isVisible(), !message.isEmpty());
    QCOMPARE(dialog.requestPassword(), message.isEmpty() ? first : QString());
    if (message.isEmpty())
        return;
    QVERIFY(m_test->prompts.last == Message{.text = message});
    QVERIFY(control<QLineEdit>(dialog, "txtPwd1").text().isEmpty() &&
            control<QLineEdit>(dialog, "txtPwd2").text().isEmpty());
    QVERIFY(control<QLineEdit>(dialog, "txtPwd1").hasFocus());
}

void testPasswordDialogs::currentPasswordIsVerified()
{
    frmChangePwd dialog(program(), nullptr);
    dialog.Initialize(u"old"_s);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    enter(dialog, "txtPwd3", u"Old"_s);
    enterBoth(dialog, u"new"_s, u"new"_s);
    m_test->prompts.expect(Prompts::Answer::Ok);
    press(dialog, "OKButton");
    QCOMPARE(m_test->prompts.last.text, u"Sorry.  The current password is not correct.  Please try again."_s);
    auto &current = control<QLineEdit>(dialog, "txtPwd3");
    QVERIFY(dialog.isVisible() && current.text().isEmpty() && current.hasFocus() && dialog.requestPassword().isEmpty());
    current.setText(u"old"_s);
    press(dialog, "OKButton");
    QCOMPARE(dialog.requestPassword(), u"new"_s);
}

void testPasswordDialogs::cancelIsNeverRight()
{
    frmEnterPwd dialog(program(), nullptr);
    dialog.show();
    press(dialog, "OKButton");
    QVERIFY(dialog.passOn({}) && !dialog.passOn(u"x"_s));
    dialog.show();
    enter(dialog, "txtPwd", u"x"_s);
    press(dialog, "CancelButton");
    QVERIFY(!dialog.passOn({}) && !dialog.passOn(u"x"_s));
}

void testPasswordDialogs::everyBoxIsMasked()
{
    const frmNewPwd first(program(), nullptr);
    const frmChangePwd second(program(), nullptr);
    const frmEnterPwd third(program(), nullptr);
    int boxes = 0;
    for (const QDialog *dialog : std::initializer_list<const QDialog *>{&first, &second, &third})
        for (const QLineEdit *box : dialog->findChildren<QLineEdit *>()) {
            QCOMPARE(box->echoMode(), QLineEdit::Password);
            ++boxes;
        }
    QCOMPARE(boxes, 6);
}

void testPasswordDialogs::wipingKeepsWhatOthersHold()
{
    QString password = u"secret"_s;
    const QString kept = password;
    secrets::wipe(password);
    QVERIFY(password.isEmpty() && kept == u"secret");
}

void testPasswordDialogs::switchingOn()
{
    clsNoteProps note;
    note.PwdOpenCloseOn = true;
    const QDialog &dialog = open(note);
    const auto stateOf = [&dialog](const char *box) { return control<QCheckBox>(dialog, box).checkState(); };
    answerNewPassword({});
    pressInVain("chkPwd", {u"Enabling password protection failed."_s, u"Enabling failed"_s});
    QCOMPARE(stateOf("chkPwd"), Qt::Unchecked);
    QCOMPARE(stateOf("chkPwd1"), Qt::PartiallyChecked);
    QVERIFY(!control<QWidget>(dialog, "cmdChangePwd").isEnabled());
    answerNewPassword(u"new"_s);
    press(dialog, "chkPwd");
    QCOMPARE(stateOf("chkPwd1"), Qt::Checked);
    press(dialog, "chkPwd2");
    press(dialog, "OKButton");
    QVERIFY(m_settings->PwdResult(note));
    QVERIFY(note.PwdOn && note.Pwd == u"new" && note.PwdOpenCloseOn && note.PwdReadonlyOn && note.SaveTag == 1);
    // The note never had it: nothing is asked.
    open({});
    answerNewPassword(u"new"_s);
    for (const char *name : {"chkPwd", "chkPwd", "OKButton"})
        press(dialog, name);
    clsNoteProps untouched;
    QVERIFY(m_settings->PwdResult(untouched) && !untouched.PwdOn && untouched.Pwd.isEmpty());
}

void testPasswordDialogs::switchingOff_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<bool>("off");
    QTest::newRow("right") << u"old"_s << QByteArray("OKButton") << true;
    QTest::newRow("wrong") << u"OLD"_s << QByteArray("OKButton") << false;
    QTest::newRow("cancelled") << u"old"_s << QByteArray("CancelButton") << false;
}

void testPasswordDialogs::switchingOff()
{
    QFETCH(QString, typed);
    QFETCH(QByteArray, button);
    QFETCH(bool, off);
    clsNoteProps note = protectedNote();
    const QDialog &dialog = open(note);
    answerPassword(typed, button.constData());
    if (off)
        press(dialog, "chkPwd");
    else
        pressInVain("chkPwd", {u"Disabling password protection failed."_s, u"Disabling failed"_s});
    QCOMPARE(control<QCheckBox>(dialog, "chkPwd").isChecked(), !off);
    press(dialog, "OKButton");
    QVERIFY(m_settings->PwdResult(note));
    QCOMPARE(note.PwdOn, !off);
    QCOMPARE(note.Pwd, off ? QString() : u"old"_s);
}

void testPasswordDialogs::changing()
{
    clsNoteProps note = protectedNote();
    const QDialog &dialog = open(note);
    answerDialog(u"frmChangePwd"_s, [](QDialog &change) { press(change, "CancelButton"); });
    pressInVain("cmdChangePwd", {u"Password change failed. "_s, u"Change failed"_s});
    answerDialog(u"frmChangePwd"_s, [](QDialog &change) {
        enter(change, "txtPwd3", u"old"_s);
        enterBoth(change, u"new"_s, u"new"_s);
        press(change, "OKButton");
    });
    press(dialog, "cmdChangePwd");
    press(dialog, "OKButton");
    QVERIFY(m_settings->PwdResult(note) && note.Pwd == u"new" && note.PwdOn);
}

void testPasswordDialogs::cancelDropsAll()
{
    clsNoteProps note = protectedNote();
    const QDialog &dialog = open(note);
    press(dialog, "chkPwd1");
    answerPassword(u"old"_s, "OKButton");
    press(dialog, "chkPwd");
    press(dialog, "CancelButton");
    QVERIFY(!m_settings->PwdResult(note) && note == protectedNote());
}

QTEST_MAIN(testPasswordDialogs)
#include "testPasswordDialogs.moc"
