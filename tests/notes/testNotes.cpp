// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "alarms/modAlarm.h"
#include "model/modStreams.h"
#include "notes/NoteFixture.h"
#include "support/answerDialog.h"

#include <QClipboard>
#include <QDialog>
#include <QTextDocumentFragment>

#include <limits>

using namespace Qt::StringLiterals;
using Answer = Prompts::Answer;

/// How notes come to be, are moved, sized, rolled up and deleted.
class testNotes final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void newNotes();
    void limit();
    void hiddenWhileADialogShows();
    void restoringChangesNothing_data();
    void restoringChangesNothing();
    void missingFilesAreTold();
    void flashOutlivesItsDialog();
    void flashComesBeforeNoBox();
    void lockTakesTheSelection();
    void rolling();
    void toolbarTwice_data();
    void toolbarTwice();
    void hugeTexts();
    void deletedBehindTheQuestion();

private:
    /// Presses there, moves and lets go.
    static void drag(frmNote &note, const char *control, QPoint by);

    std::unique_ptr<NoteFixture> m_fixture;
};

void testNotes::init()
{
    failOnWarnings();
    m_fixture = std::make_unique<NoteFixture>();
}

void testNotes::cleanup()
{
    QVERIFY(m_fixture->test.prompts.isDone());
    m_fixture.reset();
}

void testNotes::newNotes()
{
    Program &program = m_fixture->program;
    for (qint32 expected = 1; expected <= 3; ++expected) {
        frmNote *note = m_fixture->create(QString());
        const clsNoteProps &record = *note->GetThisNoteProps();
        QCOMPARE(record.Tag, expected);
        QCOMPARE(record.SaveTag, qint16(1));
        QCOMPARE(record.DateCreated, QLocale().toString(m_fixture->test.clock.now(), QLocale::ShortFormat));
        QCOMPARE(note->size(),
                 QSize(program.twips.toPixels(record.FrmWidth), program.twips.toPixels(record.FrmHeight)));
        QCOMPARE(QPoint(program.twips.toPixels(record.FrmLeft), program.twips.toPixels(record.FrmTop)), note->pos());
        QVERIFY(note->isVisible() && note->windowFlags().testFlag(Qt::FramelessWindowHint));
    }
    QVERIFY(m_fixture->at(1)->pos() != m_fixture->at(2)->pos());
    program.ProgramOptions.TitleBarOn = true;
    QVERIFY(NoteFixture::control<QLineEdit>(*m_fixture->create(QString()), "txtTitle").isVisible());
}

void testNotes::limit()
{
    Program &program = m_fixture->program;
    program.NoteCounter = modCreateNote::MostNotes - 1;
    QCOMPARE(m_fixture->create(u"last"_s)->Tag(), 100);
    m_fixture->test.prompts.expect(Answer::Ok);
    QCOMPARE(m_fixture->create(u"one more"_s), nullptr);
    QCOMPARE(m_fixture->test.prompts.last, (Message{u"You cannot have more than 100 Quillets.\nQuillet not created."_s,
                                                    u"error"_s, Message::Icon::Critical}));
    QCOMPARE(program.forms.notes().size(), size_t(1));
    QCOMPARE(program.NoteCounter, 100);
    clsNoteProps moved = program.NoteTemplate;
    moved.Tag = 17;
    modCreateNote::moveToDesktop(program, moved, Lid::AsRecorded);
    QVERIFY(m_fixture->at(17) != nullptr);
    QCOMPARE(m_fixture->stored().size(), size_t(1));
}

void testNotes::hiddenWhileADialogShows()
{
    struct Dialog final : QDialog, Form
    {
        explicit Dialog(Forms &forms) : Form(forms, u"frmOptions"_s) {}
        QWidget *window() override { return this; }
    };
    Dialog dialog(m_fixture->program.forms);
    dialog.show();
    frmNote *note = m_fixture->create(u"text"_s);
    QVERIFY(!note->isVisible());
    dialog.hide();
    modForms::ShowNoteWindows(m_fixture->program);
    QVERIFY(note->isVisible());
}

