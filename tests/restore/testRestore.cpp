// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "controls/QuietLine.h"
#include "model/DataImage.h"
#include "model/DataSurvey.h"
#include "model/modStreams.h"
#include "notes/NoteFixture.h"
#include "restore/frmRestore.h"
#include "restore/keptNotes.h"
#include "restore/restoring.h"
#include "support/compareRow.h"

#include <QCheckBox>
#include <QDir>
#include <QListWidget>
#include <QPushButton>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace
{

using Notes = std::vector<clsNoteProps>;

clsNoteProps note(const QString &date, const QString &title, const QString &text)
{
    clsNoteProps record;
    record.DateCreated = date;
    record.TitleBarTitle = title;
    record.Data = text;
    return record;
}

clsNoteProps locked(clsNoteProps record, const QString &password)
{
    record.PwdOn = record.PwdOpenCloseOn = true;
    record.Pwd = password;
    return record;
}

/// A program with notes, and dated copies beside them.
struct Fixture : NoteFixture
{
    void addCopy(const QString &day, const Notes &notes)
    {
        DataImage image;
        for (const clsNoteProps &record : notes)
            image.keepForeign(modStreams::EncodeNoteRecord(record));
        addCopy(day, image.bytes());
    }
    void addCopy(const QString &day, const QByteArray &bytes)
    {
        QDir().mkpath(home.paths.BackupsFolder);
        TestHome::setContents(u"%1/quillets-%2-080000.dat"_s.arg(home.paths.BackupsFolder, day), bytes);
    }
    void open(const std::function<void(QDialog &)> &act)
    {
        answerDialog(frmRestore::Name.toString(), act);
        restoring::openRestore(program, nullptr);
        deleteUnloaded();
    }
    QStringList texts() const
    {
        QStringList all;
        for (const qint32 tag : program.forms.tags())
            all.append(program.forms.recordOf(tag)->Data);
        return all;
    }
};

/// The rows of the table, their columns parted by "|" but the last.
QStringList rows(const QWidget &dialog)
{
    const QAbstractItemModel &model = *control<QTreeView>(dialog, "trvNotes").model();
    QStringList all;
    for (int row = 0; row < model.rowCount(); ++row) {
        QStringList columns;
        for (int column = 0; column < 3; ++column)
            columns.append(model.index(row, column).data().toString());
        all.append(columns.join(u'|'));
    }
    return all;
}

void choose(const QWidget &dialog, int row)
{
    QAbstractItemModel &model = *control<QTreeView>(dialog, "trvNotes").model();
    model.setData(model.index(row, 0), Qt::Checked, Qt::CheckStateRole);
}

void restoreAll(QDialog &dialog)
{
    QVERIFY(!control<QPushButton>(dialog, "cmdOK").isEnabled());
    press(dialog, "cmdChooseAll");
    press(dialog, "cmdOK");
}

QString preview(const QWidget &dialog)
{
    return control<QPlainTextEdit>(dialog, "txtPreview").toPlainText();
}

} // namespace

class testRestore final : public QObject
{
    Q_OBJECT

private slots:
    /// A letter a note, in the order of the texts.
    void standings()
    {
        const auto row = [](const char *name, const Notes &kept, const Notes &present, const QByteArray &standings) {
            std::vector<PresentNote> now;
            for (const clsNoteProps &record : present)
                now.push_back({&record, false});
            auto found = keptNotes::compared(kept, now);
            const auto inOrder = [](const KeptNote &x, const KeptNote &y) { return x.standing < y.standing; };
            compareRow(name, std::is_sorted(found.begin(), found.end(), inOrder), true);
            std::sort(found.begin(), found.end(),
                      [](const KeptNote &x, const KeptNote &y) { return x.note.Data < y.note.Data; });
            QByteArray letters;
            for (const KeptNote &each : found)
                letters += "GCS"[static_cast<int>(each.standing)];
            compareRow(name, letters, standings);
        };
        const clsNoteProps a = note(u"1 May"_s, u"A"_s, u"a"_s);
        row("nothing there", {a}, {}, "G");
        row("the same", {a}, {a}, "S");
        row("brought back under a new date", {a}, {note(u"2 May"_s, u"A"_s, u"a"_s)}, "S");
        row("another text", {a}, {note(u"1 May"_s, u"A"_s, u"b"_s)}, "C");
        row("another title", {a}, {note(u"1 May"_s, u"B"_s, u"a"_s)}, "C");
        row("both", {a}, {note(u"1 May"_s, u"B"_s, u"b"_s)}, "C");
        row("only the title is like it", {a}, {note(u"2 May"_s, u"A"_s, u"b"_s)}, "G");
        row("one for two", {a, note(u"1 May"_s, u"A"_s, u"a2"_s)}, {a}, "SG");
        row("made in the same minute", {a, note(u"1 May"_s, u"B"_s, u"b"_s)},
            {note(u"1 May"_s, u"B"_s, u"b2"_s), note(u"1 May"_s, u"A"_s, u"a"_s)}, "SC");
    }

