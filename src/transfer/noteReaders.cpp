// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "transfer/noteReaders.h"

#include "transfer/plainTexts.h"

#include <QHash>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <algorithm>

namespace
{

constexpr qsizetype LongestTitle = 200;
constexpr qsizetype MostEntries = 1000; ///< Of one file.

/// The first line of a text that has something in it, cut to a title.
QString firstLine(const QString &text)
{
    return text.trimmed().section(QLatin1String("\r\n"), 0, 0).trimmed().left(LongestTitle);
}

/// Formats break lines where they like; the title is written again at the beginning by some.
QString withoutTitle(const QString &text, const QString &title)
{
    const QString first = text.section(QLatin1String("\r\n"), 0, 0);
    if (first.trimmed() != title)
        return text;
    qsizetype begin = first.size();
    while (begin < text.size() && (text.at(begin) == u'\r' || text.at(begin) == u'\n'))
        ++begin;
    return text.mid(begin);
}

/// The text inside the element that was begun; each entry of a list is a line, whether its line end stands inside or
/// behind it.
QString contentOf(QXmlStreamReader &xml)
{
    QString text;
    bool endsEntry = false;
    for (int depth = 1; depth > 0 && !xml.atEnd();) {
        xml.readNext();
        if (xml.isCharacters()) {
            if (endsEntry && !text.endsWith(u'\n') && !xml.text().startsWith(u'\n'))
                text += u'\n';
            text += xml.text();
            endsEntry = false;
        } else if (xml.isStartElement()) {
            ++depth;
        } else if (xml.isEndElement()) {
            --depth;
            endsEntry = endsEntry || xml.name() == QLatin1String("list-item");
        }
    }
    return plainTexts::withNoteLines(text);
}

/// "name;parameters:value" of a calendar, with what its value means.
struct Property
{
    QString name;
    QString value;
};

/// Where the value begins; a colon in quotes belongs to a parameter.
qsizetype valueColon(const QString &line)
{
    bool isQuoted = false;
    for (qsizetype at = 0; at < line.size(); ++at) {
        if (line.at(at) == u'"')
            isQuoted = !isQuoted;
        else if (line.at(at) == u':' && !isQuoted)
            return at;
    }
    return -1;
}

std::optional<Property> propertyOf(const QString &line)
{
    const qsizetype colon = valueColon(line);
    if (colon <= 0)
        return std::nullopt;
    QString value;
    for (qsizetype at = colon + 1; at < line.size(); ++at) {
        const bool isEscaped = line.at(at) == u'\\' && at + 1 < line.size();
        const QChar sign = isEscaped ? line.at(++at) : line.at(at);
        value += isEscaped && sign.toLower() == u'n' ? QChar(u'\n') : sign;
    }
    return Property{line.left(colon).section(u';', 0, 0).toUpper(), value};
}

bool looksLikeHtml(const QString &text)
{
    return text.startsWith(QLatin1String("<!DOCTYPE"), Qt::CaseInsensitive) ||
           text.startsWith(QLatin1String("<html"), Qt::CaseInsensitive);
}

QDateTime calendarDate(const QString &value)
{
    const bool isUtc = value.endsWith(u'Z');
    QDateTime date = QDateTime::fromString(value.left(15), QStringLiteral("yyyyMMdd'T'HHmmss"));
    if (isUtc)
        date.setTimeSpec(Qt::UTC);
    return date;
}

/// A journal entry as it is read.
struct Journal
{
    CarriedNote note;
    QString description;
    std::optional<bool> isRich; ///< Not told by all programs.
};

void take(Journal &journal, const Property &property)
{
    if (property.name == QLatin1String("SUMMARY"))
        journal.note.title = property.value.simplified().left(LongestTitle);
    else if (property.name == QLatin1String("DESCRIPTION"))
        journal.description = property.value;
    else if (property.name == QLatin1String("CREATED"))
        journal.note.date = calendarDate(property.value);
    else if (property.name == QLatin1String("X-KDE-KNOTES-BGCOLOR"))
        journal.note.backColour = plainTexts::colour(property.value);
    else if (property.name == QLatin1String("X-KDE-KNOTES-FGCOLOR"))
        journal.note.textColour = plainTexts::colour(property.value);
    else if (property.name == QLatin1String("X-KDE-KNOTES-RICHTEXT"))
        journal.isRich = property.value.trimmed() == QLatin1String("true");
}

CarriedNote noteOf(Journal journal)
{
    CarriedNote note = std::move(journal.note);
    note.text = journal.isRich.value_or(looksLikeHtml(journal.description))
                    ? plainTexts::fromHtml(journal.description)
                    : plainTexts::withNoteLines(journal.description);
    if (note.title.isEmpty())
        note.title = firstLine(note.text);
    return note;
}

/// Lines are broken between any two bytes, even inside of a letter.
QByteArray unfolded(QByteArray bytes)
{
    bytes.replace("\r\n", "\n");
    return bytes.replace("\n ", "").replace("\n\t", "");
}

/// "key value" lines; of two with the same key the first counts.
QHash<QString, QString> valuesOf(const QByteArray &bytes)
{
    QHash<QString, QString> values;
    for (const QString &line : plainTexts::decoded(bytes).split(QLatin1String("\r\n")))
        if (const QString key = line.section(u' ', 0, 0); !values.contains(key))
            values.insert(key, line.section(u' ', 1).trimmed());
    return values;
}

/// In one value, or in three of 16 bits each.
std::optional<qint32> colourIn(const QHash<QString, QString> &values, const QString &key)
{
    if (const auto one = plainTexts::colour(values.value(key)))
        return one;
    qint32 result = 0;
    int shift = 0;
    for (const char *part : {"_red", "_green", "_blue"}) {
        bool isNumber = false;
        const uint value = values.value(key + QLatin1String(part)).toUInt(&isNumber);
        if (!isNumber)
            return std::nullopt;
        result |= static_cast<qint32>(qMin(value, 0xFFFFU) >> 8) << shift;
        shift += 8;
    }
    return result;
}

void chopAll(QString &text, QStringView signs)
{
    while (!text.isEmpty() && signs.contains(text.back()))
        text.chop(1);
}

/// A first line "# Title #" and the empty line behind it.
void takeHeading(CarriedNote &note)
{
    const auto sign = std::find_if(note.text.cbegin(), note.text.cend(), [](QChar c) { return !c.isSpace(); });
    const qsizetype begin = sign - note.text.cbegin();
    const qsizetype end = note.text.indexOf(QLatin1String("\r\n"), begin);
    QString line = note.text.mid(begin, end < 0 ? -1 : end - begin);
    if (!line.startsWith(QLatin1String("# ")))
        return;
    chopAll(line, u" #");
    const QString title = line.mid(2).trimmed();
    if (title.isEmpty())
        return;
    note.title = title.left(LongestTitle);
    note.text = end < 0 ? QString() : note.text.mid(end + 2);
    if (note.text.startsWith(QLatin1String("\r\n")))
        note.text.remove(0, 2);
}

} // namespace

