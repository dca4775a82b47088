// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
// Loads data folders as the program does at its start, twice, since a start may be cut off as well. A line of the input
// is a working folder, a line of the output the notes found there and what the user would be told.
#include "model/modFileIO.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <iostream>
#include <string>

using namespace Qt::StringLiterals;

namespace
{

constexpr int Room = 100;

QJsonObject described(const clsNoteProps &note)
{
    return {{u"title"_s, note.TitleBarTitle},  {u"text"_s, note.Data},         {u"left"_s, note.FrmLeft},
            {u"top"_s, note.FrmTop},           {u"width"_s, note.FrmWidth},    {u"height"_s, note.FrmHeight},
            {u"rolled"_s, note.FrmScrolledOn}, {u"stack"_s, note.NoteStackOn}, {u"comments"_s, note.Comments}};
}

QString told(const LoadReport &report)
{
    const QString counts = report.undecodable + report.overLimit == 0
                               ? QString()
                               : u"%1 not read, %2 over the limit "_s.arg(report.undecodable).arg(report.overLimit);
    return counts + report.problem + report.keptAside.join(u' ');
}

QJsonObject load(const ProgramPaths &paths)
{
    DataFileState state;
    state.paths = paths;
    QJsonArray notes;
    const auto take = [&notes](clsNoteProps &&note) {
        notes.append(described(note));
        return static_cast<qint32>(notes.size());
    };
    const LoadReport report =
        modFileIO::LoadDataFile(state, {}, Room, take, {}, {}, QDateTime(QDate(2026, 11, 24), QTime(8, 0)));
    return {{u"notes"_s, notes}, {u"told"_s, told(report)}};
}

} // namespace

int main()
{
    std::string folder;
    while (std::getline(std::cin, folder)) {
        const ProgramPaths paths = ProgramPaths::under(QString(), QString::fromStdString(folder));
        if (!modFileIO::prepareDataFolder(paths))
            return 1;
        QJsonObject first = load(paths);
        first.insert(u"again"_s, load(paths) == first);
        std::cout << QJsonDocument(first).toJson(QJsonDocument::Compact).constData() << std::endl;
    }
    return 0;
}
