// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "exchange/frmBook.h"

#include "controls/SizeGrip.h"
#include "exchange/AddressBoxes.h"
#include "exchange/noticeBox.h"
#include "forms/Program.h"
#include "forms/modFormsTexts.h"
#include "net/bookRules.h"
#include "net/modEmail.h"
#include "net/modSend.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QTreeWidget>

namespace
{

constexpr int Margin = 14;
constexpr int GripSide = 16;
constexpr QSize UsualSize(520, 340);
constexpr QSize SmallestSize(380, 240);
constexpr int NameRole = Qt::UserRole; ///< Of an alias: its name before it is edited.

QList<BookAlias> aliasesOf(const QList<BookLine> &lines, frmBook::Book book)
{
    return book == frmBook::Book::Send ? bookRules::aliasesOf(modSend::entriesOf(lines), modSend::editorLine)
                                       : bookRules::aliasesOf(modEmail::entriesOf(lines), modEmail::editorLine);
}

QPushButton *button(const char *name, const QString &caption, QWidget *parent)
{
    auto *made = new QPushButton(caption, parent);
    made->setObjectName(QLatin1String(name));
    return made;
}

/// Tab leads from a name to its addresses, not into the name of the next alias.
class AliasTree final : public QTreeWidget
{
public:
    using QTreeWidget::QTreeWidget;

protected:
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override
    {
        const bool isTab = hint == QAbstractItemDelegate::EditNextItem;
        const bool isBackTab = hint == QAbstractItemDelegate::EditPreviousItem;
        QTreeWidget::closeEditor(editor, isTab || isBackTab ? QAbstractItemDelegate::NoHint : hint);
        if (isTab)
            focusNextChild();
    }
};

} // namespace

frmBook::frmBook(Program &program, QWidget *owner)
    : ModalDialog(program, u"frmBook", tr("Book"), owner), m_drag(*this),
      m_grip(new SizeGrip(program.pictures(), m_drag, this))
{
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(Margin);
    layout->addWidget(makeAliases(), 0, 0);
    layout->addWidget(makeAddresses(), 0, 1);
    layout->addLayout(makeButtons(), 1, 0, 1, 2);
    layout->setColumnStretch(0, 2);
    layout->setColumnStretch(1, 3);
    QColor ink = palette().color(QPalette::WindowText);
    ink.setAlphaF(0.45F);
    m_grip->setInk(ink);
    m_drag.setLimits(SmallestSize, WindowDrag::Height::Free);
    setMinimumSize(SmallestSize);
    resize(UsualSize);
}

QWidget *frmBook::makeAliases()
{
    auto *column = new QWidget(this);
    m_aliases = new AliasTree(column);
    m_aliases->setObjectName(QStringLiteral("treAddress"));
    m_aliases->setHeaderHidden(true);
    m_aliases->setRootIsDecorated(false);
    m_aliases->setUniformRowHeights(true);
    m_aliases->setTabKeyNavigation(false);
    auto *caption = new QLabel(tr("&Alias(es):"), column);
    caption->setObjectName(QStringLiteral("lblAlias"));
    caption->setBuddy(m_aliases);
    auto *layout = new QVBoxLayout(column);
    layout->setContentsMargins({});
    layout->addWidget(caption);
    layout->addWidget(m_aliases);
    connect(m_aliases, &QTreeWidget::currentItemChanged, this,
            [this](QTreeWidgetItem *now) { m_addresses->show(now); });
    connect(m_aliases, &QTreeWidget::itemChanged, this, &frmBook::rename);
    return column;
}

QWidget *frmBook::makeAddresses()
{
    auto *column = new QWidget(this);
    m_addresses = new AddressBoxes(column);
    auto *caption = new QLabel(tr("A&ddress(es):"), column);
    caption->setObjectName(QStringLiteral("lblAddress"));
    caption->setBuddy(m_addresses);
    auto *layout = new QVBoxLayout(column);
    layout->setContentsMargins({});
    layout->addWidget(caption);
    layout->addWidget(m_addresses);
    connect(m_addresses, &AddressBoxes::usedWithoutAlias, this,
            [this] { noticeBox::tell(program(), bookRules::noAlias(), this); });
    return column;
}

QLayout *frmBook::makeButtons()
{
    auto *row = new QHBoxLayout;
    const auto add = [&](const char *name, const QString &caption, void (frmBook::*command)()) {
        QPushButton *made = button(name, caption, this);
        connect(made, &QPushButton::clicked, this, command);
        row->addWidget(made);
        return made;
    };
    add("cmdAdd", tr("Add &new"), &frmBook::add);
    add("cmdDelete", tr("D&elete"), &frmBook::remove);
    row->addStretch();
    add("cmdSelect", tr("&Select"), &frmBook::select);
    add("cmdOK", tr("OK"), &frmBook::accept)->setDefault(true);
    QPushButton *cancel = button("cmdCancel", tr("Cancel"), this);
    connect(cancel, &QPushButton::clicked, this, &frmBook::reject);
    row->addWidget(cancel);
    return row;
}

