// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include <QSoundEffect>
#include <QUrl>

/// The one function of the library that the program loads at its first sound, so that no start pays for Qt's
/// multimedia. To be called in the owner's thread, which needs an event loop; the sound goes with its owner. One owner
/// plays one sound at a time.
extern "C" Q_DECL_EXPORT void quilletsPlayWave(QObject *owner, const QString &wavPath)
{
    qDeleteAll(owner->findChildren<QSoundEffect *>(Qt::FindDirectChildrenOnly));
    auto *effect = new QSoundEffect(owner);
    QObject::connect(effect, &QSoundEffect::playingChanged, effect, [effect] {
        // Its samples may take megabytes.
        if (!effect->isPlaying())
            effect->deleteLater();
    });
    effect->setSource(QUrl::fromLocalFile(wavPath));
    effect->play();
}
