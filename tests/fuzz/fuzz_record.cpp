// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/modStreams.h"
#include "require.h"

#include <QDateTime>

namespace
{

void readFileForm(QByteArrayView bytes)
{
    const auto measured = modStreams::measureNoteRecord(bytes, 0);
    const auto decoded = modStreams::DecodeNoteRecord(bytes, 0, {});
    require(measured.ok() == decoded.ok());
    if (!decoded)
        return;
    require(measured.value() == decoded.value().length);
    const QByteArray again = modStreams::EncodeNoteRecord(decoded.value().note);
    require(again.size() == decoded.value().length);
    const auto second = modStreams::DecodeNoteRecord(again, 0, {});
    require(second.ok() && modStreams::EncodeNoteRecord(second.value().note) == again);
}

void readWireForm(QByteArrayView bytes)
{
    static const QDateTime arrival(QDate(2026, 11, 22), QTime(22, 15));
    const auto received = modStreams::DecodeReceivedRecord(bytes, 0, u"pc1", u"Ann", arrival, {});
    if (!received)
        return;
    QByteArray again;
    modStreams::EncodeSendRecord(received.value().note, again);
    require(again.size() == received.value().length + 2 * QStringView(u" (Ann, pc1)").size());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    readFileForm(bytesOf(data, size));
    readWireForm(bytesOf(data, size));
    return 0;
}
