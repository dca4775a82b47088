// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/Flaw.h"
#include "dialogs/AppearanceFields.h"

#include <QWidget>

class CheckRow;
class ColourButton;
class FileButton;
class FontPreview;
class PictureThumbnail;
class Program;
class QGroupBox;
class QPushButton;

/// Colours, background picture and font of a note. Each choice is written into the fields at once.
class AppearancePage final : public QWidget
{
    Q_OBJECT

public:
    /// In what the two dialogs that show the page differ.
    struct Texts
    {
        QString pictureTitle;
        QString changeFont;
    };

    AppearancePage(Program &program, AppearanceFields fields, const Texts &texts, QWidget *parent);

    void showFields();
    /// A picture is to be shown and none is chosen.
    std::optional<Flaw> findFlaw() const;

    QWidget *fontField() const;

private:
    QGroupBox *makeColours();
    QGroupBox *makeFont(const QString &changeFont);
    void connectControls();
    void chooseColour(const ColourButton &button, qint32 &field);
    void chooseFont();
    void choosePicture();

    Program &m_program;
    AppearanceFields m_fields;
    QString m_pictureTitle;
    ColourButton *m_foreColor;     // cmdForeColor
    ColourButton *m_backColor;     // cmdBackColor
    CheckRow *m_pictureOn;         // chkBackPic
    FileButton *m_picture;         // cmdPicFile
    PictureThumbnail *m_thumbnail; // imgPicture
    FontPreview *m_preview = nullptr;
    QPushButton *m_font = nullptr; // cmdFont
};
