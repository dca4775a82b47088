// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/NoteLayout.h"

#include <QRegion>
#include <QTest>

class testNoteLayout final : public QObject
{
    Q_OBJECT

private slots:
    void keepsThingsApart_data();
    void keepsThingsApart();
    void everyEdgeCanBeHeld();
    void showsWhatThereIsRoomFor();
};

void testNoteLayout::keepsThingsApart_data()
{
    QTest::addColumn<bool>("toolBarOn");
    QTest::addColumn<bool>("locked");
    QTest::newRow("plain") << false << false;
    QTest::newRow("toolbar") << true << false;
    QTest::newRow("locked") << false << true;
    QTest::newRow("locked with toolbar") << true << true;
}

void testNoteLayout::keepsThingsApart()
{
    QFETCH(bool, toolBarOn);
    QFETCH(bool, locked);
    for (int width = NoteLayout::smallestSize().width(); width < 420; ++width)
        for (int height = NoteLayout::rolledHeight(); height < 240; height += 3) {
            const std::string where = std::to_string(width) + "x" + std::to_string(height);
            const QRect window(0, 0, width, height);
            const auto note = NoteLayout::of(window.size(), {toolBarOn, locked, 5});
            for (const QRect &part : {note.titleBar, note.buttons, note.body, note.password})
                QVERIFY2(part.isEmpty() || window.contains(part), where.c_str());
            for (const QRect &lower : {note.buttons, note.body, note.password})
                QVERIFY2(!lower.intersects(note.titleBar), where.c_str());
            QVERIFY2(!note.body.intersects(note.buttons), where.c_str());
            QVERIFY2(!locked || note.buttons.isEmpty(), where.c_str());
            const QRect title(QPoint(0, 0), note.titleBar.size());
            QRegion taken = note.title;
            for (const QRect &picture : {note.menu, note.exit, note.minimize}) {
                QVERIFY2(title.contains(picture), where.c_str());
                QVERIFY2(!taken.intersects(picture), where.c_str());
                taken += picture;
            }
            const QRect strip(QPoint(0, 0), note.buttons.size());
            for (size_t i = 0; i < note.images.size() && !note.buttons.isEmpty(); ++i) {
                QVERIFY2(!note.imageFits[i] || strip.contains(note.images[i]), where.c_str());
                QVERIFY2(!note.imageFits[i] || !note.images[i].intersects(note.edit), where.c_str());
            }
        }
}

void testNoteLayout::everyEdgeCanBeHeld()
{
    for (const QSize size : {NoteLayout::smallestSize(), QSize(222, 168), QSize(900, 700)}) {
        const auto note = NoteLayout::of(size, {});
        QRegion held;
        for (const auto &handle : note.sides)
            held += handle;
        for (const auto &handle : note.topEnds)
            held += handle;
        for (const auto &handle : note.corners) {
            QVERIFY(QRect(QPoint(0, 0), size).contains(handle) || handle.height() > size.height());
            held += handle;
        }
        const QRect window(QPoint(0, 0), size);
        const QRegion rim = QRegion(window) - QRegion(window.adjusted(1, 1, -1, -1));
        QVERIFY((rim - held).isEmpty());
    }
}

void testNoteLayout::showsWhatThereIsRoomFor()
{
    const auto usual = NoteLayout::of({222, 168}, {true, false, 5});
    QVERIFY(!usual.title.isEmpty() && !usual.buttons.isEmpty() && !usual.edit.isEmpty() && !usual.body.isEmpty());
    QVERIFY(usual.imageFits.front() && usual.imageFits.back());
    const auto rolled = NoteLayout::of({222, NoteLayout::rolledHeight()}, {true, false, 5});
    QVERIFY(rolled.body.isEmpty() && rolled.buttons.isEmpty() && !rolled.title.isEmpty());
    QVERIFY(NoteLayout::of({222, 168}, {false, false, 5}).body.height() > usual.body.height());
    QVERIFY(!NoteLayout::of(NoteLayout::smallestSize(), {}).imageFits.back());
}

QTEST_APPLESS_MAIN(testNoteLayout)
#include "testNoteLayout.moc"
