// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "forms/Program.h"

#include "model/modCopyObject.h"
#include "platform/Browser.h"
#include "platform/Choosers.h"
#include "platform/Clock.h"
#include "platform/Keyring.h"
#include "platform/Nearby.h"
#include "platform/Printing.h"
#include "platform/Prompts.h"
#include "platform/SoundPlayer.h"
#include "platform/freeMemory.h"

#include <QLocale>

namespace
{
constexpr float DialogOffsetDesign = 250.0F;
}

Program::Program(Services services, const ProgramPaths &paths, double logicalDpi)
    : twips(logicalDpi), ScaleFactor(twips.scaleFactor()), DialogOffset(DialogOffsetDesign * ScaleFactor),
      backgrounds(freeMemory::giveBack), m_services(std::move(services))
{
    file.paths = paths;
}

Program::~Program() = default;

void Program::BuildNoteDefaults()
{
    const QString today = QLocale().toString(clock().now().date(), QLocale::ShortFormat);
    NewNoteDefaults = modFileIO::BuildNoteDefaults(ProgramOptions, today);
    NoteTemplate = clsNoteProps();
    modCopyObject::CopyNote(NewNoteDefaults, NoteTemplate);
}
