// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/DataImage.h"
#include "model/DataSurvey.h"
#include "model/modStreams.h"
#include "require.h"

namespace
{

constexpr int Room = 4;

/// The file as a start and a save of everything would write it.
QByteArray writtenBack(const DataSurvey &survey)
{
    DataImage image;
    qint32 tag = 0;
    for (const DataSurvey::Note &found : survey.notes)
        require(image.keepLoaded(++tag, modStreams::EncodeNoteRecord(found.note)));
    for (const QByteArrayView record : survey.beyondRoom)
        require(image.keepForeign(record.toByteArray()));
    return image.bytes();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArrayView file = bytesOf(data, size);
    const DataSurvey survey = surveyDataFile(file, {}, Room);
    require(survey.notes.size() + survey.beyondRoom.size() + size_t(survey.undecodable) == size_t(survey.recordCount));
    const QByteArray written = writtenBack(survey);
    const DataSurvey again = surveyDataFile(written, {}, Room);
    require(!again.isDamaged && again.notes.size() == survey.notes.size());
    require(again.beyondRoom.size() == survey.beyondRoom.size() && writtenBack(again) == written);
    require(survey.isDamaged || survey.recordCount == 0 || written.size() == file.size());
    return 0;
}
