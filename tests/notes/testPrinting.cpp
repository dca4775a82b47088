// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/NoteFixture.h"
#include "notes/commands/notePrinting.h"

#include <QFontMetricsF>

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
    void wordsStayWhole();
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
}

void testPrinting::wordsStayWhole()
{
    const QFont font(u"DejaVu Sans"_s, 10);
    const QFontMetricsF metrics(font);
    const float twips = m_fixture->program.twips.perPixel();
    const qreal limit = qreal(notePrinting::LineWidth / twips);
    const QString text = u"some words and\ttabs in a line that goes on "_s.repeated(20) + u"\r\n\r\nend"_s;
    for (const auto splice : {notePrinting::SpliceStringToPrint, notePrinting::wrappedBeforeLimit}) {
        const QStringList lines = splice(text, font, twips);
        QCOMPARE(lines.join(QString()), QString(text).remove(u"\r\n"_s));
        QVERIFY(lines.size() > 8);
        QCOMPARE(lines.mid(lines.size() - 2), QStringList({QString(), u"end"_s}));
        for (const QString &line : lines.mid(0, lines.size() - 3))
            QVERIFY(line.endsWith(u' ') || line.endsWith(u'\t'));
    }
    for (const QString &line : notePrinting::wrappedBeforeLimit(text, font, twips))
        QVERIFY(metrics.horizontalAdvance(line.trimmed()) <= limit);
    const QString word(200000, u'w');
    QCOMPARE(notePrinting::SpliceStringToPrint(word, font, twips), QStringList(word));
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
