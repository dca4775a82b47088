// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/NoteFixture.h"
#include "notes/commands/notePrinting.h"

#include <QApplication>
#include <QFontDatabase>
#include <QTimer>

using namespace Qt::StringLiterals;
using Answer = Prompts::Answer;

class testPrinting final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void pages_data();
    void pages();
    void lines_data();
    void lines();
    void longOneCanBeCanceled();
    void withoutAPrinter();

private:
    std::unique_ptr<NoteFixture> m_fixture;
};

void testPrinting::init()
{
    failOnWarnings();
    m_fixture = std::make_unique<NoteFixture>();
}

void testPrinting::cleanup()
{
    QVERIFY(m_fixture->test.prompts.isDone());
    m_fixture.reset();
}

void testPrinting::pages_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<float>("points");
    QTest::addColumn<int>("least");
    QTest::addColumn<int>("most");
    // A page is 10.7 inches long; 60 lines of 12 points or so fill it.
    QTest::newRow("empty") << QString() << 10.0F << 1 << 1;
    QTest::newRow("one") << u"line\r\n"_s.repeated(30) << 10.0F << 1 << 1;
    QTest::newRow("three") << u"line\r\n"_s.repeated(160) << 10.0F << 3 << 3;
    QTest::newRow("many") << u"line\r\n"_s.repeated(2000) << 10.0F << 30 << 40;
    QTest::newRow("one long line") << u"words "_s.repeated(3000) << 10.0F << 3 << 5;
    QTest::newRow("font higher than a page") << u"a\r\nb"_s << 1000.0F << 2 << 5;
    QTest::newRow("no font at all") << u"a\r\nb"_s << -7.0F << 1 << 1;
    QTest::newRow("emoji")
        << u"tea \U0001F375\r\ntea \U0001F375 and \u5DE6\r\n\u05E9\u05DC\u05D5\u05DD \U0001F375 abc"_s << 10.0F << 1
        << 1;
    QTest::newRow("emoji larger than a page") << u"\U0001F375"_s << 1000.0F << 2 << 3;
}

void testPrinting::pages()
{
    QFETCH(QString, text);
    QFETCH(float, points);
    QFETCH(int, least);
    QFETCH(int, most);
    clsNoteProps record = m_fixture->program.NoteTemplate;
    record.Data = text;
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

void testPrinting::lines_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("behind");
    QTest::addColumn<QStringList>("before");
    const QString wide(2000, u'w');
    QTest::newRow("nothing") << QString() << QStringList() << QStringList();
    QTest::newRow("line feeds") << u"a\nb\r\n\r\nc\r"_s << QStringList{u"ab"_s, {}, u"c"_s}
                                << QStringList{u"ab"_s, {}, u"c"_s};
    QTest::newRow("wide word first") << wide + u" b c"_s << QStringList{wide + u" "_s, u"b c"_s}
                                     << QStringList{wide + u" "_s, u"b c"_s};
    QTest::newRow("wide word last") << u"a b\t"_s + wide << QStringList{u"a b\t"_s + wide}
                                    << QStringList{u"a b\t"_s, wide};
    QTest::newRow("wide word between") << u"a "_s + wide + u" b\rc"_s
                                       << QStringList{u"a "_s + wide + u" "_s, u"b"_s, u"c"_s}
                                       << QStringList{u"a "_s, wide + u" "_s, u"b"_s, u"c"_s};
    QTest::newRow("blank at the end of a wide line")
        << wide + u" \rc"_s << QStringList{wide + u" "_s, {}, u"c"_s} << QStringList{wide + u" "_s, {}, u"c"_s};
}

void testPrinting::lines()
{
    QFETCH(QString, text);
    const auto all = [&text](notePrinting::LineEnd end) {
        notePrinting::LinesOnPaper lines(text, QFont(), 15, end);
        QStringList found;
        while (const auto line = lines.next())
            found.append(*line);
        return found;
    };
    QTEST(all(notePrinting::LineEnd::BehindLimit), "behind");
    QTEST(all(notePrinting::LineEnd::BeforeLimit), "before");
}

void testPrinting::longOneCanBeCanceled()
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

void testPrinting::withoutAPrinter()
{
    frmNote *note = m_fixture->create(u"text"_s);
    m_fixture->test.printing.hasPrinter = false;
    m_fixture->test.prompts.expect(Answer::Ok);
    NoteFixture::choose(*note, "mnuPrint0", false);
    QCOMPARE(m_fixture->test.prompts.last.caption, u"Print"_s);
    QCOMPARE(note->GetThisNoteProps()->Data, u"text"_s);
}

QTEST_MAIN(testPrinting)
#include "testPrinting.moc"
