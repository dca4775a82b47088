// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notestack/StackFixture.h"
#include "restore/frmRestore.h"
#include "shell/frmMenu.h"
#include "support/answerDialog.h"

#include <QMenu>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace
{

struct Fixture
{
    StackFixture f;
    frmMenu panel{f.program};

    Fixture() { panel.show(); }
    QWidget *row() const { return panel.findChild<QLabel *>(u"lblSave"_s)->parentWidget(); }
};

void rightClick(QWidget &target, QContextMenuEvent::Reason reason)
{
    QContextMenuEvent event(reason, QPoint(5, 5), target.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&target, &event);
}

} // namespace

class testPanelMenu final : public QObject
{
    Q_OBJECT

private slots:
    void leadsToTheCopies_data();
    void leadsToTheCopies();
    void leadsThereFromTheStack();
};

void testPanelMenu::leadsToTheCopies_data()
{
    QTest::addColumn<std::function<void(Fixture &)>>("open");
    const auto row = [](const char *name, const std::function<void(Fixture &)> &open) { QTest::newRow(name) << open; };
    row("a click on the panel", [](Fixture &t) { rightClick(t.panel, QContextMenuEvent::Mouse); });
    row("a click on a row", [](Fixture &t) { rightClick(*t.row(), QContextMenuEvent::Mouse); });
    row("the Menu key", [](Fixture &t) { rightClick(*t.row(), QContextMenuEvent::Keyboard); });
    row("its other keys", [](Fixture &t) {
        t.panel.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&t.panel));
        QTest::keyClick(t.panel.focusWidget(), Qt::Key_F10, Qt::ShiftModifier);
    });
}

void testPanelMenu::leadsToTheCopies()
{
    QFETCH(std::function<void(Fixture &)>, open);
    Fixture t;
    open(t);
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    QVERIFY(menu != nullptr && menu->objectName() == u"mnuPanel");
    bool opened = false;
    menu->findChild<QAction *>(u"mnuRestore"_s)->trigger();
    menu->close();
    // The command comes from the event loop.
    QTimer::singleShot(0, qApp, [&opened] {
        answerDialog(frmRestore::Name.toString(), [&opened](QDialog &dialog) {
            opened = true;
            dialog.reject();
        });
    });
    QTRY_VERIFY(opened);
}

/// There with an empty NoteStack too.
void testPanelMenu::leadsThereFromTheStack()
{
    Fixture t;
    bool opened = false;
    QTimer::singleShot(0, qApp, [&opened] {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(menu != nullptr);
        menu->setActiveAction(menu->findChild<QAction *>(u"mnuRestore"_s));
        answerDialog(frmRestore::Name.toString(), [&opened](QDialog &dialog) {
            opened = true;
            dialog.reject();
        });
        QTest::keyClick(menu, Qt::Key_Return);
    });
    control<QToolButton>(t.f.stack, "cmdTabList").click();
    QVERIFY(opened);
}

QTEST_MAIN(testPanelMenu)
#include "testPanelMenu.moc"
