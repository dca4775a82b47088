// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "forms/modFormsTexts.h"
#include "forms/modNumerics.h"
#include "forms/modTimers.h"

#include <QElapsedTimer>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class testTexts final : public QObject
{
    Q_OBJECT

private slots:
    void captions();
    void fileKinds();
    void flattening_data();
    void flattening();
    void waiting();
};

void testTexts::captions()
{
    QCOMPARE(modForms::DoubleFirstAmpersand(u"a & b & c"_s), u"a && b & c"_s);
    QCOMPARE(modForms::DoubleFirstAmpersand(u"none"_s), u"none"_s);
    for (const QString &text : {u""_s, u"&"_s, u"&&"_s, u"&&&"_s, u"a&b&&c"_s, u"R&D && more"_s, u"end&"_s})
        QCOMPARE(modForms::shownCaption(modForms::DoubleFirstAmpersand(text)), text);
}

void testTexts::fileKinds()
{
    for (const QStringView path :
         {u"a.dib", u"a.bmp", u"a.gif", u"a.jpg", u"a.wmf", u"a.emf", u"a.ico", u"a.cur", u" x.gif ", u"gif"})
        QVERIFY2(modForms::IsPictureFile(path), qPrintable(path.toString()));
    for (const QStringView path : {u"", u"if", u"a.GIF", u"a.png", u"a.jpeg", u"a.gif.exe", u"a.wav"})
        QVERIFY2(!modForms::IsPictureFile(path), qPrintable(path.toString()));
    QVERIFY(modForms::IsSoundFile(u"ring.wav ") && !modForms::IsSoundFile(u"ring.WAV") &&
            !modForms::IsSoundFile(u"ring.gif"));
}

void testTexts::flattening_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("flat");
    QTest::newRow("empty") << u""_s << u""_s;
    QTest::newRow("nothing but edges") << u" \t\r\n \r\n"_s << u""_s;
    QTest::newRow("lines") << u"milk\r\nbread\r\n\r\neggs"_s << u"milk, bread, , eggs"_s;
    QTest::newRow("edges go") << u"\r\n  milk\tand honey \r\n"_s << u"milk and honey"_s;
    QTest::newRow("a lone line feed goes") << u"a\nb"_s << u"ab"_s;
    QTest::newRow("a lone return") << u"a\rb"_s << u"a, b"_s;
    QTest::newRow("zeros at the end") << u"a"_s + QChar() + u' ' + QChar() << u"a"_s;
}

void testTexts::flattening()
{
    QFETCH(QString, text);
    QTEST(modForms::FlattenText(text), "flat");
}

void testTexts::waiting()
{
    bool handled = false;
    QTimer::singleShot(10ms, this, [&handled] { handled = true; });
    QElapsedTimer time;
    time.start();
    modTimers::Wait(60ms);
    QVERIFY(handled);
    QVERIFY(time.elapsed() >= 59);
}

QTEST_MAIN(testTexts)
#include "testTexts.moc"