    /// The newest copy with something to bring back is shown, of it what differs, and what the words of the filter are
    /// in.
    void whatDiffersIsShown()
    {
        Fixture f;
        const clsNoteProps kept = note(u"1"_s, u"Kept"_s, u"same"_s);
        f.create(kept, NoteCreateMode::Load);
        f.create(note(u"2"_s, u"Plan"_s, u"new"_s), NoteCreateMode::Load);
        f.addCopy(u"2026-02-28"_s, {kept});
        f.addCopy(u"2026-02-27"_s,
                  {kept, note(u"2"_s, u"Plan"_s, u"\r\n old\r\nsecond"_s), note(u"3"_s, {}, u"Milk"_s)});
        f.open([](QDialog &dialog) {
            QListWidget &copies = control<QListWidget>(dialog, "lstCopies");
            QCOMPARE(copies.currentRow(), 1);
            QTRY_COMPARE(copies.item(0)->text().section(u'\n', 1), u"as today"_s);
            QCOMPARE(copies.item(1)->text().section(u'\n', 1), u"1 gone, 1 changed"_s);
            QCOMPARE(rows(dialog), QStringList({u"(no title)|Milk|gone"_s, u"Plan|old|changed"_s}));
            QCOMPARE(preview(dialog), u"Milk"_s);
            control<QLineEdit>(dialog, "txtFilter").setText(u"SECOND"_s);
            QCOMPARE(rows(dialog), QStringList({u"Plan|old|changed"_s}));
            control<QLineEdit>(dialog, "txtFilter").clear();
            control<QCheckBox>(dialog, "chkAll").setChecked(true);
            QCOMPARE(rows(dialog).last(), u"Kept|same|the same"_s);
            dialog.reject();
        });
        QCOMPARE(f.texts(), QStringList({u"same"_s, u"new"_s}));
    }

    /// What is there stays, also the file as it was; what rang long ago does not ring again; and all is on the disk.
    void comesBackAsNew()
    {
        Fixture f;
        clsNoteProps present = f.record(u"new"_s);
        present.DateCreated = u"1"_s;
        present.FrmLeft = present.FrmTop = 3000;
        f.create(present, NoteCreateMode::Load);
        clsNoteProps earlier = present;
        earlier.Data = u"old"_s;
        earlier.AlarmOn = earlier.NoteStackOn = true;
        modAlarm::setAlarmDate(earlier, QDate(2025, 1, 1));
        f.addCopy(u"2026-02-28"_s, {earlier});
        f.open(restoreAll);
        QCOMPARE(f.texts(), QStringList({u"new"_s, u"old"_s}));
        const clsNoteProps &back = *f.program.forms.recordOf(2);
        QVERIFY(f.at(2)->isVisible() && !back.AlarmOn && !back.NoteStackOn);
        QCOMPARE(back.DateCreated, u"1"_s);
        QVERIFY(f.at(2)->pos() != f.at(1)->pos());
        QCOMPARE(datedCopies::list(f.home.paths).size(), 2U);
        QCOMPARE(f.stored().size(), 2U);
    }

    void passwords_data()
    {
        const Rows<clsNoteProps, clsNoteProps, QString> row; // kept, present, password
        const clsNoteProps open = note(u"1"_s, u"Diary"_s, u"secret"_s);
        const clsNoteProps later = note(u"1"_s, u"Diary"_s, u"more"_s);
        row("locked in the copy", locked(open, u"then"_s), {}, u"then"_s);
        row("locked since", open, locked(later, u"now"_s), u"now"_s);
        row("locked then and now", locked(open, u"then"_s), locked(later, u"now"_s), u"then"_s);
    }