void testNotes::restoringChangesNothing_data()
{
    QTest::addColumn<clsNoteProps>("record");
    const NoteFixture fixture;
    fixture.home.setDataFile(TestHome::sample("household.dat"));
    int number = 0;
    for (const clsNoteProps &record : fixture.stored())
        QTest::addRow("household %d", ++number) << record;
    clsNoteProps odd = fixture.program.NoteTemplate;
    odd.FrmHeight = odd.FrmLeft = odd.FontSize = std::numeric_limits<float>::infinity();
    odd.FrmWidth = -3;
    odd.FrmTop = -1e30F;
    odd.AlarmOn = true;
    odd.AlarmDateMonth = 77;
    QTest::newRow("absurd") << odd;
    odd.FrmScrolledOn = true;
    odd.FrmHeightBefore = 1e20F;
    QTest::newRow("absurd, rolled up") << odd;
    odd = fixture.program.NoteTemplate;
    odd.FrmLeft = 90000;
    odd.FrmTop = 300;
    odd.FrmScrolledOn = true;
    odd.FrmHeightBefore = 10;
    QTest::newRow("on a screen that is gone") << odd;
}

void testNotes::restoringChangesNothing()
{
    QFETCH(clsNoteProps, record);
    m_fixture->program.file.LoadingData = true;
    frmNote *note = m_fixture->create(record, NoteCreateMode::Load);
    m_fixture->program.file.LoadingData = false;
    QTest::qWait(400); // Longer than a place takes to settle.
    const clsNoteProps &now = *note->GetThisNoteProps();
    clsNoteProps expected = record;
    expected.NoteStackOn = false;
    QCOMPARE(modStreams::EncodeNoteRecord(now).toHex(), modStreams::EncodeNoteRecord(expected).toHex());
    QCOMPARE(now.SaveTag, qint16(1));
    QCOMPARE(note->height() == NoteLayout::rolledHeight(), record.FrmScrolledOn);
    QVERIFY(note->screen()->geometry().intersects(note->geometry()));
    QVERIFY(!QFile::exists(m_fixture->home.paths.DataFile));
}

void testNotes::missingFilesAreTold()
{
    clsNoteProps record = m_fixture->program.NoteTemplate;
    record.BackPicOn = record.SoundFileOn = true;
    record.PicFile = u"/no/such.gif"_s;
    record.SoundFile = m_fixture->home.paths.ImagesFolder + u"/menuup.gif"_s;
    m_fixture->test.prompts.expect(Answer::Ok);
    QVERIFY(!m_fixture->create(record)->GetThisNoteProps()->BackPicOn);
    QCOMPARE(m_fixture->test.prompts.last.text,
             u"The image /no/such.gif could not be found.\nLoading quillet without image."_s);
    record.PicFile = u"/no/such.wav"_s;
    std::swap(record.PicFile, record.SoundFile);
    m_fixture->test.prompts.expect(Answer::Ok);
    frmNote *note = m_fixture->create(record);
    QCOMPARE(m_fixture->test.prompts.last.text,
             u"The sound /no/such.wav could not be found.\nSetting alarm flashing window only."_s);
    QVERIFY(!note->GetThisNoteProps()->SoundFileOn && note->GetThisNoteProps()->FlashOn);
    QVERIFY(note->findChild<QWidget *>(u"imgDisplay"_s) != nullptr);
    // Once for a file that cannot be read, however often the note is dressed.
    record.SoundFileOn = false;
    record.PicFile = m_fixture->home.paths.DataFolder + u"/none.gif"_s;
    TestHome::setContents(record.PicFile, "no picture");
    m_fixture->test.prompts.expect(Answer::Ok);
    frmNote *shown = m_fixture->create(record);
    shown->recordChanged(0);
    shown->recordChanged(0);
    QVERIFY(shown->GetThisNoteProps()->BackPicOn);
}

