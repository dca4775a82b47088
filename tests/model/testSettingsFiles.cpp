// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/modFileIO.h"
#include "model/modStreams.h"
#include "model/networkSettingsFile.h"
#include "model/windowState.h"
#include "samples.h"
#include "support/compareRow.h"
#include "support/rows.h"

#include <QSettings>

using namespace Qt::StringLiterals;

namespace
{

QByteArray allBytes()
{
    QByteArray bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += char(byte);
    return bytes +
           QByteArray("\0001\x1f"
                      "a\n7",
                      6) +
           "), (\"=;,\\ ";
}

} // namespace

/// The files of options, of recent lists, of the network's settings and of the NoteStack's window.
class testSettingsFiles final : public QObject
{
    Q_OBJECT

private slots:
    void options()
    {
        const auto row = [](const char *name, const QByteArray &text, const clsprogramoptions &expected) {
            clsprogramoptions read;
            modStreams::ParseOptionsText(text, read);
            compareRow(name, modStreams::BuildOptionsText(read), modStreams::BuildOptionsText(expected));
        };
        row("no blanks", "Font Bold=True", {.FontBoldOn = true});
        row("case of the key", "font bold = True", {});
        row("no key", "= True\r\n=\r\nFont Bold", {});
        row("tabs", "\tFont Bold\t=\ttRuE\t\n", {.FontBoldOn = true});
        row("last wins", "Height=1\nHeight=2\nHeight=x", {.FrmHeight = 2});
        row("ends at 0", QByteArray("Name=a\0\nName=b", 15), {.NameName = u"a"_s});
        row("second =", "Name = a=b = c", {.NameName = u"a=b = c"_s});
        row("8-bit", "Name=\xC4\xA0", {.NameName = u"\u00C4\u00A0"_s});
        row("number as Boolean", "Toolbar=-0.5\rFlashing Window=0", {.ToolBarOn = true});
        row("half to even", "Text Color=2.5\nBackground Color=-3.5", {.ForeColor = 2, .BackColor = -4});
        row("extremes", "Text Color=-2147483648\nListening Port=2147483647\nWidth=3.4028234e38",
            {.FrmWidth = std::numeric_limits<float>::max(),
             .ForeColor = std::numeric_limits<qint32>::min(),
             .ListeningPort = std::numeric_limits<qint32>::max()});
    }

    void refusedOptions()
    {
        clsprogramoptions options;
        fill(options, recordFields::options);
        const clsprogramoptions before = options;
        const auto row = [&](const QString &key, const QString &value) {
            const bool isTaken = modStreams::ApplyOption(options, key, value);
            QVERIFY2(!isTaken && options == before, qPrintable(key + u" = "_s + value));
        };
        for (const QString &key : {u"Height"_s, u"Font Size"_s, u"Text Color"_s, u"Listening Port"_s, u"Toolbar"_s})
            for (const QString &value :
                 {u""_s, u"nan"_s, u"-inf"_s, u"1e999"_s, u"4,5"_s, u"0x10"_s, u"12 apples"_s, u"Tru"_s, u"\u0661"_s})
                row(key, value);
        row(u"Text Color"_s, u"2147483647.5"_s);
        row(u"Width"_s, u"3.5e38"_s);
        row(u"Colour"_s, u"1"_s);
        QVERIFY(options.setListeningPort(u"0") && options.ListeningPortText() == u"0");
        QVERIFY(options.setTitleBarOn(u"false") && options.TitleBarOnText() == u"False" &&
                !options.setTitleBarOn(u"no"));
    }

    void optionsFile()
    {
        const TestHome home;
        clsprogramoptions options;
        QVERIFY(!modFileIO::LoadOptionsFile(home.paths, options));
        setContents(home.paths.OptionsFile, QByteArray("\0Name = x", 9));
        QVERIFY(!modFileIO::LoadOptionsFile(home.paths, options) && options == clsprogramoptions());
        fill(options, recordFields::options);
        const auto row = [&](const char *name, const QString &saved, const QString &readBack) {
            options.NameName = saved;
            QVERIFY(modFileIO::SaveOptionsFile(home.paths, options).ok());
            options.NameName = readBack;
            clsprogramoptions again;
            QVERIFY2(modFileIO::LoadOptionsFile(home.paths, again) && again == options, name);
        };
        row("8-bit", u"Zo\u00EB\u0080"_s, u"Zo\u00EB\u0080"_s);
        row("wide", u"\u65E5\u672C \U0001F4DD"_s, u"\u65E5\u672C \U0001F4DD"_s);
        row("line breaks", u"a\r\nToolbar = False\nb"_s, u"a  Toolbar = False b"_s);
        row("NUL", u"a\0b"_s, u"a b"_s);
    }

    void longLines()
    {
        const QByteArray digits(1'000'000, '9');
        clsprogramoptions options;
        modStreams::ParseOptionsText(
            "Height = " + digits + "\r\n" + QByteArray(1'000'000, '\n') + digits + "\r\nName = " + digits, options);
        QVERIFY(options.NameName.size() == digits.size() && options.FrmHeight == 0.0F);
    }

