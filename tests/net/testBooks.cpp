// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/clsprogramoptions.h"
#include "net/bookRules.h"
#include "net/modEmail.h"
#include "net/modSend.h"
#include "net/recentTargets.h"
#include "support/compareRow.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

using Lines = QList<BookLine>;
using Targets = QList<SendTarget>;
using Recipients = QList<MailRecipient>;

/// The two books: their files, what is typed in place of addresses, and what the editor makes of them.
class testBooks final : public QObject
{
    Q_OBJECT

private slots:
    void readsFiles()
    {
        const auto row = [](const char *name, const QByteArray &bytes, const Lines &lines) {
            compareRow(name, bookFile::parse(bytes), lines);
        };
        const Lines two{{u"bob"_s, u"a.b, c.d"_s}, {u"eve"_s, u"e.f"_s}};
        row("as written", "alias bob a.b, c.d\r\nalias eve e.f\r\n", two);
        row("CR", "alias bob a.b, c.d\ralias eve e.f\r", two);
        row("LF, no end", "alias bob a.b, c.d\nalias eve e.f", two);
        row("tabs and blanks", "alias\tbob\ta.b, c.d \nalias \t eve   e.f\t\n", two);
        row("comments",
            "# alias x y\n\nalias bob a.b, c.d\n alias x y\nAlias x y\naliases of x\nalias\nalias \nalias x\n"
            "alias eve e.f\n",
            two);
        row("byte 0", QByteArray("alias bob a.b, c.d\nalias eve e.f\0\nalias x y", 43), two);
        row("8-bit", "alias Andr\xE9 \xC4\xA0.b", {{u"Andr\u00E9"_s, u"\u00C4\u00A0.b"_s}});
        row("marked UTF-8", QByteArray("\xEF\xBB\xBF") + "alias \xC5\x81uk a.b", {{u"\u0141uk"_s, u"a.b"_s}});
        row("nothing", {}, {});
        row("one byte", "a", {});
        row("0 at once", QByteArray("\0alias bob a.b", 14), {});
    }

    void everyTruncation()
    {
        const QByteArray whole = "alias bob a.b@1500 (c), \"x\" <d@e>\r\n\nalias eve e.f\r";
        for (qsizetype keep = 0; keep < whole.size(); ++keep) {
            const Lines lines = bookFile::parse(whole.first(keep));
            QVERIFY2(lines.size() <= 2 && bookFile::parse(bookFile::build(lines)) == lines,
                     whole.first(keep).constData());
            modSend::entriesOf(lines);
            modEmail::entriesOf(lines);
        }
    }