void testNotes::flashOutlivesItsDialog()
{
    clsNoteProps record = m_fixture->program.NoteTemplate;
    const QDateTime moment = m_fixture->test.clock.now().addSecs(60);
    record.AlarmOn = record.FlashOn = true;
    modAlarm::setAlarmDate(record, moment.date());
    modAlarm::setAlarmTime(record, moment.time());
    frmNote *note = m_fixture->create(record);
    const auto *flash = note->findChild<NoteFlash *>();
    answerDialog(u"frmSettings"_s, [this, flash](QDialog &dialog) {
        m_fixture->test.clock.advance(60);
        QVERIFY(flash->isFlashing());
        press(dialog, "cmdOK");
    });
    NoteFixture::choose(*note, "mnuSettings");
    QVERIFY(flash->isFlashing() && !note->GetThisNoteProps()->AlarmOn);
    QTest::mouseClick(&NoteFixture::control<QWidget>(*note, "lblDisplay"), Qt::LeftButton);
    QVERIFY(!flash->isFlashing());
}

void testNotes::flashComesBeforeNoBox()
{
    class Raises final : public QObject
    {
    public:
        int count = 0;
        bool eventFilter(QObject *, QEvent *event) override
        {
            count += event->type() == QEvent::ZOrderChange ? 1 : 0;
            return false;
        }
    } raises;
    frmNote *note = m_fixture->create(u"flashing"_s);
    note->installEventFilter(&raises);
    auto *flash = note->findChild<NoteFlash *>();
    QDialog box;
    box.setModal(true);
    box.show();
    flash->StartFlashing(Qt::yellow);
    QVERIFY(flash->isFlashing() && raises.count == 0);
    box.hide();
    flash->StartFlashing(Qt::yellow);
    QCOMPARE(raises.count, 1);
}

void testNotes::lockTakesTheSelection()
{
    QClipboard *clipboard = QGuiApplication::clipboard();
    if (!clipboard->supportsSelection())
        QSKIP("There is no primary selection here.");
    frmNote *note = m_fixture->create(u"one\r\ntwo"_s);
    QPlainTextEdit &editor = NoteFixture::edit(*note);
    editor.selectAll();
    clipboard->setText(editor.textCursor().selection().toPlainText(), QClipboard::Selection);
    QCOMPARE(clipboard->text(QClipboard::Selection), u"one\ntwo"_s);
    note->setLocked(note->Tag(), true);
    QCOMPARE(clipboard->text(QClipboard::Selection), QString());
}

void testNotes::rolling()
{
    frmNote *note = m_fixture->create(u"text"_s);
    const clsNoteProps &record = *note->GetThisNoteProps();
    const Twips &twips = m_fixture->program.twips;
    note->resize(240, 177);
    const QSize open = note->size();
    auto &title = NoteFixture::control<QWidget>(*note, "lblTitle");
    for (int turn = 0; turn < 3; ++turn) {
        QTest::mouseDClick(&title, Qt::LeftButton);
        QVERIFY(record.FrmScrolledOn);
        QCOMPARE(note->size(), QSize(open.width(), NoteLayout::rolledHeight()));
        QCOMPARE(twips.toPixels(record.FrmHeight), NoteLayout::rolledHeight());
        QCOMPARE(twips.toPixels(record.FrmHeightBefore), open.height());
        QCOMPARE(m_fixture->stored().front().FrmScrolledOn, true);
        QTest::mouseDClick(&title, Qt::LeftButton);
        QCOMPARE(note->size(), open);
        QCOMPARE(twips.toPixels(record.FrmHeight), open.height());
        QCOMPARE(m_fixture->stored().front().FrmScrolledOn, false);
    }
    clsNoteProps former = record;
    former.FrmScrolledOn = true;
    former.FrmHeightBefore = std::numeric_limits<float>::quiet_NaN();
    frmNote *restored = m_fixture->create(former, NoteCreateMode::Load);
    restored->resize(restored->width(), 5);
    QTest::mouseDClick(&NoteFixture::control<QWidget>(*restored, "lblTitle"), Qt::LeftButton);
    QCOMPARE(restored->height(), twips.toPixels(m_fixture->program.ProgramOptions.FrmHeight));
}

