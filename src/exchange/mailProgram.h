// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class Program;
class QUrl;
class QWidget;

/// The desktop's mail program, for who would rather write the mail there.
namespace mailProgram
{

/// A mail as mail programs take it from others.
QUrl address(const QStringList &recipients, const QString &subject, const QString &body);
/// Hands the mail over. What is too long for that, and a mail program that is missing, are told.
void open(Program &program, const QUrl &mail, QWidget *owner);

} // namespace mailProgram
