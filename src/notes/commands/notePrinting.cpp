// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/commands/notePrinting.h"

#include "forms/Program.h"
#include "platform/Printing.h"
#include "platform/Prompts.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QImage>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QRawFont>
#include <QTextLayout>
#include <QTextOption>

#include <algorithm>
#include <array>

namespace notePrinting
{
namespace
{

constexpr qreal TwipsPerInch = 1440;
constexpr qreal Margin = 720; ///< Twips, also between title, text and date.
constexpr qreal TitlePoints = 2;
constexpr qreal SmallestPoints = 1;
constexpr QChar FirstPicture(0x2000);    ///< No character below is a picture by itself.
constexpr qreal MostPicturePixels = 256; ///< Of the side of one character.

bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t';
}

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

bool printAll(Pages &pages, const Sheet &sheet)
{
    const qreal points = sheet.textFont.pointSizeF();
    if (!pages.print(sheet.title, headFont(sheet, points + TitlePoints)))
        return false;
    pages.space(Margin);
    for (const QString &line : sheet.lines)
        if (!pages.print(line, sheet.textFont))
            return false;
    pages.space(Margin);
    return pages.print(sheet.date, headFont(sheet, points - TitlePoints)) && pages.ended();
}

void tell(Program &program, const QString &text, QWidget *owner)
{
    program.prompts().tell({text, QCoreApplication::translate("notePrinting", "Print"), Message::Icon::Exclamation},
                           owner);
}

} // namespace

QStringList SpliceStringToPrint(const QString &text, const QFont &font, float twipsPerPixel)
{
    const QFontMetricsF metrics(font);
    const auto limit = static_cast<qreal>(LineWidth / twipsPerPixel);
    QStringList lines;
    QString line;
    for (const QChar c : text) {
        if (c == u'\n')
            continue;
        if (c != u'\r')
            line += c;
        if (c == u'\r' || (isBlank(c) && metrics.horizontalAdvance(line) > limit))
            lines.append(std::exchange(line, {}));
    }
    if (!line.isEmpty())
        lines.append(line);
    return lines;
}

QStringList wrappedBeforeLimit(const QString &text, const QFont &font, float twipsPerPixel)
{
    const QFontMetricsF metrics(font);
    const auto limit = static_cast<qreal>(LineWidth / twipsPerPixel);
    QStringList lines;
    QString line;
    qsizetype lastBlank = 0; // Length of the line up to and with its last blank.
    const auto breakLine = [&] {
        if (lastBlank == 0 || metrics.horizontalAdvance(line.trimmed()) <= limit)
            return;
        lines.append(line.left(lastBlank));
        line.remove(0, lastBlank);
        lastBlank = 0;
    };
    for (const QChar c : text) {
        if (isBlank(c) || c == u'\r')
            breakLine();
        if (c == u'\r')
            lines.append(std::exchange(line, {}));
        else if (c != u'\n')
            line += c;
        if (c == u'\r' || isBlank(c))
            lastBlank = line.size();
    }
    breakLine();
    if (!line.isEmpty())
        lines.append(line);
    return lines;
}

bool printOn(QPagedPaintDevice &paper, const Sheet &sheet)
{
    Pages pages(paper);
    return pages.begun() && printAll(pages, sheet);
}

void printSheet(Program &program, const Sheet &sheet, QWidget *owner)
{
    const auto paper = program.printing().paper(sheet.title);
    if (paper == nullptr) {
        tell(program, QCoreApplication::translate("notePrinting", "There is no printer.  The Quillet was not printed."),
             owner);
        return;
    }
    if (!printOn(*paper, sheet))
        tell(program, QCoreApplication::translate("notePrinting", "The printer failed.  The Quillet was not printed."),
             owner);
}

} // namespace notePrinting
