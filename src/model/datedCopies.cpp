// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/datedCopies.h"

#include "model/logs.h"

#include <QCoreApplication>
#include <QDir>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <numeric>
#include <set>

using namespace Qt::StringLiterals;

namespace datedCopies
{
namespace
{

constexpr int Days = 7;
constexpr int Weeks = 5;
constexpr int Months = 13;
constexpr auto OwnerOnly = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(datedCopies)
};

struct Period
{
    QDate begin;
    QDate end; ///< The first day that is not of it.
};

std::vector<Period> periodsBefore(QDate today)
{
    std::vector<Period> periods;
    for (int i = 1; i <= Days; ++i)
        periods.push_back({today.addDays(-i), today.addDays(1 - i)});
    const QDate monday = today.addDays(1 - today.dayOfWeek());
    for (int i = 0; i < Weeks; ++i)
        periods.push_back({monday.addDays(-7 * i), monday.addDays(7 - 7 * i)});
    const QDate first(today.year(), today.month(), 1);
    for (int i = 0; i < Months; ++i)
        periods.push_back({first.addMonths(-i), first.addMonths(1 - i)});
    return periods;
}

/// What the data file was at the beginning of the period, as far as is known; `copies` from the oldest on.
const Copy *representing(const std::vector<Copy> &copies, const Period &period)
{
    const Copy *before = nullptr;
    for (const Copy &copy : copies) {
        if (copy.date >= period.end)
            break;
        if (copy.date >= period.begin)
            return &copy;
        before = &copy;
    }
    return before;
}

/// The first and the latest of a day that has too many.
void keepToday(const std::vector<Copy> &copies, QDate today, std::set<Copy> &kept)
{
    const auto first =
        std::find_if(copies.begin(), copies.end(), [today](const Copy &copy) { return copy.date >= today; });
    if (first == copies.end())
        return;
    kept.insert(*first);
    kept.insert(std::max(first + 1, copies.end() - std::min<qsizetype>(MostOfToday - 1, copies.end() - first)),
                copies.end());
}

/// Neither the first nor the last of its day; `copies` in order.
bool isBetween(const std::vector<Copy> &copies, size_t index)
{
    return index > 0 && index + 1 < copies.size() && copies[index - 1].date == copies[index].date &&
           copies[index + 1].date == copies[index].date;
}

qint64 total(const std::vector<Copy> &copies)
{
    return std::accumulate(copies.begin(), copies.end(), qint64(0),
                           [](qint64 sum, const Copy &copy) { return sum + copy.size; });
}

QString pathOf(const ProgramPaths &paths, const Copy &copy)
{
    return QDir(paths.BackupsFolder).filePath(copy.name);
}

Outcome<Done, QString> prepareFolder(const ProgramPaths &paths)
{
    const QString &folder = paths.BackupsFolder;
    if (QFileInfo(folder).isDir())
        return Done{};
    if (!QDir().mkdir(folder))
        return Failure{Texts::tr("%1 cannot be made.").arg(folder)};
    if (!QFile::setPermissions(folder, OwnerOnly))
        qCWarning(logs::files) << folder << "cannot be shut to others";
    return Done{};
}

QString freeName(const ProgramPaths &paths, const QDateTime &moment)
{
    const QDir folder(paths.BackupsFolder);
    const QString stem = u"quillets-"_s + moment.toString(u"yyyy-MM-dd-HHmmss"_s);
    QString name = stem + u".dat"_s;
    for (int number = 2; QFileInfo::exists(folder.filePath(name)); ++number)
        name = u"%1-%2.dat"_s.arg(stem).arg(number);
    return name;
}

void remove(const ProgramPaths &paths, const std::vector<Copy> &copies)
{
    for (const Copy &copy : copies) {
        const bool isRemoved = QFile::remove(pathOf(paths, copy));
        qCInfo(logs::files) << copy.name << (isRemoved ? "is kept no longer" : "could not be removed");
    }
}

std::vector<Copy> equalCopies(const ProgramPaths &paths, QByteArrayView bytes, const std::vector<Copy> &copies)
{
    std::vector<Copy> equal;
    std::copy_if(copies.begin(), copies.end(), std::back_inserter(equal), [&](const Copy &copy) {
        if (copy.size != bytes.size())
            return false;
        const auto other = read(paths, copy);
        return other && QByteArrayView(other.value()) == bytes;
    });
    return equal;
}

} // namespace