CarriedNote noteReaders::ofText(const QString &name, const QByteArray &bytes)
{
    return {.title = name.simplified().left(LongestTitle), .text = plainTexts::decoded(bytes)};
}

CarriedNote noteReaders::ofMarkdown(const QString &name, const QByteArray &bytes)
{
    static const QRegularExpression task(QStringLiteral("(^|\\n)([ \\t]*)[-*+] (\\[[ xX]\\])"));
    CarriedNote note = ofText(name, bytes);
    takeHeading(note);
    QStringList lines = note.text.split(QLatin1String("\r\n"));
    for (qsizetype i = 0; i + 1 < lines.size(); ++i)
        if (lines.at(i).endsWith(QLatin1String("  ")))
            chopAll(lines[i], u" ");
    note.text = lines.join(QLatin1String("\r\n")).replace(task, QStringLiteral("\\1\\2\\3"));
    return note;
}

std::optional<CarriedNote> noteReaders::ofGnote(const QByteArray &bytes)
{
    QXmlStreamReader xml(bytes);
    CarriedNote note;
    bool isNote = false;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        isNote = isNote || xml.name() == QLatin1String("note");
        if (xml.name() == QLatin1String("title"))
            note.title = contentOf(xml).simplified().left(LongestTitle);
        else if (xml.name() == QLatin1String("note-content"))
            note.text = contentOf(xml);
        else if (xml.name() == QLatin1String("create-date"))
            note.date = QDateTime::fromString(xml.readElementText(), Qt::ISODateWithMs);
        else if (xml.name() == QLatin1String("tag") && xml.readElementText() == QLatin1String("system:template"))
            return std::nullopt;
    }
    if (!isNote || xml.hasError())
        return std::nullopt;
    note.text = withoutTitle(note.text, note.title);
    return note;
}

QString noteReaders::xpadContent(const QByteArray &info)
{
    // Early versions wrote the whole path, of a folder that has moved since.
    return valuesOf(info).value(QStringLiteral("content")).section(u'/', -1);
}

CarriedNote noteReaders::ofXpad(const QByteArray &content, const QByteArray &info, const QByteArray &defaultStyle)
{
    const QHash<QString, QString> own = valuesOf(info);
    const bool isOwn = own.value(QStringLiteral("follow_color")) == QLatin1String("0");
    const QHash<QString, QString> colours = isOwn ? own : valuesOf(defaultStyle);
    static const QRegularExpression formatting(QStringLiteral("\\x{E000}/?[a-z-]{1,20}\\x{E000}"));
    CarriedNote note{.title = QString(), .text = plainTexts::decoded(content).remove(formatting)};
    note.title = firstLine(note.text);
    note.backColour = colourIn(colours, QStringLiteral("back"));
    note.textColour = colourIn(colours, QStringLiteral("text"));
    return note;
}

std::vector<CarriedNote> noteReaders::ofCalendar(const QByteArray &bytes)
{
    std::vector<Journal> journals;
    int depth = 0; ///< In what a journal entry holds; 1 in itself.
    for (const QString &line : plainTexts::decoded(unfolded(bytes)).split(QLatin1String("\r\n"))) {
        const auto property = propertyOf(line);
        if (!property)
            continue;
        const bool isJournal = property->value.trimmed().compare(QLatin1String("VJOURNAL"), Qt::CaseInsensitive) == 0;
        if (property->name == QLatin1String("BEGIN")) {
            const bool begins = depth == 0 && isJournal && std::ssize(journals) < MostEntries;
            if (begins)
                journals.emplace_back();
            depth += begins || depth > 0 ? 1 : 0;
        } else if (property->name == QLatin1String("END")) {
            depth -= depth > 0 ? 1 : 0;
        } else if (depth == 1) {
            take(journals.back(), *property);
        }
    }
    std::vector<CarriedNote> notes;
    notes.reserve(journals.size());
    for (Journal &journal : journals)
        notes.push_back(noteOf(std::move(journal)));
    return notes;
}
