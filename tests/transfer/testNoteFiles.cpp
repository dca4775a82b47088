// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "support/TestHome.h"
#include "support/compareRow.h"
#include "transfer/noteFiles.h"
#include "transfer/noteReaders.h"
#include "transfer/noteSources.h"
#include "transfer/plainTexts.h"

#include <QElapsedTimer>

using namespace Qt::StringLiterals;
using noteFiles::Format;

namespace
{

/// As Gnote writes it, with a list in the middle.
const QByteArray GnoteFile = R"(<?xml version="1.0"?>
<note version="0.3" xmlns:link="http://beatniksoftware.com/tomboy/link" xmlns:size="http://beatniksoftware.com/tomboy/size" xmlns="http://beatniksoftware.com/tomboy"><title>Trip &amp; tour</title><text xml:space="preserve"><note-content version="0.1" xmlns:link="http://beatniksoftware.com/tomboy/link" xmlns:size="http://beatniksoftware.com/tomboy/size">Trip &amp; tour

Pack <bold>warm</bold>&#x2028;things:
<list><list-item dir="ltr">socks
<list><list-item dir="ltr">of <size:large>wool</size:large>
</list-item></list></list-item><list-item dir="ltr">hat</list-item></list>
See <link:internal>Map</link:internal></note-content>
</text><last-change-date>2025-05-06T05:09:10.208019Z</last-change-date><last-metadata-change-date>2025-05-06T05:09:10.208019Z</last-metadata-change-date><create-date>2025-05-06T05:08:09.208019Z</create-date><cursor-position>0</cursor-position><selection-bound-position>0</selection-bound-position><width>0</width><height>0</height>%1</note>
)";

/// As written by xpad 5.8.
const QByteArray XpadInfo = "width 200\nheight 200\nx 10\ny 20\nfollow_font 1\nfollow_color 0\nsticky 0\nhidden 0\n"
                            "back rgb(255,238,153)\ntext rgb(0,0,1)\nfontname Sans 9\ncontent content-6MKUE3\n";

/// As written by KNotes of KDE 3 and of KDE 4, the first with an alarm; lines are broken anywhere.
const QByteArray Calendar =
    "BEGIN:VCALENDAR\nPRODID:-//K Desktop Environment//NONSGML libkcal 4.3//EN\nVERSION:2.0\nBEGIN:VJOURNAL\n"
    "DTSTAMP:20060316T224750Z\nORGANIZER:MAILTO:\nX-KDE-KNotes-BgColor:#ffff00\nX-KDE-KNotes-FgColor:#000001\n"
    "X-KDE-KNotes-RichText:true\nCREATED:20060316T224744Z\nUID:libkcal-992190875.155\nSEQUENCE:0\n"
    "LAST-MODIFIED:20060316T224750Z\nDESCRIPTION:<html><head><meta name=\"qrichtext\" content=\"1\"\n />"
    "</head><body style=\"font-size:8pt\\;font-family:DejaVu Sans\">\\n<p>test\n  memo\xc3\n "
    "\xa9</p>\\n</body></html>\\n\n"
    "SUMMARY:To do\\, 16/03/2006\nCLASS:PUBLIC\nPRIORITY:5\nBEGIN:VALARM\nACTION:DISPLAY\nDESCRIPTION:the alarm's\n"
    "END:VALARM\nEND:VJOURNAL\nSUMMARY:outside\nBEGIN:VTODO\nEND:VTODO\nBEGIN:VJOURNAL\nDTSTAMP:20131030T194044Z\n"
    "X-KDE-KNotes-RichText:false\nDESCRIPTION;ALTREP=\"a:b\":<html>\\nis \\\\ \\; plain\nEND:VJOURNAL\n"
    "BEGIN:VJOURNAL\nDESCRIPTION:<!DOCTYPE HTML><html><p>a</p><p></p><p><br /></p><p>b<br /></p></html>\n"
    "END:VJOURNAL\nEND:VCALENDAR\n\n";

void put(const QString &path, const QByteArray &bytes)
{
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    TestHome::setContents(path, bytes);
}

} // namespace

/// Notes as files, what others' files become, and where they are looked for.
class testNoteFiles final : public QObject
{
    Q_OBJECT

private slots:
    void names()
    {
        const auto row = [](const char *name, const QString &title, const QString &stem) {
            compareRow(name, noteFiles::of({{title, u""_s}}, Format::Text).front().name, stem + u".txt"_s);
        };
        row("plain", u"Shopping"_s, u"Shopping"_s);
        row("other letters", u"Café 東京"_s, u"Café 東京"_s);
        row("signs", u"a/b\\c:d*e?f\"g<h>i|j"_s, u"a-b-c-d-e-f-g-h-i-j"_s);
        row("out of the folder", u"../../etc/passwd"_s, u"-..-etc-passwd"_s);
        row("line ends", u"a\r\nb\tc"_s, u"a--b-c"_s);
        row("nothing", u" . "_s, u"note"_s);
        row("a device", u"con"_s, u"note con"_s);
        row("a device with a suffix", u"LPT1.txt"_s, u"note LPT1.txt"_s);
        row("hidden", u".profile"_s, u"profile"_s);
        row("hidden behind a blank", u".. .profile"_s, u"profile"_s);
        row("long", u"x"_s.repeated(500), u"x"_s.repeated(60));
        row("half a character", u"x"_s.repeated(59) + u"\U0001F600"_s, u"x"_s.repeated(59));
    }

