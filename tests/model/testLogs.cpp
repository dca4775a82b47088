// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/modFileIO.h"
#include "samples.h"

#include <QDir>
#include <QLoggingCategory>
#include <QObject>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace
{

QStringList messages;

void remember(QtMsgType, const QMessageLogContext &, const QString &message)
{
    messages.append(message);
}

/// Reads a damaged file, keeps it aside, writes, and fails to write.
QStringList logOfARun(const QString &rules)
{
    QTemporaryDir folder;
    DataFileState state;
    state.paths = ProgramPaths::under(folder.path(), folder.path());
    QDir(folder.path()).mkdir(u"Data"_s);
    clsNoteProps note = taggedNote(1, u"secret text"_s);
    note.TitleBarTitle = u"secret title"_s;
    note.Pwd = u"secret word"_s;
    static_cast<void>(modFileIO::WriteNoteRecord(state, note, NoteFate::Keep));
    setContents(state.paths.DataFile, contents(state.paths.DataFile).chopped(1));
    setContents(state.paths.OptionsFile, "SMTP Server = secret host\r\nHeight = secret height");
    clsprogramoptions options;
    messages.clear();
    QLoggingCategory::setFilterRules(rules);
    const QtMessageHandler former = qInstallMessageHandler(remember);
    modFileIO::LoadOptionsFile(state.paths, options);
    modFileIO::LoadDataFile(
        state, {}, 100, [](clsNoteProps &&) { return 1; }, {}, {}, QDateTime(QDate(2026, 11, 22), QTime(22, 15, 30)));
    static_cast<void>(modFileIO::WriteNoteRecord(state, note, NoteFate::Keep));
    QDir().rename(state.paths.DataFolder, state.paths.DataFolder + u"-gone"_s);
    setContents(state.paths.DataFolder, "a file");
    static_cast<void>(modFileIO::WriteNoteRecord(state, note, NoteFate::Remove));
    qInstallMessageHandler(former);
    return messages;
}

} // namespace

class testLogs final : public QObject
{
    Q_OBJECT

private slots:
    void silentUnlessAskedFor();
    void tellsPathsAndReasonsAlone();
};

void testLogs::silentUnlessAskedFor()
{
    QCOMPARE(logOfARun({}), QStringList());
}

void testLogs::tellsPathsAndReasonsAlone()
{
    const QString log = logOfARun(u"quillets.files=true"_s).join(u'\n');
    for (const QString &part : {u"quillets.dat\" read"_s, u"1 of 1 passed over: \"The record ends too early.\""_s,
                                u"-damaged.dat"_s, u"replaced by"_s, u"not replaced: "_s, u"refused: \"Height\""_s})
        QVERIFY2(log.contains(part), qPrintable(part + u"\nin\n"_s + log));
    QVERIFY2(!log.contains(u"secret"), qPrintable(log));
}

QTEST_APPLESS_MAIN(testLogs)
#include "testLogs.moc"
