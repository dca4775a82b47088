// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "dialogs/frmOptions.h"

#include "alarms/AttentionGroup.h"
#include "dialogs/AppearancePage.h"
#include "dialogs/DesktopGroup.h"
#include "dialogs/NetworkGroups.h"
#include "forms/Program.h"
#include "model/keySettingsFile.h"
#include "model/modCopyObject.h"
#include "model/modFileIOOptions.h"
#include "model/networkSettingsFile.h"
#include "platform/Prompts.h"
#include "platform/autostart.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QPushButton>

namespace
{

constexpr float SmallestSide = 720; // twips
constexpr float LargestSide = 7200;

bool isSide(float twips)
{
    return twips >= SmallestSide && twips <= LargestSide;
}

} // namespace

frmOptions::frmOptions(Program &program, QWidget *owner)
    : TabbedDialog(program, u"frmOptions", tr("Program Options - Quillets"), owner),
      m_appearance(new AppearancePage(program, AppearanceFields::of(m_options),
                                      {tr("Open Picture File"), tr("Change font o&ptions")}, this))
{
    QWidget *general = makeGeneral();
    addPage(QStringLiteral("fraOptions0"), tr("General"), general, m_firstText);
    addPage(QStringLiteral("fraOptions1"), tr("Appearance"), m_appearance, m_appearance->fontField());
    QWidget *alarm = makeAlarmPassword();
    addPage(QStringLiteral("fraOptions2"), tr("Alarm/Password"), alarm, m_attention->soundSwitch());
    QWidget *networking = makeNetworking();
    addPage(QStringLiteral("fraOptions3"), tr("Networking"), networking, m_emailAddress);
    QPushButton *defaults = addButtons()->addButton(tr("Defa&ults"), QDialogButtonBox::ResetRole);
    defaults->setObjectName(QStringLiteral("cmdDefaults"));
    connect(defaults, &QPushButton::clicked, this, &frmOptions::setDefaults);
}

void frmOptions::setDefaults()
{
    Initialize(program().DefaultOptions);
    m_network->setDefaults();
}

void frmOptions::Initialize(const clsprogramoptions &options)
{
    m_network->setSettings(program().NetworkSettings);
    modCopyObject::CopyOptions(options, m_options);
    if (m_desktop != nullptr)
        m_desktop->setFields(autostart::isOn(), program().KeySettings);
    for (const auto &fill : m_fill)
        fill();
    m_appearance->showFields();
    m_attention->showFields();
}

bool frmOptions::OptionsResult(clsprogramoptions &options)
{
    if (!isAccepted())
        return false;
    modCopyObject::CopyOptions(m_options, options);
    program().BuildNoteDefaults();
    const bool isNetworkChanged = program().NetworkSettings != m_network->settings();
    program().NetworkSettings = m_network->settings();
    auto saved = modFileIO::SaveOptionsFile(program().paths(), options);
    if (saved && isNetworkChanged)
        saved = networkSettingsFile::save(networkSettingsFile::pathIn(program().paths().DataFolder),
                                          program().NetworkSettings);
    if (!saved)
        program().prompts().tell(
            {tr("The options could not be saved.\n%1").arg(saved.error()), tr("Error"), Message::Icon::Critical}, this);
    keepDesktop();
    return true;
}

void frmOptions::keepDesktop()
{
    const auto tell = [this](const QString &what, const QString &reason) {
        program().prompts().tell({what.arg(reason), tr("Error"), Message::Icon::Critical}, this);
    };
    if (m_desktop == nullptr)
        return;
    if (m_desktop->keys() != program().KeySettings) {
        program().KeySettings = m_desktop->keys();
        const QString path = keySettingsFile::pathIn(program().paths().DataFolder);
        if (const auto saved = keySettingsFile::save(path, program().KeySettings); !saved)
            tell(tr("The options could not be saved.\n%1"), saved.error());
    }
    if (m_desktop->atLogIn() == autostart::isOn())
        return;
    const QString reason = autostart::set(m_desktop->atLogIn(), QFileInfo(program().paths().DataFolder).path());
    if (!reason.isEmpty())
        tell(tr("The start at log-in could not be changed.\n%1"), reason);
}

std::optional<Flaw> frmOptions::findFlaw()
{
    if (const auto flaw = m_appearance->findFlaw())
        return flaw;
    if (const auto flaw = m_attention->findFlaw())
        return flaw;
    if (isSide(m_options.FrmHeight) && isSide(m_options.FrmWidth))
        return m_desktop != nullptr ? m_desktop->findFlaw() : std::nullopt;
    return Flaw{{tr("The default dimensions of a Quillet cannot be less than 0.5 inches or greater than 5 inches.\n"
                    "Please enter valid dimensions."),
                 tr("Quillet Dimensions Error"), Message::Icon::Critical},
                isSide(m_options.FrmHeight) ? m_width : m_height};
}