    void sameTitles()
    {
        QStringList names;
        for (const auto &file : noteFiles::of({{u"a"_s, u""_s}, {u"A"_s, u""_s}, {u"a"_s, u""_s}}, Format::Markdown))
            names.append(file.name);
        QCOMPARE(names, (QStringList{u"a.md"_s, u"A (2).md"_s, u"a (3).md"_s}));
    }

    void markdownComesBack()
    {
        const auto row = [](const char *name, const QString &text) {
            const auto files = noteFiles::of({{u"A title"_s, text}}, Format::Markdown);
            compareRow(name, noteReaders::ofMarkdown(u"x"_s, files.front().bytes), {u"A title"_s, text});
        };
        row("lines", u"a\r\nb\r\n\r\nc"_s);
        row("tasks", u"[ ] a\r\n  [x] b\r\nc"_s);
        row("line end at the end", u"a\r\n"_s);
        row("nothing", {});
    }

    void againOverTheSameFolder()
    {
        const QTemporaryDir folder;
        const QDateTime date(QDate(2024, 2, 3), QTime(4, 5));
        std::vector<CarriedNote> notes{{u"one"_s, u"a\r\nb"_s, date}, {u"two"_s, u""_s}};
        const auto first = noteFiles::plan(folder.path(), noteFiles::of(notes, Format::Text));
        QCOMPARE(first.fresh.size(), size_t(2));
        QVERIFY(noteFiles::write(folder.path(), first.fresh));
        QCOMPARE(TestHome::contents(folder.filePath(u"one.txt"_s)), QByteArray("a\nb"));
        QCOMPARE(QFileInfo(folder.filePath(u"one.txt"_s)).lastModified(), date);
        QCOMPARE(noteFiles::plan(folder.path(), noteFiles::of(notes, Format::Text)).same, 2);
        notes[0].text = u"longer than before"_s;
        notes.push_back({u"three"_s, u"c"_s});
        const auto third = noteFiles::plan(folder.path(), noteFiles::of(notes, Format::Text));
        QCOMPARE(third.same, 1);
        QCOMPARE(third.different.front().name, u"one.txt"_s);
        QCOMPARE(third.fresh.front().name, u"three.txt"_s);
    }

