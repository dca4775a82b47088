// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "net/bookRules.h"

#include <QCoreApplication>

#include <algorithm>

namespace
{

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(bookRules)
};

Notice error(const QString &text)
{
    return {text, Texts::tr("Error")};
}

bool tearsLine(QChar c)
{
    return c.isSpace() || c.isNull();
}

} // namespace

std::optional<Notice> bookRules::refusal(const QString &name, const QStringList &names, qsizetype place)
{
    if (name.isEmpty())
        return error(Texts::tr("An alias name must not be all spaces"));
    if (std::any_of(name.begin(), name.end(), tearsLine))
        return error(Texts::tr("An alias name must not contain spaces"));
    for (qsizetype other = 0; other < names.size(); ++other)
        if (other != place && names.at(other).compare(name, Qt::CaseInsensitive) == 0)
            return error(
                Texts::tr("There is already another alias with that name. \nPlease choose a different name. "));
    return std::nullopt;
}

QString bookRules::substituteName(qsizetype place)
{
    return Texts::tr("New%1").arg(place + 1);
}

std::optional<UnwritableAlias> bookRules::unwritable(const QList<BookLine> &lines, bool isMarked)
{
    if (isMarked)
        return std::nullopt;
    for (const BookLine &line : lines) {
        const QString text = line.alias + line.addresses;
        const auto wide = std::find_if(text.begin(), text.end(), [](QChar c) { return c.unicode() > 0xFF; });
        if (wide == text.end())
            continue;
        const qsizetype length = wide->isHighSurrogate() ? 2 : 1;
        const QString shown = text.mid(wide - text.begin(), length);
        return UnwritableAlias{line.alias, error(Texts::tr("The book cannot hold the character \"%1\" of the alias "
                                                           "\"%2\".\nPlease write it in another way.")
                                                     .arg(shown, line.alias))};
    }
    return std::nullopt;
}

Notice bookRules::noAlias()
{
    return error(Texts::tr("Please add an alias name before proceeding."));
}

Notice bookRules::noAddress()
{
    return error(Texts::tr("You have no associated address with this alias."));
}

Notice bookRules::deleteQuestion(const QString &alias)
{
    return {.text = Texts::tr("Delete alias '%1' ?").arg(alias),
            .caption = Texts::tr("Note Deletion"),
            .isCritical = false};
}
