// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "security/frmChangePwd.h"
#include "security/frmEnterPwd.h"
#include "security/frmNewPwd.h"
#include "security/frmPwdSettings.h"
#include "security/secrets.h"
#include "support/ProgramFixture.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace
{

/// One password, or a new one twice and where it is asked for the one until now.
void enter(const QDialog &dialog, const QStringList &typed)
{
    const QStringList boxes =
        typed.size() == 1 ? QStringList{u"txtPwd"_s} : QStringList{u"txtPwd1"_s, u"txtPwd2"_s, u"txtPwd3"_s};
    for (qsizetype i = 0; i < typed.size(); ++i)
        control<QLineEdit>(dialog, qPrintable(boxes[i])).setText(typed[i]);
}

/// In the dialog that opens next.
void answer(const QString &name, const QStringList &typed, const QByteArray &button = "OKButton")
{
    answerDialog(name, [typed, button](QDialog &dialog) {
        enter(dialog, typed);
        press(dialog, button.constData());
    });
}

clsNoteProps protectedNote()
{
    clsNoteProps note;
    note.PwdOn = note.PwdReadonlyOn = true;
    note.Pwd = u"old"_s;
    return note;
}

/// The password settings of a note.
struct Settings final : ProgramFixture
{
    explicit Settings(const clsNoteProps &given) : note(given) { reopen(); }
    void reopen()
    {
        dialog.Initialize(note);
        dialog.show();
    }
    Qt::CheckState state(const char *box) const { return control<QCheckBox>(dialog, box).checkState(); }
    bool isRefused(const char *pressed, const Message &told)
    {
        return boxOf([this, pressed] { press(dialog, pressed); }) == told;
    }
    bool accept()
    {
        press(dialog, "OKButton");
        return dialog.PwdResult(note);
    }

    clsNoteProps note;
    frmPwdSettings dialog{program, nullptr};
};

} // namespace

class testPasswordDialogs final : public QObject
{
    Q_OBJECT

private slots:
    void newPassword_data()
    {
        const Rows<QString, QString, QString> row; // first, second, message
        const QString differ = u"Sorry.  These passwords do not match.  Please try again."_s;
        row("equal", u"a b"_s, u"a b"_s, {});
        row("letter case", u"abc"_s, u"abC"_s, differ);
        row("composed and not", u"\u00E9"_s, u"e\u0301"_s, differ);
        row("second empty", u"abc"_s, {}, differ);
        row("empty", {}, {}, u"Sorry.  You must enter a non-zero length password."_s);
    }

    void newPassword()
    {
        const auto [first, second, message] = fetchRow<QString, QString, QString>();
        ProgramFixture f;
        frmNewPwd dialog(f.program, nullptr);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        enter(dialog, {first, second});
        if (!message.isEmpty())
            f.test.prompts.expect(Prompts::Answer::Ok);
        press(dialog, "OKButton");
        QCOMPARE(dialog.isVisible(), !message.isEmpty());
        QCOMPARE(dialog.requestPassword(), message.isEmpty() ? first : QString());
        QVERIFY(f.test.prompts.last == Message{.text = message});
        const auto &box = control<QLineEdit>(dialog, "txtPwd1");
        QVERIFY(message.isEmpty() ||
                (box.hasFocus() && (box.text() + control<QLineEdit>(dialog, "txtPwd2").text()).isEmpty()));
    }

    void currentPasswordIsVerified()
    {
        ProgramFixture f;
        frmChangePwd dialog(f.program, nullptr);
        dialog.Initialize(u"old"_s);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        enter(dialog, {u"new"_s, u"new"_s, u"Old"_s});
        QCOMPARE(f.boxOf([&dialog] { press(dialog, "OKButton"); }).text,
                 u"Sorry.  The current password is not correct.  Please try again."_s);
        auto &current = control<QLineEdit>(dialog, "txtPwd3");
        QVERIFY(dialog.isVisible() && current.text().isEmpty() && current.hasFocus());
        QVERIFY(dialog.requestPassword().isEmpty());
        current.setText(u"old"_s);
        press(dialog, "OKButton");
        QCOMPARE(dialog.requestPassword(), u"new"_s);
    }

    void cancelIsNeverRight()
    {
        ProgramFixture f;
        frmEnterPwd dialog(f.program, nullptr);
        dialog.show();
        press(dialog, "OKButton");
        QVERIFY(dialog.passOn({}) && !dialog.passOn(u"x"_s));
        dialog.show();
        enter(dialog, {u"x"_s});
        press(dialog, "CancelButton");
        QVERIFY(!dialog.passOn({}) && !dialog.passOn(u"x"_s));
    }

