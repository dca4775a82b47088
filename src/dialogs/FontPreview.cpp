// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "dialogs/FontPreview.h"

#include "controls/noteFont.h"
#include "drawing/NoteInk.h"
#include "drawing/textShortening.h"
#include "drawing/toolTips.h"
#include "model/textValues.h"

#include <QGridLayout>
#include <QLabel>

namespace
{

constexpr qreal LargestSample = 30.0;
constexpr int SampleHeight = 56;
constexpr int Spacing = 12;

QString styleText(bool bold, bool italic)
{
    if (bold)
        return italic ? FontPreview::tr("Bold Italic") : FontPreview::tr("Bold");
    return italic ? FontPreview::tr("Italic") : FontPreview::tr("Regular");
}

} // namespace

FontPreview::FontPreview(QWidget *parent) : QWidget(parent), m_sample(new QLabel(tr("AaBbYyZz 123"), this))
{
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(Spacing);
    grid->setColumnStretch(1, 1);
    m_name = addRow(0, QStringLiteral("Name"), tr("Font name:"));
    m_size = addRow(1, QStringLiteral("Size"), tr("Font size:"));
    m_style = addRow(2, QStringLiteral("Style"), tr("Font style:"));
    m_name->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_sample->setObjectName(QStringLiteral("lblFontSample"));
    m_sample->setAccessibleName(tr("Font preview"));
    m_sample->setAlignment(Qt::AlignCenter);
    m_sample->setFrameShape(QFrame::StyledPanel);
    m_sample->setAutoFillBackground(true);
    m_sample->setFixedHeight(SampleHeight);
    m_sample->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    grid->addWidget(m_sample, 3, 0, 1, 2);
}

QLabel *FontPreview::addRow(int row, const QString &suffix, const QString &caption)
{
    auto *head = new QLabel(caption, this);
    head->setObjectName(QStringLiteral("lblFont%1Head").arg(suffix));
    auto *value = new QLabel(this);
    value->setObjectName(QStringLiteral("lblFont") + suffix);
    value->setTextFormat(Qt::PlainText);
    auto *grid = static_cast<QGridLayout *>(layout());
    grid->addWidget(head, row, 0);
    grid->addWidget(value, row, 1);
    return value;
}

void FontPreview::showFields(const AppearanceFields &fields)
{
    m_fontName = fields.FontName;
    fitName();
    m_size->setText(textValues::fromSingle(fields.FontSize));
    m_style->setText(styleText(fields.FontBoldOn, fields.FontItalicOn));
    const NoteInk ink = NoteInk::from(fields.BackColor, fields.ForeColor);
    QPalette colours = palette();
    colours.setColor(QPalette::Window, ink.paper);
    colours.setColor(QPalette::WindowText, ink.ink);
    m_sample->setPalette(colours);
    QFont font = noteFont::of(fields);
    font.setPointSizeF(std::min(font.pointSizeF(), LargestSample));
    m_sample->setFont(font);
}

void FontPreview::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    fitName();
}

void FontPreview::fitName()
{
    m_name->setText(textShortening::shortened(m_fontName, m_name->width(), m_name->font()));
    m_name->setToolTip(toolTips::plain(m_fontName));
}
