// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notestack/StackFixture.h"
#include "transfer/windows/noteExport.h"
#include "transfer/windows/noteImport.h"

#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QStandardPaths>

using namespace Qt::StringLiterals;
using Answer = Prompts::Answer;

/// Notes go out as files and come in.
class testTransferWindows final : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        failOnWarnings();
        QStandardPaths::setTestModeEnabled(true);
        m_fixture = std::make_unique<StackFixture>();
        m_folder = std::make_unique<QTemporaryDir>();
    }

    void cleanup()
    {
        QVERIFY(m_fixture->test.prompts.isDone());
        m_fixture.reset();
    }

    void chosenNotesGoOut()
    {
        frmNote *first = m_fixture->create(m_fixture->record(u"first"_s));
        m_fixture->add(m_fixture->record(u"second"_s));
        m_fixture->add(m_fixture->record(u"third"_s));
        QTest::keyClicks(&NoteFixture::edit(*first), u" typed"_s);
        answerDialog(u"frmExport"_s, [](QDialog &dialog) {
            auto &all = control<QCheckBox>(dialog, "chkAll");
            QCOMPARE(all.checkState(), Qt::Checked);
            control<QListWidget>(dialog, "lstNotes").item(1)->setCheckState(Qt::Unchecked);
            QCOMPARE(all.checkState(), Qt::PartiallyChecked);
            control<QComboBox>(dialog, "cmbFormat").setCurrentIndex(1);
            press(dialog, "OKButton");
        });
        m_fixture->test.choosers.files.push_back(folder());
        m_fixture->test.prompts.expect(Answer::Ok);
        noteExport::run(m_fixture->program, nullptr);
        QCOMPARE(m_fixture->test.prompts.last.text, u"Notes exported: 2."_s);
        QCOMPARE(files(), (QStringList{u"first.md"_s, u"third.md"_s}));
        QCOMPARE(TestHome::contents(m_folder->filePath(u"first.md"_s)), QByteArray("# first\n\nfirst typed"));
    }

    void protectedNotesAskForTheirPassword()
    {
        const auto give = [](const QString &typed) {
            answerDialog(u"frmEnterPwd"_s, [typed](QDialog &prompt) {
                control<QLineEdit>(prompt, "txtPwd").setText(typed);
                press(prompt, "OKButton");
            });
        };
        m_fixture->add(m_fixture->protectedRecord(u"locked"_s, false, true));
        m_fixture->add(m_fixture->protectedRecord(u"readonly"_s, true, false));
        m_fixture->test.choosers.files.push_back(folder());
        m_fixture->test.prompts.expect(Answer::Ok);
        answerDialog(u"frmExport"_s, [&give](QDialog &dialog) {
            // The prompts open one behind the other.
            give(u"right"_s);
            QTimer::singleShot(0, qApp, [&give] { give(u"wrong"_s); });
            press(dialog, "OKButton");
        });
        noteExport::run(m_fixture->program, nullptr);
        QCOMPARE(m_fixture->test.prompts.last.text, u"Notes exported: 1.\nLeft out without their password: 1."_s);
        QCOMPARE(files(), QStringList{u"locked.txt"_s});
    }

    /// The program ends, and its windows go, while the first password is asked for.
    void nothingMoreIsAskedAtTheEnd()
    {
        m_fixture->add(m_fixture->protectedRecord(u"first"_s, false, true));
        m_fixture->add(m_fixture->protectedRecord(u"second"_s, false, true));
        auto owner = std::make_unique<QWidget>();
        owner->show();
        int asked = 0;
        QTimer prompts;
        connect(&prompts, &QTimer::timeout, this, [&] {
            auto *prompt = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            if (prompt == nullptr || prompt->objectName() != u"frmEnterPwd")
                return;
            ++asked;
            m_fixture->program.Exiting = true;
            owner ? owner.reset() : prompt->reject();
        });
        prompts.start(10);
        answerDialog(u"frmExport"_s, [](QDialog &dialog) { press(dialog, "OKButton"); });
        noteExport::run(m_fixture->program, owner.get());
        QCOMPARE(asked, 1);
        QVERIFY(files().isEmpty());
        m_fixture->program.Exiting = false;
    }

    void nothingIsReplacedUnasked()
    {
        frmNote *note = m_fixture->create(m_fixture->record(u"first"_s));
        const auto answer = [this](Answer asked) {
            m_fixture->test.choosers.files.push_back(folder());
            m_fixture->test.prompts.expect(asked);
        };
        answer(Answer::Ok);
        exportAll();
        answer(Answer::Ok);
        exportAll();
        QCOMPARE(m_fixture->test.prompts.last.text, u"All of these notes are in the folder already."_s);
        note->GetThisNoteProps()->Data = u"changed"_s;
        m_fixture->create(m_fixture->record(u"second"_s));
        answer(Answer::Cancel);
        exportAll();
        QCOMPARE(files(), QStringList{u"first.txt"_s});
        QCOMPARE(TestHome::contents(m_folder->filePath(u"first.txt"_s)), QByteArray("first"));
        answer(Answer::Ok);
        m_fixture->test.prompts.expect(Answer::Ok);
        exportAll();
        QCOMPARE(m_fixture->test.prompts.last.text, u"Notes exported: 2."_s);
        QCOMPARE(TestHome::contents(m_folder->filePath(u"first.txt"_s)), QByteArray("changed"));
    }

    void filesComeIn()
    {
        const QString path = put(u"A list.txt"_s, "one\ntwo");
        importFiles({path, put(u"b.md"_s, "# Heading\n\ntext")}, false);
        auto notes = m_fixture->stored();
        QCOMPARE(notes.size(), size_t(2));
        std::sort(notes.begin(), notes.end(),
                  [](const auto &a, const auto &b) { return a.TitleBarTitle < b.TitleBarTitle; });
        QCOMPARE(notes[0].TitleBarTitle, u"A list"_s);
        QCOMPARE(notes[0].Data, u"one\r\ntwo"_s);
        QCOMPARE(notes[0].DateCreated, QLocale().toString(QFileInfo(path).lastModified(), QLocale::ShortFormat));
        QCOMPARE(notes[1].TitleBarTitle, u"Heading"_s);
        QVERIFY(m_fixture->at(1)->isVisible() && m_fixture->at(2)->isVisible());
    }

    void otherProgramsAreLookedFor()
    {
        const QString pads = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u"/xpad"_s;
        QVERIFY(QDir().mkpath(pads));
        TestHome::setContents(pads + u"/content-1"_s, "a pad");
        TestHome::setContents(pads + u"/info-1"_s, "follow_color 0\nback rgb(255,128,1)\ncontent content-1\n");
        answerDialog(u"frmImport"_s, [](QDialog &dialog) {
            QCOMPARE(control<QListWidget>(dialog, "lstSources").item(0)->text(), u"xpad: 1 note"_s);
            press(dialog, "OKButton");
        });
        noteImport::run(m_fixture->program, nullptr);
        QVERIFY(QDir(pads).removeRecursively());
        QCOMPARE(m_fixture->stored().front().BackColor, 0x0180FF);
        QCOMPARE(m_fixture->stack.tags().size(), size_t(1));
    }

    void theLimitIsToldBefore()
    {
        m_fixture->program.NoteCounter = modCreateNote::MostNotes - 1;
        const QStringList paths{put(u"1.txt"_s, "a"), put(u"2.txt"_s, "b")};
        m_fixture->test.prompts.expect(Answer::Cancel);
        importFiles(paths);
        QCOMPARE(m_fixture->test.prompts.last.text, u"There is room for 1 of these 2 notes.\nImport the first 1?"_s);
        QVERIFY(m_fixture->program.forms.tags().empty());
        m_fixture->test.prompts.expect(Answer::Ok);
        importFiles(paths);
        QCOMPARE(m_fixture->program.forms.tags().size(), size_t(1));
        m_fixture->test.prompts.expect(Answer::Ok);
        importFiles(paths);
        QCOMPARE(m_fixture->test.prompts.last.text, u"You cannot have more than 100 Quillets.\nQuillet not created."_s);
    }

    void whatCannotBeRead()
    {
        m_fixture->test.prompts.expect(Answer::Ok);
        importFiles({put(u"good.txt"_s, "a"), put(u"bad.note"_s, "b")});
        QCOMPARE(m_fixture->test.prompts.last.text, u"These files hold no notes that can be read:\nbad.note"_s);
        QCOMPARE(m_fixture->program.forms.tags().size(), size_t(1));
        // Nothing was chosen.
        m_fixture->test.prompts.expect(Answer::Ok);
        answerDialog(u"frmImport"_s, [](QDialog &dialog) {
            press(dialog, "OKButton");
            dialog.reject();
        });
        noteImport::run(m_fixture->program, nullptr);
        QCOMPARE(m_fixture->test.prompts.last.text, u"Please choose something to import."_s);
    }

private:
    QString folder() const { return m_folder->path(); }
    QStringList files() const { return QDir(folder()).entryList(QDir::Files, QDir::Name); }
    QString put(const QString &name, const QByteArray &bytes) const
    {
        TestHome::setContents(m_folder->filePath(name), bytes);
        return m_folder->filePath(name);
    }
    void exportAll()
    {
        answerDialog(u"frmExport"_s, [](QDialog &dialog) { press(dialog, "OKButton"); });
        noteExport::run(m_fixture->program, nullptr);
    }
    void importFiles(const QStringList &paths, bool intoStack = true)
    {
        answerDialog(u"frmImport"_s, [intoStack](QDialog &dialog) {
            control<QCheckBox>(dialog, "chkNoteStack").setChecked(intoStack);
            press(dialog, "OKButton");
        });
        noteImport::run(m_fixture->program, nullptr, paths);
    }

    std::unique_ptr<StackFixture> m_fixture;
    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_MAIN(testTransferWindows)
#include "testTransferWindows.moc"