    void failuresAreTold()
    {
        const QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkdir(u"one.txt"_s));
        const auto plan = noteFiles::plan(folder.path(), noteFiles::of({{u"one"_s, u"a"_s}}, Format::Text));
        QCOMPARE(plan.different.size(), size_t(1));
        const auto written = noteFiles::write(folder.path(), plan.different);
        QVERIFY(!written && !written.error().isEmpty());
    }

    void bytes()
    {
        const auto row = [](const char *name, const QByteArray &bytes, const QString &text) {
            compareRow(name, plainTexts::decoded(bytes), text);
        };
        row("UTF-8", "a\xc3\xa9\nb", u"aé\r\nb"_s);
        row("with a mark", QByteArray("\xef\xbb\xbf") + "a", u"a"_s);
        row("UTF-16", QByteArray("\xff\xfe") + QByteArray("a\0\r\0\n\0b\0", 8), u"a\r\nb"_s);
        row("Latin-1", "caf\xe9\rb", u"café\r\nb"_s);
        row("a zero", QByteArray("a\0b", 3), u"ab"_s);
        row("nothing", {}, {});
    }

    void pages()
    {
        const auto row = [](const char *name, const QString &html, const QString &text) {
            compareRow(name, plainTexts::fromHtml(html), text);
        };
        row("page",
            u"<html><head><style>p { a }</style></head><body>\n<p>One  <b>two</b></p>\n<p>a &lt; b "
            "&amp;amp; &#233;&#x20AC;</p></body></html>"_s,
            u"One two\r\na < b &amp; é€"_s);
        row("breaks", u"a<br>b<BR/>c<ul><li>d</li><li>e</li></ul>"_s, u"a\r\nb\r\ncd\r\ne"_s);
        row("script", u"a<script>alert('<b>')</script>b<!-- c -->"_s, u"ab"_s);
        row("a name that goes on", u"<HEAD>a</Head ><header>b</header><style"_s, u"b<style"_s);
        row("no entity", u"a & b; &#xD800; &#0; &nothing; &#99999999;"_s,
            u"a & b; &#xD800; &#0; &nothing; &#99999999;"_s);
        row("cut off", u"a <b"_s, u"a <b"_s);
    }

    void colours()
    {
        const auto row = [](const char *name, const QString &text, std::optional<qint32> colour) {
            compareRow(name, plainTexts::colour(text), colour);
        };
        row("hex", u"#ff8001"_s, 0x0180FF);
        row("wide", u"#ffff80800101"_s, 0x0180FF);
        row("parts", u"rgb(255,128, 1)"_s, 0x0180FF);
        row("with opacity", u"rgba(255,128,1,0.5)"_s, 0x0180FF);
        row("too much", u"rgb(999,0,0)"_s, 0x0000FF);
        row("name", u"red"_s, {});
        row("nothing", {}, {});
    }

    void markdown()
    {
        const auto row = [](const char *name, const QByteArray &bytes, const CarriedNote &note) {
            compareRow(name, noteReaders::ofMarkdown(u"file"_s, bytes), note);
        };
        row("heading", "# A title #\n\nfirst  \nsecond\n", {u"A title"_s, u"first\r\nsecond\r\n"_s});
        row("tasks", "- [ ] a\n  * [x] b\n- c", {u"file"_s, u"[ ] a\r\n  [x] b\r\n- c"_s});
        row("empty heading", "# #\na", {u"file"_s, u"# #\r\na"_s});
        row("heading further down", "a\n# b", {u"file"_s, u"a\r\n# b"_s});
        row("no heading", "#tag", {u"file"_s, u"#tag"_s});
    }

    void gnote()
    {
        const QByteArray tag("<tags><tag>work</tag></tags>");
        const auto note = noteReaders::ofGnote(QByteArray(GnoteFile).replace("%1", tag));
        QVERIFY(note);
        QCOMPARE(note->title, u"Trip & tour"_s);
        QCOMPARE(note->text, u"Pack warm\r\nthings:\r\nsocks\r\nof wool\r\nhat\r\nSee Map"_s);
        QCOMPARE(note->date.toUTC().toString(Qt::ISODate), u"2025-05-06T05:08:09Z"_s);
        const auto isNote = [](const QByteArray &bytes) { return noteReaders::ofGnote(bytes).has_value(); };
        const QByteArray ofTemplates("<tags><tag>system:template</tag></tags>");
        compareRow("template", isNote(QByteArray(GnoteFile).replace("%1", ofTemplates)), false);
        compareRow("something else", isNote("<html><title>a</title></html>"), false);
        compareRow("broken", isNote("<note><title>a</note>"), false);
        QByteArray bomb = "<!DOCTYPE note [<!ENTITY a \"aaaaaaaaaa\">";
        for (const char *entity = "abcdefghij"; entity[1] != '\0'; ++entity)
            bomb += "<!ENTITY " + QByteArray(entity + 1, 1) + " \"" + ('&' + QByteArray(entity, 1) + ';').repeated(10) +
                    "\">";
        compareRow("a bomb", isNote(bomb + "]><note><title>&j;</title></note>"), false);
    }

    void calendars()
    {
        const auto notes = noteReaders::ofCalendar(Calendar);
        QCOMPARE(notes.size(), size_t(3));
        QCOMPARE(notes[0],
                 (CarriedNote{u"To do, 16/03/2006"_s, u"test memoé"_s,
                              QDateTime(QDate(2006, 3, 16), QTime(22, 47, 44), Qt::UTC), 0x00FFFF, 0x010000}));
        QCOMPARE(notes[1].text, u"<html>\r\nis \\ ; plain"_s);
        QCOMPARE(notes[1].title, u"<html>"_s);
        QCOMPARE(notes[2].text, u"a\r\n\r\n\r\nb"_s);
        QVERIFY(noteReaders::ofCalendar(QByteArray(Calendar).replace("\n", "\r\n")) == notes);
    }

    void pads()
    {
        QCOMPARE(noteReaders::xpadContent(XpadInfo), u"content-6MKUE3"_s);
        QCOMPARE(noteReaders::xpadContent("content /home/ann/.xpad/content-1\n"), u"content-1"_s);
        const QByteArray content = "\n  first \xee\x80\x80"
                                   "bold\xee\x80\x80line\xee\x80\x80/bold\xee\x80\x80 \nsecond";
        const CarriedNote note = noteReaders::ofXpad(content, XpadInfo, {});
        QCOMPARE(note.title, u"first line"_s);
        QCOMPARE(note.text, u"\r\n  first line \r\nsecond"_s);
        QCOMPARE(note.backColour, 0x99EEFF);
        QCOMPARE(note.textColour, 0x010000);
        // Like most pads, and as xpad 4 wrote it.
        const QByteArray style = "height 200\nback_red 65535\nback_green 32896\nback_blue 257\ntext NULL\n";
        const CarriedNote common = noteReaders::ofXpad("a", QByteArray(XpadInfo).replace("color 0", "color 1"), style);
        QCOMPARE(common.backColour, 0x0180FF);
        QCOMPARE(common.textColour, std::nullopt);
        QCOMPARE(noteReaders::ofXpad("a", "follow_color 0\nback_red 1\nback_green no", {}).backColour, std::nullopt);
    }

    /// None of them ends the program, and what is no note gives none.
    void everyTruncation()
    {
        for (qsizetype keep = 0; keep < GnoteFile.size() - 8; ++keep)
            QVERIFY(!noteReaders::ofGnote(GnoteFile.first(keep)));
        for (qsizetype keep = 0; keep < Calendar.size(); ++keep)
            QVERIFY(noteReaders::ofCalendar(Calendar.first(keep)).size() <= 3);
    }

    void foundInTheirPlaces()
    {
        const QTemporaryDir home;
        const noteSources::Folders folders{home.path(), home.path(), home.path()};
        QVERIFY(noteSources::found(folders).empty());
        put(home.filePath(u"gnote/a.note"_s), "<note><title>a</title></note>");
        put(home.filePath(u"gnote/b.note"_s), "no note");
        put(home.filePath(u"xpad/content-1"_s), "a pad");
        put(home.filePath(u"xpad/content-2"_s), " \n");
        put(home.filePath(u"xpad/info-2"_s), "follow_color 0\nback rgb(255,238,153)\ncontent content-1\n");
        put(home.filePath(u".kde/share/apps/knotes/notes.ics"_s),
            "BEGIN:VJOURNAL\nSUMMARY:a\nEND:VJOURNAL\nBEGIN:VJOURNAL\nSUMMARY:b\nEND:VJOURNAL\n");
        QVERIFY(QFile::link(home.filePath(u".kde"_s), home.filePath(u".kde4"_s)));
        const auto sources = noteSources::found(folders);
        QStringList all;
        for (const auto &source : sources)
            all.append(u"%1 %2"_s.arg(source.program).arg(source.notes.size()));
        QCOMPARE(all, (QStringList{u"xpad 1"_s, u"Gnote 1"_s, u"KNotes 2"_s}));
        QCOMPARE(sources[0].notes[0].backColour, 0x99EEFF);
        QVERIFY(sources[0].notes[0].date.isValid());
    }

    void chosenFiles()
    {
        const QTemporaryDir home;
        put(home.filePath(u"Some words.v2.TXT"_s), "text");
        put(home.filePath(u"b.md"_s), "# Heading\n\ntext");
        put(home.filePath(u"c.png"_s), "text");
        put(home.filePath(u"d.note"_s), "no note");
        QStringList paths;
        for (const QString &name : {u"Some words.v2.TXT"_s, u"b.md"_s, u"c.png"_s, u"d.note"_s, u"missing.txt"_s})
            paths.append(home.filePath(name));
        const auto read = noteSources::ofFiles(paths);
        QCOMPARE(read.notes.size(), size_t(2));
        QCOMPARE(read.notes[0].title, u"Some words.v2"_s);
        QCOMPARE(read.notes[1].title, u"Heading"_s);
        QCOMPARE(read.refused, paths.mid(2));
    }

    void nothingKeepsBusy()
    {
        const auto row = [](const char *name, const QString &file, const QByteArray &bytes) {
            const QTemporaryDir home;
            put(home.filePath(file), bytes);
            QElapsedTimer timer;
            timer.start();
            const auto read = noteSources::ofFiles({home.filePath(file)});
            compareRow(name, qsizetype(read.notes.size()) + read.refused.size(), 1);
            QVERIFY2(timer.elapsed() < 5000, name);
        };
        constexpr qsizetype Many = 300'000;
        for (const char *mark : {"<", "<!--", "<head ", "<style>", "&", "<br ", "</p "})
            row(mark, u"a.ics"_s, "BEGIN:VJOURNAL\nDESCRIPTION:<html>" + QByteArray(mark).repeated(Many));
        row("blanks", u"a.md"_s, QByteArray(Many, ' ') + "a\n");
        row("heading", u"a.md"_s, "# a" + QByteArray("# ").repeated(Many) + "a\n");
        const QByteArray gnote = "<note><title>a</title><text><note-content>a";
        row("empty lines", u"a.note"_s, gnote + QByteArray(Many, '\n') + "</note-content></text></note>");
        row("depth", u"a.note"_s, "<note><title>" + QByteArray("<a>").repeated(Many));
    }
};

QTEST_APPLESS_MAIN(testNoteFiles)
#include "testNoteFiles.moc"
