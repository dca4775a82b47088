// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "dialogs/TabbedDialog.h"
#include "model/clsprogramoptions.h"

#include <functional>

class AppearancePage;
class AttentionGroup;
class DesktopGroup;
class NetworkGroups;
class NumberBox;
class QFormLayout;
class QGroupBox;
class QLayout;
class QLineEdit;

/// The program-wide options and the network settings. Works on its own copy; the live ones get it from OptionsResult
/// alone.
class frmOptions final : public TabbedDialog
{
    Q_OBJECT

public:
    frmOptions(Program &program, QWidget *owner);

    /// Copies the options when OK was chosen, rebuilds what new notes start from and saves the options file, and
    /// that of the network where it has changed; what cannot be written is told. To be called with the program's own
    /// options.
    bool OptionsResult(clsprogramoptions &options);
    void Initialize(const clsprogramoptions &options);

protected:
    std::optional<Flaw> findFlaw() override;

private:
    void setDefaults();
    // frmOptionsPages.cpp
    QWidget *makeGeneral();
    QGroupBox *makePersonal();
    QGroupBox *makeMiscellaneous();
    QWidget *makeAlarmPassword();
    QWidget *makeNetworking();
    QGroupBox *makeSend();
    QGroupBox *makeEmail();
    QLineEdit *addText(QFormLayout *rows, const QString &name, const QString &caption, QString &field);
    void addCheck(QLayout *layout, const QString &name, const QString &caption, bool &field);
    NumberBox *makeSize(const QString &name, const QString &accessibleName, float &field);
    NumberBox *makePort();
    void addBook(QFormLayout *rows, const QString &name, const QString &caption, const QString &title, QString &field);

    void keepDesktop();

    clsprogramoptions m_options;
    bool m_atLogIn = false;                    ///< No option of the file: the desktop keeps it.
    std::vector<std::function<void()>> m_fill; ///< Each shows one field of the options.
    QWidget *m_firstText = nullptr;            // txtName
    QWidget *m_height = nullptr;               // txtSizeHeight
    QWidget *m_width = nullptr;                // txtSizeWidth
    QWidget *m_emailAddress = nullptr;         // txtEmailAddress
    AppearancePage *m_appearance;
    AttentionGroup *m_attention = nullptr;
    DesktopGroup *m_desktop = nullptr; ///< Null where the system has nothing of it.
    NetworkGroups *m_network = nullptr;
};
