// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/ModalDialog.h"
#include "net/bookFile.h"
#include "platform/WindowDrag.h"

class AddressBoxes;
class QTreeWidget;
class QTreeWidgetItem;
class SizeGrip;

/// What the editor of a book was left with.
struct BookResult
{
    QString alias{};
    QString addresses{}; ///< One a line.
    bool isSelected = false;
    QString failure{}; ///< Why the book could not be saved; empty when it was, or was not to be.
};

/// Edits the address book or the send book: its aliases, and what each stands for. The file is read when the window is
/// made and written as a whole when OK or Select closed it.
class frmBook final : public ModalDialog
{
    Q_OBJECT

public:
    enum class Book
    {
        Address,
        Send
    };

    frmBook(Program &program, QWidget *owner);

    BookResult GetBookResult();
    void Initialize(Book book);

protected:
    std::optional<Flaw> findFlaw() override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QWidget *makeAliases();
    QWidget *makeAddresses();
    QLayout *makeButtons();
    QString path() const;
    QTreeWidgetItem *addAlias(const QString &name, const QString &lines);
    QStringList names() const;
    QList<BookLine> bookLines() const;
    void add();
    void rename(QTreeWidgetItem *item);
    void setName(QTreeWidgetItem *item, const QString &name);
    void remove();
    void select();
    void accept() override;

    Book m_book = Book::Address;
    WindowDrag m_drag;
    QTreeWidget *m_aliases = nullptr;    // treAddress
    AddressBoxes *m_addresses = nullptr; // txtAddress
    SizeGrip *m_grip;                    // imgResize
    int m_lastNew = 0;                   ///< Running number of aliases that were added.
    bool m_isNaming = false;             ///< The program changes the text of an alias.
    BookResult m_result;
};
