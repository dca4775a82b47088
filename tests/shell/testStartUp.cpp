// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "forms/Form.h"
#include "forms/modForms.h"
#include "forms/modFormsSaving.h"
#include "model/modStreams.h"
#include "shell/modInit.h"
#include "shell/modInitEnd.h"
#include "support/ProgramFixture.h"

#include <QWidget>

using namespace Qt::StringLiterals;
using Answer = Prompts::Answer;

/// The steps of start-up and the way out.
class testStartUp final : public QObject
{
    Q_OBJECT

private slots:
    void init() { start(); }
    void cleanup() { m_fixture.reset(); }

    void restoredNotesAreWrittenBackAsTheyWere_data()
    {
        const Rows<QByteArray, size_t> row; // file, windows
        row("household", TestHome::sample("household.dat"), 8);
        row("hundred", TestHome::sample("hundred.dat"), 75);
    }

    void restoredNotesAreWrittenBackAsTheyWere()
    {
        const auto [file, windows] = fetchRow<QByteArray, size_t>();
        m_fixture->home.setDataFile(file);
        const auto before = records();
        for (int run = 0; run < 3; ++run) {
            const QByteArray found = m_fixture->home.dataFile();
            start(found);
            modInit::restoreNotes(m_fixture->program, nullptr);
            QCOMPARE(m_fixture->program.forms.notes().size(), windows);
            QCOMPARE(m_fixture->program.file.replacements, 0);
            QCOMPARE(TestHome::contents(m_fixture->home.paths.BackupFile), found);
            modForms::SaveAllNotes(m_fixture->program);
            QVERIFY(m_fixture->program.file.replacements <= 1);
            QVERIFY(records() == before);
        }
    }

    void moreNotesThanRoom()
    {
        for (int tag = 1; tag <= 130; ++tag) {
            clsNoteProps note = m_fixture->program.NoteTemplate;
            note.Tag = tag;
            note.Data = QString::number(tag);
            static_cast<void>(modFileIO::WriteNoteRecord(m_fixture->program.file, note, NoteFate::Keep));
        }
        QCOMPARE(records().size(), size_t(130));
        start(m_fixture->home.dataFile());
        const Message told = m_fixture->boxOf([this] { modInit::restoreNotes(m_fixture->program, nullptr); });
        QVERIFY(told.text.startsWith(u"You cannot have more than 100 Quillets."));
        QCOMPARE(m_fixture->program.forms.notes().size(), size_t(100));
        modForms::SaveAllNotes(m_fixture->program);
        QCOMPARE(records().size(), size_t(130));
    }

    void damagedFiles_data()
    {
        const Rows<QByteArray, size_t> row; // file, windows
        const QByteArray good = TestHome::sample("household.dat");
        row("none", {}, 0);
        row("seven bytes", good.left(7), 0);
        row("text", QByteArray("These are not notes. ").repeated(50), 0);
        row("cut in the middle of a note", good.left(2000), 5);
        // Every size, place and font size of the last note becomes NaN.
        row("impossible numbers",
            QByteArray(good).replace(2529 - 1 + 46, 24, QByteArray("\0\0\xC0\x7F", 4).repeated(6)), 8);
    }

    void damagedFiles()
    {
        const auto [file, windows] = fetchRow<QByteArray, size_t>();
        m_fixture->home.setDataFile(file);
        const bool isDamaged = !file.isEmpty() && windows < 8;
        if (isDamaged)
            m_fixture->test.prompts.expect(Answer::Ok);
        QCOMPARE(modInit::restoreNotes(m_fixture->program, nullptr).isDamaged, isDamaged);
        QCOMPARE(m_fixture->program.forms.notes().size(), windows);
        if (isDamaged)
            QVERIFY(m_fixture->test.prompts.last.text.contains(m_fixture->home.paths.DataFolder));
        for (Form *note : m_fixture->program.forms.notes())
            QVERIFY(note->window()->isVisible());
        modForms::SaveAllNotes(m_fixture->program);
        QCOMPARE(m_fixture->program.forms.notes().size(), windows);
    }

