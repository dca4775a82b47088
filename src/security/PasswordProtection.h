// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QWidget>

class CheckRow;
class Program;
class QFrame;
class QPushButton;

/// The protection of a note where a dialog keeps it while it is edited.
struct PasswordFields
{
    bool &PwdOn;
    QString &Pwd;
    bool &PwdReadonlyOn;
    bool &PwdOpenCloseOn;

    template <class Record> static PasswordFields of(Record &record)
    {
        return {record.PwdOn, record.Pwd, record.PwdReadonlyOn, record.PwdOpenCloseOn};
    }
};

/// The controls that switch a note's protection on and off, choose its kinds and change the password. They write into
/// the fields at once; keeping or dropping the result is the dialog's business.
class PasswordProtection final : public QWidget
{
    Q_OBJECT

public:
    /// What the two choices show while there is no protection: a grey third state, or their values, disabled.
    enum class WhenOff
    {
        Grey,
        Disabled
    };

    PasswordProtection(Program &program, PasswordFields fields, WhenOff whenOff, QWidget *parent);

    /// Shows the fields and remembers whether the note has a password, which then guards its being switched off.
    void Initialize();
    QWidget *firstField() const;

private:
    void layOut();
    void connectChoice(CheckRow *row, bool &field);
    void showChoices();
    void showChoice(CheckRow *row, bool on);
    void protectionClicked(bool on);
    void switchOn();
    void switchOff();
    void clearProtection();
    void changePassword();
    void refuse(const QString &text, const QString &caption);

    Program &m_program;
    PasswordFields m_fields;
    WhenOff m_whenOff;
    bool m_hadPassword = false;
    CheckRow *m_protection; // chkPwd
    QFrame *m_choices;      // fraPasswordIn
    CheckRow *m_openClose;  // chkPwd1
    CheckRow *m_readOnly;   // chkPwd2
    QPushButton *m_change;  // cmdChangePwd
};
