// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/modFileIOOptions.h"

#include "model/modCopyObject.h"
#include "model/modStreams.h"
#include "model/textFile.h"
#include "model/wholeFile.h"

clsprogramoptions modFileIO::SetProgramDefaults(const ProgramPaths &paths, const DesignLook &look)
{
    clsprogramoptions options;
    options.BackColor = look.BackColor;
    options.FlashOn = true;
    options.FontName = look.FontName;
    options.FontSize = look.FontSize;
    options.ForeColor = look.ForeColor;
    options.FrmHeight = 1440;
    options.FrmWidth = 2160;
    options.ToolBarOn = true;
    options.AddressBook = paths.AddressBookFile;
    options.ListeningPort = 1420;
    options.SendBook = paths.SendBookFile;
    return options;
}

bool modFileIO::LoadOptionsFile(const ProgramPaths &paths, clsprogramoptions &options)
{
    const auto file = wholeFile::read(paths.OptionsFile, textFile::MaximumBytes);
    if (!file) {
        if (file.error().kind == ReadFailure::Kind::Missing)
            static_cast<void>(wholeFile::replace(paths.OptionsFile, {}));
        return false;
    }
    if (file.value().isEmpty() || file.value().front() == '\0')
        return false;
    modStreams::ParseOptionsText(file.value(), options);
    return true;
}

Outcome<Done, QString> modFileIO::SaveOptionsFile(const ProgramPaths &paths, const clsprogramoptions &options)
{
    return wholeFile::replaceReadable(paths.OptionsFile, modStreams::BuildOptionsText(options), textFile::MaximumBytes);
}

clsNoteProps modFileIO::BuildNoteDefaults(const clsprogramoptions &options, const QString &today)
{
    clsNoteProps note;
    modCopyObject::CopyOptionsToNote(options, note);
    note.DateCreated = today;
    return note;
}
