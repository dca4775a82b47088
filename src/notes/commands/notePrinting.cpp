// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/commands/notePrinting.h"

#include "forms/Program.h"
#include "forms/Progress.h"
#include "platform/Printing.h"
#include "platform/Prompts.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QImage>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPointer>
#include <QRawFont>
#include <QTextLayout>
#include <QTextOption>

#include <algorithm>
#include <array>

using namespace std::chrono_literals;

namespace notePrinting
{
namespace
{

constexpr qreal TwipsPerInch = 1440;
constexpr qreal Margin = 720; ///< Twips, also between title, text and date.
constexpr qreal TitlePoints = 2;
constexpr qreal SmallestPoints = 1;
constexpr QChar FirstPicture(0x2000); ///< No character below is a picture by itself.
constexpr int LinesBetweenLooks = 100;
constexpr auto Patience = 500ms;         ///< Before the progress is shown.
constexpr qreal MostPicturePixels = 256; ///< Of the side of one character.

/// Told by its tables: a font that is asked for the outline of a picture draws none of its pictures any more.
bool hasPictures(const QRawFont &font)
{
    constexpr std::array Tables{"CBLC", "COLR", "sbix"};
    return std::any_of(Tables.begin(), Tables.end(),
                       [&font](const char *table) { return !font.fontTable(table).isEmpty(); });
}

/// Puts lines one below the other and begins a new page where one is full.
class Pages
{
public:
    explicit Pages(QPagedPaintDevice &paper) : m_paper(paper), m_painter(&paper), m_top(fromTwips(Margin)) {}

    bool begun() const { return m_painter.isActive(); }
    bool ended() { return m_painter.end(); }

    void space(qreal twips) { m_top += fromTwips(twips); }

    bool print(const QString &line, const QFont &font)
    {
        const QFontMetricsF metrics(font, &m_paper);
        if (m_top + metrics.height() > m_paper.height() - fromTwips(Margin)) {
            if (!m_paper.newPage())
                return false;
            m_top = fromTwips(Margin);
        }
        QString shown = line;
        shown.replace(u'\t', QLatin1String("        "));
        draw(shown, font, {fromTwips(Margin), m_top + metrics.ascent()});
        m_top += metrics.lineSpacing();
        return true;
    }

private:
    /// The fonts of a printed document hold outlines only: characters that are pictures, as emoji, are drawn as such.
    void draw(const QString &text, const QFont &font, QPointF baseline)
    {
        m_painter.setFont(font);
        if (std::all_of(text.begin(), text.end(), [](QChar c) { return c < FirstPicture; })) {
            m_painter.drawText(baseline, text);
            return;
        }
        QTextLayout layout(text, font, &m_paper);
        QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
        option.setTextDirection(Qt::LayoutDirectionAuto);
        layout.setTextOption(option);
        layout.beginLayout();
        QTextLine line = layout.createLine();
        layout.endLayout();
        if (!line.isValid())
            return;
        line.setPosition({0, -line.ascent()});
        for (const QGlyphRun &run : line.glyphRuns())
            if (hasPictures(run.rawFont()))
                drawAsImage(run, baseline);
            else
                m_painter.drawGlyphRun(baseline, run);
    }

    void drawAsImage(const QGlyphRun &run, QPointF at)
    {
        const QRectF onPaper = run.boundingRect().translated(at) & QRectF(0, 0, m_paper.width(), m_paper.height());
        const qreal scale = qMin(1.0, MostPicturePixels / qMax(1.0, run.rawFont().pixelSize()));
        QImage image((onPaper.size() * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
        if (image.isNull())
            return;
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.scale(scale, scale);
        painter.drawGlyphRun(at - onPaper.topLeft(), run);
        painter.end();
        m_painter.drawImage(onPaper, image);
    }

    qreal fromTwips(qreal twips) const { return twips * m_paper.logicalDpiY() / TwipsPerInch; }

    QPagedPaintDevice &m_paper;
    QPainter m_painter;
    qreal m_top;
};

QFont headFont(const Sheet &sheet, qreal points)
{
    QFont font(sheet.titleFamily);
    font.setPointSizeF(qMax(SmallestPoints, points));
    font.setBold(true);
    return font;
}

Printed printAll(Pages &pages, const Sheet &sheet, LinesOnPaper lines, const std::function<bool(qsizetype)> &goesOn)
{
    const qreal points = sheet.textFont.pointSizeF();
    if (!pages.print(sheet.title, headFont(sheet, points + TitlePoints)))
        return Printed::Failed;
    pages.space(Margin);
    int count = 0;
    while (const auto line = lines.next()) {
        if (!pages.print(*line, sheet.textFont))
            return Printed::Failed;
        if (++count % LinesBetweenLooks == 0 && !goesOn(lines.done()))
            return Printed::Canceled;
    }
    pages.space(Margin);
    return pages.print(sheet.date, headFont(sheet, points - TitlePoints)) && pages.ended() ? Printed::Whole
                                                                                           : Printed::Failed;
}

void tell(Program &program, const QString &text, QWidget *owner)
{
    program.prompts().tell({text, QCoreApplication::translate("notePrinting", "Print"), Message::Icon::Exclamation},
                           owner);
}

} // namespace

QStringList SpliceStringToPrint(const QString &text, const QFont &font, float twipsPerPixel)
{
    LinesOnPaper lines(text, font, twipsPerPixel, LineEnd::BehindLimit);
    QStringList all;
    while (auto line = lines.next())
        all.append(*line);
    return all;
}

Printed printOn(QPagedPaintDevice &paper, Printing &printing, const Sheet &sheet, float twipsPerPixel,
                const std::function<bool(qsizetype)> &goesOn)
{
    Pages pages(paper);
    if (!pages.begun())
        return Printed::Failed;
    const LinesOnPaper lines(sheet.text, sheet.textFont, twipsPerPixel, sheet.lineEnd);
    const Printed printed = printAll(pages, sheet, lines, goesOn);
    if (printed == Printed::Canceled)
        printing.giveUp(paper);
    return printed;
}

void printSheet(Program &program, const Sheet &sheet, QWidget *owner)
{
    const QPointer<QWidget> window(owner);
    const auto paper = program.printing().paper(sheet.title);
    if (paper == nullptr) {
        tell(program, QCoreApplication::translate("notePrinting", "There is no printer.  The Quillet was not printed."),
             owner);
        return;
    }
    Progress progress(program, QCoreApplication::translate("notePrinting", "Printing ... - Quillets"),
                      QCoreApplication::translate("notePrinting", "Printing the Quillet ..."),
                      static_cast<int>(sheet.text.size()), Patience);
    const auto printed =
        printOn(*paper, program.printing(), sheet, program.twips.perPixel(), [&progress](qsizetype done) {
            progress.setValue(static_cast<int>(done));
            return progress.goesOn();
        });
    progress.close();
    if (printed == Printed::Failed)
        tell(program, QCoreApplication::translate("notePrinting", "The printer failed.  The Quillet was not printed."),
             window);
}

} // namespace notePrinting
