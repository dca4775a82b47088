// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/NoteHolder.h"
#include "forms/modForms.h"
#include "forms/modFormsSaving.h"
#include "notes/frmNote.h"
#include "notes/modCreateNote.h"
#include "support/TestHome.h"
#include "support/TestProgram.h"
#include "support/failOnWarnings.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>

/// A program with the built-in options, and ways to get at its notes and their controls.
class NoteFixture
{
public:
    NoteFixture() : test(QDateTime(QDate(2026, 3, 1), QTime(12, 0)), home.paths), program(test.program)
    {
        program.DefaultOptions =
            modFileIO::SetProgramDefaults(home.paths, {0x0000FFFF, 0, QStringLiteral("DejaVu Sans"), 9});
        program.ProgramOptions = program.DefaultOptions;
        program.ProgramOptions.TitleBarOn = false;
        program.BuildNoteDefaults();
    }
    ~NoteFixture()
    {
        modForms::CloseAllWindows(program);
        deleteUnloaded();
    }

    frmNote *create(const clsNoteProps &record, NoteCreateMode mode = NoteCreateMode::New)
    {
        return at(modCreateNote::CreateNote(program, record, Home::Desktop, mode));
    }
    frmNote *create(const QString &text)
    {
        clsNoteProps record = program.NoteTemplate;
        record.Data = text;
        return create(record);
    }
    frmNote *at(qint32 tag) const { return dynamic_cast<frmNote *>(program.forms.note(tag)); }

    template <class Control> static Control &control(const QWidget &note, const char *name)
    {
        auto *found = note.findChild<Control *>(QLatin1String(name));
        if (found == nullptr)
            qFatal("There is no %s", name);
        return *found;
    }
    /// Opens the menu of the picture, or with false that of the text, and chooses the entry.
    static void choose(frmNote &note, const char *entry, bool ofPicture = true)
    {
        openMenu(note, ofPicture);
        control<QAction>(note, entry).trigger();
        for (QWidget *popup = QApplication::activePopupWidget(); popup != nullptr;
             popup = QApplication::activePopupWidget())
            popup->close();
        QCoreApplication::processEvents();
    }
    static void openMenu(frmNote &note, bool ofPicture = true)
    {
        if (ofPicture)
            QTest::mouseClick(&control<QWidget>(note, "imgMenu"), Qt::LeftButton);
        else
            QTest::mouseClick(&control<QWidget>(note, "lblDisplay"), Qt::RightButton);
    }
    /// Clicks the text and returns the text box.
    static QPlainTextEdit &edit(frmNote &note)
    {
        QTest::mouseClick(&control<QWidget>(note, "lblDisplay"), Qt::LeftButton);
        return control<QPlainTextEdit>(note, "txtText");
    }
    static void deleteUnloaded() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    /// The note as the data file has it.
    std::vector<clsNoteProps> stored() const
    {
        DataFileState state;
        state.paths = home.paths;
        std::vector<clsNoteProps> notes;
        const auto take = [&notes](clsNoteProps &&record) {
            notes.push_back(std::move(record));
            return static_cast<qint32>(notes.size());
        };
        modFileIO::LoadDataFile(state, {}, 1000, take, {}, {}, QDateTime::currentDateTime());
        return notes;
    }

    TestHome home;
    TestProgram test;
    Program &program;
};