QString frmBook::path() const
{
    const clsprogramoptions &options = program().ProgramOptions;
    return m_book == Book::Send ? options.SendBook : options.AddressBook;
}

void frmBook::Initialize(Book book)
{
    m_book = book;
    setWindowTitle(book == Book::Send ? tr("Send Book - Quillets") : tr("Address Book - Quillets"));
    for (const BookAlias &alias : aliasesOf(bookFile::load(path()), book))
        addAlias(alias.name, alias.lines);
    m_aliases->setCurrentItem(m_aliases->topLevelItem(0));
    m_addresses->show(m_aliases->currentItem());
    m_aliases->setFocus();
}

QTreeWidgetItem *frmBook::addAlias(const QString &name, const QString &lines)
{
    const QScopedValueRollback naming(m_isNaming, true);
    auto *item = new QTreeWidgetItem({name});
    item->setFlags(item->flags() | Qt::ItemIsEditable);
    item->setData(0, NameRole, name);
    m_addresses->setLines(item, lines);
    m_aliases->addTopLevelItem(item);
    return item;
}

QStringList frmBook::names() const
{
    QStringList all;
    for (int i = 0; i < m_aliases->topLevelItemCount(); ++i)
        all.append(m_aliases->topLevelItem(i)->text(0));
    return all;
}

QList<BookLine> frmBook::bookLines() const
{
    QList<BookLine> lines;
    for (int i = 0; i < m_aliases->topLevelItemCount(); ++i) {
        QTreeWidgetItem *item = m_aliases->topLevelItem(i);
        const QString addresses = modForms::FlattenText(m_addresses->lines(item));
        if (!addresses.isEmpty())
            lines.append({item->text(0), addresses});
    }
    return lines;
}

void frmBook::add()
{
    const QStringList taken = names();
    QString name;
    do
        name = tr("New%1").arg(++m_lastNew);
    while (taken.contains(name, Qt::CaseInsensitive));
    QTreeWidgetItem *item = addAlias(name, {});
    m_aliases->setCurrentItem(item);
    m_aliases->setFocus();
    m_aliases->editItem(item);
}

void frmBook::setName(QTreeWidgetItem *item, const QString &name)
{
    const QScopedValueRollback naming(m_isNaming, true);
    item->setText(0, name);
    item->setData(0, NameRole, name);
    m_addresses->show(m_aliases->currentItem());
}

/// The box comes when the editor of the name has closed.
void frmBook::rename(QTreeWidgetItem *item)
{
    if (m_isNaming)
        return;
    const int place = m_aliases->indexOfTopLevelItem(item);
    const QString name = item->text(0).trimmed();
    const auto refusal = bookRules::refusal(name, names(), place);
    const QString former = name.isEmpty() ? bookRules::substituteName(place) : item->data(0, NameRole).toString();
    setName(item, refusal ? former : name);
    if (refusal)
        QMetaObject::invokeMethod(
            this, [this, notice = *refusal] { noticeBox::tell(program(), notice, this); }, Qt::QueuedConnection);
}

void frmBook::remove()
{
    const QTreeWidgetItem *item = m_aliases->currentItem();
    if (item == nullptr)
        return;
    Message question = noticeBox::messageOf(bookRules::deleteQuestion(item->text(0)));
    question.buttons = Message::Buttons::OkCancel;
    const QPointer<frmBook> self = this;
    if (program().prompts().ask(question, this) != Prompts::Answer::Ok || self == nullptr)
        return;
    QTreeWidgetItem *gone = m_aliases->currentItem();
    m_addresses->forget(gone);
    delete gone;
    m_addresses->show(m_aliases->currentItem());
}

void frmBook::select()
{
    QTreeWidgetItem *item = m_aliases->currentItem();
    if (item == nullptr)
        return noticeBox::tell(program(), bookRules::noAlias(), this);
    const QString lines = m_addresses->lines(item);
    if (lines.trimmed().isEmpty())
        return noticeBox::tell(program(), bookRules::noAddress(), this);
    m_result = {.alias = item->text(0), .addresses = lines, .isSelected = true};
    ModalDialog::accept();
}

void frmBook::accept()
{
    m_result = {};
    ModalDialog::accept();
}

std::optional<Flaw> frmBook::findFlaw()
{
    const auto flaw = bookRules::unwritable(bookLines(), bookFile::isMarked(path()));
    if (!flaw)
        return std::nullopt;
    m_aliases->setCurrentItem(m_aliases->topLevelItem(int(names().indexOf(flaw->alias))));
    return Flaw{noticeBox::messageOf(flaw->notice), m_addresses};
}

BookResult frmBook::GetBookResult()
{
    if (!isAccepted())
        return {};
    BookResult result = m_result;
    if (const auto saved = bookFile::save(path(), bookLines()); !saved)
        result.failure = saved.error();
    return result;
}

void frmBook::resizeEvent(QResizeEvent *event)
{
    ModalDialog::resizeEvent(event);
    m_grip->setGeometry(width() - GripSide, height() - GripSide, GripSide, GripSide);
    m_grip->raise();
}
