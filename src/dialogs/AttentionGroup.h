// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "dialogs/AppearanceFields.h"

#include <QWidget>

class CheckRow;
class FileButton;
class Program;

/// How an alarm gets attention: the flashing window and the sound. Each choice is written into the fields at once.
class AttentionGroup final : public QWidget
{
    Q_OBJECT

public:
    AttentionGroup(Program &program, AttentionFields fields, const QString &soundTitle, QWidget *parent);

    void showFields();
    /// False, after a box, when a sound is to be played and none is chosen.
    bool isComplete();

    QWidget *soundSwitch() const;
    QWidget *soundField() const;

private:
    void chooseSound();

    Program &m_program;
    AttentionFields m_fields;
    QString m_soundTitle;
    CheckRow *m_flash;   // chkFlash
    CheckRow *m_soundOn; // chkSoundFile
    FileButton *m_sound; // cmdSoundFile
};
