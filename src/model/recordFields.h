// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/clsNoteProps.h"
#include "model/clsprogramoptions.h"

#include <tuple>

/// The lists of properties that copying, both record forms and the tests go by, each written once. A list is a tuple of
/// pointers to members; one that several records share is made for each of them.
namespace recordFields
{

template <class Record>
inline constexpr auto password = std::tuple(&Record::PicFile, &Record::PwdOn, &Record::Pwd, &Record::PwdReadonlyOn,
                                            &Record::PwdOpenCloseOn);

template <class Record>
inline constexpr auto alarm = std::tuple(&Record::AlarmOn, &Record::AlarmDateDay, &Record::AlarmDateMonth,
                                         &Record::AlarmDateYear, &Record::AlarmTimeHour, &Record::AlarmTimeMinute,
                                         &Record::AlarmTimeSecond, &Record::SoundFileOn, &Record::SoundFile,
                                         &Record::FlashOn);

template <class Record>
inline constexpr auto look = std::tuple(&Record::ForeColor, &Record::BackColor, &Record::FontName, &Record::FontSize,
                                        &Record::FontBoldOn, &Record::FontItalicOn, &Record::BackPicOn);

template <class Record> inline constexpr auto settings = std::tuple_cat(look<Record>, password<Record>, alarm<Record>);

template <class Record>
inline constexpr auto send = std::tuple_cat(std::tuple(&Record::FrmHeight, &Record::FrmWidth, &Record::FrmTop,
                                                       &Record::FrmLeft, &Record::FrmScrolledOn,
                                                       &Record::FrmHeightBefore, &Record::ToolBarOn,
                                                       &Record::TitleBarTitle),
                                            look<Record>, std::tuple(&Record::Data));

/// What a note takes from the options.
template <class Record>
inline constexpr auto noteDefaults =
    std::tuple_cat(look<Record>, std::tuple(&Record::FrmHeight, &Record::FrmWidth, &Record::ToolBarOn, &Record::OnTopOn,
                                            &Record::PicFile, &Record::PwdReadonlyOn, &Record::PwdOpenCloseOn,
                                            &Record::SoundFileOn, &Record::SoundFile, &Record::FlashOn));

/// A note but for its comments and its mark as changed.
inline constexpr auto note =
    std::tuple_cat(send<clsNoteProps>, password<clsNoteProps>, alarm<clsNoteProps>,
                   std::tuple(&clsNoteProps::DateCreated, &clsNoteProps::OnTopOn, &clsNoteProps::NoteStackOn,
                              &clsNoteProps::Tag, &clsNoteProps::TempTitle));

inline constexpr auto options = std::tuple_cat(
    noteDefaults<clsprogramoptions>,
    std::tuple(&clsprogramoptions::TitleBarOn, &clsprogramoptions::NameName, &clsprogramoptions::NameTitle,
               &clsprogramoptions::Org, &clsprogramoptions::ListeningPort, &clsprogramoptions::SMTPServer,
               &clsprogramoptions::EmailAddress, &clsprogramoptions::AddressBook, &clsprogramoptions::SendBook));

/// The file form of a note, in the order of the bytes.
inline constexpr auto fileForm = std::tuple(
    &clsNoteProps::PwdOn, &clsNoteProps::OnTopOn, &clsNoteProps::PwdReadonlyOn, &clsNoteProps::PwdOpenCloseOn,
    &clsNoteProps::AlarmOn, &clsNoteProps::SoundFileOn, &clsNoteProps::FlashOn, &clsNoteProps::NoteStackOn,
    &clsNoteProps::ToolBarOn, &clsNoteProps::FrmScrolledOn, &clsNoteProps::BackPicOn, &clsNoteProps::FontBoldOn,
    &clsNoteProps::FontItalicOn, &clsNoteProps::AlarmDateMonth, &clsNoteProps::AlarmDateYear,
    &clsNoteProps::AlarmTimeHour, &clsNoteProps::AlarmTimeMinute, &clsNoteProps::AlarmTimeSecond,
    &clsNoteProps::AlarmDateDay, &clsNoteProps::ForeColor, &clsNoteProps::BackColor, &clsNoteProps::FontSize,
    &clsNoteProps::FrmHeight, &clsNoteProps::FrmHeightBefore, &clsNoteProps::FrmLeft, &clsNoteProps::FrmTop,
    &clsNoteProps::FrmWidth, &clsNoteProps::TitleBarTitle, &clsNoteProps::DateCreated, &clsNoteProps::PicFile,
    &clsNoteProps::Pwd, &clsNoteProps::FontName, &clsNoteProps::Data, &clsNoteProps::SoundFile,
    &clsNoteProps::Comments);

/// The wire form of a note, in the order of the bytes.
inline constexpr auto wireForm =
    std::tuple(&clsNoteProps::FontBoldOn, &clsNoteProps::FontItalicOn, &clsNoteProps::ForeColor,
               &clsNoteProps::BackColor, &clsNoteProps::FontSize, &clsNoteProps::FrmHeight, &clsNoteProps::FrmWidth,
               &clsNoteProps::TitleBarTitle, &clsNoteProps::DateCreated, &clsNoteProps::FontName, &clsNoteProps::Data);

} // namespace recordFields
