// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/datedCopies.h"
#include "model/modFileIO.h"
#include "samples.h"

#include <QDir>
#include <QObject>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using datedCopies::Copy;

namespace
{

const QDate Today(2026, 11, 22); // A Sunday.

QStringList namesOf(const std::vector<Copy> &copies)
{
    QStringList names;
    for (const Copy &copy : copies)
        names.append(copy.name.mid(9).chopped(4));
    return names;
}

/// What is between "quillets-" and ".dat".
std::vector<Copy> copiesOf(const QStringList &names, const QList<qint64> &sizes = {})
{
    std::vector<Copy> copies;
    for (qsizetype i = 0; i < names.size(); ++i) {
        copies.push_back(*datedCopies::fromName(u"quillets-%1.dat"_s.arg(names[i])));
        copies.back().size = sizes.value(i);
    }
    return copies;
}

struct Home
{
    QTemporaryDir folder;
    ProgramPaths paths = ProgramPaths::under(folder.path(), folder.path());
    DataFileState state;

    Home()
    {
        QDir(folder.path()).mkdir(u"Data"_s);
        state.paths = paths;
    }
    QStringList names() const { return namesOf(datedCopies::list(paths)); }
    bool keep(const QByteArray &bytes, const QDateTime &moment) const
    {
        return datedCopies::keep(paths, bytes, moment, moment.date()).ok();
    }
    LoadReport start(const QByteArray &file, const QDateTime &now)
    {
        setContents(paths.DataFile, file);
        return modFileIO::LoadDataFile(
            state, {}, 100, [tag = 0](clsNoteProps &&) mutable { return ++tag; }, {}, {}, now);
    }
};

QDateTime at(int day, int hour)
{
    return {QDate(2026, 11, day), QTime(hour, 0)};
}

} // namespace

class testDatedCopies final : public QObject
{
    Q_OBJECT

private slots:
    void names_data();
    void names();
    void outdated_data();
    void outdated();
    void aYearOfDays();
    void beyondBound_data();
    void beyondBound();
    void equalOnesOnce();
    void atStarts();
    void neverInTheWay();
};

void testDatedCopies::names_data()
{
    QTest::addColumn<bool>("isCopy");
    QTest::addColumn<QDateTime>("moment");
    const QDateTime midnight(Today, QTime(0, 0));
    QTest::newRow("quillets-2026-11-22.dat") << true << midnight;
    QTest::newRow("quillets-2026-11-22-081530.dat") << true << QDateTime(Today, QTime(8, 15, 30));
    QTest::newRow("quillets-2026-11-22-081530-2.dat") << true << QDateTime(Today, QTime(8, 15, 30));
    for (const char *odd :
         {"quillets-2026-02-30.dat", "quillets-2026-11-22-256000.dat", "quillets.dat", "letter.txt",
          "quillets-2026-11-22.dat.old", "quillets-2026-11-22 (copy).dat", "quillets-2026-11-22.DAT",
          "my quillets-2026-11-22.dat", "quillets-2026-11-22-damaged.dat", "quillets-2026-11-22.dat\n"})
        QTest::newRow(odd) << false << QDateTime();
}

