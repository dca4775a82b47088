// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

struct clsAlarmProps;
struct clsNoteProps;
struct clsprogramoptions;
struct clsPwdProps;
struct clsSend;
struct clsSettingsProps;

/// Copies between the records, property by property: the second record takes the listed properties of the first and
/// keeps all others.
namespace modCopyObject
{

void CopyNoteToPwd(const clsNoteProps &from, clsPwdProps &to);
void CopyPwdToNote(const clsPwdProps &from, clsNoteProps &to);
void CopyNoteToAlarm(const clsNoteProps &from, clsAlarmProps &to);
void CopyAlarmToNote(const clsAlarmProps &from, clsNoteProps &to);
void CopyNoteToSend(const clsNoteProps &from, clsSend &to);
void CopyNoteToSettings(const clsNoteProps &from, clsSettingsProps &to);
void CopySettingsToNote(const clsSettingsProps &from, clsNoteProps &to);
void CopyOptionsToNote(const clsprogramoptions &from, clsNoteProps &to);
/// Leaves `Comments` and `SaveTag` as they were.
void CopyNote(const clsNoteProps &from, clsNoteProps &to);
void CopyOptions(const clsprogramoptions &from, clsprogramoptions &to);

} // namespace modCopyObject
