// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "controls/ModalDialog.h"
#include "controls/dialogButtons.h"
#include "forms/PlainNote.h"
#include "support/TestProgram.h"
#include "support/answerDialog.h"

#include <QProxyStyle>
#include <QPushButton>

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

class testModalDialog final : public QObject
{
    Q_OBJECT

private slots:
    void notesWaitForTheLastDialog();
    void dialogMayGoWithItsBox();
    void buttonsHaveNoIcons();
};

void testModalDialog::notesWaitForTheLastDialog()
{
    for (const bool together : {false, true}) {
        TestProgram test({});
        const PlainNote note(test.program, 1);
        auto outer = std::make_unique<Dialog>(test.program, nullptr);
        auto *inner = new Dialog(test.program, outer.get());
        if (!together)
            delete inner;
        QVERIFY(!note.isVisible());
        outer.reset();
        QVERIFY(note.isVisible());
    }
}

void testModalDialog::dialogMayGoWithItsBox()
{
    TestProgram test({});
    auto dialog = std::make_unique<Dialog>(test.program, nullptr);
    dialog->flaw = Flaw{{u"Wrong."_s}, dialog->buttons};
    test.prompts.expect(Prompts::Answer::Ok);
    test.prompts.whileOpen = [&dialog] { dialog.reset(); };
    QMetaObject::invokeMethod(dialog->buttons, &QDialogButtonBox::accepted);
    QVERIFY(dialog == nullptr && test.prompts.isDone());
}

void testModalDialog::buttonsHaveNoIcons()
{
    QApplication::setStyle(new IconStyle);
    TestProgram test({});
    const Dialog dialog(test.program, nullptr);
    for (const char *name : {"OKButton", "No"})
        QVERIFY(control<QPushButton>(dialog, name).icon().isNull());
}

QTEST_MAIN(testModalDialog)
#include "testModalDialog.moc"
