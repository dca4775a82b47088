// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/clsprogramoptions.h"
#include "net/bookRules.h"
#include "net/modEmail.h"
#include "net/modSend.h"
#include "net/recentTargets.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

using Targets = QList<SendTarget>;
using Recipients = QList<MailRecipient>;

class testBooks final : public QObject
{
    Q_OBJECT

private slots:
    void readsFiles_data();
    void readsFiles();
    void everyTruncation();
    void writesFiles();
    void unchangedBooks_data();
    void unchangedBooks();
    void largeFile();
    void targets_data();
    void targets();
    void recipients_data();
    void recipients();
    void hosts_data();
    void hosts();
    void growingAliases();
    void mailAliases();
    void editorLines();
    void names_data();
    void names();
    void missingOptions();
    void recentTargets();
};

void testBooks::readsFiles_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QList<BookLine>>("lines");
    const QList<BookLine> two{{u"bob"_s, u"a.b, c.d"_s}, {u"eve"_s, u"e.f"_s}};
    QTest::newRow("as written") << QByteArray("alias bob a.b, c.d\r\nalias eve e.f\r\n") << two;
    QTest::newRow("CR") << QByteArray("alias bob a.b, c.d\ralias eve e.f\r") << two;
    QTest::newRow("LF, no end") << QByteArray("alias bob a.b, c.d\nalias eve e.f") << two;
    QTest::newRow("tabs and blanks") << QByteArray("alias\tbob\ta.b, c.d \nalias \t eve   e.f\t\n") << two;
    QTest::newRow("comments") << QByteArray("# alias x y\n\nalias bob a.b, c.d\n alias x y\nAlias x y\naliases of x\n"
                                            "alias\nalias \nalias x\nalias eve e.f\n")
                              << two;
    QTest::newRow("byte 0") << QByteArray("alias bob a.b, c.d\nalias eve e.f\0\nalias x y", 43) << two;
    QTest::newRow("8-bit") << QByteArray("alias Andr\xE9 \xC4\xA0.b")
                           << QList<BookLine>{{u"Andr\u00E9"_s, u"\u00C4\u00A0.b"_s}};
    QTest::newRow("marked UTF-8") << QByteArray("\xEF\xBB\xBF"
                                                "alias \xC5\x81uk a.b")
                                  << QList<BookLine>{{u"\u0141uk"_s, u"a.b"_s}};
    for (const QByteArray &nothing : {QByteArray(), QByteArray("a"), QByteArray("\0alias bob a.b", 14)})
        QTest::addRow("nothing in %d bytes", int(nothing.size())) << nothing << QList<BookLine>();
}

void testBooks::readsFiles()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QList<BookLine>, lines);
    QCOMPARE(bookFile::parse(bytes), lines);
}

void testBooks::everyTruncation()
{
    const QByteArray whole = "alias bob a.b@1500 (c), \"x\" <d@e>\r\n\nalias eve e.f\r";
    for (qsizetype keep = 0; keep < whole.size(); ++keep) {
        const QList<BookLine> lines = bookFile::parse(whole.first(keep));
        QVERIFY2(lines.size() <= 2 && bookFile::parse(bookFile::build(lines)) == lines, whole.first(keep).constData());
        modSend::entriesOf(lines);
        modEmail::entriesOf(lines);
    }
}

void testBooks::writesFiles()
{
    QCOMPARE(bookFile::build({{u"bob"_s, u"a.b, c.d"_s}, {u"none"_s, u"  "_s}, {u"\u00E9"_s, u"\u00FF"_s}}),
             QByteArray("alias bob a.b, c.d\r\nalias \xE9 \xFF\r\n"));
    // What would make a second line or another alias of it.
    QCOMPARE(bookFile::parse(bookFile::build({{u"a b\nc"_s, u"x.y\r\nalias z z.z"_s}})),
             (QList<BookLine>{{u"a_b_c"_s, u"x.y  alias z z.z"_s}}));
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"host.txt"_s);
    QVERIFY(bookFile::load(path).isEmpty());
    const QList<BookLine> lines{{u"\u0141uk"_s, u"a.b"_s}};
    QVERIFY(bookFile::save(path, lines).ok());
    QCOMPARE(bookFile::load(path), lines);
    QVERIFY(!bookFile::save(folder.filePath(u"none/host.txt"_s), lines).ok());
    QVERIFY(bookFile::load(folder.path()).isEmpty());
}

void testBooks::unchangedBooks_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("hosts") << QByteArray(
        "alias pc a.b, c.d@1500, e.f (home), g.h@99 (caf\xE9)\r\nalias all pc, x.y\r\n");
    QTest::newRow("wide") << QByteArray("\xEF\xBB\xBF"
                                        "alias \xC5\x81uk a.b (\xE2\x82\xAC)\r\n");
}

