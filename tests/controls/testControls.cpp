// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "controls/ModalDialog.h"
#include "controls/SizeGrip.h"
#include "controls/dialogButtons.h"
#include "forms/PlainNote.h"
#include "platform/WindowDrag.h"
#include "support/ProgramFixture.h"

#include <QProxyStyle>
#include <QPushButton>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace
{

class Dialog final : public ModalDialog
{
public:
    Dialog(Program &program, QWidget *owner) : ModalDialog(program, u"frmTest", u"Test"_s, owner)
    {
        buttons = dialogButtons::make(*this, {{QDialogButtonBox::Ok, "OKButton"}, {QDialogButtonBox::Cancel, "No"}});
        show();
    }
    std::optional<Flaw> findFlaw() override { return flaw; }

    QDialogButtonBox *buttons;
    std::optional<Flaw> flaw;
};

/// As desktops are that have icons for buttons.
class IconStyle final : public QProxyStyle
{
public:
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *result) const override
    {
        return hint == SH_DialogButtonBox_ButtonsHaveIcons ? 1 : QProxyStyle::styleHint(hint, option, widget, result);
    }
};

} // namespace

class testControls final : public QObject
{
    Q_OBJECT

private slots:
    void notesWaitForTheLastDialog()
    {
        for (const bool together : {false, true}) {
            ProgramFixture f;
            const PlainNote note(f.program, 1);
            auto outer = std::make_unique<Dialog>(f.program, nullptr);
            auto *inner = new Dialog(f.program, outer.get());
            if (!together)
                delete inner;
            QVERIFY(!note.isVisible());
            outer.reset();
            QVERIFY(note.isVisible());
        }
    }

    void dialogMayGoWithItsBox()
    {
        ProgramFixture f;
        auto dialog = std::make_unique<Dialog>(f.program, nullptr);
        dialog->flaw = Flaw{{u"Wrong."_s}, dialog->buttons};
        f.test.prompts.whileOpen = [&dialog] { dialog.reset(); };
        f.boxOf([&dialog] { QMetaObject::invokeMethod(dialog->buttons, &QDialogButtonBox::accepted); });
        QVERIFY(dialog == nullptr);
    }

    void buttonsHaveNoIcons()
    {
        QApplication::setStyle(new IconStyle);
        ProgramFixture f;
        const Dialog dialog(f.program, nullptr);
        for (const char *name : {"OKButton", "No"})
            QVERIFY(control<QPushButton>(dialog, name).icon().isNull());
    }

    void gripDragsToTheLeastSize()
    {
        QWidget window(nullptr, Qt::FramelessWindowHint);
        WindowDrag drag(window);
        drag.setLimits({80, 60}, WindowDrag::Height::Free);
        const Pictures pictures(QStringLiteral(TEST_RESOURCES "/images"));
        SizeGrip grip(pictures, drag, &window);
        grip.setInk(Qt::black);
        QVERIFY(!grip.pixmap().isNull());
        grip.setGeometry(84, 84, 16, 16);
        window.setGeometry(200, 200, 100, 100);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const QSignalSpy sized(&grip, &SizeGrip::sized);
        QTest::mouseClick(&grip, Qt::LeftButton);
        QTest::mousePress(&grip, Qt::RightButton, {}, {8, 8});
        QTest::mouseRelease(&grip, Qt::RightButton, {}, {50, 50});
        QVERIFY(sized.isEmpty() && window.size() == QSize(100, 100));
        QTest::mousePress(&grip, Qt::LeftButton, {}, {8, 8});
        QTest::mouseRelease(&grip, Qt::LeftButton, {}, {38, -92}); // The release alone brings the last step.
        QCOMPARE(window.geometry(), QRect(200, 200, 130, 60));
        QCOMPARE(sized.count(), 1);
    }
};

QTEST_MAIN(testControls)
#include "testControls.moc"