    void writesFiles()
    {
        QCOMPARE(bookFile::build({{u"bob"_s, u"a.b, c.d"_s}, {u"none"_s, u"  "_s}, {u"\u00E9"_s, u"\u00FF"_s}}),
                 QByteArray("alias bob a.b, c.d\r\nalias \xE9 \xFF\r\n"));
        // What would make a second line or another alias of it.
        QCOMPARE(bookFile::parse(bookFile::build({{u"a b\nc"_s, u"x.y\r\nalias z z.z"_s}})),
                 (Lines{{u"a_b_c"_s, u"x.y  alias z z.z"_s}}));
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"host.txt"_s);
        const Lines lines{{u"\u0141uk"_s, u"a.b"_s}};
        QVERIFY(bookFile::load(path).isEmpty() && bookFile::load(folder.path()).isEmpty());
        QVERIFY(bookFile::save(path, lines).ok() && bookFile::load(path) == lines);
        QVERIFY(!bookFile::save(folder.filePath(u"none/host.txt"_s), lines).ok());
    }

    /// Through the editor and back, as a person who changes nothing sends them.
    void unchangedBooks()
    {
        for (const QByteArray &bytes :
             {QByteArray("alias pc a.b, c.d@1500, e.f (home), g.h@99 (caf\xE9)\r\nalias all pc, x.y\r\n"),
              QByteArray("\xEF\xBB\xBF") + "alias \xC5\x81uk a.b (\xE2\x82\xAC)\r\n"}) {
            Lines lines;
            for (const BookAlias &alias :
                 bookRules::aliasesOf(modSend::entriesOf(bookFile::parse(bytes)), modSend::editorLine))
                lines.append({alias.name, alias.lines.trimmed().replace(u"\r\n"_s, u", "_s)});
            QCOMPARE(bookFile::build(lines), bytes);
        }
    }

    void largeFile()
    {
        QByteArray bytes;
        while (bytes.size() < 5'000'000)
            bytes += "alias a" + QByteArray::number(bytes.size()) + " x.y, z.z@1500 (comment)\n";
        const Lines lines = bookFile::parse(bytes + QByteArray(5'000'000, 'x'));
        const QList<SendBookEntry> entries = modSend::entriesOf(lines);
        QCOMPARE(entries.size(), lines.size() * 2);
        QCOMPARE(bookRules::aliasesOf(entries, modSend::editorLine).size(), lines.size());
        QCOMPARE(modSend::resolveTargets(lines.last().alias, entries).value().size(), 2);
    }

    void targets()
    {
        const auto row = [](const QString &text, const Targets &targets) {
            compareRow(qPrintable(text), modSend::parseTargets(text), targets);
        };
        for (const QString &form :
             {u"a.b@1500 (c d)"_s, u"(c d) a.b@1500"_s, u" a.b @ 1500 ( c d"_s, u"a.b(c d)@1500"_s})
            row(form, {{u"a.b"_s, u"c d"_s, 1500}});
        row(u" a.b,,pc , , (x),"_s, {{u"a.b"_s, {}, 0}, {u"pc"_s, {}, 0}, {{}, u"x"_s, 0}});
        for (const QString &noPort : {u"x"_s, u""_s, u"1e3"_s, u"15 00"_s, u"99999999999"_s, u"1@2"_s})
            row(u"a.b@"_s + noPort, {{u"a.b"_s, {}, 0}});
        row(u"a.b@70000, a.b@-1"_s, {{u"a.b"_s, {}, 70000}, {u"a.b"_s, {}, -1}});
        row(u"a.b (c) (d)"_s, {{u"a.b  (d)"_s, u"c"_s, 0}});
        row(u" , "_s, {});
    }

    void recipients()
    {
        const auto row = [](const QString &item, const MailRecipient &expected) {
            MailRecipient read = modEmail::parseRecipient(item);
            read.name = read.name.simplified();
            compareRow(qPrintable(item), read, expected);
        };
        for (const QString &form : {u"Ann Lee <ann@b.c>"_s, u"ann@b.c (Ann Lee)"_s, u"\"Ann Lee\" <ann@b.c>"_s,
                                    u" ann@b.c Ann Lee"_s, u"<ann@b.c> \"Ann Lee\""_s, u"ann@b.c (Ann Lee"_s,
                                    u"ann@b.c x (\"Ann Lee\" y) z"_s, u"Ann mail:<ann@b.c>; Lee"_s})
            row(form, {u"ann@b.c"_s, u"Ann Lee"_s});
        row(u"Ann <ann@b.c"_s, {u"ann@b.c"_s, u"Ann"_s});
        row(u" my friends "_s, {u"my friends"_s, {}});
        row(u"a@b c@d"_s, {u"a@b"_s, u"c@d"_s});
    }

    void hosts()
    {
        const auto book = modSend::entriesOf(bookFile::parse("alias pc p.c@7 (Ann)\nalias all pc, x.y\nalias d2 pc\n"
                                                             "alias d3 d2\nalias d4 d3\nalias d5 d4\nalias d6 d5\n"
                                                             "alias cycle back\nalias back cycle\nalias lost gone\n"));
        const auto row = [&book](const char *name, const QString &text, const Targets &targets) {
            const auto resolved = modSend::resolveTargets(text, book);
            compareRow(name, resolved ? QString() : resolved.error().caption,
                       targets.isEmpty() ? u"Host Address Resolution Error"_s : QString());
            compareRow(name, resolved ? resolved.value() : Targets(), targets);
        };
        row("host", u"a.b (c)"_s, {{u"a.b"_s, u"c"_s, 0}});
        row("alias, its own port dropped", u"PC@1500"_s, {{u"p.c"_s, u"Ann"_s, 7}});
        row("alias of aliases", u"all"_s, {{u"p.c"_s, u"Ann"_s, 7}, {u"x.y"_s, {}, 0}});
        row("five deep", u"d5"_s, {{u"p.c"_s, u"Ann"_s, 7}});
        row("six deep", u"d6"_s, {});
        row("unknown first", u"nobody, x.y"_s, {{u"x.y"_s, {}, 0}});
        row("unknown last", u"x.y, nobody"_s, {});
        row("unknown alone", u"localhost"_s, {});
        row("unknown within an alias", u"lost"_s, {});
        row("cycle", u"cycle"_s, {});
        row("nothing", u" , "_s, {});
    }

    void growingAliases()
    {
        const QByteArray line = "alias a " + QByteArray("a,").repeated(900);
        QVERIFY(!modSend::resolveTargets(u"a", modSend::entriesOf(bookFile::parse(line))).ok());
        QVERIFY(!modSend::resolveTargets(u"a.b,"_s.repeated(10'000), {}).ok());
    }

    void mailAliases()
    {
        const auto book = modEmail::entriesOf(
            bookFile::parse("alias Family Ann Lee <ann@b.c>, bob@d.e (Bob)\nalias everybody family, eve@f.g\n"));
        QCOMPARE(
            modEmail::resolveRecipients(u"EVERYBODY, x@y", book).value(),
            (Recipients{{u"ann@b.c"_s, u"Ann Lee"_s}, {u"bob@d.e"_s, u"Bob"_s}, {u"eve@f.g"_s, {}}, {u"x@y"_s, {}}}));
        QCOMPARE(modEmail::resolveRecipients(u"x@y, nobody", book).error().caption,
                 u"E-mail Address Resolution Error"_s);
    }

    void editorLines()
    {
        const auto aliases = bookRules::aliasesOf(
            modEmail::entriesOf(bookFile::parse("alias Bob b@c (Bob)\nalias eve e@f\nalias BOB x@y\n")),
            modEmail::editorLine);
        QCOMPARE(aliases, (QList<BookAlias>{{u"Bob"_s, u"b@c (Bob)\r\nx@y\r\n"_s}, {u"eve"_s, u"e@f\r\n"_s}}));
        QCOMPARE(modSend::editorLine({{}, u"a.b"_s, {}, 1420}), u"a.b"_s);
    }

    void names()
    {
        const auto row = [](const char *name, const QString &typed, const QString &refusal) {
            const auto refused = bookRules::refusal(typed, {u"bob"_s, u"eve"_s}, 1);
            compareRow(name, refused ? refused->text : QString(), refusal);
        };
        row("free", u"carl"_s, {});
        row("its own, other case", u"EVE"_s, {});
        row("empty", {}, u"An alias name must not be all spaces"_s);
        row("blank within", u"a b"_s, u"An alias name must not contain spaces"_s);
        row("line end within", u"a\nalias"_s, u"An alias name must not contain spaces"_s);
        row("another's, other case", u"BoB"_s,
            u"There is already another alias with that name. \nPlease choose a different name. "_s);
    }

    void missingOptions()
    {
        const auto row = [](const QString &address, const QString &server, const QString &caption) {
            const auto missing = modEmail::missingOptions({.SMTPServer = server, .EmailAddress = address});
            compareRow(qPrintable(caption), missing ? missing->caption : QString(), caption);
        };
        row(u" "_s, {}, u"Need E-mail Address or Server Name"_s);
        row({}, u"mail.x"_s, u"No E-mail Address"_s);
        row(u"a@b.c"_s, {}, u"No Server Name"_s);
        row(u"a@b.c"_s, u"mail.x"_s, {});
    }

    void recentTargets()
    {
        QStringList list;
        for (int k = 0; k < 11; ++k)
            list = withRecent(list, QString::number(k));
        QCOMPARE(list.join(u' '), u"10 9 8 7 6 5 4 3 2 1"_s);
        QCOMPARE(withRecent(list, u"5"_s), list);
    }
};

QTEST_APPLESS_MAIN(testBooks)
#include "testBooks.moc"
