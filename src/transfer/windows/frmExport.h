// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/ModalDialog.h"
#include "transfer/noteFiles.h"

class QCheckBox;
class QComboBox;
class QListWidget;

/// Asks which notes are to be exported, and as what.
class frmExport final : public ModalDialog
{
    Q_OBJECT

public:
    frmExport(Program &program, QWidget *owner);

    /// The tags of the chosen notes; none after Cancel.
    std::vector<qint32> ExportResult() const;
    noteFiles::Format format() const;

protected:
    std::optional<Flaw> findFlaw() override;

private:
    void listNotes();
    void layOut();
    std::vector<qint32> checkedTags() const;
    void checkAll();
    void showAll();

    QCheckBox *m_all;     // chkAll
    QListWidget *m_notes; // lstNotes
    QComboBox *m_format;  // cmbFormat
};
