// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Choosers.h"

#include <QTest>

#include <deque>

/// Chooses in place of a person; an empty answer is Cancel. A chooser that nobody expects fails the test.
class ScriptedChoosers final : public Choosers
{
public:
    std::deque<std::optional<QString>> files;
    std::deque<std::optional<QStringList>> manyFiles;
    std::deque<std::optional<QColor>> colours;
    std::deque<std::optional<QFont>> fonts;
    FileRequest lastRequest;

    std::optional<QString> openFile(const FileRequest &request, QWidget *) override
    {
        lastRequest = request;
        return take(files);
    }
    QStringList openFiles(const FileRequest &request, QWidget *) override
    {
        lastRequest = request;
        return take(manyFiles).value_or(QStringList());
    }
    std::optional<QString> folder(const QString &, QWidget *) override { return take(files); }
    std::optional<QColor> colour(const QColor &, QWidget *) override { return take(colours); }
    std::optional<QFont> font(const QFont &, QWidget *) override { return take(fonts); }

private:
    template <class Answer> std::optional<Answer> take(std::deque<std::optional<Answer>> &answers)
    {
        if (answers.empty()) {
            QTest::qFail("Unexpected chooser", __FILE__, __LINE__);
            return std::nullopt;
        }
        const auto answer = answers.front();
        answers.pop_front();
        return answer;
    }
};
