// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

#include <initializer_list>
#include <optional>

class QFormLayout;
class QLabel;
class QVBoxLayout;
class QWidget;

/// How the pages of the options are made up.
namespace pageLayout
{

inline constexpr int Spacing = 12;
inline constexpr int NumberWidth = 90;

QVBoxLayout *column(QWidget *page, int spacing);
QWidget *pageOf(QWidget *dialog, std::initializer_list<QWidget *> groups);
QFormLayout *rowsOf(QWidget *group);
/// Lets the fields of all begin at one line.
void alignFields(const QList<QFormLayout *> &forms);
QLabel *hint(const QString &text, QWidget *parent);
/// A port number; nothing typed means 0.
std::optional<double> toPort(const QString &text);

} // namespace pageLayout
