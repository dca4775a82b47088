// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "net/NoteReceiver.h"
#include "net/SenderPolicy.h"

#include <QDateTime>
#include <QObject>

#include <vector>

class Program;
struct clsNoteProps;
class QWidget;

/// A note that another computer has sent in this run, while it exists.
struct ReceivedNote
{
    qint32 tag;
    QString sender; ///< As the packet claims, fit to be drawn.
    QHostAddress address;
    bool isLookedAt = false;
};

/// Makes notes of what other computers send, keeps in mind who sent which and whether somebody has looked at them, and
/// blocks senders.
class ReceivedNotes final : public QObject
{
    Q_OBJECT

public:
    ReceivedNotes(Program &program, QWidget *panel);

    /// Listens from now on; a port that cannot be opened is told.
    void start();
    /// Takes what senders were told is received, then no more.
    void stop();
    /// Who may send was changed.
    void settingsChanged();

    /// In the order of their coming.
    const std::vector<ReceivedNote> &notes() const { return m_notes; }
    qsizetype unseen() const;
    /// Brings a note to the front, wherever it lives.
    void show(qint32 tag);
    /// Nothing more is taken from this address. A settings file that cannot be written is told.
    void block(const QHostAddress &address);

signals:
    /// The notes, or what has been looked at.
    void changed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void announce();
    void take(const Packet &packet, const QHostAddress &peer);
    void keep(clsNoteProps record);
    void create(clsNoteProps record, const QString &sender, const QHostAddress &peer);
    void lookedAt(qint32 tag);
    void forgetGone();
    void ringOnce(qint32 tag);
    void tell(const Notice &notice);

    Program &m_program;
    QWidget *m_panel;
    SenderPolicy m_policy;
    NoteReceiver m_server; // tcpSendServer
    quint16 m_port = 0;    ///< That is listened on.
    bool m_isStopped = false;
    std::pair<QString, quint16> m_announced; ///< The name and the port, 0 while nothing is announced.
    std::vector<ReceivedNote> m_notes;
    QDateTime m_rang; ///< When the last note came that makes a sound.
};
