// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "forms/modTimers.h"

#include "forms/Program.h"
#include "forms/modFormsSaving.h"

#include <QEventLoop>

namespace modTimers
{

void SetAutoSave(Program &program, bool on)
{
    program.autoSave.disconnect();
    program.autoSave.stop();
    if (!on)
        return;
    program.autoSave.setTimerType(Qt::VeryCoarseTimer);
    QObject::connect(&program.autoSave, &QTimer::timeout, &program.autoSave,
                     [&program] { modForms::SaveAllNotes(program); });
    program.autoSave.start(AutoSavePeriod);
}

void Wait(std::chrono::milliseconds time)
{
    QEventLoop loop;
    QTimer::singleShot(time, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace modTimers
