// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/NoteFixture.h"
#include "notes/commands/notePrinting.h"
#include "support/compareRow.h"

#include <QApplication>
#include <QFontDatabase>
#include <QTimer>

using namespace Qt::StringLiterals;

class testPrinting final : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_fixture.emplace(); }
    void cleanup() { m_fixture.reset(); }

    void pages_data()
    {
        const Rows<QString, float, int, int> row; // text, points, least, most
        // A page is 10.7 inches long; 60 lines of 12 points or so fill it.
        row("empty", QString(), 10.0F, 1, 1);
        row("one", u"line\r\n"_s.repeated(30), 10.0F, 1, 1);
        row("three", u"line\r\n"_s.repeated(160), 10.0F, 3, 3);
        row("many", u"line\r\n"_s.repeated(2000), 10.0F, 30, 40);
        row("one long line", u"words "_s.repeated(3000), 10.0F, 3, 5);
        row("font higher than a page", u"a\r\nb"_s, 1000.0F, 2, 5);
        row("no font at all", u"a\r\nb"_s, -7.0F, 1, 1);
        row("emoji", u"tea \U0001F375\r\ntea \U0001F375 and \u5DE6\r\n\u05E9\u05DC\u05D5\u05DD \U0001F375 abc"_s, 10.0F,
            1, 1);
        row("emoji larger than a page", u"\U0001F375"_s, 1000.0F, 2, 3);
    }

    void pages()
    {
        const auto [text, points, least, most] = fetchRow<QString, float, int, int>();
        clsNoteProps record = m_fixture->record(text);
        record.FontSize = points;
        record.TitleBarTitle = u"Title"_s;
        NoteFixture::choose(*m_fixture->create(record), "mnuPrint1");
        const auto count = m_fixture->test.printing.pageCount();
        QVERIFY2(count >= least && count <= most, qPrintable(QString::number(count)));
        QCOMPARE(m_fixture->test.printing.lastJob, u"Title"_s);
        // Where the system has emoji.
        if (QFontDatabase::families().contains(u"Noto Color Emoji"))
            QCOMPARE(m_fixture->test.printing.hasPictures(), text.contains(u"\U0001F375"));
    }

    void lines()
    {
        // Text, its lines by the one end and the other, parted by "|"; a W is a word wider than the paper.
        const auto row = [](const char *name, QString text, const QString &behind, const QString &before) {
            const QString wide(2000, u'w');
            text.replace(u'W', wide);
            for (const auto end : {notePrinting::LineEnd::BehindLimit, notePrinting::LineEnd::BeforeLimit}) {
                notePrinting::LinesOnPaper lines(text, QFont(), 15, end);
                QStringList found;
                while (const auto line = lines.next())
                    found.append(*line);
                compareRow(name, found.join(u'|').replace(wide, u"W"_s),
                           end == notePrinting::LineEnd::BehindLimit ? behind : before);
            }
        };
        row("nothing", {}, {}, {});
        row("line feeds", u"a\nb\r\n\r\nc\r"_s, u"ab||c"_s, u"ab||c"_s);
        row("wide word first", u"W b c"_s, u"W |b c"_s, u"W |b c"_s);
        row("wide word last", u"a b\tW"_s, u"a b\tW"_s, u"a b\t|W"_s);
        row("wide word between", u"a W b\rc"_s, u"a W |b|c"_s, u"a |W |b|c"_s);
        row("blank at the end of a wide line", u"W \rc"_s, u"W ||c"_s, u"W ||c"_s);
    }

    void longOneCanBeCanceled()
    {
        frmNote *note = m_fixture->create(u"many words on many lines\r\n"_s.repeated(400'000));
        QTimer look;
        connect(&look, &QTimer::timeout, note, [note, &look] {
            for (QWidget *window : QApplication::topLevelWidgets())
                if (window->objectName() == u"frmStatus"_s && window->isVisible()) {
                    look.stop();
                    note->unload();
                    QTest::keyClick(window, Qt::Key_Escape);
                }
        });
        look.start(10);
        NoteFixture::choose(*note, "mnuPrint0", false);
        QVERIFY(m_fixture->test.printing.gaveUp);
    }

    void withoutAPrinter()
    {
        frmNote *note = m_fixture->create(u"text"_s);
        m_fixture->test.printing.hasPrinter = false;
        QCOMPARE(m_fixture->boxOf([note] { NoteFixture::choose(*note, "mnuPrint0", false); }).caption, u"Print"_s);
        QCOMPARE(note->GetThisNoteProps()->Data, u"text"_s);
    }

private:
    std::optional<NoteFixture> m_fixture;
};

QTEST_MAIN(testPrinting)
#include "testPrinting.moc"
