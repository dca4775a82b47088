// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/NoteLayout.h"
#include "notes/NotePlacement.h"
#include "support/compareRow.h"
#include "support/rows.h"

#include <QRegion>

#include <limits>

namespace
{

const Twips Dpi96(96);
constexpr QSize Fallback(200, 150);
constexpr QPoint CascadeFrom(48, 48);
using Screens = std::vector<QRect>;
const QRect Main(0, 0, 1000, 800);
const Screens One{Main};
const Screens Beside{Main, QRect(1000, 0, 1000, 800)};
const Screens LeftOf{QRect(-1000, 0, 1000, 800), Main};
const Screens Lower{Main, QRect(1000, 400, 1000, 800)};
constexpr float Nan = std::numeric_limits<float>::quiet_NaN();
constexpr float Infinite = std::numeric_limits<float>::infinity();

/// Left, top, width and height, in pixels.
using Sides = std::array<float, 4>;

/// Where the note opens, with its sides in units of so many twips.
NotePlacement placeOf(const Sides &sides, float unit, const Screens &screens)
{
    clsNoteProps note;
    note.FrmLeft = sides[0] * unit;
    note.FrmTop = sides[1] * unit;
    note.FrmWidth = sides[2] * unit;
    note.FrmHeight = sides[3] * unit;
    return NotePlacement::of(note, Dpi96, screens, Fallback, CascadeFrom, 0);
}

} // namespace

/// What is where in a note, and where the note is.
class testNoteLayout final : public QObject
{
    Q_OBJECT

private slots:
    void keepsThingsApart_data()
    {
        const Rows<bool, bool> row; // toolBarOn, locked
        row("plain", false, false);
        row("toolbar", true, false);
        row("locked", false, true);
        row("locked with toolbar", true, true);
    }

