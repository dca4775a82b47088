// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/NoteLayout.h"
#include "notes/NotePlacement.h"

#include <QTest>

#include <limits>

namespace
{

const Twips Dpi96(96);
constexpr QSize Fallback(200, 150);
constexpr QPoint CascadeFrom(48, 48);
const QRect Main(0, 0, 1000, 800);
const std::vector<QRect> One{Main};
const std::vector<QRect> Beside{Main, QRect(1000, 0, 1000, 800)};
const std::vector<QRect> LeftOf{QRect(-1000, 0, 1000, 800), Main};
const std::vector<QRect> Lower{Main, QRect(1000, 400, 1000, 800)};
constexpr float Nan = std::numeric_limits<float>::quiet_NaN();
constexpr float Infinite = std::numeric_limits<float>::infinity();

struct Case
{
    const char *name;
    const std::vector<QRect> &screens;
    float left; ///< Pixels, as the other three.
    float top;
    float width;
    float height;
    QRect opened;
    bool stored;
};

clsNoteProps noteAt(float left, float top, float width, float height)
{
    clsNoteProps note;
    note.FrmLeft = left * Dpi96.perPixel();
    note.FrmTop = top * Dpi96.perPixel();
    note.FrmWidth = width * Dpi96.perPixel();
    note.FrmHeight = height * Dpi96.perPixel();
    return note;
}

} // namespace

class testNotePlacement final : public QObject
{
    Q_OBJECT

private slots:
    void opens_data();
    void opens();
    void isReachableWhateverIsStored_data();
    void isReachableWhateverIsStored();
};

void testNotePlacement::opens_data()
{
    QTest::addColumn<const Case *>("row");
    static const Case Cases[] = {
        {"as stored", One, 100, 90, 210, 160, {100, 90, 210, 160}, true},
        {"a pixel inside the upper left", One, 1, 1, 200, 150, {1, 1, 200, 150}, true},
        {"a pixel inside the lower right", One, 799, 649, 200, 150, {799, 649, 200, 150}, true},
        {"on the left edge", One, 0, 90, 200, 150, {1, 90, 200, 150}, false},
        {"on the top edge", One, 100, 0, 200, 150, {100, 1, 200, 150}, false},
        {"on the right edge", One, 800, 90, 200, 150, {799, 90, 200, 150}, false},
        {"on the bottom edge", One, 100, 650, 200, 150, {100, 649, 200, 150}, false},
        {"negative on the screen there", LeftOf, -500, 90, 200, 150, {-500, 90, 200, 150}, true},
        {"negative without one", One, -500, 90, 200, 150, {1, 90, 200, 150}, false},
        {"across two screens", Beside, 900, 90, 200, 150, {900, 90, 200, 150}, true},
        {"the second screen is gone", One, 1500, 90, 200, 150, {799, 90, 200, 150}, false},
        {"inside the desktop, above a lower screen", Lower, 1500, 90, 200, 150, {1500, 401, 200, 150}, false},
        {"title beside every screen", Lower, 100, 900, 200, 150, {100, 649, 200, 150}, false},
        {"no place that is one", One, Nan, 90, 200, 150, {48, 48, 200, 150}, false},
        {"infinitely far", One, 100, -Infinite, 200, 150, {48, 48, 200, 150}, false},
        {"very far", One, 3e30F, -3e30F, 200, 150, {799, 1, 200, 150}, false},
        {"no size that is one", One, 100, 90, Nan, Infinite, {100, 90, 200, 150}, true},
        {"zero and negative size", One, 100, 90, 0, -5, {100, 90, 200, 150}, true},
        {"too small", One, 100, 90, 1, 1, {QPoint(100, 90), NoteLayout::smallestSize()}, true},
        {"larger than the desktop", One, 100, 90, 1e9F, 5000, {1, 1, 1000, 800}, false},
    };
    for (const Case &row : Cases)
        QTest::newRow(row.name) << &row;
}

void testNotePlacement::opens()
{
    QFETCH(const Case *, row);
    const auto place = NotePlacement::of(noteAt(row->left, row->top, row->width, row->height), Dpi96, row->screens,
                                         Fallback, CascadeFrom, 0);
    QCOMPARE(place.geometry, row->opened);
    QCOMPARE(place.stored, row->stored);
}

void testNotePlacement::isReachableWhateverIsStored_data()
{
    QTest::addColumn<std::vector<QRect>>("screens");
    QTest::newRow("one") << One;
    QTest::newRow("two") << LeftOf;
    QTest::newRow("unequal") << Lower;
    QTest::newRow("tiny") << std::vector{QRect(5, 5, 60, 30)};
}

void testNotePlacement::isReachableWhateverIsStored()
{
    QFETCH(std::vector<QRect>, screens);
    using Limits = std::numeric_limits<float>;
    const std::vector<float> extremes{
        Nan, Infinite, -Infinite, 0,        -0.0F, Limits::max(), Limits::lowest(), Limits::denorm_min(),
        1,   -15,      14985,     32767.5F, 1.5e7F};
    for (const float left : extremes)
        for (const float top : extremes)
            for (const float width : extremes)
                for (const float height : extremes) {
                    clsNoteProps note;
                    note.FrmLeft = left;
                    note.FrmTop = top;
                    note.FrmWidth = width;
                    note.FrmHeight = height;
                    const QRect at = NotePlacement::of(note, Dpi96, screens, Fallback, CascadeFrom, 7).geometry;
                    QVERIFY(at.width() >= NoteLayout::smallestSize().width() &&
                            at.height() >= NoteLayout::smallestSize().height());
                    const QRect title(at.topLeft(), QSize(at.width(), NoteLayout::rolledHeight()));
                    const bool seen = std::any_of(screens.begin(), screens.end(), [&](const QRect &screen) {
                        const QRect part = screen.intersected(title);
                        return part.width() >= 40 && part.height() == title.height();
                    });
                    QVERIFY2(seen, qPrintable(QStringLiteral("%1 %2 %3 %4").arg(left).arg(top).arg(width).arg(height)));
                }
}

QTEST_APPLESS_MAIN(testNotePlacement)
#include "testNotePlacement.moc"
