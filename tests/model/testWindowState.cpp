// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/windowState.h"
#include "samples.h"

#include <QObject>
#include <QSettings>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(WindowState)

namespace
{

QByteArray allBytes()
{
    QByteArray bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += char(byte);
    return bytes +
           QByteArray("\0001\x1f"
                      "a\n7",
                      6) +
           "), (\"=;,\\ ";
}

} // namespace

class testWindowState final : public QObject
{
    Q_OBJECT

private slots:
    void asSettingsDo_data();
    void asSettingsDo();
    void odd_data();
    void odd();
    void everyTruncation();
};

/// The file was written by QSettings once, and must be read from and by that.
void testWindowState::asSettingsDo_data()
{
    QTest::addColumn<WindowState>("state");
    QTest::newRow("empty") << WindowState();
    QTest::newRow("usual") << WindowState{QByteArray("\x01\xd9\xd0\xcb\0\3\0\0", 8), true, {u"0a1b"_s, u"ffee"_s}, 1};
    QTest::newRow("one tab") << WindowState{"x", false, {u"d41d8cd98f00b204e9800998ecf8427e"_s}, 0};
    QTest::newRow("all bytes") << WindowState{allBytes(), true, {}, -1};
}

void testWindowState::asSettingsDo()
{
    QFETCH(WindowState, state);
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"window.set"_s);
    {
        QSettings settings(path, QSettings::IniFormat);
        settings.setValue(u"NoteStack/geometry"_s, state.geometry);
        settings.setValue(u"NoteStack/shown"_s, state.isShown);
        settings.setValue(u"NoteStack/order"_s, state.order);
        settings.setValue(u"NoteStack/chosen"_s, state.chosen);
    }
    QVERIFY2(windowState::read(path) == state, contents(path).constData());
    QFile::remove(path);
    QVERIFY(windowState::write(path, state).ok());
    QVERIFY(windowState::read(path) == state);
    const QSettings settings(path, QSettings::IniFormat);
    QCOMPARE(settings.value(u"NoteStack/geometry"_s).toByteArray(), state.geometry);
    QCOMPARE(settings.value(u"NoteStack/shown"_s).toBool(), state.isShown);
    QCOMPARE(settings.value(u"NoteStack/order"_s).toStringList(), state.order);
    QCOMPARE(settings.value(u"NoteStack/chosen"_s).toInt(), state.chosen);
}

void testWindowState::odd_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<WindowState>("state");
    const WindowState none;
    QTest::newRow("another section") << QByteArray("shown=true\n[Else]\nshown=true") << none;
    QTest::newRow("CR LF and blanks") << QByteArray("[NoteStack]\r\n shown = true \r\nchosen=\r\n")
                                      << WindowState{{}, true, {}, -1};
    QTest::newRow("no number") << QByteArray("[NoteStack]\nchosen=99999999999") << none;
    QTest::newRow("not bytes") << QByteArray("[NoteStack]\ngeometry=@Variant(\\0\\0\\0\\x1)") << none;
    QTest::newRow("backslash at the end") << QByteArray("[NoteStack]\norder=a\\") << none;
    QTest::newRow("quoted") << QByteArray("[NoteStack]\norder=\"a\", \"\\x62")
                            << WindowState{{}, false, {u"a"_s, u"b"_s}, -1};
    QTest::newRow("not fingerprints") << QByteArray("[NoteStack]\norder=a, \"b, c\"") << none;
    QTest::newRow("zeros") << QByteArray(1000, '\0') << none;
}

void testWindowState::odd()
{
    QFETCH(QByteArray, text);
    QTEST(windowState::parse(text), "state");
}

void testWindowState::everyTruncation()
{
    const QByteArray text = windowState::text({allBytes(), true, {u"0a1b"_s, u"ffee"_s}, 1});
    for (qsizetype keep = 0; keep < text.size(); ++keep) {
        const WindowState state = windowState::parse(text.first(keep));
        QVERIFY(state.order.size() <= 2 && allBytes().startsWith(state.geometry));
    }
}

QTEST_APPLESS_MAIN(testWindowState)
#include "testWindowState.moc"