    void keepsThingsApart()
    {
        const auto [toolBarOn, locked] = fetchRow<bool, bool>();
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
                    QVERIFY2(title.contains(picture) && !taken.intersects(picture), where.c_str());
                    taken += picture;
                }
                const QRect strip(QPoint(0, 0), note.buttons.size());
                for (size_t i = 0; i < note.images.size() && !note.buttons.isEmpty(); ++i)
                    QVERIFY2(!note.imageFits[i] ||
                                 (strip.contains(note.images[i]) && !note.images[i].intersects(note.edit)),
                             where.c_str());
            }
    }

    void everyEdgeCanBeHeld()
    {
        for (const QSize size : {NoteLayout::smallestSize(), QSize(222, 168), QSize(900, 700)}) {
            const auto note = NoteLayout::of(size, {});
            const QRect window(QPoint(0, 0), size);
            QRegion held;
            for (const auto &handle : note.sides)
                held += handle;
            for (const auto &handle : note.topEnds)
                held += handle;
            for (const auto &handle : note.corners) {
                QVERIFY(window.contains(handle) || handle.height() > size.height());
                held += handle;
            }
            QVERIFY((QRegion(window) - QRegion(window.adjusted(1, 1, -1, -1)) - held).isEmpty());
        }
    }

    void showsWhatThereIsRoomFor()
    {
        const auto usual = NoteLayout::of({222, 168}, {true, false, 5});
        QVERIFY(!usual.title.isEmpty() && !usual.buttons.isEmpty() && !usual.edit.isEmpty() && !usual.body.isEmpty());
        QVERIFY(usual.imageFits.front() && usual.imageFits.back());
        const auto rolled = NoteLayout::of({222, NoteLayout::rolledHeight()}, {true, false, 5});
        QVERIFY(rolled.body.isEmpty() && rolled.buttons.isEmpty() && !rolled.title.isEmpty());
        QVERIFY(NoteLayout::of({222, 168}, {false, false, 5}).body.height() > usual.body.height());
        QVERIFY(!NoteLayout::of(NoteLayout::smallestSize(), {}).imageFits.back());
    }

    void opens()
    {
        const auto row = [](const char *name, const Screens &screens, const Sides &sides, const QRect &opened,
                            bool asStored) {
            const auto place = placeOf(sides, Dpi96.perPixel(), screens);
            compareRow(name, place.geometry, opened);
            compareRow(name, place.stored, asStored);
        };
        row("as stored", One, {100, 90, 210, 160}, {100, 90, 210, 160}, true);
        row("a pixel inside the upper left", One, {1, 1, 200, 150}, {1, 1, 200, 150}, true);
        row("a pixel inside the lower right", One, {799, 649, 200, 150}, {799, 649, 200, 150}, true);
        row("on the left edge", One, {0, 90, 200, 150}, {1, 90, 200, 150}, false);
        row("on the top edge", One, {100, 0, 200, 150}, {100, 1, 200, 150}, false);
        row("on the right edge", One, {800, 90, 200, 150}, {799, 90, 200, 150}, false);
        row("on the bottom edge", One, {100, 650, 200, 150}, {100, 649, 200, 150}, false);
        row("negative on the screen there", LeftOf, {-500, 90, 200, 150}, {-500, 90, 200, 150}, true);
        row("negative without one", One, {-500, 90, 200, 150}, {1, 90, 200, 150}, false);
        row("across two screens", Beside, {900, 90, 200, 150}, {900, 90, 200, 150}, true);
        row("the second screen is gone", One, {1500, 90, 200, 150}, {799, 90, 200, 150}, false);
        row("above a lower screen", Lower, {1500, 90, 200, 150}, {1500, 401, 200, 150}, false);
        row("title beside every screen", Lower, {100, 900, 200, 150}, {100, 649, 200, 150}, false);
        row("no place that is one", One, {Nan, 90, 200, 150}, {48, 48, 200, 150}, false);
        row("infinitely far", One, {100, -Infinite, 200, 150}, {48, 48, 200, 150}, false);
        row("very far", One, {3e30F, -3e30F, 200, 150}, {799, 1, 200, 150}, false);
        row("no size that is one", One, {100, 90, Nan, Infinite}, {100, 90, 200, 150}, true);
        row("zero and negative size", One, {100, 90, 0, -5}, {100, 90, 200, 150}, true);
        row("too small", One, {100, 90, 1, 1}, {QPoint(100, 90), NoteLayout::smallestSize()}, true);
        row("larger than the desktop", One, {100, 90, 1e9F, 5000}, {1, 1, 1000, 800}, false);
    }

    void isReachableWhateverIsStored_data()
    {
        const Rows<Screens> row;
        row("one", One);
        row("two", LeftOf);
        row("unequal", Lower);
        row("tiny", {QRect(5, 5, 60, 30)});
    }

    void isReachableWhateverIsStored()
    {
        const auto screens = std::get<0>(fetchRow<Screens>());
        using Limits = std::numeric_limits<float>;
        constexpr std::array Extremes{
            Nan, Infinite, -Infinite, 0.0F,     -0.0F, Limits::max(), Limits::lowest(), Limits::denorm_min(),
            1.F, -15.0F,   14985.0F,  32767.5F, 1.5e7F};
        constexpr size_t Count = Extremes.size();
        for (size_t code = 0; code < Count * Count * Count * Count; ++code) {
            const Sides sides{Extremes[code % Count], Extremes[code / Count % Count],
                              Extremes[code / Count / Count % Count], Extremes[code / Count / Count / Count]};
            const QRect at = placeOf(sides, 1, screens).geometry;
            const QRect title(at.topLeft(), QSize(at.width(), NoteLayout::rolledHeight()));
            const bool seen = std::any_of(screens.begin(), screens.end(), [&title](const QRect &screen) {
                const QRect part = screen.intersected(title);
                return part.width() >= 40 && part.height() == title.height();
            });
            QVERIFY2(seen && at.size().expandedTo(NoteLayout::smallestSize()) == at.size(),
                     qPrintable(QStringLiteral("%1 %2 %3 %4").arg(sides[0]).arg(sides[1]).arg(sides[2]).arg(sides[3])));
        }
    }
};

QTEST_APPLESS_MAIN(testNoteLayout)
#include "testNoteLayout.moc"
