// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "controls/dialogButtons.h"

#include <QCoreApplication>
#include <QDialog>
#include <QPushButton>

namespace dialogButtons
{
namespace
{

/// Without the mnemonics that some desktops' own captions bring, which pages use for their fields.
QString captionOf(QDialogButtonBox::StandardButton kind)
{
    return kind == QDialogButtonBox::Ok ? QCoreApplication::translate("dialogButtons", "OK")
                                        : QCoreApplication::translate("dialogButtons", "Cancel");
}

} // namespace

QDialogButtonBox *make(QDialog &dialog, std::initializer_list<Button> buttons)
{
    auto *row = new QDialogButtonBox(&dialog);
    for (const auto &[kind, name] : buttons) {
        QPushButton *button = row->addButton(kind);
        button->setObjectName(QLatin1String(name));
        button->setText(captionOf(kind));
        button->setIcon({}); // Some styles bring old ones.
        button->setDefault(kind == QDialogButtonBox::Ok);
    }
    QObject::connect(row, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(row, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    return row;
}

} // namespace dialogButtons
