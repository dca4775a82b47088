// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "dialogs/pageLayout.h"

#include <QFormLayout>
#include <QLabel>

namespace
{
constexpr int HighestPort = 65535;
}

QVBoxLayout *pageLayout::column(QWidget *page, int spacing)
{
    auto *layout = new QVBoxLayout(page);
    layout->setSpacing(spacing);
    return layout;
}

QWidget *pageLayout::pageOf(QWidget *dialog, std::initializer_list<QWidget *> groups)
{
    auto *page = new QWidget(dialog);
    QVBoxLayout *layout = column(page, Spacing);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget *group : groups)
        layout->addWidget(group);
    layout->addStretch();
    return page;
}

QFormLayout *pageLayout::rowsOf(QWidget *group)
{
    auto *rows = new QFormLayout(group);
    rows->setHorizontalSpacing(Spacing);
    rows->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    rows->setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    return rows;
}

void pageLayout::alignFields(const QList<QFormLayout *> &forms)
{
    int widest = 0;
    for (const QFormLayout *rows : forms)
        for (int row = 0; row < rows->rowCount(); ++row)
            if (const QLayoutItem *caption = rows->itemAt(row, QFormLayout::LabelRole))
                widest = std::max(widest, caption->sizeHint().width());
    for (const QFormLayout *rows : forms)
        rows->itemAt(0, QFormLayout::LabelRole)->widget()->setMinimumWidth(widest);
}

QLabel *pageLayout::hint(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}

std::optional<double> pageLayout::toPort(const QString &text)
{
    bool isNumber = text.trimmed().isEmpty();
    const int port = isNumber ? 0 : text.toInt(&isNumber);
    return isNumber && port >= 0 && port <= HighestPort ? std::optional(double(port)) : std::nullopt;
}
