// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/SystemBrowser.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

#include <memory>

using namespace Qt::StringLiterals;

class testBrowser final : public QObject
{
    Q_OBJECT

private slots:
    void missingOneIsTold_data();
    void missingOneIsTold();
};

void testBrowser::missingOneIsTold_data()
{
    QTest::addColumn<QByteArray>("opener");
    QTest::addColumn<int>("told");
    QTest::newRow("opens it") << QByteArray("#!/bin/sh\necho \"$1\" > \"$0.page\"\n") << 0;
    QTest::newRow("lasts as long as the browser")
        << QByteArray("#!/bin/sh\necho \"$1\" > \"$0.page\"\nwhile [ -e \"$0\" ]; do sleep 0.05; done\n") << 0;
    QTest::newRow("finds none") << QByteArray("#!/bin/sh\necho \"$1\" > \"$0.page\"\nsleep 0.1\nexit 3\n") << 1;
    QTest::newRow("is killed") << QByteArray("#!/bin/sh\necho \"$1\" > \"$0.page\"\nkill -9 $$\n") << 1;
    QTest::newRow("cannot be run") << QByteArray("#!/nowhere/sh\n") << 1;
}

void testBrowser::missingOneIsTold()
{
    QFETCH(QByteArray, opener);
    QTemporaryDir folder;
    QFile file(folder.filePath(u"xdg-open"_s));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(opener) == opener.size());
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    file.close();
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", QFile::encodeName(folder.path()) + ':' + path);
    const auto told = std::make_shared<int>(0);
    SystemBrowser browser;
    browser.open(QUrl(u"file:///help/in%20dex.html"_s), [told] { ++*told; });
    qputenv("PATH", path);
    if (opener.contains("page")) {
        QFile page(file.fileName() + u".page"_s);
        QTRY_VERIFY(page.exists() && page.size() > 0);
        QVERIFY(page.open(QIODevice::ReadOnly));
        QCOMPARE(page.readAll(), QByteArray("file:///help/in%20dex.html\n"));
    }
    QTest::qWait(300);
    QTEST(*told, "told");
    // The command lives as long as its file; with the command goes what waits for its end.
    QVERIFY(folder.remove());
    QTRY_COMPARE(told.use_count(), 1L);
}

QTEST_GUILESS_MAIN(testBrowser)
#include "testBrowser.moc"
