// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/modForms.h"
#include "forms/modFormsSaving.h"
#include "model/modFileIO.h"
#include "support/TestHome.h"
#include "support/TestProgram.h"
#include "support/answerDialog.h"
#include "support/failOnWarnings.h"
#include "support/rows.h"

/// A program at noon, with a working folder of its own. A warning fails the test, and so does an expected box that
/// has not come by the end.
class ProgramFixture
{
public:
    using Answer = Prompts::Answer;

    ProgramFixture() { failOnWarnings(); }
    ~ProgramFixture()
    {
        if (!test.prompts.isDone())
            QTest::qFail("A box that was expected did not come", __FILE__, __LINE__);
        modForms::CloseAllWindows(program);
        deleteUnloaded();
    }
    Q_DISABLE_COPY_MOVE(ProgramFixture)

    static void deleteUnloaded() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    /// The notes as the data file has them, and where what could not be read was put.
    std::vector<clsNoteProps> stored(QStringList *keptAside = nullptr) const
    {
        DataFileState state;
        state.paths = home.paths;
        std::vector<clsNoteProps> notes;
        const auto take = [&notes](clsNoteProps &&record) {
            notes.push_back(std::move(record));
            return static_cast<qint32>(notes.size());
        };
        const LoadReport report = modFileIO::LoadDataFile(state, {}, 1000, take, {}, {}, QDateTime::currentDateTime());
        if (keptAside != nullptr)
            *keptAside = report.keptAside;
        return notes;
    }
    QStringList storedTexts(QStringList *keptAside = nullptr) const
    {
        QStringList texts;
        for (const clsNoteProps &note : stored(keptAside))
            texts.append(note.Data);
        return texts;
    }
    /// The box that comes of it, answered.
    Message boxOf(const std::function<void()> &act, Answer answer = Answer::Ok)
    {
        test.prompts.expect(answer);
        act();
        static_cast<void>(QTest::qWaitFor([this] { return test.prompts.isDone(); }));
        return test.prompts.last;
    }
    /// A sound file that is there.
    QString soundFile() const
    {
        const QString path = home.paths.DataFolder + QStringLiteral("/ring.wav");
        TestHome::setContents(path, "RIFF");
        return path;
    }

    TestHome home;
    TestProgram test{QDateTime(QDate(2026, 3, 1), QTime(12, 0)), home.paths};
    Program &program = test.program;
};
