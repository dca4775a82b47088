// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "transfer/noteReaders.h"
#include "transfer/plainTexts.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// What others' files become.
class testNoteReaders final : public QObject
{
    Q_OBJECT

private slots:
    void bytes_data();
    void bytes();
    void pages_data();
    void pages();
    void colours_data();
    void colours();
    void markdown_data();
    void markdown();
    void gnote_data();
    void gnote();
    void calendars();
    void pads();
    void everyTruncation();
};

void testNoteReaders::bytes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("UTF-8") << QByteArray("a\xc3\xa9\nb") << u"aé\r\nb"_s;
    QTest::newRow("with a mark") << QByteArray("\xef\xbb\xbf"
                                               "a")
                                 << u"a"_s;
    QTest::newRow("UTF-16") << QByteArray("\xff\xfe"
                                          "a\0\r\0\n\0b\0",
                                          10)
                            << u"a\r\nb"_s;
    QTest::newRow("Latin-1") << QByteArray("caf\xe9\rb") << u"café\r\nb"_s;
    QTest::newRow("a zero") << QByteArray("a\0b", 3) << u"ab"_s;
    QTest::newRow("nothing") << QByteArray() << QString();
}

void testNoteReaders::bytes()
{
    QFETCH(QByteArray, bytes);
    const QString text = plainTexts::decoded(bytes);
    QTEST(text, "text");
}

void testNoteReaders::pages_data()
{
    QTest::addColumn<QString>("html");
    QTest::addColumn<QString>("text");
    QTest::newRow("page") << u"<html><head><style>p { a }</style></head><body>\n<p>One  <b>two</b></p>\n<p>a &lt; b "
                             "&amp;amp; &#233;&#x20AC;</p></body></html>"_s
                          << u"One two\r\na < b &amp; é€"_s;
    QTest::newRow("breaks") << u"a<br>b<BR/>c<ul><li>d</li><li>e</li></ul>"_s << u"a\r\nb\r\ncd\r\ne"_s;
    QTest::newRow("script") << u"a<script>alert('<b>')</script>b<!-- c -->"_s << u"ab"_s;
    QTest::newRow("a name that goes on") << u"<HEAD>a</Head ><header>b</header><style"_s << u"b<style"_s;
    QTest::newRow("no entity") << u"a & b; &#xD800; &#0; &nothing; &#99999999;"_s
                               << u"a & b; &#xD800; &#0; &nothing; &#99999999;"_s;
    QTest::newRow("cut off") << u"a <b"_s << u"a <b"_s;
}

void testNoteReaders::pages()
{
    QFETCH(QString, html);
    const QString text = plainTexts::fromHtml(html);
    QTEST(text, "text");
}

void testNoteReaders::colours_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("colour"); // -1 for none
    QTest::newRow("hex") << u"#ff8001"_s << 0x0180FF;
    QTest::newRow("wide") << u"#ffff80800101"_s << 0x0180FF;
    QTest::newRow("parts") << u"rgb(255,128, 1)"_s << 0x0180FF;
    QTest::newRow("with opacity") << u"rgba(255,128,1,0.5)"_s << 0x0180FF;
    QTest::newRow("too much") << u"rgb(999,0,0)"_s << 0x0000FF;
    QTest::newRow("name") << u"red"_s << -1;
    QTest::newRow("nothing") << QString() << -1;
}

void testNoteReaders::colours()
{
    QFETCH(QString, text);
    const int colour = plainTexts::colour(text).value_or(-1);
    QTEST(colour, "colour");
}

void testNoteReaders::markdown_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    QTest::newRow("heading") << QByteArray("# A title #\n\nfirst  \nsecond\n") << u"A title"_s
                             << u"first\r\nsecond\r\n"_s;
    QTest::newRow("tasks") << QByteArray("- [ ] a\n  * [x] b\n- c") << u"file"_s << u"[ ] a\r\n  [x] b\r\n- c"_s;
    QTest::newRow("empty heading") << QByteArray("# #\na") << u"file"_s << u"# #\r\na"_s;
    QTest::newRow("heading further down") << QByteArray("a\n# b") << u"file"_s << u"a\r\n# b"_s;
    QTest::newRow("no heading") << QByteArray("#tag") << u"file"_s << u"#tag"_s;
}

void testNoteReaders::markdown()
{
    QFETCH(QByteArray, bytes);
    const CarriedNote note = noteReaders::ofMarkdown(u"file"_s, bytes);
    QTEST(note.title, "title");
    QTEST(note.text, "text");
}

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

} // namespace

void testNoteReaders::gnote_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("isNote");
    QByteArray good = GnoteFile;
    QTest::newRow("note") << good.replace("%1", "<tags><tag>work</tag></tags>") << true;
    QByteArray pattern = GnoteFile;
    QTest::newRow("template") << pattern.replace("%1", "<tags><tag>system:template</tag></tags>") << false;
    QTest::newRow("something else") << QByteArray("<html><title>a</title></html>") << false;
    QTest::newRow("broken") << QByteArray("<note><title>a</note>") << false;
    QByteArray bomb = "<!DOCTYPE note [<!ENTITY a \"aaaaaaaaaa\">";
    for (char c = 'b'; c < 'k'; ++c)
        bomb +=
            QByteArray("<!ENTITY ") + c + " \"" + QByteArray(QByteArray("&") + char(c - 1) + ";").repeated(10) + "\">";
    QTest::newRow("a bomb") << bomb + "]><note><title>&j;</title></note>" << false;
}

void testNoteReaders::gnote()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, isNote);
    const auto note = noteReaders::ofGnote(bytes);
    QCOMPARE(note.has_value(), isNote);
    if (!note)
        return;
    QCOMPARE(note->title, u"Trip & tour"_s);
    QCOMPARE(note->text, u"Pack warm\r\nthings:\r\nsocks\r\nof wool\r\nhat\r\nSee Map"_s);
    QCOMPARE(note->date.toUTC().toString(Qt::ISODate), u"2025-05-06T05:08:09Z"_s);
}

void testNoteReaders::calendars()
{
    const auto notes = noteReaders::ofCalendar(Calendar);
    QCOMPARE(notes.size(), size_t(3));
    QCOMPARE(notes[0], (CarriedNote{u"To do, 16/03/2006"_s, u"test memoé"_s,
                                    QDateTime(QDate(2006, 3, 16), QTime(22, 47, 44), Qt::UTC), 0x00FFFF, 0x010000}));
    QCOMPARE(notes[1].text, u"<html>\r\nis \\ ; plain"_s);
    QCOMPARE(notes[1].title, u"<html>"_s);
    QCOMPARE(notes[2].text, u"a\r\n\r\n\r\nb"_s);
    QVERIFY(noteReaders::ofCalendar(QByteArray(Calendar).replace("\n", "\r\n")) == notes);
}

void testNoteReaders::pads()
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
void testNoteReaders::everyTruncation()
{
    for (qsizetype keep = 0; keep < GnoteFile.size() - 8; ++keep)
        QVERIFY(!noteReaders::ofGnote(GnoteFile.first(keep)));
    for (qsizetype keep = 0; keep < Calendar.size(); ++keep)
        QVERIFY(noteReaders::ofCalendar(Calendar.first(keep)).size() <= 3);
}

QTEST_APPLESS_MAIN(testNoteReaders)
#include "testNoteReaders.moc"