    void everyBoxIsMasked()
    {
        ProgramFixture f;
        const frmNewPwd first(f.program, nullptr);
        const frmChangePwd second(f.program, nullptr);
        const frmEnterPwd third(f.program, nullptr);
        int boxes = 0;
        for (const QDialog *dialog : std::initializer_list<const QDialog *>{&first, &second, &third})
            for (const QLineEdit *box : dialog->findChildren<QLineEdit *>()) {
                QCOMPARE(box->echoMode(), QLineEdit::Password);
                ++boxes;
            }
        QCOMPARE(boxes, 6);
    }

    void wipingKeepsWhatOthersHold()
    {
        QString password = u"secret"_s;
        const QString kept = password;
        secrets::wipe(password);
        QVERIFY(password.isEmpty() && kept == u"secret");
    }

    void switchingOn()
    {
        clsNoteProps note;
        note.PwdOpenCloseOn = true;
        Settings s(note);
        answer(u"frmNewPwd"_s, {}, "CancelButton");
        QVERIFY(s.isRefused("chkPwd", {u"Enabling password protection failed."_s, u"Enabling failed"_s}));
        QCOMPARE(s.state("chkPwd"), Qt::Unchecked);
        QCOMPARE(s.state("chkPwd1"), Qt::PartiallyChecked);
        QVERIFY(!control<QWidget>(s.dialog, "cmdChangePwd").isEnabled());
        answer(u"frmNewPwd"_s, {u"new"_s, u"new"_s});
        press(s.dialog, "chkPwd");
        QCOMPARE(s.state("chkPwd1"), Qt::Checked);
        press(s.dialog, "chkPwd2");
        QVERIFY(s.accept() && s.note.SaveTag == 1);
        QVERIFY(s.note.PwdOn && s.note.Pwd == u"new" && s.note.PwdOpenCloseOn && s.note.PwdReadonlyOn);
    }

    void switchingOnAndOff()
    {
        Settings s(clsNoteProps{});
        answer(u"frmNewPwd"_s, {u"new"_s, u"new"_s});
        press(s.dialog, "chkPwd");
        press(s.dialog, "chkPwd"); // The note never had it: nothing is asked.
        QVERIFY(s.accept() && !s.note.PwdOn && s.note.Pwd.isEmpty());
    }

    void switchingOff_data()
    {
        const Rows<QString, QByteArray, bool> row; // typed, button, off
        row("right", u"old"_s, "OKButton", true);
        row("wrong", u"OLD"_s, "OKButton", false);
        row("cancelled", u"old"_s, "CancelButton", false);
    }

    void switchingOff()
    {
        const auto [typed, button, off] = fetchRow<QString, QByteArray, bool>();
        Settings s(protectedNote());
        answerDialog(u"frmEnterPwd"_s, [&text = typed, &pressed = button](QDialog &prompt) {
            QCOMPARE(control<QLabel>(prompt, "lblDesc").text(), u"Disabling password protection."_s);
            enter(prompt, {text});
            press(prompt, pressed.constData());
        });
        if (off)
            press(s.dialog, "chkPwd");
        else
            QVERIFY(s.isRefused("chkPwd", {u"Disabling password protection failed."_s, u"Disabling failed"_s}));
        QCOMPARE(s.state("chkPwd") == Qt::Checked, !off);
        QVERIFY(s.accept());
        QCOMPARE(s.note.PwdOn, !off);
        QCOMPARE(s.note.Pwd, off ? QString() : u"old"_s);
    }

    void changing()
    {
        Settings s(protectedNote());
        answer(u"frmChangePwd"_s, {}, "CancelButton");
        QVERIFY(s.isRefused("cmdChangePwd", {u"Password change failed. "_s, u"Change failed"_s}));
        answer(u"frmChangePwd"_s, {u"new"_s, u"new"_s, u"old"_s});
        press(s.dialog, "cmdChangePwd");
        QVERIFY(s.accept() && s.note.Pwd == u"new" && s.note.PwdOn);
    }

    void cancelDropsAll()
    {
        Settings s(protectedNote());
        press(s.dialog, "chkPwd1");
        answer(u"frmEnterPwd"_s, {u"old"_s});
        press(s.dialog, "chkPwd");
        press(s.dialog, "CancelButton");
        QVERIFY(!s.dialog.PwdResult(s.note) && s.note == protectedNote());
    }
};

QTEST_MAIN(testPasswordDialogs)
#include "testPasswordDialogs.moc"
