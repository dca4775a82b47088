// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/Flaw.h"

#include <QWidget>

class CheckRow;
class FileButton;
class Program;

/// What an alarm does to be noticed, where a dialog keeps it while it is edited. The record outlives the controls.
struct AttentionFields
{
    bool &FlashOn;
    bool &SoundFileOn;
    QString &SoundFile;

    template <class Record> static AttentionFields of(Record &record)
    {
        return {record.FlashOn, record.SoundFileOn, record.SoundFile};
    }
};

/// The controls of an alarm's flashing window and sound. Each choice is written into the fields at once.
class AttentionGroup final : public QWidget
{
    Q_OBJECT

public:
    /// The dialogs that show the group differ in its measures and in choosing a sound.
    enum class Place
    {
        AlarmDialog,
        NoteSettings,
        ProgramOptions
    };

    AttentionGroup(Program &program, AttentionFields fields, Place place, QWidget *parent);

    void showFields();
    /// A sound is to be played and none is chosen.
    std::optional<Flaw> findFlaw() const;

    QWidget *soundSwitch() const;
    /// Of its first column, in pixels.
    int captionWidth() const;

private:
    void chooseSound();

    Program &m_program;
    AttentionFields m_fields;
    Place m_place;
    CheckRow *m_flash;   // chkFlash
    CheckRow *m_soundOn; // chkSoundFile
    FileButton *m_sound; // cmdSoundFile
};
