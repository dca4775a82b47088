// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "exchange/ExchangeDialog.h"

#include "exchange/ProgressFrame.h"
#include "exchange/TargetBox.h"
#include "exchange/noticeBox.h"
#include "forms/Program.h"
#include "forms/showModally.h"
#include "net/recentTargets.h"

#include <QCloseEvent>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWindow>

namespace
{
constexpr int Margin = 14;
constexpr int LongestLine = 20; ///< Longer results have several lines.
} // namespace

ExchangeDialog::ExchangeDialog(Program &program, const Kind &kind, QWidget *owner)
    : ModalDialog(program, kind.name, kind.caption, nullptr), m_kindOfBook(kind.book), m_kindOfRecent(kind.recent),
      m_over(owner), m_fields(new QFormLayout), m_progress(new ProgressFrame(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(Margin);
    layout->addLayout(m_fields, 1);
    makeTargets(kind.bookEntry);
    layout->addWidget(m_progress);
    layout->addLayout(makeButtons());
    m_progress->hide();
    connect(&m_progress->stopButton(), &QPushButton::clicked, this, [this] { stop(); });
    m_to->setRecent(modFileIO::LoadRecentList(program.paths(), m_kindOfRecent));
}

void ExchangeDialog::makeTargets(const QString &bookEntry)
{
    m_to = new TargetBox(bookEntry, this);
    m_fields->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_fields->setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    addField("lblTo", tr("&To:"), *m_to);
    connect(m_to, &TargetBox::bookWanted, this, &ExchangeDialog::openBook);
}

void ExchangeDialog::addField(const char *name, const QString &caption, QWidget &field)
{
    if (const int rows = m_fields->rowCount(); rows > 0)
        setTabOrder(m_fields->itemAt(rows - 1, QFormLayout::FieldRole)->widget(), &field);
    m_fields->addRow(caption, &field);
    m_fields->labelForField(&field)->setObjectName(QLatin1String(name));
}

void ExchangeDialog::addButton(QPushButton &button)
{
    m_buttons->insertWidget(0, &button);
    setTabOrder(m_buttons->itemAt(m_buttons->count() - 1)->widget(), &button);
}

QLayout *ExchangeDialog::makeButtons()
{
    m_result = new QLabel(this);
    m_result->setObjectName(QStringLiteral("lblResult"));
    m_result->setTextFormat(Qt::PlainText);
    m_result->setForegroundRole(QPalette::PlaceholderText);
    auto *sendButton = new QPushButton(tr("&Send"), this);
    sendButton->setObjectName(QStringLiteral("cmdSend"));
    sendButton->setDefault(true);
    auto *cancel = new QPushButton(tr("Cancel"), this);
    cancel->setObjectName(QStringLiteral("CancelButton"));
    connect(sendButton, &QPushButton::clicked, this, [this] { send(); });
    connect(cancel, &QPushButton::clicked, this, &ExchangeDialog::reject);
    m_buttons = new QHBoxLayout;
    m_buttons->addWidget(m_result, 1);
    m_buttons->addWidget(sendButton);
    m_buttons->addWidget(cancel);
    return m_buttons;
}

QString ExchangeDialog::targets() const
{
    return m_to->currentText();
}

void ExchangeDialog::focusTargets()
{
    m_to->setFocus();
}

void ExchangeDialog::follow(Exchange &exchange)
{
    m_progress->follow(exchange);
}

QString ExchangeDialog::lastStep() const
{
    return m_progress->step();
}

void ExchangeDialog::keepRecent()
{
    const QStringList recent = withRecent(m_to->recent(), targets());
    m_to->setRecent(recent);
    // The text is still in the box: a list that cannot be written loses nothing that anybody would miss.
    static_cast<void>(modFileIO::SaveRecentList(program().paths(), m_kindOfRecent, recent, recent.size()));
}

void ExchangeDialog::showProgress(bool on)
{
    if (on == m_progress->isVisibleTo(this))
        return;
    if (on)
        m_progress->begin();
    const int room = m_progress->sizeHint().height() + layout()->spacing();
    m_progress->setVisible(on);
    resize(width(), height() + (on ? room : -room));
}

void ExchangeDialog::showResult(const QString &text)
{
    m_result->setWordWrap(text.size() > LongestLine);
    m_result->setText(text);
}

void ExchangeDialog::tell(const Notice &notice)
{
    noticeBox::tell(program(), notice, this);
}

/// The text goes where the caret is seen behind it, once the book has closed.
void ExchangeDialog::openBook()
{
    const QPointer<frmBook> editor = new frmBook(program(), this);
    editor->Initialize(m_kindOfBook);
    if (!showModally(editor))
        return;
    const BookResult result = editor->GetBookResult();
    editor->unload();
    bookChanged();
    m_to->setEditText(result.isSelected ? result.alias : QString());
    m_to->lineEdit()->end(false);
    m_to->setFocus();
    activateWindow();
    if (!result.failure.isEmpty())
        showResult(tr("The book could not be saved: %1").arg(result.failure));
}

void ExchangeDialog::reject()
{
    if (!isSending() || m_closesByFrame || program().Exiting)
        ModalDialog::reject();
}

void ExchangeDialog::closeEvent(QCloseEvent *event)
{
    m_closesByFrame = true;
    if (isSending())
        stop();
    ModalDialog::closeEvent(event);
}

void ExchangeDialog::showEvent(QShowEvent *event)
{
    if (m_over != nullptr && m_over->isVisible() && !event->spontaneous()) {
        const QPoint centre = m_over->frameGeometry().center();
        const QRect screen = m_over->screen()->availableGeometry();
        const QPoint corner = centre - rect().center();
        move(qBound(screen.left(), corner.x(), qMax(screen.left(), screen.right() - width())),
             qBound(screen.top(), corner.y(), qMax(screen.top(), screen.bottom() - height())));
        windowHandle()->setTransientParent(m_over->window()->windowHandle());
    }
    ModalDialog::showEvent(event);
}
