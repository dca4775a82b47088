// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notestack/StackFixture.h"

using namespace Qt::StringLiterals;

/// Notes while the desktop changes its colours.
class testDesktopColours final : public QObject
{
    Q_OBJECT

private slots:
    void notesFollow_data();
    void notesFollow();
};

void testDesktopColours::notesFollow_data()
{
    QTest::addColumn<qint32>("paper");
    QTest::addColumn<QColor>("shown");
    QTest::newRow("the desktop's") << qint32(0x80000005) << QColor(10, 20, 30);
    QTest::newRow("its own") << qint32(0x00C0B0A0) << QColor(0xA0, 0xB0, 0xC0);
}

void testDesktopColours::notesFollow()
{
    QFETCH(qint32, paper);
    QFETCH(QColor, shown);
    failOnWarnings();
    const QPalette before = QApplication::palette();
    StackFixture fixture;
    clsNoteProps record = fixture.record(u"text"_s);
    record.BackColor = paper;
    frmNote *note = fixture.create(record);
    fixture.add(record);
    const QColor empty = before.color(QPalette::Base);
    QPalette dark = before;
    dark.setColor(QPalette::Base, QColor(10, 20, 30));
    QApplication::setPalette(dark);
    QCoreApplication::processEvents();
    const auto paperOf = [](QWidget &window, const char *text) {
        auto &body = NoteFixture::control<QWidget>(window, text);
        return window.grab().toImage().pixelColor(body.mapTo(&window, QPoint(body.width() - 30, body.height() - 30)));
    };
    const QColor onDesktop = paperOf(*note, "lblDisplay");
    const QColor inStack = paperOf(fixture.stack, "lblDisplay(0)");
    // The text that is edited, too.
    const QColor edited = NoteFixture::edit(*note).palette().color(QPalette::Base);
    QApplication::setPalette(before);
    QCOMPARE(onDesktop, shown);
    QCOMPARE(inStack, shown);
    QCOMPARE(edited, shown);
    QVERIFY(empty != shown);
    QCOMPARE(note->GetThisNoteProps()->BackColor, paper);
}

QTEST_MAIN(testDesktopColours)
#include "testDesktopColours.moc"