    void missingPictures()
    {
        QVERIFY(modInit::checkComponents(m_fixture->program));
        m_fixture->program.file.paths.ImagesFolder = u"/no/such/folder"_s;
        QCOMPARE(m_fixture->boxOf([this] { QVERIFY(!modInit::checkComponents(m_fixture->program)); }),
                 (Message{u"Certain program components could not be found.\nPlease re-install."_s,
                          u"Fatal Program Error"_s, Message::Icon::Critical}));
    }

    void missingFilesOfTheOptions()
    {
        Program &program = m_fixture->program;
        clsprogramoptions options = program.DefaultOptions;
        options.SoundFileOn = options.BackPicOn = true;
        options.SoundFile = u"/no/such.wav"_s;
        options.PicFile = u"/no/such.gif"_s;
        options.FontSize = 17;
        QVERIFY(modFileIO::SaveOptionsFile(m_fixture->home.paths, options).ok());
        m_fixture->test.prompts.expect(Answer::Ok);
        m_fixture->test.prompts.whileOpen = [this] {
            QCOMPARE(m_fixture->test.prompts.last.text,
                     u"The sound /no/such.wav could not be found.\nDisabling sound file."_s);
        };
        QCOMPARE(m_fixture->boxOf([&program] { modInit::LoadProgramOptions(program); }),
                 (Message{u"The image /no/such.gif could not be found.\nDisabling image file."_s, u"File Not Found"_s,
                          Message::Icon::Critical}));
        QVERIFY(!program.ProgramOptions.SoundFileOn && !program.ProgramOptions.BackPicOn);
        QVERIFY(!program.NoteTemplate.SoundFileOn && !program.NoteTemplate.BackPicOn);
        QCOMPARE(program.NoteTemplate.FontSize, 17.0F);
    }

    void noDataFolder()
    {
        const QString &folder = m_fixture->home.paths.DataFolder;
        QVERIFY(QDir(folder).removeRecursively());
        TestHome::setContents(folder, "a file");
        m_fixture->boxOf([this] { modInit::prepareDataFolder(m_fixture->program); });
        QCOMPARE(TestHome::contents(folder), QByteArray("a file"));
    }

    void exitAsksBeforeItGivesUp()
    {
        Program &program = m_fixture->program;
        m_fixture->home.setDataFile(TestHome::sample("household.dat"));
        modInit::restoreNotes(program, nullptr);
        program.file.LoadingData = true;
        modInit::ExitProgram(program);
        program.file.LoadingData = false;
        QCOMPARE(program.forms.notes().size(), size_t(8));
        m_fixture->home.spoilDataFile();
        program.forms.recordOf(program.forms.tags().front())->Data = u"changed"_s;
        m_fixture->test.prompts.expect(Answer::Ok);
        const Message question = m_fixture->boxOf([&program] { modInit::ExitProgram(program); }, Answer::Cancel);
        QVERIFY(!program.Exiting && m_fixture->test.prompts.isDone());
        QCOMPARE(program.forms.notes().size(), size_t(8));
        QCOMPARE(question.buttons, Message::Buttons::OkCancel);
        m_fixture->boxOf([&program] { modInit::ExitProgram(program); });
        QVERIFY(program.Exiting && program.forms.loaded().empty());
    }

private:
    /// A program that finds the data file.
    void start(const QByteArray &dataFile = {})
    {
        m_fixture.emplace();
        if (!dataFile.isEmpty())
            m_fixture->home.setDataFile(dataFile);
        modInit::LoadProgramOptions(m_fixture->program);
    }
    /// The records of the data file, sorted.
    std::vector<QByteArray> records() const
    {
        std::vector<QByteArray> found;
        for (const clsNoteProps &note : m_fixture->stored())
            found.push_back(modStreams::EncodeNoteRecord(note));
        std::sort(found.begin(), found.end());
        return found;
    }

    std::optional<ProgramFixture> m_fixture;
};

QTEST_MAIN(testStartUp)
#include "testStartUp.moc"
