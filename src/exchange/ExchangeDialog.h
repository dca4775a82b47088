// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/ModalDialog.h"
#include "exchange/frmBook.h"
#include "model/modFileIORecent.h"

class Exchange;
class ProgressFrame;
class QFormLayout;
class QHBoxLayout;
class QLabel;
class QPushButton;
class TargetBox;
struct Notice;

/// What sending a note and mailing it have in common: the box of targets with its list and its book, the progress, and
/// how one ends it. While it sends it closes by its frame only, which stops what is under way. It stands over the
/// window it was opened from and is not that window's: it outlives it.
class ExchangeDialog : public ModalDialog
{
    Q_OBJECT

public:
    /// While it sends nothing but the end of the program closes it so.
    void reject() override;

protected:
    /// In what the two differ.
    struct Kind
    {
        QStringView name;
        QString caption;
        QString bookEntry; ///< First in the list of targets.
        frmBook::Book book;
        RecentList recent;
    };

    ExchangeDialog(Program &program, const Kind &kind, QWidget *owner);

    virtual void send() = 0;
    virtual void stop() = 0;
    virtual bool isSending() const = 0;
    /// The book was edited.
    virtual void bookChanged() = 0;

    QString targets() const;
    void focusTargets();
    TargetBox &targetBox() { return *m_to; }
    /// A field with its caption below those before.
    void addField(const char *name, const QString &caption, QWidget &field);
    /// At the left of the others.
    void addButton(QPushButton &button);
    void follow(Exchange &exchange);
    void keepRecent();
    void showProgress(bool on);
    /// A quiet word beside the buttons.
    void showResult(const QString &text);
    /// What the progress told last.
    QString lastStep() const;
    void tell(const Notice &notice);
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void makeTargets(const QString &bookEntry);
    QLayout *makeButtons();
    void openBook();

    const frmBook::Book m_kindOfBook;
    const RecentList m_kindOfRecent;
    QPointer<QWidget> m_over;
    TargetBox *m_to = nullptr; // comTo
    QFormLayout *m_fields;
    QHBoxLayout *m_buttons = nullptr;
    ProgressFrame *m_progress; // fraProgress
    QLabel *m_result = nullptr;
    bool m_closesByFrame = false;
};
