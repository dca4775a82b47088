// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "forms/Form.h"
#include "forms/modForms.h"
#include "forms/modFormsSaving.h"
#include "model/modStreams.h"
#include "shell/modInit.h"
#include "shell/modInitEnd.h"
#include "support/TestHome.h"
#include "support/TestProgram.h"
#include "support/failOnWarnings.h"

#include <QWidget>

using namespace Qt::StringLiterals;
using Answer = Prompts::Answer;

/// The steps of start-up and the way out.
class testStartUp final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void restoredNotesAreWrittenBackAsTheyWere_data();
    void restoredNotesAreWrittenBackAsTheyWere();
    void moreNotesThanRoom();
    void damagedFiles_data();
    void damagedFiles();
    void missingPictures();
    void missingFilesOfTheOptions();
    void dataFolder();
    void exitAsksBeforeItGivesUp();

private:
    void start();
    void end();
    std::vector<QByteArray> records() const;

    std::unique_ptr<TestHome> m_home;
    std::unique_ptr<TestProgram> m_test;
};

void testStartUp::init()
{
    failOnWarnings();
    m_home = std::make_unique<TestHome>();
    start();
}

void testStartUp::cleanup()
{
    end();
}

void testStartUp::start()
{
    m_test = std::make_unique<TestProgram>(QDateTime(QDate(2026, 3, 1), QTime(12, 0)), m_home->paths);
    modInit::LoadProgramOptions(m_test->program);
}

void testStartUp::end()
{
    QVERIFY(m_test->prompts.isDone());
    modForms::CloseAllWindows(m_test->program);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    m_test.reset();
}

/// The records of the data file, sorted.
std::vector<QByteArray> testStartUp::records() const
{
    DataFileState state;
    state.paths = m_home->paths;
    std::vector<QByteArray> found;
    const auto take = [&found](clsNoteProps &&note) {
        found.push_back(modStreams::EncodeNoteRecord(note));
        return static_cast<qint32>(found.size());
    };
    modFileIO::LoadDataFile(state, {}, 1000, take, {}, {}, QDateTime::currentDateTime());
    std::sort(found.begin(), found.end());
    return found;
}

void testStartUp::restoredNotesAreWrittenBackAsTheyWere_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<size_t>("windows");
    QTest::newRow("household") << TestHome::sample("household.dat") << size_t(8);
    QTest::newRow("hundred") << TestHome::sample("hundred.dat") << size_t(75);
}

void testStartUp::restoredNotesAreWrittenBackAsTheyWere()
{
    QFETCH(QByteArray, file);
    QFETCH(size_t, windows);
    m_home->setDataFile(file);
    const auto before = records();
    for (int run = 0; run < 3; ++run) {
        const QByteArray found = m_home->dataFile();
        modInit::restoreNotes(m_test->program, nullptr);
        QCOMPARE(m_test->program.forms.notes().size(), windows);
        QCOMPARE(m_test->program.file.replacements, 0);
        QCOMPARE(TestHome::contents(m_home->paths.BackupFile), found);
        modForms::SaveAllNotes(m_test->program);
        QVERIFY(m_test->program.file.replacements <= 1);
        QVERIFY(records() == before);
        end();
        start();
    }
}

void testStartUp::moreNotesThanRoom()
{
    for (int tag = 1; tag <= 130; ++tag) {
        clsNoteProps note = m_test->program.NoteTemplate;
        note.Tag = tag;
        note.Data = QString::number(tag);
        static_cast<void>(modFileIO::WriteNoteRecord(m_test->program.file, note, NoteFate::Keep));
    }
    const auto before = records();
    QCOMPARE(before.size(), size_t(130));
    end();
    start();
    m_test->prompts.expect(Answer::Ok);
    modInit::restoreNotes(m_test->program, nullptr);
    QVERIFY(m_test->prompts.last.text.startsWith(u"You cannot have more than 100 Quillets."));
    QCOMPARE(m_test->program.forms.notes().size(), size_t(100));
    modForms::SaveAllNotes(m_test->program);
    QCOMPARE(records().size(), size_t(130));
}

void testStartUp::damagedFiles_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<size_t>("windows");
    const QByteArray good = TestHome::sample("household.dat");
    QTest::newRow("none") << QByteArray() << size_t(0);
    QTest::newRow("seven bytes") << good.left(7) << size_t(0);
    QTest::newRow("text") << QByteArray("These are not notes. ").repeated(50) << size_t(0);
    QTest::newRow("cut in the middle of a note") << good.left(2000) << size_t(5);
    // Every size, place and font size of the last note becomes NaN.
    QTest::newRow("impossible numbers") << QByteArray(good).replace(2529 - 1 + 46, 24,
                                                                    QByteArray("\0\0\xC0\x7F", 4).repeated(6))
                                        << size_t(8);
}

