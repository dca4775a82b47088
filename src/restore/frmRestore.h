// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/ModalDialog.h"
#include "restore/copyReading.h"

class CopyList;
class KeptNotesModel;
class NotePreview;
class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeView;
class ShownNotes;

/// Shows the dated copies and the notes of the chosen one beside those of today; the user chooses what is to come back.
/// It brings nothing back itself.
class frmRestore final : public ModalDialog
{
    Q_OBJECT

public:
    static constexpr QStringView Name = u"frmRestore";

    frmRestore(Program &program, QWidget *owner);

    /// Lists the copies and shows the newest in which something differs from today.
    void Initialize();
    /// The notes to be brought back; none unless OK closed it.
    std::vector<clsNoteProps> RestoreResult() const;

protected:
    void accept() override;

private:
    void layOut();
    QWidget *makeCopies();
    QWidget *makeNotes();
    QWidget *makeButtons();
    void connectParts();
    void showCopy();
    void showShown();
    void showNote();
    void showChosen();
    void showStatus();
    void chooseAllShown();
    /// The row of the table; -1 for none.
    int currentNote() const;
    void unlock();
    bool uncover(int row);
    bool uncoverChosen();

    QString m_flaw; ///< Of the chosen copy.
    KeptNotesModel *m_notes;
    ShownNotes *m_shown;
    CopyList *m_list = nullptr;    // lstCopies
    QLineEdit *m_filter = nullptr; // txtFilter
    QCheckBox *m_all = nullptr;    // chkAll
    QTreeView *m_table = nullptr;  // trvNotes
    NotePreview *m_preview = nullptr;
    QLabel *m_status = nullptr;         // lblStatus
    QPushButton *m_chooseAll = nullptr; // cmdChooseAll
    QPushButton *m_ok = nullptr;        // cmdOK
};
