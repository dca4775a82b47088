// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "alarms/NoteFlash.h"

#include <chrono>

using namespace std::chrono_literals;

NoteFlash::NoteFlash(QObject *parent) : QObject(parent)
{
    m_timer.setInterval(2000ms);
    m_timer.setTimerType(Qt::CoarseTimer);
    connect(&m_timer, &QTimer::timeout, this, &NoteFlash::flash);
}

void NoteFlash::StartFlashing(const QColor &normal)
{
    m_normal = normal;
    m_phase = true;
    m_timer.start();
    flash();
}

void NoteFlash::setNormal(const QColor &normal)
{
    m_normal = normal;
}

void NoteFlash::StopFlashing()
{
    if (!isFlashing())
        return;
    m_timer.stop();
    emit colourChanged(m_normal);
}

QColor NoteFlash::complement(const QColor &colour)
{
    return QColor::fromRgb(colour.rgb() ^ 0xFFFFFF);
}

void NoteFlash::flash()
{
    const bool inverse = std::exchange(m_phase, !m_phase);
    emit raiseWanted();
    emit colourChanged(inverse ? complement(m_normal) : m_normal);
}