    void recentLists()
    {
        const TestHome home;
        const ProgramPaths &paths = home.paths;
        QVERIFY(modFileIO::LoadRecentList(paths, RecentList::Email).isEmpty());
        QVERIFY(modFileIO::SaveRecentList(paths, RecentList::Send, {u"host"_s, u" pc\n2 "_s, u";"_s}, 3).ok());
        QCOMPARE(contents(paths.MiscFile), QByteArray("\r\nhost; pc 2 ;;\r\n"));
        QStringList twelve;
        for (int k = 1; k <= 12; ++k)
            twelve << u"a%1@b"_s.arg(k);
        QVERIFY(modFileIO::SaveRecentList(paths, RecentList::Email, twelve, 12).ok());
        QCOMPARE(modFileIO::LoadRecentList(paths, RecentList::Email), twelve.first(10));
        QCOMPARE(modFileIO::LoadRecentList(paths, RecentList::Send), QStringList({u"host"_s, u"pc 2"_s}));
        QVERIFY(modFileIO::SaveRecentList(paths, RecentList::Email, {u"\u00EF\u00BB\u00BF\u00E9"_s}, 5).ok());
        QCOMPARE(modFileIO::ReadMiscFile(paths).email, u"\u00EF\u00BB\u00BF\u00E9"_s);
        QVERIFY(modFileIO::SaveRecentList(paths, RecentList::Email, twelve, -1).ok());
        QVERIFY(modFileIO::ReadMiscFile(paths).email.isEmpty());
    }

    void network()
    {
        using Senders = clsNetworkSettings::Senders;
        using Security = clsNetworkSettings::Security;
        const auto row = [](const char *name, const QByteArray &bytes, const clsNetworkSettings &expected) {
            QVERIFY2(networkSettingsFile::parse(bytes) == expected, name);
        };
        row("empty", {}, {});
        row("words in any case", "Accept Notes From=send book\nMail Security = starttls",
            {.AcceptFrom = Senders::SendBook, .MailSecurity = Security::StartTls});
        row("what cannot be",
            "Accept Notes From = all\r\nMail Port = 65536\r\nMail Port = -1\r\n"
            "Mail Security = 7\r\n=\r\nAnnounce This Computer = perhaps",
            {});
        row("ends at 0", QByteArray("Mail Port = 25\0\nMail Port = 26", 30), {.MailPort = 25});
        row("senders", "Blocked Senders = ; 10.0.0.1 ;;10.0.0.2", {.BlockedSenders = {u"10.0.0.1"_s, u"10.0.0.2"_s}});
        row("noise", QByteArray(100'000, '='), {});

        const TestHome home;
        const QString path = networkSettingsFile::pathIn(home.paths.DataFolder);
        QVERIFY(networkSettingsFile::load(path) == clsNetworkSettings());
        const clsNetworkSettings all{Senders::Nobody, true, {u"10.0.0.1"_s, u"fe80::9"_s}, true,
                                     Security::Tls,   465,  u"\u0141ukasz@post"_s};
        QVERIFY(networkSettingsFile::save(path, all).ok() && networkSettingsFile::load(path) == all);
        QVERIFY(!networkSettingsFile::save(path + u"/x"_s, all).ok());
    }

    /// The file was written by QSettings once, and must be read from and by that.
    void windowAsSettingsDo()
    {
        const auto row = [](const char *name, const WindowState &state) {
            const TestHome home;
            const QString &path = home.paths.WindowFile;
            {
                QSettings settings(path, QSettings::IniFormat);
                settings.setValue(u"NoteStack/geometry"_s, state.geometry);
                settings.setValue(u"NoteStack/shown"_s, state.isShown);
                settings.setValue(u"NoteStack/order"_s, state.order);
                settings.setValue(u"NoteStack/chosen"_s, state.chosen);
            }
            QVERIFY2(windowState::read(path) == state, name);
            QFile::remove(path);
            QVERIFY2(windowState::write(path, state).ok() && windowState::read(path) == state, name);
            const QSettings settings(path, QSettings::IniFormat);
            compareRow(name, settings.value(u"NoteStack/geometry"_s).toByteArray(), state.geometry);
            compareRow(name, settings.value(u"NoteStack/shown"_s).toBool(), state.isShown);
            compareRow(name, settings.value(u"NoteStack/order"_s).toStringList(), state.order);
            compareRow(name, settings.value(u"NoteStack/chosen"_s).toInt(), state.chosen);
        };
        row("empty", {});
        row("usual", {QByteArray("\x01\xd9\xd0\xcb\0\3\0\0", 8), true, {u"0a1b"_s, u"ffee"_s}, 1});
        row("one tab", {"x", false, {u"d41d8cd98f00b204e9800998ecf8427e"_s}, 0});
        row("all bytes", {allBytes(), true, {}, -1});
    }

    void window_data()
    {
        const Rows<QByteArray, WindowState> row; // text, state
        row("another section", "shown=true\n[Else]\nshown=true", {});
        row("CR LF and blanks", "[NoteStack]\r\n shown = true \r\nchosen=\r\n", {{}, true, {}, -1});
        row("no number", "[NoteStack]\nchosen=99999999999", {});
        row("not bytes", "[NoteStack]\ngeometry=@Variant(\\0\\0\\0\\x1)", {});
        row("backslash at the end", "[NoteStack]\norder=a\\", {});
        row("quoted", "[NoteStack]\norder=\"a\", \"\\x62", {{}, false, {u"a"_s, u"b"_s}, -1});
        row("not fingerprints", "[NoteStack]\norder=a, \"b, c\"", {});
        row("zeros", QByteArray(1000, '\0'), {});
    }

    void window()
    {
        const auto [text, state] = fetchRow<QByteArray, WindowState>();
        QCOMPARE(windowState::parse(text), state);
    }

    void everyTruncationOfTheWindow()
    {
        const QByteArray text = windowState::text({allBytes(), true, {u"0a1b"_s, u"ffee"_s}, 1});
        for (qsizetype keep = 0; keep < text.size(); ++keep) {
            const WindowState state = windowState::parse(text.first(keep));
            QVERIFY(state.order.size() <= 2 && allBytes().startsWith(state.geometry));
        }
    }
};

QTEST_APPLESS_MAIN(testSettingsFiles)
#include "testSettingsFiles.moc"
