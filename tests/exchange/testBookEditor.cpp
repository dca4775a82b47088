// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "exchange/frmBook.h"
#include "net/bookRules.h"
#include "support/ProgramFixture.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTreeWidget>

using namespace Qt::StringLiterals;
using Book = frmBook::Book;

class testBookEditor final : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_fixture.emplace();
        m_fixture->program.ProgramOptions.SendBook = path(Book::Send);
        m_fixture->program.ProgramOptions.AddressBook = path(Book::Address);
    }
    void cleanup()
    {
        m_editor.reset();
        m_fixture.reset();
    }

    void writtenBack_data()
    {
        const Rows<Book, QByteArray, QByteArray> row; // book, file, written
        row("hosts", Book::Send, QByteArray("# mine\nalias\tlab\t a.b@1420,c.d@1500 (big, x) ,\ralias e f.g"),
            QByteArray("alias lab a.b, c.d@1500 (big), x)\r\nalias e f.g\r\n"));
        row("addresses", Book::Address, QByteArray("alias ann Ann <a@b>, \"A B\" c@d\r\n"),
            QByteArray("alias ann a@b (Ann), c@d (A B)\r\n"));
    }

    void writtenBack()
    {
        const auto [book, file, written] = fetchRow<Book, QByteArray, QByteArray>();
        open(book, file);
        pressByKey(*m_editor, "cmdCancel");
        static_cast<void>(m_editor->GetBookResult());
        QCOMPARE(TestHome::contents(path(book)), file);
        open(book, file);
        press(*m_editor, "cmdOK");
        const BookResult result = m_editor->GetBookResult();
        QVERIFY(!result.isSelected && result.failure.isEmpty());
        QCOMPARE(TestHome::contents(path(book)), written);
    }

    void edits()
    {
        open(Book::Send, "alias New1 a.b\r\nalias gone x.y\r\n");
        press(*m_editor, "cmdAdd");
        QCOMPARE(aliases().topLevelItemCount(), 3);
        rename(2, u"  lab "_s);
        QTRY_COMPARE(aliases().topLevelItem(2)->text(0), u"lab"_s);
        QVERIFY(box().toPlainText().isEmpty());
        box().setPlainText(u"one.lan\n\ntwo.lan@1500"_s);
        aliases().setCurrentItem(aliases().topLevelItem(1));
        box().clear();
        aliases().setCurrentItem(aliases().topLevelItem(2));
        QCOMPARE(box().toPlainText(), u"one.lan\n\ntwo.lan@1500"_s);
        QCOMPARE(accepted(), QByteArray("alias New1 a.b\r\nalias lab one.lan, , two.lan@1500\r\n"));
    }

    void keyboard()
    {
        open(Book::Address, "alias ann a@b\r\n");
        press(*m_editor, "cmdAdd");
        for (const char *const typed : {"lab", "x@y.z"}) {
            QTest::keyClicks(QApplication::focusWidget(), QLatin1StringView(typed));
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(QApplication::focusWidget()->objectName(), u"cmdAdd"_s);
        QTest::keyClick(m_editor.get(), Qt::Key_D, Qt::AltModifier);
        QCOMPARE(QApplication::focusWidget(), &box());
        pressByKey(*m_editor, "cmdOK");
        static_cast<void>(m_editor->GetBookResult());
        QCOMPARE(TestHome::contents(path(Book::Address)), QByteArray("alias ann a@b\r\nalias lab x@y.z\r\n"));
    }

    void refusedNames()
    {
        for (const auto &[typed, left] : {std::pair(u"BOB"_s, u"lab"_s), {u"  "_s, u"New2"_s}}) {
            open(Book::Send, "alias bob a.b\r\nalias lab c.d\r\n");
            const Message told = m_fixture->boxOf([this, &name = typed] { rename(1, name); });
            QVERIFY(told.caption == u"Error" && told.icon == Message::Icon::Critical);
            QTRY_COMPARE(aliases().topLevelItem(1)->text(0), left);
            QVERIFY(m_editor->isVisible());
        }
        rename(1, u"LAB"_s);
        QTRY_COMPARE(aliases().topLevelItem(1)->text(0), u"LAB"_s);
    }

    void selecting()
    {
        open(Book::Send, "alias bob a.b@1500, c.d\r\n");
        box().setPlainText(u"  \n"_s);
        QCOMPARE(boxOf("cmdSelect").text, u"You have no associated address with this alias."_s);
        QVERIFY(m_editor->isVisible());
        box().setPlainText(u"e.f\n"_s);
        press(*m_editor, "cmdSelect");
        const BookResult result = m_editor->GetBookResult();
        QVERIFY(!m_editor->isVisible() && result.isSelected);
        QCOMPARE(result.alias, u"bob"_s);
        QCOMPARE(TestHome::contents(path(Book::Send)), QByteArray("alias bob e.f\r\n"));
    }

    void deleting()
    {
        open(Book::Send, "alias bob a.b\r\nalias lab c.d\r\n");
        const Message question =
            m_fixture->boxOf([this] { pressByKey(*m_editor, "cmdDelete"); }, Prompts::Answer::Cancel);
        QCOMPARE(question.text, u"Delete alias 'bob' ?"_s);
        QCOMPARE(question.buttons, Message::Buttons::OkCancel);
        QCOMPARE(aliases().topLevelItemCount(), 2);
        boxOf("cmdDelete");
        boxOf("cmdDelete");
        press(*m_editor, "cmdDelete");
        QCOMPARE(accepted(), QByteArray());
    }

    void emptyBook()
    {
        open(Book::Address, "no alias here");
        QWidget *paper = control<QPlainTextEdit>(*m_editor, "txtNoAddress").viewport();
        for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton})
            QCOMPARE(m_fixture->boxOf([paper, button] { QTest::mouseClick(paper, button); }).text,
                     u"Please add an alias name before proceeding."_s);
    }

    void wideCharacters()
    {
        open(Book::Send, "alias bob a.b\r\nalias lab c.d\r\n");
        aliases().setCurrentItem(aliases().topLevelItem(1));
        box().setPlainText(u"c.d (\u0141\u00F3d\u017A)"_s);
        for (const char *button : {"cmdOK", "cmdSelect"}) {
            QVERIFY(boxOf(button).text.contains(u"\"\u0141\""));
            QVERIFY(m_editor->isVisible());
        }
        box().setPlainText(u"c.d (L\u00F3dz)"_s);
        QCOMPARE(accepted(), QByteArray("alias bob a.b\r\nalias lab c.d (L\xF3") + "dz)\r\n");
    }

    void unreadableFileIsKept()
    {
        const QByteArray alias("alias a b.c\r\n");
        open(Book::Send, alias + QByteArray(5'000'000, '#'));
        QCOMPARE(aliases().topLevelItemCount(), 1);
        open(Book::Send, alias + QByteArray(bookFile::MaximumBytes, '#'));
        QCOMPARE(aliases().topLevelItemCount(), 0);
        press(*m_editor, "cmdOK");
        QVERIFY(m_editor->GetBookResult().failure.isEmpty());
        QCOMPARE(QDir(m_fixture->home.paths.DataFolder).entryList({u"host-*-unreadable.txt"_s}).size(), 1);
    }

