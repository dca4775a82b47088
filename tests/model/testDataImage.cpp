// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/DataImage.h"
#include "samples.h"

#include <QObject>
#include <QRandomGenerator>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace
{

/// The data file kept as bytes that are moved about. Positions count from 1, so byte 0 is not used.
class ByteImage
{
public:
    void write(qint32 tag, const QByteArray &record, bool keep)
    {
        if (m_count > 0)
            take(tag);
        if (keep)
            insert(tag, record);
    }

    QByteArray bytes()
    {
        put(1, qint32(m_bytes.size() - 1));
        put(5, m_count);
        return m_count > 0 ? m_bytes.sliced(1) : QByteArray();
    }

private:
    qint32 get(qsizetype at) const { return qFromLittleEndian<qint32>(m_bytes.data() + at); }
    void put(qsizetype at, qint32 value) { qToLittleEndian(value, m_bytes.data() + at); }
    static qsizetype entry(qint32 index) { return 9 + 12 * qsizetype(index); }

    void take(qint32 tag)
    {
        qint32 found = -1;
        for (qint32 k = 0; k < m_count; ++k)
            found = get(entry(k)) == tag ? k : found;
        if (found < 0)
            return;
        const qint32 start = get(entry(found) + 4);
        const qint32 length = get(entry(found) + 8);
        m_bytes.remove(entry(found), 12).remove(start - 12, length);
        --m_count;
        for (qint32 k = 0; k < m_count; ++k) {
            const qint32 moved = get(entry(k) + 4) - 12;
            put(entry(k) + 4, moved > start - 12 ? moved - length : moved);
        }
    }

    void insert(qint32 tag, const QByteArray &record)
    {
        const auto start = qint32(m_bytes.size() + 12);
        m_bytes.insert(9, QByteArray(12, '\0')).append(record);
        put(9, tag);
        put(13, start);
        put(17, qint32(record.size()));
        for (qint32 k = 1; k <= m_count; ++k)
            put(entry(k) + 4, get(entry(k) + 4) + 12);
        ++m_count;
    }

    QByteArray m_bytes = QByteArray(9, '\0');
    qint32 m_count = 0;
};

} // namespace

class testDataImage final : public QObject
{
    Q_OBJECT

private slots:
    void movesLikeBytes();
    void foreignRecordsStayLast();
};

void testDataImage::movesLikeBytes()
{
    QRandomGenerator random(1);
    DataImage image;
    ByteImage reference;
    for (int turn = 0; turn < 2000; ++turn) {
        const auto tag = qint32(random.bounded(1, 9));
        const QByteArray record(random.bounded(0, 40), char('a' + turn % 26));
        const bool keep = random.bounded(3) > 0;
        if (keep)
            QVERIFY(image.put(tag, record).ok());
        else
            image.remove(tag);
        reference.write(tag, record, keep);
        QCOMPARE(image.bytes(), reference.bytes());
        QCOMPARE(image.ImageLength(), image.bytes().size());
    }
}

void testDataImage::foreignRecordsStayLast()
{
    DataImage image;
    image.keepForeign("first");
    image.keepForeign("second");
    QVERIFY(image.put(7, "new").ok());
    image.keepLoaded(3, "old");
    QVERIFY(!image.remove(1));
    const QByteArray expected = QByteArray::fromHex("4900000004000000"
                                                    "070000004700000003000000"
                                                    "030000004400000003000000"
                                                    "000000003f00000005000000"
                                                    "000000003900000006000000") +
                                "secondfirstoldnew";
    QCOMPARE(image.bytes().toHex(' '), expected.toHex(' '));
}

QTEST_APPLESS_MAIN(testDataImage)
#include "testDataImage.moc"
