// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/modStreams.h"
#include "notes/NoteFixture.h"

#include <QClipboard>
#include <QDialog>
#include <QTextDocumentFragment>

#include <limits>

using namespace Qt::StringLiterals;
using Answer = Prompts::Answer;

/// How notes come to be, their menus, how they are rolled up and deleted.
class testNotes final : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_fixture.emplace(); }
    void cleanup() { m_fixture.reset(); }

    void newNotes()
    {
        Program &program = m_fixture->program;
        const auto pixels = [&program](float length) { return program.twips.toPixels(length); };
        for (qint32 expected = 1; expected <= 2; ++expected) {
            frmNote *note = m_fixture->create(QString());
            const clsNoteProps &record = *note->GetThisNoteProps();
            QCOMPARE(record.Tag, expected);
            QCOMPARE(record.SaveTag, qint16(1));
            QCOMPARE(record.DateCreated, QLocale().toString(m_fixture->test.clock.now(), QLocale::ShortFormat));
            QCOMPARE(note->geometry(), QRect(pixels(record.FrmLeft), pixels(record.FrmTop), pixels(record.FrmWidth),
                                             pixels(record.FrmHeight)));
            QVERIFY(note->isVisible() && note->windowFlags().testFlag(Qt::FramelessWindowHint));
        }
        QVERIFY(m_fixture->at(1)->pos() != m_fixture->at(2)->pos());
        program.ProgramOptions.TitleBarOn = true;
        QVERIFY(control<QLineEdit>(*m_fixture->create(QString()), "txtTitle").isVisible());
    }

    void limit()
    {
        Program &program = m_fixture->program;
        program.NoteCounter = modCreateNote::MostNotes - 1;
        QCOMPARE(m_fixture->create(u"last"_s)->Tag(), 100);
        const Message told = m_fixture->boxOf([this] { QCOMPARE(m_fixture->create(u"one more"_s), nullptr); });
        QCOMPARE(told, (Message{u"You cannot have more than 100 Quillets.\nQuillet not created."_s, u"error"_s,
                                Message::Icon::Critical}));
        QCOMPARE(program.forms.notes().size(), size_t(1));
        QCOMPARE(program.NoteCounter, 100);
        clsNoteProps moved = program.NoteTemplate;
        moved.Tag = 17;
        modCreateNote::moveToDesktop(program, moved, Lid::AsRecorded);
        QVERIFY(m_fixture->at(17) != nullptr);
        QCOMPARE(m_fixture->stored().size(), size_t(1));
    }

    void restoringChangesNothing_data()
    {
        const Rows<clsNoteProps> row; // record
        const clsNoteProps usual = NoteFixture().program.NoteTemplate;
        clsNoteProps odd = usual;
        odd.FrmHeight = odd.FrmLeft = odd.FontSize = std::numeric_limits<float>::infinity();
        odd.FrmWidth = -3;
        odd.FrmTop = -1e30F;
        odd.AlarmOn = true;
        odd.AlarmDateMonth = 77;
        row("absurd", odd);
        odd.FrmScrolledOn = true;
        odd.FrmHeightBefore = 1e20F;
        row("absurd, rolled up", odd);
        odd = usual;
        odd.FrmLeft = 90000;
        odd.FrmTop = 300;
        odd.FrmScrolledOn = true;
        odd.FrmHeightBefore = 10;
        row("on a screen that is gone", odd);
    }

    void restoringChangesNothing()
    {
        const auto [record] = fetchRow<clsNoteProps>();
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

    void missingFilesAreTold()
    {
        clsNoteProps record = m_fixture->program.NoteTemplate;
        frmNote *note = nullptr;
        const auto toldOf = [this, &record, &note] {
            return m_fixture->boxOf([&] { note = m_fixture->create(record); }).text;
        };
        record.BackPicOn = record.SoundFileOn = true;
        record.PicFile = u"/no/such.gif"_s;
        record.SoundFile = m_fixture->home.paths.ImagesFolder + u"/menuup.gif"_s;
        QCOMPARE(toldOf(), u"The image /no/such.gif could not be found.\nLoading quillet without image."_s);
        QVERIFY(!note->GetThisNoteProps()->BackPicOn);
        record.PicFile = std::exchange(record.SoundFile, u"/no/such.wav"_s);
        QCOMPARE(toldOf(), u"The sound /no/such.wav could not be found.\nSetting alarm flashing window only."_s);
        QVERIFY(!note->GetThisNoteProps()->SoundFileOn && note->GetThisNoteProps()->FlashOn);
        QVERIFY(note->findChild<QWidget *>(u"imgDisplay"_s) != nullptr);
        // Once for a file that cannot be read, however often the note is dressed.
        record.SoundFileOn = false;
        record.PicFile = m_fixture->home.paths.DataFolder + u"/none.gif"_s;
        TestHome::setContents(record.PicFile, "no picture");
        toldOf();
        note->recordChanged(0);
        QVERIFY(note->GetThisNoteProps()->BackPicOn);
    }

    void flashOutlivesItsDialog()
    {
        clsNoteProps record = m_fixture->alarmed(m_fixture->record(u"text"_s));
        record.FlashOn = true;
        frmNote *note = m_fixture->create(record);
        const auto *flash = note->findChild<NoteFlash *>();
        answerDialog(u"frmSettings"_s, [this, flash](QDialog &dialog) {
            m_fixture->test.clock.advance(60);
            QVERIFY(flash->isFlashing());
            press(dialog, "cmdOK");
        });
        NoteFixture::choose(*note, "mnuSettings");
        QVERIFY(flash->isFlashing() && !note->GetThisNoteProps()->AlarmOn);
        press(*note, "lblDisplay");
        QVERIFY(!flash->isFlashing());
    }

    void flashComesBeforeNoBox()
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

    void lockTakesTheSelection()
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

    void rolling()
    {
        frmNote *note = m_fixture->create(u"text"_s);
        const clsNoteProps &record = *note->GetThisNoteProps();
        const Twips &twips = m_fixture->program.twips;
        note->resize(240, 177);
        const QSize open = note->size();
        for (int turn = 0; turn < 6; ++turn) {
            const bool rolled = turn % 2 == 0;
            NoteFixture::roll(*note);
            QCOMPARE(note->size(), rolled ? QSize(open.width(), NoteLayout::rolledHeight()) : open);
            QCOMPARE(twips.toPixels(record.FrmHeight), note->height());
            QCOMPARE(twips.toPixels(record.FrmHeightBefore), open.height());
            QVERIFY(record.FrmScrolledOn == rolled && m_fixture->stored().front().FrmScrolledOn == rolled);
        }
        clsNoteProps former = record;
        former.FrmScrolledOn = true;
        former.FrmHeightBefore = std::numeric_limits<float>::quiet_NaN();
        frmNote *restored = m_fixture->create(former, NoteCreateMode::Load);
        restored->resize(restored->width(), 5);
        NoteFixture::roll(*restored);
        QCOMPARE(restored->height(), twips.toPixels(m_fixture->program.ProgramOptions.FrmHeight));
    }

    void toolbarTwice_data()
    {
        const Rows<bool, bool, int> row; // on, rolled, height
        row("on and off", false, false, 150);
        row("off and on", true, false, 150);
        row("rolled up", true, true, 150);
        row("too low for it", true, false, 36);
    }

    void toolbarTwice()
    {
        const auto [on, rolled, height] = fetchRow<bool, bool, int>();
        clsNoteProps record = m_fixture->program.NoteTemplate;
        record.ToolBarOn = on;
        frmNote *note = m_fixture->create(record);
        note->resize(note->width(), height);
        if (rolled)
            note->ScrollForm();
        const QSize before = note->size();
        const auto &strip = control<QWidget>(*note, "fraButtons");
        QCOMPARE(strip.isVisible(), on && !rolled && height > 40);
        NoteFixture::choose(*note, "mnuToolBarOn");
        QCOMPARE(note->GetThisNoteProps()->ToolBarOn, !on);
        QCOMPARE(strip.isVisible(), !on && !rolled);
        QCOMPARE(note->size() == before, rolled);
        if (rolled) {
            NoteFixture::roll(*note);
            QCOMPARE(note->height(), height - NoteLayout::toolbarShare());
        }
        NoteFixture::choose(*note, "mnuToolBarOn");
        QCOMPARE(note->size(), QSize(before.width(), height));
        QCOMPARE(m_fixture->program.twips.toPixels(note->GetThisNoteProps()->FrmHeight), height);
    }

    void onTop()
    {
        frmNote *note = m_fixture->create(u"text"_s);
        const bool before = note->GetThisNoteProps()->OnTopOn;
        for (const bool expected : {!before, before}) {
            NoteFixture::choose(*note, "mnuOnTop");
            QCOMPARE(note->GetThisNoteProps()->OnTopOn, expected);
            QCOMPARE(note->windowFlags().testFlag(Qt::WindowStaysOnTopHint), expected);
            QVERIFY(note->isVisible());
        }
    }

    void menuOfThePicture_data()
    {
        const Rows<clsNoteProps, QString, bool> row; // record, properties, locked
        clsNoteProps record = NoteFixture().program.NoteTemplate;
        record.ToolBarOn = record.OnTopOn = record.PwdReadonlyOn = record.PwdOpenCloseOn = false;
        row("plain", record, u"Password Alarm Toolbar Scrolled On Top (Locked)"_s, false);
        clsNoteProps all = record;
        all.ToolBarOn = all.OnTopOn = all.FrmScrolledOn = all.AlarmOn = all.PwdOn = true;
        row("all", all, u"Password+ Alarm+ Toolbar+ Scrolled+ On Top+ Locked"_s, false);
        all.PwdOpenCloseOn = true;
        row("locked", all, u"(Password+) (Alarm+) (Toolbar+) Scrolled+ On Top+ Locked+"_s, true);
        record.PwdOn = record.PwdOpenCloseOn = true;
        row("locked, little on", record, u"(Password+) (Alarm) (Toolbar) Scrolled On Top Locked+"_s, true);
    }

    void menuOfThePicture()
    {
        const auto [record, properties, locked] = fetchRow<clsNoteProps, QString, bool>();
        frmNote *note = m_fixture->create(record);
        NoteFixture::openMenu(*note);
        const QString open =
            u"To NoteStack Print - Title - Properties[%1] - Actions[Settings Send E-mail - Delete] Help"_s;
        const QString shut = u"(To NoteStack) (Print) - (Title) - Properties[%1] - "
                             "Actions[(Settings) (Send) (E-mail) - (Delete)] (Help)"_s;
        QCOMPARE(NoteFixture::described(control<QMenu>(*note, "mnuPopupIco")), (locked ? shut : open).arg(properties));
    }

    void menuOfTheText()
    {
        for (const bool readOnly : {false, true}) {
            clsNoteProps record = m_fixture->program.NoteTemplate;
            record.PwdOn = record.PwdReadonlyOn = readOnly;
            frmNote *note = m_fixture->create(record);
            NoteFixture::openMenu(*note, false);
            QCOMPARE(NoteFixture::described(control<QMenu>(*note, "mnuPopup")),
                     readOnly ? u"To NoteStack Print - Copy (Paste)"_s : u"To NoteStack Print - Copy Paste"_s);
            QApplication::activePopupWidget()->close();
        }
    }

    void hugeTexts()
    {
        clsNoteProps record = m_fixture->program.NoteTemplate;
        record.Data = u"a line of usual length\r\n"_s.repeated(200000);
        record.TitleBarTitle = QString(200000, u'M');
        frmNote *note = m_fixture->create(record);
        QVERIFY(control<QLabel>(*note, "lblTitle").text().size() < 50 && !note->grab().isNull());
        note->ScrollForm();
        QVERIFY(note->windowTitle().size() <= 200);
        QVERIFY(m_fixture->stored().front().Data == record.Data);
    }

    void deletedBehindTheQuestion()
    {
        const QPointer<frmNote> note = m_fixture->create(u"text"_s);
        note->SaveThisNote();
        m_fixture->test.prompts.whileOpen = [&note] {
            note->ToTheNoteStack();
            NoteFixture::deleteUnloaded();
        };
        m_fixture->boxOf([&note] { press(*note, "imgMinimize"); });
        QTRY_VERIFY(note == nullptr);
        // It lives on where it went.
        QCOMPARE(m_fixture->stored().size(), size_t(1));
    }

private:
    std::optional<NoteFixture> m_fixture;
};

QTEST_MAIN(testNotes)
#include "testNotes.moc"
