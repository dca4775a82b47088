// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "Runs.h"
#include "model/datedCopies.h"
#include "support/compareRow.h"

using namespace Qt::StringLiterals;
using datedCopies::Copy;

namespace
{

const QDate Today(2026, 11, 22); // A Sunday.

/// What is between "quillets-" and ".dat" of each, with blanks between them.
QString namesOf(const std::vector<Copy> &copies)
{
    QStringList names;
    for (const Copy &copy : copies)
        names.append(copy.name.mid(9).chopped(4));
    return names.join(u' ');
}

std::vector<Copy> copiesOf(const QString &names, const QList<qint64> &sizes = {})
{
    std::vector<Copy> copies;
    for (const QString &name : names.split(u' ', Qt::SkipEmptyParts)) {
        copies.push_back(*datedCopies::fromName(u"quillets-%1.dat"_s.arg(name)));
        copies.back().size = sizes.value(qsizetype(copies.size()) - 1);
    }
    return copies;
}

struct Home : Runs
{
    QString names() const { return namesOf(datedCopies::list(paths)); }
    QByteArray copy(size_t number) const { return datedCopies::read(paths, datedCopies::list(paths)[number]).value(); }
    bool keep(const QByteArray &bytes, const QDateTime &moment) const
    {
        return datedCopies::keep(paths, bytes, moment, moment.date()).ok();
    }
    void startAt(const QDateTime &moment, const QByteArray &file)
    {
        now = moment;
        startWith(file);
    }
};

QDateTime at(int day, int hour)
{
    return {QDate(2026, 11, day), QTime(hour, 0)};
}

} // namespace

/// Which copies of the data file are kept, by day, by size and by contents.
class testDatedCopies final : public QObject
{
    Q_OBJECT

private slots:
    void names()
    {
        const auto moment = [](const char *name) {
            const auto copy = datedCopies::fromName(QString::fromLatin1(name));
            return copy ? QDateTime(copy->date, copy->time) : QDateTime();
        };
        compareRow("day", moment("quillets-2026-11-22.dat"), at(22, 0));
        compareRow("time", moment("quillets-2026-11-22-081530.dat"), QDateTime(Today, QTime(8, 15, 30)));
        compareRow("second of a moment", moment("quillets-2026-11-22-081530-2.dat"),
                   QDateTime(Today, QTime(8, 15, 30)));
        for (const char *odd :
             {"quillets-2026-02-30.dat", "quillets-2026-11-22-256000.dat", "quillets.dat", "letter.txt",
              "quillets-2026-11-22.dat.old", "quillets-2026-11-22 (copy).dat", "quillets-2026-11-22.DAT",
              "my quillets-2026-11-22.dat", "quillets-2026-11-22-damaged.dat", "quillets-2026-11-22.dat\n"})
            compareRow(odd, moment(odd), QDateTime());
    }

    void outdated()
    {
        const auto row = [](const char *name, const QString &copies, const QString &gone) {
            auto given = copiesOf(copies);
            std::reverse(given.begin(), given.end());
            compareRow(name, namesOf(datedCopies::outdated(given, Today)), gone);
        };
        row("none", {}, {});
        row("all of today", u"2026-11-22-080000 2026-11-22-090000 2026-11-22-100000"_s, {});
        row("the first of a day before", u"2026-11-21-080000 2026-11-21-090000 2026-11-21-090000-2"_s,
            u"2026-11-21-090000 2026-11-21-090000-2"_s);
        row("the first of a week", u"2026-11-09 2026-11-10 2026-11-12 2026-11-22"_s, u"2026-11-10"_s);
        row("the first of a month", u"2026-07-03 2026-07-04 2026-08-31 2026-11-22"_s, u"2026-07-04"_s);
        row("what held for weeks without a change", u"2026-10-05 2026-10-27 2026-11-21-090000"_s, {});
        row("older than a year, replaced within it", u"2025-08-01 2025-10-01 2025-11-02 2026-11-22"_s,
            u"2025-08-01 2025-10-01"_s);
        row("the only one, however old", u"2001-01-01"_s, {});
        row("a clock that was ahead", u"2026-11-22-080000 2027-03-01 2031-01-01"_s, {});
    }

