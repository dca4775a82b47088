// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "drawing/textShortening.h"
#include "model/modFileIO.h"
#include "notes/commands/notePrinting.h"
#include "notes/parts/NoteText.h"
#include "platform/SystemPrinting.h"

#include <QApplication>
#include <QBuffer>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QPdfWriter>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <vector>

namespace
{

constexpr int MostNotes = 100;

/// A data folder with a file of 100 notes.
class HundredNotes
{
public:
    HundredNotes()
    {
        state.paths = ProgramPaths::under(m_folder.path(), m_folder.path());
        QDir(m_folder.path()).mkdir(QStringLiteral("Data"));
        QFile::copy(QStringLiteral(BENCH_DATA "/hundred.dat"), state.paths.DataFile);
    }

    void load()
    {
        notes.clear();
        const auto take = [this](clsNoteProps &&note) {
            note.Tag = static_cast<qint32>(notes.size()) + 1;
            notes.push_back(std::move(note));
            return notes.back().Tag;
        };
        modFileIO::LoadDataFile(state, {}, MostNotes, take, {}, {}, QDateTime::currentDateTime());
    }

    DataFileState state;
    std::vector<clsNoteProps> notes;

private:
    QTemporaryDir m_folder;
};

void loadHundredNotes(benchmark::State &run)
{
    HundredNotes file;
    for (auto _ : run)
        file.load();
    run.counters["notes"] = static_cast<double>(file.notes.size());
}

void saveHundredNotes(benchmark::State &run)
{
    HundredNotes file;
    file.load();
    for (auto _ : run) {
        SaveBatch batch(file.state);
        for (clsNoteProps &note : file.notes) {
            note.FrmLeft += 1;
            static_cast<void>(modFileIO::WriteNoteRecord(file.state, note, NoteFate::Keep));
        }
        if (!batch.end())
            run.SkipWithError("not written");
    }
    run.counters["bytes"] = static_cast<double>(QFile(file.state.paths.DataFile).size());
    run.counters["replacements per save"] =
        benchmark::Counter(file.state.replacements, benchmark::Counter::kAvgIterations);
}

void shortenTwoHundredThousandCharacters(benchmark::State &run)
{
    const QString title = QStringLiteral("a long title ").repeated(15385);
    const QFont font(QStringLiteral("DejaVu Sans"), 9);
    for (auto _ : run)
        benchmark::DoNotOptimize(textShortening::shortened(title, 150, font));
}

/// From the caption to the picture on the screen.
void showFiveMegabytes(benchmark::State &run)
{
    const QString text = QStringLiteral("a line of usual length\r\n").repeated(5'000'000 / 24);
    NoteText shown(nullptr);
    shown.resize(210, 140);
    QPixmap picture(shown.size());
    for (auto _ : run) {
        shown.setCaption(text);
        shown.render(&picture);
    }
}

/// Onto the pages of a document.
void printFiveMegabytes(benchmark::State &run)
{
    const QString text = QStringLiteral("a line of usual length\r\n").repeated(5'000'000 / 24);
    const QFont font(QStringLiteral("DejaVu Sans"), 9);
    notePrinting::Sheet sheet;
    sheet.textFont = font;
    sheet.text = text;
    sheet.lineEnd = notePrinting::LineEnd::BehindLimit;
    SystemPrinting printing;
    for (auto _ : run) {
        QBuffer pages;
        pages.open(QIODevice::WriteOnly);
        QPdfWriter paper(&pages);
        const auto printed = notePrinting::printOn(paper, printing, sheet, 15, [](qsizetype) { return true; });
        if (printed != notePrinting::Printed::Whole)
            run.SkipWithError("not printed");
    }
}

BENCHMARK(loadHundredNotes)->Unit(benchmark::kMicrosecond);
BENCHMARK(saveHundredNotes)->Unit(benchmark::kMicrosecond);
BENCHMARK(shortenTwoHundredThousandCharacters)->Unit(benchmark::kMicrosecond);
BENCHMARK(showFiveMegabytes)->Unit(benchmark::kMicrosecond);
BENCHMARK(printFiveMegabytes)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
