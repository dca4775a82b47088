// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "net/bookRules.h"
#include "net/modEmail.h"
#include "net/modSend.h"
#include "require.h"

namespace
{

/// What the editor would write of it reads back as the same addresses.
template <class Entry> void throughTheEditor(const QList<Entry> &entries, QString (*editorLine)(const Entry &))
{
    QList<BookLine> lines;
    for (const BookAlias &alias : bookRules::aliasesOf(entries, editorLine))
        lines.append({alias.name, alias.lines});
    const QByteArray written = bookFile::build(lines);
    require(bookFile::build(bookFile::parse(written)) == written);
}

void read(const QByteArray &bytes)
{
    const QList<BookLine> lines = bookFile::parse(bytes);
    require(bookFile::parse(bookFile::build(lines)).size() <= lines.size());
    const auto hosts = modSend::entriesOf(lines);
    const auto people = modEmail::entriesOf(lines);
    throughTheEditor(hosts, modSend::editorLine);
    throughTheEditor(people, modEmail::editorLine);
    for (const BookLine &line : lines.first(std::min<qsizetype>(lines.size(), 4))) {
        const auto targets = modSend::resolveTargets(line.alias, hosts);
        require(!targets || (!targets.value().isEmpty() && targets.value().size() <= 1000));
        const auto recipients = modEmail::resolveRecipients(line.addresses, people);
        require(!recipients || (!recipients.value().isEmpty() && recipients.value().size() <= 1000));
    }
}

} // namespace

/// The bytes as they are, and each line as that of an alias: the fuzzer does not find the word by itself.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    QByteArray bytes = bytesOf(data, size).toByteArray();
    read(bytes);
    read("alias " + bytes.replace("\n", "\nalias "));
    return 0;
}