    /// Nothing of a locked note is told, neither in the table nor by the filter; it comes back locked, or its password
    /// is asked for.
    void passwords()
    {
        const auto [kept, present, password] = fetchRow<clsNoteProps, clsNoteProps, QString>();
        Fixture f;
        if (!present.DateCreated.isEmpty())
            f.create(present, NoteCreateMode::Load);
        f.addCopy(u"2026-02-28"_s, {kept});
        f.test.prompts.expect(Prompts::Answer::Ok);
        f.open([&](QDialog &dialog) {
            QVERIFY(rows(dialog).value(0).startsWith(u"Diary|(locked)"));
            control<QLineEdit>(dialog, "txtFilter").setText(u"secret"_s);
            QVERIFY(rows(dialog).isEmpty());
            control<QLineEdit>(dialog, "txtFilter").clear();
            NoteFixture::answerPassword(u"wrong"_s);
            press(dialog, "cmdUnlock");
            QCOMPARE(preview(dialog), QString());
            NoteFixture::answerPassword(password);
            press(dialog, "cmdUnlock");
            QCOMPARE(preview(dialog), u"secret"_s);
            dialog.reject();
        });
        QVERIFY(f.test.prompts.isDone());
        f.open([&](QDialog &dialog) {
            choose(dialog, 0);
            if (!kept.PwdOn)
                NoteFixture::answerPassword(password);
            press(dialog, "cmdOK");
        });
        frmNote *back = f.at(f.program.NoteCounter);
        QVERIFY(f.texts().contains(u"secret"_s) && back != nullptr);
        QCOMPARE(back->chosen()->locked, kept.PwdOn);
    }

    void theLimit()
    {
        Fixture f;
        f.program.NoteCounter = modCreateNote::MostNotes - 1;
        f.addCopy(u"2026-02-28"_s, {note(u"1"_s, u"A"_s, u"a"_s), note(u"2"_s, u"B"_s, u"b"_s)});
        QCOMPARE(f.boxOf([&f] { f.open(restoreAll); }).text,
                 u"You cannot have more than 100 Quillets.\nQuillet not created."_s);
        QCOMPARE(f.texts(), QStringList(u"a"_s));
        QCOMPARE(f.stored().size(), 1U);
    }

    void hostileCopies_data()
    {
        const Rows<QByteArray> row; // bytes
        for (const QString &name : QDir(QStringLiteral(TEST_DATA "/damaged")).entryList(QDir::Files))
            row(name, TestHome::contents(QStringLiteral(TEST_DATA "/damaged/") + name));
        row("nothing", {});
        row("noise", QByteArray(5000, '\xFF'));
    }

    /// What can be read is shown, and that something cannot is told.
    void hostileCopies()
    {
        const auto [bytes] = fetchRow<QByteArray>();
        Fixture f;
        f.addCopy(u"2026-02-28"_s, bytes);
        const DataSurvey survey = surveyDataFile(bytes, {}, 1000);
        f.open([&](QDialog &dialog) {
            QCOMPARE(rows(dialog).size(), static_cast<qsizetype>(survey.notes.size()));
            QCOMPARE(control<QLabel>(dialog, "lblStatus").text().startsWith(u"This copy is damaged."),
                     survey.isDamaged);
            dialog.reject();
        });
    }

    void offeredWhereThereAreCopies()
    {
        Fixture f;
        const QRect place(100, 100, 300, 200);
        const auto line = [&f] { return dynamic_cast<QuietLine *>(f.program.forms.find(formNames::QuietLine)); };
        f.open([](QDialog &dialog) {
            QVERIFY(control<QLabel>(dialog, "lblStatus").text().startsWith(u"There are no copies yet."));
            QVERIFY(!control<QPushButton>(dialog, "cmdChooseAll").isEnabled());
            dialog.reject();
        });
        restoring::offerRestore(f.program, place);
        QVERIFY(line() == nullptr);
        f.addCopy(u"2026-02-28"_s, {note(u"1"_s, u"A"_s, u"a"_s)});
        restoring::offerRestore(f.program, place);
        QVERIFY(line() != nullptr && line()->isVisible());
        answerDialog(frmRestore::Name.toString(), [](QDialog &dialog) { dialog.reject(); });
        press(*line(), "cmdAction");
        QVERIFY(line() == nullptr);
    }
};

QTEST_MAIN(testRestore)
#include "testRestore.moc"
