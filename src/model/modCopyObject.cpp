// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/modCopyObject.h"

#include "model/clsAlarmProps.h"
#include "model/clsPwdProps.h"
#include "model/clsSend.h"
#include "model/clsSettingsProps.h"
#include "model/recordFields.h"

namespace
{

template <class From, class To, class... Types>
void copyFields(const From &from, const std::tuple<Types From::*...> &sources, To &to,
                const std::tuple<Types To::*...> &targets)
{
    [&]<std::size_t... Index>(std::index_sequence<Index...>)
    {
        ((to.*std::get<Index>(targets) = from.*std::get<Index>(sources)), ...);
    }
    (std::index_sequence_for<Types...>());
}

} // namespace

void modCopyObject::CopyNoteToPwd(const clsNoteProps &from, clsPwdProps &to)
{
    copyFields(from, recordFields::password<clsNoteProps>, to, recordFields::password<clsPwdProps>);
}

void modCopyObject::CopyPwdToNote(const clsPwdProps &from, clsNoteProps &to)
{
    copyFields(from, recordFields::password<clsPwdProps>, to, recordFields::password<clsNoteProps>);
}

void modCopyObject::CopyNoteToAlarm(const clsNoteProps &from, clsAlarmProps &to)
{
    copyFields(from, recordFields::alarm<clsNoteProps>, to, recordFields::alarm<clsAlarmProps>);
}

void modCopyObject::CopyAlarmToNote(const clsAlarmProps &from, clsNoteProps &to)
{
    copyFields(from, recordFields::alarm<clsAlarmProps>, to, recordFields::alarm<clsNoteProps>);
}

void modCopyObject::CopyNoteToSend(const clsNoteProps &from, clsSend &to)
{
    copyFields(from, recordFields::send<clsNoteProps>, to, recordFields::send<clsSend>);
}

void modCopyObject::CopyNoteToSettings(const clsNoteProps &from, clsSettingsProps &to)
{
    copyFields(from, recordFields::settings<clsNoteProps>, to, recordFields::settings<clsSettingsProps>);
}

void modCopyObject::CopySettingsToNote(const clsSettingsProps &from, clsNoteProps &to)
{
    copyFields(from, recordFields::settings<clsSettingsProps>, to, recordFields::settings<clsNoteProps>);
}

void modCopyObject::CopyOptionsToNote(const clsprogramoptions &from, clsNoteProps &to)
{
    copyFields(from, recordFields::noteDefaults<clsprogramoptions>, to, recordFields::noteDefaults<clsNoteProps>);
}

void modCopyObject::CopyNote(const clsNoteProps &from, clsNoteProps &to)
{
    copyFields(from, recordFields::note, to, recordFields::note);
}

void modCopyObject::CopyOptions(const clsprogramoptions &from, clsprogramoptions &to)
{
    copyFields(from, recordFields::options, to, recordFields::options);
}
