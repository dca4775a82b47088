// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "exchange/frmBook.h"
#include "net/bookRules.h"
#include "support/TestHome.h"
#include "support/TestProgram.h"
#include "support/answerDialog.h"
#include "support/failOnWarnings.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTreeWidget>

using namespace Qt::StringLiterals;
using Book = frmBook::Book;

class testBookEditor final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void writtenBack_data();
    void writtenBack();
    void edits();
    void keyboard();
    void refusedNames_data();
    void refusedNames();
    void selecting();
    void deleting();
    void emptyBook();
    void wideCharacters();
    void unreadableFileIsKept();

private:
    void open(Book book, const QByteArray &file);
    QTreeWidget &aliases() const { return control<QTreeWidget>(*m_editor, "treAddress"); }
    QPlainTextEdit &box() const;
    void rename(int place, const QString &text) const;
    QString path(Book book) const
    {
        return book == Book::Send ? m_home->paths.SendBookFile : m_home->paths.AddressBookFile;
    }

    std::unique_ptr<TestHome> m_home;
    std::unique_ptr<TestProgram> m_test;
    std::unique_ptr<frmBook> m_editor;
};

void testBookEditor::init()
{
    failOnWarnings();
    m_home = std::make_unique<TestHome>();
    m_test = std::make_unique<TestProgram>(QDateTime(QDate(2026, 3, 1), QTime(12, 0)), m_home->paths);
    m_test->program.ProgramOptions.SendBook = path(Book::Send);
    m_test->program.ProgramOptions.AddressBook = path(Book::Address);
}

void testBookEditor::cleanup()
{
    m_editor.reset();
    QVERIFY(m_test->prompts.isDone());
}

void testBookEditor::open(Book book, const QByteArray &file)
{
    TestHome::setContents(path(book), file);
    m_editor = std::make_unique<frmBook>(m_test->program, nullptr);
    m_editor->Initialize(book);
    m_editor->show();
    QVERIFY(QTest::qWaitForWindowActive(m_editor.get()));
}

/// The addresses that are seen.
QPlainTextEdit &testBookEditor::box() const
{
    const int place = aliases().indexOfTopLevelItem(aliases().currentItem());
    return control<QPlainTextEdit>(*m_editor, qPrintable(u"txtAddress(%1)"_s.arg(place)));
}

/// Types a name over that of an alias.
void testBookEditor::rename(int place, const QString &text) const
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

void testBookEditor::writtenBack_data()
{
    QTest::addColumn<Book>("book");
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QByteArray>("written");
    QTest::newRow("hosts") << Book::Send << QByteArray("# mine\nalias\tlab\t a.b@1420,c.d@1500 (big, x) ,\ralias e f.g")
                           << QByteArray("alias lab a.b, c.d@1500 (big), x)\r\nalias e f.g\r\n");
    QTest::newRow("addresses") << Book::Address << QByteArray("alias ann Ann <a@b>, \"A B\" c@d\r\n")
                               << QByteArray("alias ann a@b (Ann), c@d (A B)\r\n");
    QTest::newRow("single bytes") << Book::Send << QByteArray("alias Andr\xE9 \xC4.b (\xC3\xA9\x80)\r\n")
                                  << QByteArray("alias Andr\xE9 \xC4.b (\xC3\xA9\x80)\r\n");
    QTest::newRow("marked") << Book::Send
                            << QByteArray("\xEF\xBB\xBF"
                                          "alias \xC5\x81ucja a.b\r\n")
                            << QByteArray("\xEF\xBB\xBF"
                                          "alias \xC5\x81ucja a.b\r\n");
}

void testBookEditor::writtenBack()
{
    QFETCH(Book, book);
    QFETCH(QByteArray, file);
    open(book, file);
    pressByKey(*m_editor, "cmdCancel");
    static_cast<void>(m_editor->GetBookResult());
    QCOMPARE(TestHome::contents(path(book)), file);
    open(book, file);
    press(*m_editor, "cmdOK");
    const BookResult result = m_editor->GetBookResult();
    QVERIFY(!result.isSelected && result.failure.isEmpty());
    QTEST(TestHome::contents(path(book)), "written");
}

void testBookEditor::edits()
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
    press(*m_editor, "cmdOK");
    static_cast<void>(m_editor->GetBookResult());
    QCOMPARE(TestHome::contents(path(Book::Send)),
             QByteArray("alias New1 a.b\r\nalias lab one.lan, , two.lan@1500\r\n"));
}

void testBookEditor::keyboard()
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
    press(*m_editor, "cmdOK");
    static_cast<void>(m_editor->GetBookResult());
    QCOMPARE(TestHome::contents(path(Book::Address)), QByteArray("alias ann a@b\r\nalias lab x@y.z\r\n"));
}

void testBookEditor::refusedNames_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("name");
    QTest::newRow("blanks") << u"  "_s << u"An alias name must not be all spaces"_s << u"New2"_s;
    QTest::newRow("a blank in it") << u"the lab"_s << u"An alias name must not contain spaces"_s << u"lab"_s;
    QTest::newRow("another's") << u"BOB"_s
                               << u"There is already another alias with that name. \nPlease choose a different name. "_s
                               << u"lab"_s;
    QTest::newRow("its own") << u"LAB"_s << QString() << u"LAB"_s;
}