void testNotes::toolbarTwice_data()
{
    QTest::addColumn<bool>("on");
    QTest::addColumn<bool>("rolled");
    QTest::addColumn<int>("height");
    QTest::newRow("on and off") << false << false << 150;
    QTest::newRow("off and on") << true << false << 150;
    QTest::newRow("rolled up") << true << true << 150;
    QTest::newRow("too low for it") << true << false << 36;
}

void testNotes::toolbarTwice()
{
    QFETCH(bool, on);
    QFETCH(bool, rolled);
    QFETCH(int, height);
    clsNoteProps record = m_fixture->program.NoteTemplate;
    record.ToolBarOn = on;
    frmNote *note = m_fixture->create(record);
    note->resize(note->width(), height);
    if (rolled)
        note->ScrollForm();
    const QSize before = note->size();
    auto &strip = NoteFixture::control<QWidget>(*note, "fraButtons");
    QCOMPARE(strip.isVisible(), on && !rolled && height > 40);
    NoteFixture::choose(*note, "mnuToolBarOn");
    QCOMPARE(note->GetThisNoteProps()->ToolBarOn, !on);
    QCOMPARE(strip.isVisible(), !on && !rolled);
    QCOMPARE(note->size() == before, rolled);
    if (rolled) {
        QTest::mouseDClick(&NoteFixture::control<QWidget>(*note, "lblTitle"), Qt::LeftButton);
        QCOMPARE(note->height(), height - NoteLayout::toolbarShare());
        NoteFixture::choose(*note, "mnuToolBarOn");
        QCOMPARE(note->height(), height);
        return;
    }
    NoteFixture::choose(*note, "mnuToolBarOn");
    QCOMPARE(note->size(), before);
    QCOMPARE(m_fixture->program.twips.toPixels(note->GetThisNoteProps()->FrmHeight), before.height());
}

void testNotes::drag(frmNote &note, const char *control, QPoint by)
{
    auto &held = NoteFixture::control<QWidget>(note, control);
    const QPoint at = held.mapToGlobal(held.rect().center());
    const auto send = [&held](QEvent::Type type, QPoint where, Qt::MouseButtons buttons) {
        QMouseEvent event(type, held.mapFromGlobal(where), where,
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, buttons, Qt::NoModifier);
        QCoreApplication::sendEvent(&held, &event);
    };
    send(QEvent::MouseButtonPress, at, Qt::LeftButton);
    send(QEvent::MouseMove, at + by / 3, Qt::LeftButton);
    send(QEvent::MouseMove, at + by, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, at + by, Qt::NoButton);
}

void testNotes::hugeTexts()
{
    clsNoteProps record = m_fixture->program.NoteTemplate;
    record.Data = u"a line of usual length\r\n"_s.repeated(200000);
    record.TitleBarTitle = QString(200000, u'M');
    frmNote *note = m_fixture->create(record);
    QVERIFY(NoteFixture::control<QLabel>(*note, "lblTitle").text().size() < 50);
    QVERIFY(!note->grab().isNull());
    note->ScrollForm();
    QVERIFY(note->windowTitle().size() <= 200);
    QVERIFY(m_fixture->stored().front().Data == record.Data);
}

void testNotes::deletedBehindTheQuestion()
{
    const QPointer<frmNote> note = m_fixture->create(u"text"_s);
    note->SaveThisNote();
    m_fixture->test.prompts.expect(Answer::Ok);
    m_fixture->test.prompts.whileOpen = [&note] {
        note->ToTheNoteStack();
        NoteFixture::deleteUnloaded();
    };
    QTest::mouseClick(&NoteFixture::control<QWidget>(*note, "imgMinimize"), Qt::LeftButton);
    QTRY_VERIFY(note == nullptr);
    // It lives on where it went.
    QCOMPARE(m_fixture->stored().size(), size_t(1));
}

QTEST_MAIN(testNotes)
#include "testNotes.moc"
