// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "exchange/frmEmail.h"

#include "controls/SizeGrip.h"
#include "drawing/endlessRuns.h"
#include "exchange/MailPassword.h"
#include "exchange/mailProgram.h"
#include "exchange/noticeBox.h"
#include "forms/Program.h"
#include "net/MailMessage.h"
#include "platform/Clock.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QUrl>

namespace
{

constexpr int GripSide = 16;
constexpr QSize UsualSize(480, 380);
constexpr QSize SmallestSize(380, 280);
constexpr int ResultLetters = 8; ///< There is always room for beside the buttons.

MailServer serverOf(const Program &program)
{
    const clsNetworkSettings &settings = program.NetworkSettings;
    MailServer server{.host = program.ProgramOptions.SMTPServer.trimmed(),
                      .port = static_cast<quint16>(settings.MailPort),
                      .security = settings.MailSecurity};
    if (settings.MailSecurity != clsNetworkSettings::Security::None)
        server.user = settings.MailUser.trimmed();
    return server;
}

} // namespace

frmEmail::frmEmail(Program &program, QWidget *owner, ExchangeTimes times)
    : ExchangeDialog(
          program,
          {u"frmEmail", tr("E-mail this note"), tr("* View address book *"), frmBook::Book::Address, RecentList::Email},
          owner),
      m_drag(*this), m_password(new MailPassword(program, this)), m_sender(times)
{
    makeFields();
    auto *other = new QPushButton(tr("Open in my &mail program"), this);
    other->setObjectName(QStringLiteral("cmdMailProgram"));
    addButton(*other);
    connect(other, &QPushButton::clicked, this, &frmEmail::openInMailProgram);
    makeGrip();
    follow(m_sender);
    connect(&m_sender, &MailSender::finished, this, &frmEmail::finish);
}

void frmEmail::makeFields()
{
    m_subject = new QLineEdit(this);
    m_subject->setObjectName(QStringLiteral("txtSubject"));
    m_body = new QPlainTextEdit(this);
    m_body->setObjectName(QStringLiteral("txtBody"));
    m_body->setTabChangesFocus(true);
    addField("lblSubject", tr("Su&bject:"), *m_subject);
    addField("lblMessage", tr("Bod&y:"), *m_body);
}

void frmEmail::makeGrip()
{
    m_grip = new SizeGrip(program().pictures(), m_drag, this);
    QColor ink = palette().color(QPalette::WindowText);
    ink.setAlphaF(0.45F);
    m_grip->setInk(ink);
    const QSize result(ResultLetters * fontMetrics().averageCharWidth(), 0);
    const QSize smallest = SmallestSize.expandedTo(minimumSizeHint() + result);
    m_drag.setLimits(smallest, WindowDrag::Height::Free);
    setMinimumSize(smallest);
    resize(UsualSize.expandedTo(smallest));
}

bool frmEmail::isMissingOptions(Program &program, const clsNoteProps &record, QWidget *owner)
{
    const auto missing = modEmail::missingOptions(program.ProgramOptions);
    if (!missing)
        return false;
    const QUrl mail = mailProgram::address({}, record.TitleBarTitle, record.Data);
    Message message = noticeBox::messageOf(*missing);
    message.second = tr("Open in my mail program");
    const QPointer<QWidget> window = owner;
    if (program.prompts().ask(message, owner) == Prompts::Answer::Second)
        mailProgram::open(program, mail, window);
    return true;
}

void frmEmail::Initialize(const clsNoteProps &record)
{
    m_subject->setText(record.TitleBarTitle);
    if (endlessRuns::isIn(record.Data)) {
        m_unshown = record.Data;
        m_body->setReadOnly(true);
        m_body->setPlaceholderText(tr("The text has a line that is too long to be shown. It is sent as it is."));
    } else {
        m_body->setPlainText(record.Data);
    }
    focusTargets();
}

const QList<AddressBookEntry> &frmEmail::book()
{
    if (!m_book)
        m_book = modEmail::entriesOf(bookFile::load(program().ProgramOptions.AddressBook));
    return *m_book;
}

QString frmEmail::body() const
{
    return m_unshown.isEmpty() ? m_body->toPlainText() : m_unshown;
}

void frmEmail::openInMailProgram()
{
    QStringList recipients;
    if (!targets().trimmed().isEmpty()) {
        const auto resolved = modEmail::resolveRecipients(targets(), book());
        if (!resolved)
            return tell(resolved.error());
        for (const MailRecipient &recipient : resolved.value())
            recipients.append(recipient.address);
    }
    mailProgram::open(program(), mailProgram::address(recipients, m_subject->text(), body()), this);
}

void frmEmail::send()
{
    if (isSending())
        return;
    if (targets().trimmed().isEmpty()) {
        focusTargets();
        return tell(modEmail::noRecipient());
    }
    const auto resolved = modEmail::resolveRecipients(targets(), book());
    if (!resolved)
        return tell(resolved.error());
    keepRecent();
    showResult({});
    prepare(resolved.value());
}

void frmEmail::prepare(const QList<MailRecipient> &recipients)
{
    const MailServer server = serverOf(program());
    if (server.user.isEmpty())
        return start(recipients, {});
    m_isPreparing = true;
    showProgress(true);
    m_password->ask(
        server.user + u'@' + server.host,
        [this, recipients](const QString &password) {
            m_isPreparing = false;
            start(recipients, password);
        },
        [this] { stop(); });
}

void frmEmail::start(const QList<MailRecipient> &recipients, const QString &password)
{
    const clsprogramoptions &options = program().ProgramOptions;
    MailServer server = serverOf(program());
    server.password = password;
    const MailDraft draft{.senderAddress = options.EmailAddress.trimmed(),
                          .senderName = options.NameName,
                          .organization = options.Org,
                          .recipients = recipients,
                          .subject = m_subject->text(),
                          .body = body(),
                          .date = program().clock().now(),
                          .versionText = program().VersionText};
    showProgress(true);
    m_sender.start(server, composeMail(draft, server.style()));
}

void frmEmail::stop()
{
    if (!std::exchange(m_isPreparing, false))
        return m_sender.stop();
    m_password->forget();
    showProgress(false);
    showResult(tr("E-mail canceled"));
}

void frmEmail::finish(const ExchangeResult &result)
{
    showProgress(false);
    showResult(lastStep());
    if (result.end == ExchangeResult::End::Done)
        m_password->accepted();
    if (result.end != ExchangeResult::End::Failed)
        return;
    m_password->refused();
    tell(result.notice);
}

void frmEmail::resizeEvent(QResizeEvent *event)
{
    ExchangeDialog::resizeEvent(event);
    m_grip->setGeometry(width() - GripSide, height() - GripSide, GripSide, GripSide);
    m_grip->raise();
}