std::strong_ordering Copy::operator<=>(const Copy &other) const
{
    const auto key = [](const Copy &copy) {
        return std::array{copy.date.toJulianDay(), qint64(copy.time.msecsSinceStartOfDay()), qint64(copy.number)};
    };
    if (const auto order = key(*this) <=> key(other); order != 0)
        return order;
    return name.compare(other.name) <=> 0;
}

std::optional<Copy> fromName(const QString &name)
{
    static const QRegularExpression form(
        uR"(^quillets-([0-9]{4}-[0-9]{2}-[0-9]{2})(?:-([0-9]{6}))?(?:-([0-9]{1,5}))?\.dat\z)"_s);
    const auto parts = form.match(name);
    const QDate date = QDate::fromString(parts.captured(1), Qt::ISODate);
    const QString clock = parts.captured(2);
    const QTime time = clock.isEmpty() ? QTime(0, 0) : QTime::fromString(clock, u"HHmmss"_s);
    if (!parts.hasMatch() || !date.isValid() || !time.isValid())
        return std::nullopt;
    return Copy{date, time, std::max(1, parts.captured(3).toInt()), name};
}

std::vector<Copy> outdated(std::vector<Copy> copies, QDate today)
{
    std::sort(copies.begin(), copies.end());
    std::set<Copy> kept;
    keepToday(copies, today, kept);
    for (const Period &period : periodsBefore(today))
        if (const Copy *copy = representing(copies, period))
            kept.insert(*copy);
    std::erase_if(copies, [&kept](const Copy &copy) { return kept.contains(copy); });
    return copies;
}

std::vector<Copy> beyondBound(std::vector<Copy> copies, qint64 bound)
{
    std::sort(copies.begin(), copies.end());
    std::vector<Copy> gone;
    qint64 size = total(copies);
    const auto give = [&](size_t index) {
        size -= copies[index].size;
        gone.push_back(copies[index]);
        copies.erase(copies.begin() + qsizetype(index));
    };
    for (size_t i = 0; i < copies.size() && size > bound;)
        isBetween(copies, i) ? give(i) : void(++i);
    while (copies.size() > 1 && size > bound)
        give(0);
    return gone;
}

std::vector<Copy> list(const ProgramPaths &paths)
{
    std::vector<Copy> copies;
    for (const QFileInfo &file : QDir(paths.BackupsFolder).entryInfoList(QDir::Files))
        if (auto copy = fromName(file.fileName())) {
            copy->size = file.size();
            copies.push_back(*copy);
        }
    std::sort(copies.rbegin(), copies.rend());
    return copies;
}

bool hasCopyOf(const ProgramPaths &paths, QDate day)
{
    const auto copies = list(paths);
    return std::any_of(copies.begin(), copies.end(), [day](const Copy &copy) { return copy.date == day; });
}

Outcome<QByteArray, ReadFailure> read(const ProgramPaths &paths, const Copy &copy)
{
    return wholeFile::read(pathOf(paths, copy), MostBytes);
}

Outcome<Done, QString> keep(const ProgramPaths &paths, QByteArrayView bytes, const QDateTime &moment, QDate today)
{
    if (bytes.size() > MostBytes)
        return Failure{Texts::tr("The file is too large.")};
    if (auto made = prepareFolder(paths); !made)
        return made;
    const auto before = list(paths);
    const auto equal = equalCopies(paths, bytes, before);
    if (!equal.empty() && equal.front() == before.front())
        return Done{};
    const QString name = freeName(paths, moment);
    if (auto written = wholeFile::replace(QDir(paths.BackupsFolder).filePath(name), bytes); !written)
        return written;
    remove(paths, equal);
    remove(paths, outdated(list(paths), today));
    remove(paths, beyondBound(list(paths), MostBytes));
    return Done{};
}

} // namespace datedCopies
