// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/modFileIO.h"
#include "model/modStreams.h"
#include "model/textValues.h"
#include "samples.h"

#include <QDir>
#include <QObject>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <bit>

using namespace Qt::StringLiterals;

namespace
{

ProgramPaths pathsUnder(const QTemporaryDir &folder)
{
    QDir(folder.path()).mkdir(u"Data"_s);
    return ProgramPaths::under(folder.path(), folder.path());
}

} // namespace

class testOptions final : public QObject
{
    Q_OBJECT

private slots:
    void parses_data();
    void parses();
    void refusedValuesChangeNothing_data();
    void refusedValuesChangeNothing();
    void survivesSaving_data();
    void survivesSaving();
    void longLines();
    void recentLists();
};

void testOptions::parses_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<clsprogramoptions>("expected");
    const clsprogramoptions none;
    QTest::newRow("no blanks") << QByteArray("Font Bold=True") << clsprogramoptions{.FontBoldOn = true};
    QTest::newRow("case of the key") << QByteArray("font bold = True") << none;
    QTest::newRow("no key") << QByteArray("= True\r\n=\r\nFont Bold") << none;
    QTest::newRow("tabs") << QByteArray("\tFont Bold\t=\ttRuE\t\n") << clsprogramoptions{.FontBoldOn = true};
    QTest::newRow("last wins") << QByteArray("Height=1\nHeight=2\nHeight=x") << clsprogramoptions{.FrmHeight = 2};
    QTest::newRow("ends at 0") << QByteArray("Name=a\0\nName=b", 15) << clsprogramoptions{.NameName = u"a"_s};
    QTest::newRow("second =") << QByteArray("Name = a=b = c") << clsprogramoptions{.NameName = u"a=b = c"_s};
    QTest::newRow("8-bit") << QByteArray("Name=\xC4\xA0") << clsprogramoptions{.NameName = u"\u00C4\u00A0"_s};
    QTest::newRow("number as Boolean") << QByteArray("Toolbar=-0.5\rFlashing Window=0")
                                       << clsprogramoptions{.ToolBarOn = true};
    QTest::newRow("half to even") << QByteArray("Text Color=2.5\nBackground Color=-3.5")
                                  << clsprogramoptions{.ForeColor = 2, .BackColor = -4};
    QTest::newRow("extremes") << QByteArray("Text Color=-2147483648\nListening Port=2147483647\nWidth=3.4028234e38")
                              << clsprogramoptions{.FrmWidth = std::numeric_limits<float>::max(),
                                                   .ForeColor = std::numeric_limits<qint32>::min(),
                                                   .ListeningPort = std::numeric_limits<qint32>::max()};
}

void testOptions::parses()
{
    QFETCH(QByteArray, text);
    QFETCH(clsprogramoptions, expected);
    clsprogramoptions options;
    modStreams::ParseOptionsText(text, options);
    QCOMPARE(modStreams::BuildOptionsText(options), modStreams::BuildOptionsText(expected));
}

void testOptions::refusedValuesChangeNothing_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    for (const QString &key : {u"Height"_s, u"Font Size"_s, u"Text Color"_s, u"Listening Port"_s, u"Toolbar"_s})
        for (const QString &value :
             {u""_s, u"nan"_s, u"-inf"_s, u"1e999"_s, u"4,5"_s, u"0x10"_s, u"12 apples"_s, u"Tru"_s, u"\u0661"_s})
            QTest::addRow("%s = %s", qPrintable(key), qPrintable(value)) << key << value;
    QTest::newRow("Long too large") << u"Text Color"_s << u"2147483647.5"_s;
    QTest::newRow("Single too large") << u"Width"_s << u"3.5e38"_s;
    QTest::newRow("unknown key") << u"Colour"_s << u"1"_s;
}

void testOptions::refusedValuesChangeNothing()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    clsprogramoptions options;
    fill(options, recordFields::options);
    const clsprogramoptions before = options;
    QVERIFY(!modStreams::ApplyOption(options, key, value));
    QVERIFY(options == before);
    QVERIFY(options.setListeningPort(u"0") && options.ListeningPortText() == u"0");
    QVERIFY(options.setTitleBarOn(u"false") && options.TitleBarOnText() == u"False" && !options.setTitleBarOn(u"no"));
}

void testOptions::survivesSaving_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("readBack");
    QTest::newRow("8-bit") << u"Zo\u00EB\u0080"_s << u"Zo\u00EB\u0080"_s;
    QTest::newRow("wide") << u"\u65E5\u672C \U0001F4DD"_s << u"\u65E5\u672C \U0001F4DD"_s;
    QTest::newRow("line breaks") << u"a\r\nToolbar = False\nb"_s << u"a  Toolbar = False b"_s;
    QTest::newRow("NUL") << u"a\0b"_s << u"a b"_s;
}

void testOptions::survivesSaving()
{
    QFETCH(QString, name);
    QFETCH(QString, readBack);
    const QTemporaryDir folder;
    const ProgramPaths paths = pathsUnder(folder);
    clsprogramoptions options;
    QVERIFY(!modFileIO::LoadOptionsFile(paths, options));
    setContents(paths.OptionsFile, QByteArray("\0Name = x", 9));
    QVERIFY(!modFileIO::LoadOptionsFile(paths, options) && options == clsprogramoptions());
    fill(options, recordFields::options);
    options.NameName = name;
    QVERIFY(modFileIO::SaveOptionsFile(paths, options).ok());
    clsprogramoptions again;
    QVERIFY(modFileIO::LoadOptionsFile(paths, again));
    options.NameName = readBack;
    QVERIFY(again == options);
}

void testOptions::longLines()
{
    const QByteArray digits(1'000'000, '9');
    clsprogramoptions options;
    modStreams::ParseOptionsText(
        "Height = " + digits + "\r\n" + QByteArray(1'000'000, '\n') + digits + "\r\nName = " + digits, options);
    QCOMPARE(options.NameName.size(), digits.size());
    QCOMPARE(options.FrmHeight, 0.0F);
}

void testOptions::recentLists()
{
    const QTemporaryDir folder;
    const ProgramPaths paths = pathsUnder(folder);
    QVERIFY(modFileIO::LoadRecentList(paths, RecentList::Email).isEmpty());
    QVERIFY(modFileIO::SaveRecentList(paths, RecentList::Send, {u"host"_s, u" pc\n2 "_s, u";"_s}, 3).ok());
    QCOMPARE(contents(paths.MiscFile), QByteArray("\r\nhost; pc 2 ;;\r\n"));
    QStringList twelve;
    for (int k = 1; k <= 12; ++k)
        twelve << u"a%1@b"_s.arg(k);
    QVERIFY(modFileIO::SaveRecentList(paths, RecentList::Email, twelve, 12).ok());
    QCOMPARE(modFileIO::LoadRecentList(paths, RecentList::Email), twelve.first(10));
    QCOMPARE(modFileIO::LoadRecentList(paths, RecentList::Send), QStringList({u"host"_s, u"pc 2"_s}));
    QVERIFY(modFileIO::SaveRecentList(paths, RecentList::Email, {u"\u00EF\u00BB\u00BF\u00E9"_s}, 5).ok());
    QCOMPARE(modFileIO::ReadMiscFile(paths).email, u"\u00EF\u00BB\u00BF\u00E9"_s);
    QVERIFY(modFileIO::SaveRecentList(paths, RecentList::Email, twelve, -1).ok());
    QVERIFY(modFileIO::ReadMiscFile(paths).email.isEmpty());
}

QTEST_APPLESS_MAIN(testOptions)
#include "testOptions.moc"
