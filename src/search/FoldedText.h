// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringMatcher>

#include <optional>
#include <vector>

/// A part of a text, in UTF-16 units from its beginning.
struct TextPart
{
    qsizetype at = 0;
    qsizetype length = 0;

    bool operator==(const TextPart &) const = default;
};

/// What is looked for: capitals and accents make no difference.
class Needle
{
public:
    explicit Needle(const QString &text);

    bool isEmpty() const { return m_matcher.pattern().isEmpty(); }
    const QStringMatcher &matcher() const { return m_matcher; }

private:
    QStringMatcher m_matcher;
};

/// A text in which one can look for others. It is folded once, at its making: about as long as copying it takes for
/// plain letters.
class FoldedText
{
public:
    FoldedText() = default;
    explicit FoldedText(const QString &text);

    /// The same text as the one this was made from, told without reading it.
    bool isOf(const QString &text) const;
    /// The first place at or behind `from`; nothing for an empty needle.
    std::optional<TextPart> find(const Needle &needle, qsizetype from = 0) const;
    /// The same, and from the beginning when there is none.
    std::optional<TextPart> findRound(const Needle &needle, qsizetype from) const;

private:
    struct Mark
    {
        qsizetype text;
        qsizetype folded;
    };

    void fold();
    qsizetype foldedOf(qsizetype at) const;
    /// Where the character begins that the folded unit comes from.
    qsizetype textOf(qsizetype folded) const;
    qsizetype endOf(qsizetype at) const;

    QString m_text;
    QString m_folded;
    std::vector<Mark> m_marks; ///< Every so often; empty where each unit gave one unit.
};