private:
    Message boxOf(const char *button, Prompts::Answer answer = Prompts::Answer::Ok)
    {
        return m_fixture->boxOf([this, button] { press(*m_editor, button); }, answer);
    }
    /// The send book, once OK is pressed.
    QByteArray accepted() const
    {
        press(*m_editor, "cmdOK");
        static_cast<void>(m_editor->GetBookResult());
        return TestHome::contents(path(Book::Send));
    }
    void open(Book book, const QByteArray &file)
    {
        TestHome::setContents(path(book), file);
        m_editor = std::make_unique<frmBook>(m_fixture->program, nullptr);
        m_editor->Initialize(book);
        m_editor->show();
        QVERIFY(QTest::qWaitForWindowActive(m_editor.get()));
    }

    QTreeWidget &aliases() const { return control<QTreeWidget>(*m_editor, "treAddress"); }
    /// The addresses that are seen.
    QPlainTextEdit &box() const
    {
        const int place = aliases().indexOfTopLevelItem(aliases().currentItem());
        return control<QPlainTextEdit>(*m_editor, qPrintable(u"txtAddress(%1)"_s.arg(place)));
    }

    /// Types a name over that of an alias.
    void rename(int place, const QString &text) const
    {
        aliases().setCurrentItem(aliases().topLevelItem(place));
        auto *line = aliases().findChild<QLineEdit *>();
        if (line == nullptr) {
            aliases().setFocus();
            QTest::keyClick(&aliases(), Qt::Key_F2);
            line = aliases().findChild<QLineEdit *>();
        }
        QVERIFY(line != nullptr);
        line->setText(text);
        QTest::keyClick(line, Qt::Key_Return);
        QCoreApplication::processEvents();
    }

    QString path(Book book) const
    {
        return book == Book::Send ? m_fixture->home.paths.SendBookFile : m_fixture->home.paths.AddressBookFile;
    }

    std::optional<ProgramFixture> m_fixture;
    std::unique_ptr<frmBook> m_editor;
};

QTEST_MAIN(testBookEditor)
#include "testBookEditor.moc"
