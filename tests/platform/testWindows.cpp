// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/HeldKeys.h"
#include "platform/SystemChoosers.h"
#include "platform/SystemPrompts.h"
#include "platform/WindowDrag.h"
#include "support/compareRow.h"
#include "support/failOnWarnings.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>

using namespace Qt::StringLiterals;
using HitTest = WindowDrag::HitTest;
using Height = WindowDrag::Height;

namespace
{

struct Stroke
{
    quint64 milliseconds;
    bool press = true;
    bool repeat = false; ///< Called so by the window system.
    int key = Qt::Key_Space;
};

/// A window with a button, which does what a box does that a press has opened: it takes the focus.
struct Window : QWidget
{
    Window()
    {
        combo.setEditable(true);
        connect(&button, &QPushButton::pressed, this, [this] {
            ++pressed;
            text.setFocus();
        });
        connect(&checkBox, &QCheckBox::clicked, this, [this] { ++pressed; });
        show();
    }
    void type(QWidget &into, const QList<Stroke> &strokes)
    {
        into.setFocus();
        for (const Stroke &stroke : strokes) {
            QKeyEvent event(stroke.press ? QEvent::KeyPress : QEvent::KeyRelease, stroke.key, {},
                            stroke.key == Qt::Key_Space ? u" "_s : u"a"_s, stroke.repeat);
            event.setTimestamp(5000 + stroke.milliseconds);
            QCoreApplication::sendEvent(windowHandle(), &event);
        }
    }

    QPushButton button{this};
    QCheckBox checkBox{this};
    QPlainTextEdit text{this};
    QComboBox combo{this};
    int pressed = 0;
};

const QRect Start(200, 100, 300, 200);
constexpr QPoint Held(40, 50);

} // namespace

/// Boxes, keys and drags, where the window system leaves them to the program.
class testWindows final : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }

    /// Whoever goes while a box or a chooser of its own is open takes it along; nothing was answered then.
    void boxesGoWithTheirOwners()
    {
        const auto whileOneIsOpen = [](auto ask) {
            auto *owner = new QWidget;
            owner->show();
            QTimer::singleShot(0, owner, [owner] { delete owner; });
            return ask(owner);
        };
        SystemPrompts boxes;
        SystemChoosers choosers;
        QVERIFY(whileOneIsOpen([&](QWidget *owner) { return boxes.ask({u"text"_s}, owner); }) ==
                Prompts::Answer::Cancel);
        QVERIFY(!whileOneIsOpen([&](QWidget *owner) { return choosers.colour(Qt::red, owner); }));
        QVERIFY(!whileOneIsOpen([&](QWidget *owner) { return choosers.font(QFont(), owner); }));
        QVERIFY(!whileOneIsOpen([&](QWidget *owner) { return choosers.openFile({u"title"_s, {}, {}}, owner); }));
    }

    void heldKeysDoOneThing()
    {
        const auto row = [](const char *name, auto place, const QList<Stroke> &strokes, int pressed,
                            const QString &typed) {
            HeldKeys heldKeys;
            qApp->installEventFilter(&heldKeys);
            Window window;
            QVERIFY(QTest::qWaitForWindowActive(&window));
            window.type(window.*place, strokes);
            compareRow(name, window.pressed, pressed);
            compareRow(name, window.text.toPlainText() + window.combo.currentText(), typed);
        };
        const QList<Stroke> held{{0}, {40}, {80, true, true}};
        const QList<Stroke> twice{{0}, {20, false}, {40}, {60, false}};
        row("held, called a repeat", &Window::button, {{0}, {700, false, true}, {700, true, true}}, 1, {});
        row("held, not called so", &Window::button, {{0}, {40}, {80}}, 1, {});
        row("held, released at each repeat", &Window::button, {{0}, {700, false}, {700}, {740, false}, {740}}, 1, {});
        row("pressed anew", &Window::button, twice, 1, u" "_s);
        row("another key between", &Window::button, {{0}, {10, true, false, Qt::Key_A}, {20}}, 1, u"a "_s);
        row("held in a text", &Window::text, held, 0, u"   "_s);
        row("held in a combo box", &Window::combo, held, 0, u"   "_s);
        row("twice on a check box", &Window::checkBox, twice, 2, {});
    }

    void draggedEdges()
    {
        const auto row = [](const char *name, HitTest held, QPoint by, QRect expected, Height height = Height::Free) {
            QWidget window;
            window.setGeometry(Start);
            WindowDrag drag(window);
            drag.setLimits({120, 80}, height);
            QVERIFY2(!drag.move(Held + by) && window.geometry() == Start, name);
            drag.press(held, Held);
            drag.move(Held + by / 2); // A drag goes from where it began, not from step to step.
            drag.move(Held + by);
            compareRow(name, window.geometry(), expected);
            QVERIFY2(!drag.move(Held + by), name);
            compareRow(name, drag.release(), expected != Start);
            QVERIFY2(!drag.isActive() && !drag.move(Held) && !drag.release(), name);
        };
        row("caption", HitTest::Caption, {-300, 15}, {-100, 115, 300, 200});
        row("left", HitTest::Left, {-20, 9}, {180, 100, 320, 200});
        row("left beyond the smallest", HitTest::Left, {500, 0}, {380, 100, 120, 200});
        row("right", HitTest::Right, {30, 9}, {200, 100, 330, 200});
        row("right beyond the smallest", HitTest::Right, {-500, 0}, {200, 100, 120, 200});
        row("top", HitTest::Top, {9, -10}, {200, 90, 300, 210});
        row("top beyond the smallest", HitTest::Top, {0, 500}, {200, 220, 300, 80});
        row("bottom", HitTest::Bottom, {9, 25}, {200, 100, 300, 225});
        row("bottom beyond the smallest", HitTest::Bottom, {0, -500}, {200, 100, 300, 80});
        row("top left", HitTest::TopLeft, {10, 20}, {210, 120, 290, 180});
        row("top right", HitTest::TopRight, {10, 20}, {200, 120, 310, 180});
        row("bottom left", HitTest::BottomLeft, {10, 20}, {210, 100, 290, 220});
        row("bottom right beyond the smallest", HitTest::BottomRight, {-999, -999}, {200, 100, 120, 80});
        row("corner of a rolled note", HitTest::BottomRight, {10, 20}, {200, 100, 310, 200}, Height::Fixed);
        row("top of a rolled note", HitTest::Top, {10, 20}, Start, Height::Fixed);
    }

    void dragComesBack()
    {
        QWidget window;
        window.setGeometry(Start);
        WindowDrag drag(window);
        drag.setLimits({120, 80}, Height::Free);
        drag.press(HitTest::BottomRight, Held);
        QVERIFY(drag.move(Held - QPoint(999, 999)) && drag.move(Held) && window.geometry() == Start);
        drag.release();
        drag.press(HitTest::Caption, Held);
        QVERIFY(!drag.release());
    }

    void draggedWindowMayGo()
    {
        auto window = std::make_unique<QWidget>();
        WindowDrag drag(*window);
        drag.press(HitTest::Caption, Held);
        window.reset();
        QVERIFY(!drag.move({}) && !drag.settle() && !drag.release());
    }
};

QTEST_MAIN(testWindows)
#include "testWindows.moc"
