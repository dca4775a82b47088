// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QTimer>

/// The flashing of one note: tells every two seconds which paper colour to show, the complement first. It draws and
/// raises nothing itself. Its coarse timer lets the notes that flash together wake the program together.
class NoteFlash final : public QObject
{
    Q_OBJECT

public:
    explicit NoteFlash(QObject *parent = nullptr);

    /// The first step is taken at once. Started anew with the normal colour where it flashes already.
    void StartFlashing(const QColor &normal);
    /// The colour that it gives back from now on; nothing where nothing flashes.
    void setNormal(const QColor &normal);
    /// Gives the normal colour back; does nothing where nothing flashes.
    void StopFlashing();
    bool isFlashing() const { return m_timer.isActive(); }

    static QColor complement(const QColor &colour);

signals:
    /// At each step, before the colour.
    void raiseWanted();
    void colourChanged(const QColor &colour);

private:
    void flash();

    QTimer m_timer;
    QColor m_normal;
    bool m_phase = true; ///< The next step shows the complement.
};
