// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "dialogs/AppearancePage.h"

#include "controls/CheckRow.h"
#include "controls/ColourButton.h"
#include "controls/FileButton.h"
#include "controls/PictureThumbnail.h"
#include "controls/fileChoosing.h"
#include "controls/noteFont.h"
#include "dialogs/FontPreview.h"
#include "drawing/NoteInk.h"
#include "drawing/colours.h"
#include "forms/Program.h"
#include "platform/Choosers.h"

#include <QCheckBox>
#include <QFontInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPointer>

namespace
{

constexpr int Spacing = 12;

QLabel *caption(const QString &text, QWidget *buddy)
{
    auto *label = new QLabel(text, buddy->parentWidget());
    label->setBuddy(buddy);
    return label;
}

} // namespace

AppearancePage::AppearancePage(Program &program, AppearanceFields fields, const Texts &texts, QWidget *parent)
    : QWidget(parent), m_program(program), m_fields(fields), m_pictureTitle(texts.pictureTitle),
      m_foreColor(new ColourButton(QStringLiteral("cmdForeColor"), tr("Text color"), this)),
      m_backColor(new ColourButton(QStringLiteral("cmdBackColor"), tr("Background color"), this)),
      m_pictureOn(new CheckRow(QStringLiteral("BackPic"), tr("&Display background picture:"), this)),
      m_picture(
          new FileButton(QStringLiteral("cmdPicFile"), tr("Background picture file"), FileButton::Cut::Front, this)),
      m_thumbnail(new PictureThumbnail(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Spacing);
    layout->addWidget(makeColours());
    layout->addWidget(makeFont(texts.changeFont));
    layout->addStretch();
    connectControls();
}

QGroupBox *AppearancePage::makeColours()
{
    auto *group = new QGroupBox(tr("Colors and Backgrounds"), this);
    auto *grid = new QGridLayout(group);
    grid->setHorizontalSpacing(Spacing);
    grid->setColumnStretch(2, 1);
    grid->addWidget(caption(tr("&Text color:"), m_foreColor), 0, 0);
    grid->addWidget(m_foreColor, 0, 1);
    grid->addWidget(caption(tr("&Background color:"), m_backColor), 1, 0);
    grid->addWidget(m_backColor, 1, 1);
    grid->addWidget(m_pictureOn, 2, 0, 1, 3);
    grid->addWidget(m_picture, 3, 0, 1, 3);
    grid->addWidget(m_thumbnail, 0, 3, 4, 1, Qt::AlignVCenter);
    return group;
}

QGroupBox *AppearancePage::makeFont(const QString &changeFont)
{
    auto *group = new QGroupBox(tr("Font"), this);
    m_preview = new FontPreview(group);
    m_font = new QPushButton(changeFont, group);
    m_font->setObjectName(QStringLiteral("cmdFont"));
    m_font->setMinimumWidth(m_font->sizeHint().width() + 2 * Spacing);
    auto *layout = new QVBoxLayout(group);
    layout->addWidget(m_preview);
    layout->addWidget(m_font, 0, Qt::AlignLeft);
    return group;
}

void AppearancePage::connectControls()
{
    connect(m_foreColor, &QPushButton::clicked, this, [this] { chooseColour(*m_foreColor, m_fields.ForeColor); });
    connect(m_backColor, &QPushButton::clicked, this, [this] { chooseColour(*m_backColor, m_fields.BackColor); });
    connect(m_pictureOn->box(), &QCheckBox::toggled, this, [this](bool on) { m_fields.BackPicOn = on; });
    connect(m_picture, &QPushButton::clicked, this, &AppearancePage::choosePicture);
    connect(m_font, &QPushButton::clicked, this, &AppearancePage::chooseFont);
}

void AppearancePage::showFields()
{
    const NoteInk ink = NoteInk::from(m_fields.BackColor, m_fields.ForeColor);
    m_foreColor->setColour(ink.ink);
    m_backColor->setColour(ink.paper);
    m_pictureOn->box()->setChecked(m_fields.BackPicOn);
    m_picture->setPath(m_fields.PicFile);
    m_thumbnail->setPath(m_fields.PicFile);
    m_preview->showFields(m_fields);
}

std::optional<Flaw> AppearancePage::findFlaw() const
{
    if (!m_fields.BackPicOn || !m_fields.PicFile.isEmpty())
        return std::nullopt;
    return Flaw{{tr("You have selected to display a background picture.\nPlease enter a valid picture file."),
                 tr("Background Picture Error"), Message::Icon::Critical},
                m_picture};
}

QWidget *AppearancePage::fontField() const
{
    return m_font;
}

void AppearancePage::chooseColour(const ColourButton &button, qint32 &field)
{
    const QPointer<AppearancePage> self = this;
    const QColor current = button.colour();
    const auto chosen = m_program.choosers().colour(current, window());
    // A colour of the desktop's that is let stand goes on following the desktop.
    if (self == nullptr || !chosen || chosen->rgb() == current.rgb())
        return;
    field = colours::toLong(*chosen);
    showFields();
}

void AppearancePage::chooseFont()
{
    const QPointer<AppearancePage> self = this;
    const QFont current = noteFont::of(m_fields);
    const auto chosen = m_program.choosers().font(current, window());
    if (self == nullptr || !chosen)
        return;
    // The name may be an alias, or of a font that only another computer has.
    if (chosen->family() != QFontInfo(current).family())
        m_fields.FontName = chosen->family();
    m_fields.FontSize = static_cast<float>(chosen->pointSizeF());
    m_fields.FontBoldOn = chosen->bold();
    m_fields.FontItalicOn = chosen->italic();
    showFields();
}

void AppearancePage::choosePicture()
{
    const QPointer<AppearancePage> self = this;
    const auto chosen = fileChoosing::picture(m_program, m_pictureTitle, m_fields.PicFile, window());
    if (self == nullptr || !chosen)
        return;
    m_fields.PicFile = *chosen;
    showFields();
}