/// Through the editor and back, as a person who changes nothing sends them.
void testBooks::unchangedBooks()
{
    QFETCH(QByteArray, bytes);
    QList<BookLine> lines;
    for (const BookAlias &alias : bookRules::aliasesOf(modSend::entriesOf(bookFile::parse(bytes)), modSend::editorLine))
        lines.append({alias.name, alias.lines.trimmed().replace(u"\r\n"_s, u", "_s)});
    QCOMPARE(bookFile::build(lines), bytes);
}

void testBooks::largeFile()
{
    QByteArray bytes;
    while (bytes.size() < 5'000'000)
        bytes += "alias a" + QByteArray::number(bytes.size()) + " x.y, z.z@1500 (comment)\n";
    const QList<BookLine> lines = bookFile::parse(bytes + QByteArray(5'000'000, 'x'));
    const QList<SendBookEntry> entries = modSend::entriesOf(lines);
    QCOMPARE(entries.size(), lines.size() * 2);
    QCOMPARE(bookRules::aliasesOf(entries, modSend::editorLine).size(), lines.size());
    QCOMPARE(modSend::resolveTargets(lines.last().alias, entries).value().size(), 2);
}

void testBooks::targets_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Targets>("targets");
    const Targets full{{u"a.b"_s, u"c d"_s, 1500}};
    for (const QString &form : {u"a.b@1500 (c d)"_s, u"(c d) a.b@1500"_s, u" a.b @ 1500 ( c d"_s, u"a.b(c d)@1500"_s})
        QTest::addRow("%s", qPrintable(form)) << form << full;
    QTest::newRow("several") << u" a.b,,pc , , (x),"_s << Targets{{u"a.b"_s, {}, 0}, {u"pc"_s, {}, 0}, {{}, u"x"_s, 0}};
    for (const QString &port : {u"x"_s, u""_s, u"1e3"_s, u"15 00"_s, u"99999999999"_s, u"1@2"_s})
        QTest::addRow("port %s", qPrintable(port)) << u"a.b@"_s + port << Targets{{u"a.b"_s, {}, 0}};
    QTest::newRow("port out of range") << u"a.b@70000, a.b@-1"_s << Targets{{u"a.b"_s, {}, 70000}, {u"a.b"_s, {}, -1}};
    QTest::newRow("a second comment") << u"a.b (c) (d)"_s << Targets{{u"a.b  (d)"_s, u"c"_s, 0}};
    QTest::newRow("nothing") << u" , "_s << Targets();
}

void testBooks::targets()
{
    QFETCH(QString, text);
    QFETCH(Targets, targets);
    QCOMPARE(modSend::parseTargets(text), targets);
}

void testBooks::recipients_data()
{
    QTest::addColumn<QString>("item");
    QTest::addColumn<MailRecipient>("recipient");
    const MailRecipient ann{u"ann@b.c"_s, u"Ann Lee"_s};
    for (const QString &form : {u"Ann Lee <ann@b.c>"_s, u"ann@b.c (Ann Lee)"_s, u"\"Ann Lee\" <ann@b.c>"_s,
                                u" ann@b.c Ann Lee"_s, u"<ann@b.c> \"Ann Lee\""_s, u"ann@b.c (Ann Lee"_s,
                                u"ann@b.c x (\"Ann Lee\" y) z"_s, u"Ann mail:<ann@b.c>; Lee"_s})
        QTest::addRow("%s", qPrintable(form)) << form << ann;
    QTest::addRow("Ann mail") << u"Ann <ann@b.c"_s << MailRecipient{u"ann@b.c"_s, u"Ann"_s};
    QTest::newRow("alias") << u" my friends "_s << MailRecipient{u"my friends"_s, {}};
    QTest::newRow("two addresses") << u"a@b c@d"_s << MailRecipient{u"a@b"_s, u"c@d"_s};
}

void testBooks::recipients()
{
    QFETCH(QString, item);
    QFETCH(MailRecipient, recipient);
    MailRecipient read = modEmail::parseRecipient(item);
    read.name = read.name.simplified();
    QCOMPARE(read, recipient);
}

void testBooks::hosts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Targets>("targets"); // Empty: it fails.
    QTest::newRow("host") << u"a.b (c)"_s << Targets{{u"a.b"_s, u"c"_s, 0}};
    QTest::newRow("alias, its own port dropped") << u"PC@1500"_s << Targets{{u"p.c"_s, u"Ann"_s, 7}};
    QTest::newRow("alias of aliases") << u"all"_s << Targets{{u"p.c"_s, u"Ann"_s, 7}, {u"x.y"_s, {}, 0}};
    QTest::newRow("five deep") << u"d5"_s << Targets{{u"p.c"_s, u"Ann"_s, 7}};
    QTest::newRow("six deep") << u"d6"_s << Targets();
    QTest::newRow("unknown first") << u"nobody, x.y"_s << Targets{{u"x.y"_s, {}, 0}};
    QTest::newRow("unknown last") << u"x.y, nobody"_s << Targets();
    QTest::newRow("unknown alone") << u"localhost"_s << Targets();
    QTest::newRow("unknown within an alias") << u"lost"_s << Targets();
    QTest::newRow("cycle") << u"cycle"_s << Targets();
    QTest::newRow("nothing") << u" , "_s << Targets();
}

