// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/HeldKeys.h"
#include "platform/SystemChoosers.h"
#include "platform/SystemPrompts.h"
#include "support/failOnWarnings.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace
{

struct Stroke
{
    int key;
    quint64 milliseconds = 0;
    bool press = true;
    bool repeat = false; ///< Called so by the window system.
};

enum class Where
{
    Button,
    CheckBox,
    Text,
    Combo
};

} // namespace

class testPrompts final : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void boxesGoWithTheirOwners();
    void heldKeysDoOneThing_data();
    void heldKeysDoOneThing();
};

/// Whoever goes while a box or a chooser of its own is open takes it along; nothing was answered then.
void testPrompts::boxesGoWithTheirOwners()
{
    const auto whileOneIsOpen = [](auto ask) {
        auto *owner = new QWidget;
        owner->show();
        QTimer::singleShot(0, owner, [owner] { delete owner; });
        return ask(owner);
    };
    SystemPrompts boxes;
    SystemChoosers choosers;
    QVERIFY(whileOneIsOpen([&](QWidget *owner) { return boxes.ask({u"text"_s}, owner); }) == Prompts::Answer::Cancel);
    QVERIFY(!whileOneIsOpen([&](QWidget *owner) { return choosers.colour(Qt::red, owner); }));
    QVERIFY(!whileOneIsOpen([&](QWidget *owner) { return choosers.font(QFont(), owner); }));
    QVERIFY(!whileOneIsOpen([&](QWidget *owner) { return choosers.openFile({u"title"_s, {}, {}}, owner); }));
}

void testPrompts::heldKeysDoOneThing_data()
{
    QTest::addColumn<Where>("where");
    QTest::addColumn<QList<Stroke>>("strokes");
    QTest::addColumn<int>("pressed");
    QTest::addColumn<QString>("typed");
    const int blank = Qt::Key_Space;
    QTest::newRow("held, called a repeat")
        << Where::Button << QList<Stroke>{{blank}, {blank, 700, false, true}, {blank, 700, true, true}} << 1 << u""_s;
    QTest::newRow("held, not called so") << Where::Button << QList<Stroke>{{blank, 0}, {blank, 40}, {blank, 80}} << 1
                                         << u""_s;
    QTest::newRow("held, released with each repeat")
        << Where::Button << QList<Stroke>{{blank}, {blank, 700, false}, {blank, 700}, {blank, 740, false}, {blank, 740}}
        << 1 << u""_s;
    QTest::newRow("pressed anew") << Where::Button
                                  << QList<Stroke>{{blank}, {blank, 20, false}, {blank, 40}, {blank, 60, false}} << 1
                                  << u" "_s;
    QTest::newRow("another key between") << Where::Button << QList<Stroke>{{blank}, {Qt::Key_A, 10}, {blank, 20}} << 1
                                         << u"a "_s;
    const QList<Stroke> held{{blank}, {blank, 40}, {blank, 80, true, true}};
    QTest::newRow("held in a text") << Where::Text << held << 0 << u"   "_s;
    QTest::newRow("held in a combo box") << Where::Combo << held << 0 << u"   "_s;
    const QList<Stroke> twice{{blank}, {blank, 20, false}, {blank, 40}, {blank, 60, false}};
    QTest::newRow("twice on a check box") << Where::CheckBox << twice << 2 << u""_s;
}

void testPrompts::heldKeysDoOneThing()
{
    QFETCH(Where, where);
    QFETCH(QList<Stroke>, strokes);
    HeldKeys heldKeys;
    qApp->installEventFilter(&heldKeys);
    QWidget window;
    QPushButton button(&window);
    QCheckBox checkBox(&window);
    QPlainTextEdit text(&window);
    QComboBox combo(&window);
    combo.setEditable(true);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    int pressed = 0;
    // As a box does that a press has opened.
    connect(&button, &QPushButton::pressed, &window, [&] {
        ++pressed;
        text.setFocus();
    });
    connect(&checkBox, &QCheckBox::clicked, &window, [&] { ++pressed; });
    const QHash<Where, QWidget *> places{
        {Where::Button, &button}, {Where::CheckBox, &checkBox}, {Where::Text, &text}, {Where::Combo, &combo}};
    places[where]->setFocus();
    for (const Stroke &stroke : strokes) {
        QKeyEvent event(stroke.press ? QEvent::KeyPress : QEvent::KeyRelease, stroke.key, {},
                        stroke.key == Qt::Key_Space ? u" "_s : u"a"_s, stroke.repeat);
        event.setTimestamp(5000 + stroke.milliseconds);
        QCoreApplication::sendEvent(window.windowHandle(), &event);
    }
    QTEST(pressed, "pressed");
    QTEST(where == Where::Combo ? combo.currentText() : text.toPlainText(), "typed");
}

QTEST_MAIN(testPrompts)
#include "testPrompts.moc"