void testStartUp::damagedFiles()
{
    QFETCH(QByteArray, file);
    QFETCH(size_t, windows);
    m_home->setDataFile(file);
    const bool isDamaged = !file.isEmpty() && windows < 8;
    if (isDamaged)
        m_test->prompts.expect(Answer::Ok);
    QCOMPARE(modInit::restoreNotes(m_test->program, nullptr).isDamaged, isDamaged);
    QTEST(m_test->program.forms.notes().size(), "windows");
    if (isDamaged)
        QVERIFY(m_test->prompts.last.text.contains(m_home->paths.DataFolder));
    for (Form *note : m_test->program.forms.notes())
        QVERIFY(note->window()->isVisible());
    modForms::SaveAllNotes(m_test->program);
    QTEST(m_test->program.forms.notes().size(), "windows");
}

void testStartUp::missingPictures()
{
    QVERIFY(modInit::checkComponents(m_test->program));
    m_test->program.file.paths.ImagesFolder = u"/no/such/folder"_s;
    m_test->prompts.expect(Answer::Ok);
    QVERIFY(!modInit::checkComponents(m_test->program));
    QCOMPARE(m_test->prompts.last, (Message{u"Certain program components could not be found.\nPlease re-install."_s,
                                            u"Fatal Program Error"_s, Message::Icon::Critical}));
}

void testStartUp::missingFilesOfTheOptions()
{
    Program &program = m_test->program;
    clsprogramoptions options = program.DefaultOptions;
    options.SoundFileOn = options.BackPicOn = true;
    options.SoundFile = u"/no/such.wav"_s;
    options.PicFile = u"/no/such.gif"_s;
    options.FontSize = 17;
    QVERIFY(modFileIO::SaveOptionsFile(m_home->paths, options).ok());
    m_test->prompts.expect(Answer::Ok);
    m_test->prompts.whileOpen = [this] {
        QCOMPARE(m_test->prompts.last.text, u"The sound /no/such.wav could not be found.\nDisabling sound file."_s);
    };
    m_test->prompts.expect(Answer::Ok);
    modInit::LoadProgramOptions(program);
    QCOMPARE(m_test->prompts.last, (Message{u"The image /no/such.gif could not be found.\nDisabling image file."_s,
                                            u"File Not Found"_s, Message::Icon::Critical}));
    QVERIFY(!program.ProgramOptions.SoundFileOn && !program.ProgramOptions.BackPicOn);
    QVERIFY(!program.NoteTemplate.SoundFileOn && !program.NoteTemplate.BackPicOn);
    QCOMPARE(program.NoteTemplate.FontSize, 17.0F);
}

void testStartUp::dataFolder()
{
    const QString &folder = m_home->paths.DataFolder;
    QVERIFY(QDir(folder).removeRecursively());
    modInit::prepareDataFolder(m_test->program);
    QCOMPARE(QFile::permissions(folder) & (QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther),
             QFile::Permissions());
    QVERIFY(QDir().rmdir(folder));
    TestHome::setContents(folder, "a file");
    m_test->prompts.expect(Answer::Ok);
    modInit::prepareDataFolder(m_test->program);
    QCOMPARE(TestHome::contents(folder), QByteArray("a file"));
}

void testStartUp::exitAsksBeforeItGivesUp()
{
    Program &program = m_test->program;
    m_home->setDataFile(TestHome::sample("household.dat"));
    modInit::restoreNotes(program, nullptr);
    program.file.LoadingData = true;
    modInit::ExitProgram(program);
    program.file.LoadingData = false;
    QCOMPARE(program.forms.notes().size(), size_t(8));
    m_home->spoilDataFile();
    program.forms.recordOf(program.forms.tags().front())->Data = u"changed"_s;
    m_test->prompts.expect(Answer::Ok);
    m_test->prompts.expect(Answer::Cancel);
    modInit::ExitProgram(program);
    QVERIFY(!program.Exiting && m_test->prompts.isDone());
    QCOMPARE(program.forms.notes().size(), size_t(8));
    QCOMPARE(m_test->prompts.last.buttons, Message::Buttons::OkCancel);
    m_test->prompts.expect(Answer::Ok);
    modInit::ExitProgram(program);
    QVERIFY(program.Exiting);
    QVERIFY(program.forms.loaded().empty());
}

QTEST_MAIN(testStartUp)
#include "testStartUp.moc"