void testBooks::hosts()
{
    QFETCH(QString, text);
    QFETCH(Targets, targets);
    const auto book = modSend::entriesOf(bookFile::parse("alias pc p.c@7 (Ann)\nalias all pc, x.y\nalias d2 pc\n"
                                                         "alias d3 d2\nalias d4 d3\nalias d5 d4\nalias d6 d5\n"
                                                         "alias cycle back\nalias back cycle\nalias lost gone\n"));
    const auto resolved = modSend::resolveTargets(text, book);
    QCOMPARE(resolved.ok(), !targets.isEmpty());
    if (resolved)
        QCOMPARE(resolved.value(), targets);
    else
        QCOMPARE(resolved.error().caption, u"Host Address Resolution Error"_s);
}

void testBooks::growingAliases()
{
    QByteArray line = "alias a ";
    for (int k = 0; k < 900; ++k)
        line += "a,";
    QVERIFY(!modSend::resolveTargets(u"a", modSend::entriesOf(bookFile::parse(line))).ok());
    QVERIFY(!modSend::resolveTargets(QString(10'000, u',').replace(u","_s, u"a.b,"_s), {}).ok());
}

void testBooks::mailAliases()
{
    const auto book = modEmail::entriesOf(
        bookFile::parse("alias Family Ann Lee <ann@b.c>, bob@d.e (Bob)\nalias everybody family, eve@f.g\n"));
    QCOMPARE(modEmail::resolveRecipients(u"EVERYBODY, x@y", book).value(),
             (Recipients{{u"ann@b.c"_s, u"Ann Lee"_s}, {u"bob@d.e"_s, u"Bob"_s}, {u"eve@f.g"_s, {}}, {u"x@y"_s, {}}}));
    QCOMPARE(modEmail::resolveRecipients(u"x@y, nobody", book).error().caption, u"E-mail Address Resolution Error"_s);
}

void testBooks::editorLines()
{
    const auto aliases = bookRules::aliasesOf(
        modEmail::entriesOf(bookFile::parse("alias Bob b@c (Bob)\nalias eve e@f\nalias BOB x@y\n")),
        modEmail::editorLine);
    QCOMPARE(aliases, (QList<BookAlias>{{u"Bob"_s, u"b@c (Bob)\r\nx@y\r\n"_s}, {u"eve"_s, u"e@f\r\n"_s}}));
    QCOMPARE(modSend::editorLine({{}, u"a.b"_s, {}, 1420}), u"a.b"_s);
}

void testBooks::names_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("refusal");
    QTest::newRow("taken") << u"carl"_s << QString();
    QTest::newRow("its own, other case") << u"EVE"_s << QString();
    QTest::newRow("empty") << QString() << u"An alias name must not be all spaces"_s;
    QTest::newRow("blank within") << u"a b"_s << u"An alias name must not contain spaces"_s;
    QTest::newRow("line end within") << u"a\nalias"_s << u"An alias name must not contain spaces"_s;
    QTest::newRow("another's, other case")
        << u"BoB"_s << u"There is already another alias with that name. \nPlease choose a different name. "_s;
}

void testBooks::names()
{
    QFETCH(QString, name);
    QFETCH(QString, refusal);
    const auto refused = bookRules::refusal(name, {u"bob"_s, u"eve"_s}, 1);
    QCOMPARE(refused ? refused->text : QString(), refusal);
}

void testBooks::missingOptions()
{
    clsprogramoptions options;
    QCOMPARE(modEmail::missingOptions(options)->caption, u"Need E-mail Address or Server Name"_s);
    options.EmailAddress = u"a@b"_s;
    QCOMPARE(modEmail::missingOptions(options)->caption, u"No Server Name"_s);
    std::swap(options.EmailAddress, options.SMTPServer);
    QCOMPARE(modEmail::missingOptions(options)->caption, u"No E-mail Address"_s);
    options.EmailAddress = u"a@b"_s;
    QVERIFY(!modEmail::missingOptions(options));
}

void testBooks::recentTargets()
{
    QStringList list;
    for (int k = 0; k < 11; ++k)
        list = withRecent(list, QString::number(k));
    QCOMPARE(list.size(), 10);
    QCOMPARE(list.first(), u"10"_s);
    QCOMPARE(list.last(), u"1"_s);
    QCOMPARE(withRecent(list, u"5"_s), list);
}

QTEST_APPLESS_MAIN(testBooks)
#include "testBooks.moc"
