// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/clsAlarmProps.h"
#include "model/clsPwdProps.h"
#include "model/clsSend.h"
#include "model/clsSettingsProps.h"
#include "model/modCopyObject.h"
#include "samples.h"

#include <QObject>

using namespace modCopyObject;

namespace
{

/// How many of the listed properties are the same in both records.
template <class Record, class... Types>
int countSame(const Record &a, const Record &b, const std::tuple<Types Record::*...> &fields)
{
    return std::apply([&](auto... field) { return (int(a.*field == b.*field) + ...); }, fields);
}

template <auto Out, auto Back, class Narrow> void through(const clsNoteProps &from, clsNoteProps &to)
{
    Narrow narrow;
    Out(from, narrow);
    Back(narrow, to);
}

void fromOptions(const clsNoteProps &, clsNoteProps &to)
{
    clsprogramoptions options;
    fill(options, recordFields::options);
    CopyOptionsToNote(options, to);
}

using Copy = void (*)(const clsNoteProps &, clsNoteProps &);

} // namespace

class testCopying final : public QObject
{
    Q_OBJECT

private slots:
    void touchesItsListOnly_data();
    void touchesItsListOnly();
};

void testCopying::touchesItsListOnly_data()
{
    QTest::addColumn<Copy>("copy");
    QTest::addColumn<int>("count");
    QTest::newRow("password") << Copy(through<CopyNoteToPwd, CopyPwdToNote, clsPwdProps>) << 5;
    QTest::newRow("alarm") << Copy(through<CopyNoteToAlarm, CopyAlarmToNote, clsAlarmProps>) << 10;
    QTest::newRow("settings") << Copy(through<CopyNoteToSettings, CopySettingsToNote, clsSettingsProps>) << 22;
    QTest::newRow("options") << Copy(fromOptions) << 17;
    QTest::newRow("note") << Copy(CopyNote) << 36;
}

void testCopying::touchesItsListOnly()
{
    QFETCH(Copy, copy);
    QFETCH(int, count);
    clsNoteProps target;
    copy(fullNote(), target);
    QCOMPARE(countSame(target, clsNoteProps(), allNoteFields), 38 - count);
    QVERIFY(target.Comments.isEmpty() && target.SaveTag == 0);
}

QTEST_APPLESS_MAIN(testCopying)
#include "testCopying.moc"