void testBookEditor::refusedNames()
{
    QFETCH(QString, typed);
    QFETCH(QString, text);
    QFETCH(QString, name);
    open(Book::Send, "alias bob a.b\r\nalias lab c.d\r\n");
    if (!text.isEmpty())
        m_test->prompts.expect(Prompts::Answer::Ok);
    rename(1, typed);
    QTRY_VERIFY(m_test->prompts.isDone());
    if (!text.isEmpty())
        QCOMPARE(m_test->prompts.last, (Message{text, u"Error"_s, Message::Icon::Critical}));
    QTRY_COMPARE(aliases().topLevelItem(1)->text(0), name);
    QVERIFY(m_editor->isVisible());
}

void testBookEditor::selecting()
{
    open(Book::Send, "alias bob a.b@1500, c.d\r\n");
    box().setPlainText(u"  \n"_s);
    m_test->prompts.expect(Prompts::Answer::Ok);
    press(*m_editor, "cmdSelect");
    QCOMPARE(m_test->prompts.last.text, u"You have no associated address with this alias."_s);
    QVERIFY(m_editor->isVisible());
    box().setPlainText(u"e.f\n"_s);
    press(*m_editor, "cmdSelect");
    const BookResult result = m_editor->GetBookResult();
    QVERIFY(!m_editor->isVisible() && result.isSelected);
    QCOMPARE(result.alias, u"bob"_s);
    QCOMPARE(TestHome::contents(path(Book::Send)), QByteArray("alias bob e.f\r\n"));
}

void testBookEditor::deleting()
{
    open(Book::Send, "alias bob a.b\r\nalias lab c.d\r\n");
    m_test->prompts.expect(Prompts::Answer::Cancel);
    pressByKey(*m_editor, "cmdDelete");
    QCOMPARE(m_test->prompts.last.text, u"Delete alias 'bob' ?"_s);
    QCOMPARE(m_test->prompts.last.buttons, Message::Buttons::OkCancel);
    QCOMPARE(aliases().topLevelItemCount(), 2);
    for (int left = 2; left > 0; --left) {
        m_test->prompts.expect(Prompts::Answer::Ok);
        press(*m_editor, "cmdDelete");
    }
    press(*m_editor, "cmdDelete");
    press(*m_editor, "cmdOK");
    static_cast<void>(m_editor->GetBookResult());
    QCOMPARE(TestHome::contents(path(Book::Send)), QByteArray());
}

void testBookEditor::emptyBook()
{
    open(Book::Address, "no alias here");
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
        m_test->prompts.expect(Prompts::Answer::Ok);
        QTest::mouseClick(control<QPlainTextEdit>(*m_editor, "txtNoAddress").viewport(), button);
        QTRY_VERIFY(m_test->prompts.isDone());
        QCOMPARE(m_test->prompts.last.text, u"Please add an alias name before proceeding."_s);
    }
}

void testBookEditor::wideCharacters()
{
    open(Book::Send, "alias bob a.b\r\nalias lab c.d\r\n");
    aliases().setCurrentItem(aliases().topLevelItem(1));
    box().setPlainText(u"c.d (\u0141\u00F3d\u017A)"_s);
    for (const char *button : {"cmdOK", "cmdSelect"}) {
        m_test->prompts.expect(Prompts::Answer::Ok);
        press(*m_editor, button);
        QVERIFY(m_editor->isVisible() && m_test->prompts.isDone());
        QVERIFY(m_test->prompts.last.text.contains(u"\"\u0141\""));
    }
    box().setPlainText(u"c.d (L\u00F3dz)"_s);
    press(*m_editor, "cmdOK");
    static_cast<void>(m_editor->GetBookResult());
    QCOMPARE(TestHome::contents(path(Book::Send)), QByteArray("alias bob a.b\r\nalias lab c.d (L\xF3"
                                                              "dz)\r\n"));
}

void testBookEditor::unreadableFileIsKept()
{
    const QByteArray large("alias a b.c\r\n" + QByteArray(5'000'000, '#'));
    open(Book::Send, large);
    QCOMPARE(aliases().topLevelItemCount(), 1);
    TestHome::setContents(path(Book::Send), "other");
    QVERIFY(QFile::resize(path(Book::Send), bookFile::MaximumBytes + 1));
    m_editor = std::make_unique<frmBook>(m_test->program, nullptr);
    m_editor->Initialize(Book::Send);
    m_editor->show();
    QCOMPARE(aliases().topLevelItemCount(), 0);
    press(*m_editor, "cmdOK");
    QVERIFY(m_editor->GetBookResult().failure.isEmpty());
    QCOMPARE(QDir(m_home->paths.DataFolder).entryList({u"host-*-unreadable.txt"_s}).size(), 1);
}

QTEST_MAIN(testBookEditor)
#include "testBookEditor.moc"
