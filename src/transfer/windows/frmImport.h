// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/ModalDialog.h"
#include "transfer/noteSources.h"

class QCheckBox;
class QListWidget;

/// Asks what is to be imported: the notes of other programs that were found, and files.
class frmImport final : public ModalDialog
{
    Q_OBJECT

public:
    frmImport(Program &program, QWidget *owner);

    void Initialize(const std::vector<noteSources::Source> &sources, const QStringList &files);
    /// What was chosen; none after Cancel.
    std::vector<CarriedNote> ImportResult() const;
    bool intoNoteStack() const;

protected:
    std::optional<Flaw> findFlaw() override;

private:
    void addRow(const QString &caption, std::vector<CarriedNote> notes);
    void addFiles(const QStringList &paths);
    void chooseFiles();
    std::vector<CarriedNote> checkedNotes() const;

    QListWidget *m_sources;                        // lstSources
    QCheckBox *m_stack;                            // chkNoteStack
    std::vector<std::vector<CarriedNote>> m_notes; ///< Of each row.
};
