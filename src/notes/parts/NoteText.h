// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "notes/parts/FontWheel.h"

#include <QLabel>
#include <QTextLayout>
#include <QUrl>

#include <memory>
#include <optional>
#include <vector>

/// A line of a text as it is wrapped: the paragraph it belongs to and which of its lines it is, both from 0.
struct TextPlace
{
    int paragraph = 0;
    int line = 0;
};

/// Shows a note's text the way its text box would, letter for letter at the same place, without the cost of a text
/// box. The caption is the text as modForms::DoubleFirstAmpersand gives it. Only what is visible is laid out, however
/// long the text is; the wheel scrolls. A small arrow in the margin tells that there is more below.
class NoteText final : public QLabel
{
    Q_OBJECT

public:
    explicit NoteText(QWidget *parent);
    ~NoteText() override;

    void setCaption(const QString &caption);
    void setInk(const QColor &ink);
    /// The line at the top.
    TextPlace place() const;
    /// Scrolls so that the line is at the top, or as far as the text goes; to the beginning for a line so far down
    /// that it would take its time.
    void scrollTo(TextPlace place);
    /// Marks that part of the text, counted in UTF-16 units, and scrolls to it; it stays marked until the text changes
    /// or is pressed.
    void showFound(qsizetype at, qsizetype length);
    void forgetFound();
    /// Behind what is marked; 0 where nothing is.
    qsizetype endOfFound() const { return m_found.length == 0 ? 0 : m_found.start + m_found.length; }
    const QString &shownText() const { return m_shown; }
    /// Scrolls by an arrow, Page Up, Page Down, Home or End; false for any other key. In a very long text one press
    /// of End goes only as far as does not take its time.
    bool scrollByKey(const QKeyEvent &key);
    /// Air around the text, the same for the text box.
    static QMargins air();

    QSize sizeHint() const override { return {0, 0}; }
    QSize minimumSizeHint() const override { return {0, 0}; }

signals:
    void pressed(Qt::MouseButton button, QPoint globalPosition);
    /// With Ctrl.
    void addressPressed(const QUrl &address);
    /// The mark of a box at the beginning of a line, with Ctrl; where it is in the text.
    void markPressed(qsizetype at);
    /// The wheel was turned with Ctrl; up is positive.
    void fontWheelTurned(int notches);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    struct Paragraph
    {
        std::unique_ptr<QTextLayout> layout;
        qsizetype begin = 0;
        qreal top = 0;
        qreal height = 0;
    };

    static constexpr int LastReachable = 20'000; ///< Lines and paragraphs.
    static bool isLineEnd(QChar c);

    std::pair<const Paragraph *, qsizetype> letterAt(QPointF point);
    std::optional<QUrl> addressAt(QPointF point);
    std::optional<qsizetype> markAt(QPointF point);
    void forget();
    /// Lays out paragraphs from the first on until one ends below `bottom`.
    void layOutTo(qreal bottom);
    Paragraph laidOut(const QString &text, qreal top) const;
    qsizetype mostCharacters() const;
    /// The lines whose tops lie above `y`, of what is laid out.
    int linesAbove(qreal y) const;
    /// Where the line begins; the end of the text for one behind it.
    qreal topOfLine(int line);
    void scrollToLine(int line);
    qreal visibleHeight() const;
    /// What is marked, as this paragraph counts.
    QList<QTextLayout::FormatRange> marksOf(const Paragraph &paragraph) const;
    void paintMoreMark(QPainter &painter) const;

    QString m_shown;
    struct
    {
        qsizetype start = 0;
        qsizetype length = 0;
    } m_found;
    QColor m_ink = Qt::black;
    std::vector<Paragraph> m_paragraphs;
    qsizetype m_next = 0; ///< Where the first paragraph that is not laid out begins.
    bool m_complete = false;
    qreal m_height = 0; ///< Of what is laid out.
    int m_firstLine = 0;
    qreal m_scroll = 0; ///< Top of that line.
    int m_turned = 0;   ///< Of the wheel, less than a notch.
    FontWheel m_fontWheel;
};