    /// Day by day, since what is removed today is not there tomorrow.
    void aYearOfDays()
    {
        std::vector<Copy> copies;
        for (QDate day = Today.addYears(-2); day <= Today; day = day.addDays(1)) {
            copies.push_back(copiesOf(day.toString(Qt::ISODate)).front());
            for (const Copy &copy : datedCopies::outdated(copies, day))
                std::erase(copies, copy);
            QVERIFY(copies.size() <= 1 + 7 + 5 + 13);
        }
        QList<QDate> expected;
        for (int i = 0; i <= 7; ++i)
            expected << Today.addDays(-i);
        for (int i = 0; i <= 4; ++i)
            expected << Today.addDays(1 - Today.dayOfWeek() - 7 * i);
        for (int i = 0; i <= 12; ++i)
            expected << QDate(2026, 11, 1).addMonths(-i);
        for (const QDate &day : expected)
            QVERIFY2(namesOf(copies).contains(day.toString(Qt::ISODate)), qPrintable(day.toString(Qt::ISODate)));
    }

    void beyondBound()
    {
        const auto row = [](const char *name, const QList<qint64> &sizes, const QString &gone) {
            const QString days = u"2026-01-01 2026-02-01 2026-11-22-080000 2026-11-22-090000 2026-11-22-100000"_s;
            const auto copies = copiesOf(days.section(u' ', 0, sizes.size() - 1), sizes);
            compareRow(name, namesOf(datedCopies::beyondBound(copies, 100)), gone);
        };
        row("fits", {20, 20, 20, 20, 20}, {});
        row("between the first and the last of a day", {20, 20, 20, 21, 20}, u"2026-11-22-090000"_s);
        row("then the oldest", {20, 20, 60, 21, 20}, u"2026-11-22-090000 2026-01-01"_s);
        row("never the newest", {1, 1000}, u"2026-01-01"_s);
    }

    void equalOnesOnce()
    {
        const Home home;
        QVERIFY(home.keep("A", at(20, 8)) && home.keep("A", at(21, 8)));
        QCOMPARE(home.names(), u"2026-11-20-080000"_s);
        QVERIFY(home.keep("B", at(21, 9)) && home.keep("C", at(21, 9)));
        QCOMPARE(home.names(), u"2026-11-21-090000-2 2026-11-21-090000 2026-11-20-080000"_s);
        // What comes back is kept under its new date.
        QVERIFY(home.keep("A", at(21, 10)));
        QCOMPARE(home.names(), u"2026-11-21-100000 2026-11-21-090000-2 2026-11-21-090000"_s);
        QCOMPARE(home.copy(0), "A");
        QCOMPARE(QFile::permissions(home.paths.BackupsFolder) & QFile::Permissions(0x0077), QFile::Permissions());
    }

    /// The first start of a day, and one that finds damage, which keeps the last backup as well.
    void atStarts()
    {
        Home home;
        const QByteArray other = TestHome::sample("hundred.dat");
        home.startAt(at(19, 8), {});
        QCOMPARE(home.names(), QString());
        home.startAt(at(20, 8), TestHome::sample("household.dat"));
        home.startAt(at(20, 9), other);
        QCOMPARE(home.names(), u"2026-11-20-080000"_s);
        QFile backup(home.paths.BackupFile);
        QVERIFY(backup.open(QIODevice::ReadWrite) && backup.setFileTime(at(20, 9), QFile::FileModificationTime));
        backup.close();
        home.startAt(at(20, 10), other.chopped(1));
        QCOMPARE(home.names(), u"2026-11-20-100000 2026-11-20-090000 2026-11-20-080000"_s);
        QCOMPARE(home.copy(1), other);
    }

    /// Where no copy can be made the notes are read all the same, and what others have in the folder stays.
    void neverInTheWay()
    {
        Home home;
        const QString folder = home.paths.BackupsFolder;
        setContents(folder, "a file");
        home.startAt(at(20, 8), TestHome::sample("household.dat"));
        QCOMPARE(home.report.problem, QString());
        QVERIFY(QFile::remove(folder) && QDir().mkpath(folder + u"/quillets-2026-11-02.dat"_s));
        setContents(folder + u"/letter.txt"_s, "mine");
        setContents(folder + u"/quillets-2026-11-01-080000.dat.aBcdEf"_s, "cut off");
        home.startAt(at(21, 8), TestHome::sample("household.dat"));
        QCOMPARE(QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                 QStringList({u"letter.txt"_s, u"quillets-2026-11-02.dat"_s, u"quillets-2026-11-21-080000.dat"_s}));
    }
};

QTEST_APPLESS_MAIN(testDatedCopies)
#include "testDatedCopies.moc"