void testDatedCopies::names()
{
    QFETCH(bool, isCopy);
    QFETCH(QDateTime, moment);
    const auto copy = datedCopies::fromName(QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(copy.has_value(), isCopy);
    if (copy)
        QCOMPARE(QDateTime(copy->date, copy->time), moment);
}

void testDatedCopies::outdated_data()
{
    QTest::addColumn<QStringList>("copies");
    QTest::addColumn<QStringList>("gone");
    const auto row = [](const char *name, const QStringList &copies, const QStringList &gone) {
        QTest::newRow(name) << copies << gone;
    };
    row("none", {}, {});
    row("all of today", {u"2026-11-22-080000"_s, u"2026-11-22-090000"_s, u"2026-11-22-100000"_s}, {});
    row("the first of a day before", {u"2026-11-21-080000"_s, u"2026-11-21-090000"_s, u"2026-11-21-090000-2"_s},
        {u"2026-11-21-090000"_s, u"2026-11-21-090000-2"_s});
    row("the first of a week", {u"2026-11-09"_s, u"2026-11-10"_s, u"2026-11-12"_s, u"2026-11-22"_s}, {u"2026-11-10"_s});
    row("the first of a month", {u"2026-07-03"_s, u"2026-07-04"_s, u"2026-08-31"_s, u"2026-11-22"_s},
        {u"2026-07-04"_s});
    row("what held for weeks without a change", {u"2026-10-05"_s, u"2026-10-27"_s, u"2026-11-21-090000"_s}, {});
    row("older than a year, replaced within it", {u"2025-08-01"_s, u"2025-10-01"_s, u"2025-11-02"_s, u"2026-11-22"_s},
        {u"2025-08-01"_s, u"2025-10-01"_s});
    row("the only one, however old", {u"2001-01-01"_s}, {});
    row("a clock that was ahead", {u"2026-11-22-080000"_s, u"2027-03-01"_s, u"2031-01-01"_s}, {});
}

void testDatedCopies::outdated()
{
    QFETCH(QStringList, copies);
    QFETCH(QStringList, gone);
    auto given = copiesOf(copies);
    std::reverse(given.begin(), given.end());
    QCOMPARE(namesOf(datedCopies::outdated(given, Today)), gone);
}

/// Day by day, since what is removed today is not there tomorrow.
void testDatedCopies::aYearOfDays()
{
    std::vector<Copy> copies;
    QDate day = Today.addYears(-2);
    for (; day <= Today; day = day.addDays(1)) {
        for (const Copy &copy : copiesOf({day.toString(Qt::ISODate)}))
            copies.push_back(copy);
        for (const Copy &copy : datedCopies::outdated(copies, day))
            std::erase(copies, copy);
        QVERIFY(copies.size() <= 1 + 7 + 5 + 13);
    }
    const QStringList kept = namesOf(copies);
    for (int i = 0; i <= 7; ++i)
        QVERIFY(kept.contains(Today.addDays(-i).toString(Qt::ISODate)));
    const QDate monday = Today.addDays(1 - Today.dayOfWeek());
    for (int i = 0; i <= 4; ++i)
        QVERIFY(kept.contains(monday.addDays(-7 * i).toString(Qt::ISODate)));
    for (int i = 0; i <= 12; ++i)
        QVERIFY(kept.contains(QDate(2026, 11, 1).addMonths(-i).toString(Qt::ISODate)));
}

void testDatedCopies::beyondBound_data()
{
    QTest::addColumn<QStringList>("copies");
    QTest::addColumn<QList<qint64>>("sizes");
    QTest::addColumn<QStringList>("gone");
    const QStringList days{u"2026-01-01"_s, u"2026-02-01"_s, u"2026-11-22-080000"_s, u"2026-11-22-090000"_s,
                           u"2026-11-22-100000"_s};
    QTest::newRow("fits") << days << QList<qint64>{20, 20, 20, 20, 20} << QStringList();
    QTest::newRow("between the first and the last of a day")
        << days << QList<qint64>{20, 20, 20, 21, 20} << QStringList{u"2026-11-22-090000"_s};
    QTest::newRow("then the oldest") << days << QList<qint64>{20, 20, 60, 21, 20}
                                     << QStringList{u"2026-11-22-090000"_s, u"2026-01-01"_s};
    QTest::newRow("never the newest") << days.first(2) << QList<qint64>{1, 1000} << QStringList{u"2026-01-01"_s};
}

void testDatedCopies::beyondBound()
{
    QFETCH(QStringList, copies);
    QFETCH(QList<qint64>, sizes);
    QFETCH(QStringList, gone);
    QCOMPARE(namesOf(datedCopies::beyondBound(copiesOf(copies, sizes), 100)), gone);
}

void testDatedCopies::equalOnesOnce()
{
    const Home home;
    QVERIFY(home.keep("A", at(20, 8)) && home.keep("A", at(21, 8)));
    QCOMPARE(home.names(), QStringList({u"2026-11-20-080000"_s}));
    QVERIFY(home.keep("B", at(21, 9)) && home.keep("C", at(21, 9)));
    QCOMPARE(home.names(), QStringList({u"2026-11-21-090000-2"_s, u"2026-11-21-090000"_s, u"2026-11-20-080000"_s}));
    // What comes back is kept under its new date.
    QVERIFY(home.keep("A", at(21, 10)));
    QCOMPARE(home.names(), QStringList({u"2026-11-21-100000"_s, u"2026-11-21-090000-2"_s, u"2026-11-21-090000"_s}));
    QCOMPARE(datedCopies::read(home.paths, datedCopies::list(home.paths).front()).value(), "A");
    QCOMPARE(QFile::permissions(home.paths.BackupsFolder) & QFile::Permissions(0x0077), QFile::Permissions());
}

/// The first start of a day, and one that finds damage, which keeps the last backup as well.
void testDatedCopies::atStarts()
{
    Home home;
    const QByteArray good = sampleFile("household.dat");
    const QByteArray other = sampleFile("hundred.dat");
    home.start({}, at(19, 8));
    QCOMPARE(home.names(), QStringList());
    home.start(good, at(20, 8));
    home.start(other, at(20, 9));
    QCOMPARE(home.names(), QStringList({u"2026-11-20-080000"_s}));
    QFile backup(home.paths.BackupFile);
    QVERIFY(backup.open(QIODevice::ReadWrite) && backup.setFileTime(at(20, 9), QFile::FileModificationTime));
    backup.close();
    home.start(other.chopped(1), at(20, 10));
    QCOMPARE(home.names(), QStringList({u"2026-11-20-100000"_s, u"2026-11-20-090000"_s, u"2026-11-20-080000"_s}));
    QCOMPARE(datedCopies::read(home.paths, datedCopies::list(home.paths)[1]).value(), other);
}

/// Where no copy can be made the notes are read all the same, and what others have in the folder stays.
void testDatedCopies::neverInTheWay()
{
    Home home;
    setContents(home.paths.BackupsFolder, "a file");
    QCOMPARE(home.start(sampleFile("household.dat"), at(20, 8)).problem, QString());
    QFile::remove(home.paths.BackupsFolder);
    QDir(home.paths.DataFolder).mkdir(u"backups"_s);
    setContents(home.paths.BackupsFolder + u"/letter.txt"_s, "mine");
    setContents(home.paths.BackupsFolder + u"/quillets-2026-11-01-080000.dat.aBcdEf"_s, "cut off");
    QDir(home.paths.BackupsFolder).mkdir(u"quillets-2026-11-02.dat"_s);
    home.start(sampleFile("household.dat"), at(21, 8));
    QCOMPARE(QDir(home.paths.BackupsFolder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList({u"letter.txt"_s, u"quillets-2026-11-02.dat"_s, u"quillets-2026-11-21-080000.dat"_s}));
}

QTEST_APPLESS_MAIN(testDatedCopies)
#include "testDatedCopies.moc"
