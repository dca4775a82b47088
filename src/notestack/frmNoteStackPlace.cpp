// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notestack/NoteTabs.h"
#include "notestack/StackNote.h"
#include "notestack/frmNoteStack.h"
#include "forms/Program.h"

#include <QCryptographicHash>
#include <QFile>
#include <QSettings>

// What the NoteStack keeps for itself from start to start: its place, whether it was shown, and the order of its tabs,
// which the data file does not hold: there the notes stand by the time they were written.

namespace
{

constexpr QLatin1String Geometry("NoteStack/geometry");
constexpr QLatin1String Shown("NoteStack/shown");
constexpr QLatin1String Order("NoteStack/order");
constexpr QLatin1String Chosen("NoteStack/chosen");

QString placeFile(const Program &program)
{
    return program.paths().DataFolder + QStringLiteral("/window.set");
}

/// Tells notes apart across starts, where their tags change.
QString fingerprint(const clsNoteProps &note)
{
    QCryptographicHash hash(QCryptographicHash::Md5);
    for (const QString *text : {&note.DateCreated, &note.TitleBarTitle, &note.Data}) {
        hash.addData(QByteArrayView(reinterpret_cast<const char *>(text->constData()),
                                    text->size() * static_cast<qsizetype>(sizeof(QChar))));
        hash.addData(QByteArrayView("\0", 2));
    }
    return QString::fromLatin1(hash.result().toHex());
}

} // namespace

void frmNoteStack::restorePlace()
{
    const QSettings settings(placeFile(m_program), QSettings::IniFormat);
    restoreGeometry(settings.value(Geometry).toByteArray());
}

bool frmNoteStack::wasShown(const Program &program)
{
    return QSettings(placeFile(program), QSettings::IniFormat).value(Shown).toBool();
}

void frmNoteStack::keepPlace()
{
    QSettings settings(placeFile(m_program), QSettings::IniFormat);
    settings.setValue(Geometry, saveGeometry());
    settings.setValue(Shown, isVisible());
    if (!m_program.file.LoadingData) {
        QStringList order;
        for (const auto &note : m_notes)
            order.append(fingerprint(note->record));
        settings.setValue(Order, order);
        settings.setValue(Chosen, m_tabs->currentIndex());
    }
    settings.sync();
    QFile::setPermissions(settings.fileName(), QFile::ReadOwner | QFile::WriteOwner);
}

/// Notes that were not there before stand behind the others, in the order of the file.
void frmNoteStack::restoreOrder()
{
    const QSettings settings(placeFile(m_program), QSettings::IniFormat);
    const QStringList order = settings.value(Order).toStringList();
    const QString chosenBefore = order.value(settings.value(Chosen, -1).toInt());
    std::vector<std::pair<qsizetype, size_t>> ranks;
    int chosenNow = m_tabs->currentIndex();
    for (size_t i = 0; i < m_notes.size(); ++i) {
        const qsizetype rank = order.indexOf(fingerprint(m_notes[i]->record));
        ranks.emplace_back(rank < 0 ? order.size() : rank, i);
    }
    std::sort(ranks.begin(), ranks.end());
    std::vector<std::unique_ptr<StackNote>> sorted;
    for (const auto &[rank, index] : ranks) {
        if (rank < order.size() && order[rank] == chosenBefore)
            chosenNow = static_cast<int>(sorted.size());
        sorted.push_back(std::move(m_notes[index]));
    }
    m_notes = std::move(sorted);
    renumber(0);
    {
        const QSignalBlocker quiet(m_tabs);
        m_tabs->setCurrentIndex(chosenNow);
    }
    for (const auto &note : m_notes) {
        showTitle(*note);
        m_tabs->setInk(static_cast<int>(*indexOf(note->record.Tag)), note->ink);
    }
    SetActivatedForm();
}
