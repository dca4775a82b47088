// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/SystemBrowser.h"

#include <QDesktopServices>
#include <QElapsedTimer>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

namespace
{
/// The command may last as long as the browser that it has started, and end as that does.
constexpr qint64 LongestSearchMilliseconds = 10'000;
} // namespace

void SystemBrowser::open(const QUrl &page, const std::function<void()> &notFound)
{
    if (const QString opener = QStandardPaths::findExecutable(QStringLiteral("xdg-open")); !opener.isEmpty())
        run(opener, page, notFound);
    else if (!QDesktopServices::openUrl(page))
        notFound();
}

void SystemBrowser::run(const QString &opener, const QUrl &page, const std::function<void()> &notFound)
{
    // Nobody's child: a process that goes would take the browser with it. It deletes itself at its end.
    auto *process = new QProcess;
    process->setStandardInputFile(QProcess::nullDevice());
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    connect(process, &QProcess::finished, process, &QObject::deleteLater);
    QElapsedTimer since;
    since.start();
    connect(process, &QProcess::finished, this, [since, notFound](int code, QProcess::ExitStatus status) {
        const bool failed = code != 0 || status != QProcess::NormalExit;
        if (failed && !since.hasExpired(LongestSearchMilliseconds))
            notFound();
    });
    connect(process, &QProcess::errorOccurred, this, [process, notFound](QProcess::ProcessError error) {
        if (error != QProcess::FailedToStart)
            return;
        process->deleteLater();
        notFound();
    });
    process->start(opener, {page.toString(QUrl::FullyEncoded)});
}
