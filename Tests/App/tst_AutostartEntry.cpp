// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "AutostartEntry.h"
#include "DefaultSettingsFile.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

using Desktop::AutostartEntry;

namespace {

/// Writes \a text as a desktop or a user would.
void WriteEntry(const char* text)
{
    QVERIFY(QDir().mkpath(QFileInfo(AutostartEntry::FilePath()).path()));
    QFile file(AutostartEntry::FilePath());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
}

QString Entry()
{
    QFile file(AutostartEntry::FilePath());
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

class tst_AutostartEntry : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        WidgetTest::init();
        const QDir folder(QFileInfo(AutostartEntry::FilePath()).path());
        QVERIFY(!folder.exists() || QDir(folder).removeRecursively());
    }

    void isWhereTheDesktopLooks()
    {
        QCOMPARE(AutostartEntry::FilePath(),
                 qEnvironmentVariable("XDG_CONFIG_HOME")
                     + QStringLiteral("/autostart/org.zentor.PxScheduler.desktop"));
    }

    void isSetAndRemoved()
    {
        const AutostartEntry entry(QStringLiteral("/usr/bin/px-scheduler"),
                                   Desktop::DefaultSettingsFile());
        QVERIFY(!AutostartEntry::IsSet());
        QCOMPARE(entry.Set(false), QString());
        QCOMPARE(entry.Set(true), QString());
        QVERIFY(AutostartEntry::IsSet());
        const QStringList lines = Entry().split(QLatin1Char('\n'));
        QCOMPARE(lines.constFirst(), QStringLiteral("[Desktop Entry]"));
        QVERIFY(lines.contains(QStringLiteral("Exec=\"/usr/bin/px-scheduler\" --hidden")));
        QCOMPARE(entry.Set(true), QString());
        QVERIFY(AutostartEntry::IsSet());
        QCOMPARE(entry.Set(false), QString());
        QVERIFY(!AutostartEntry::IsSet());
        QVERIFY(!QFile::exists(AutostartEntry::FilePath()));
    }

    void readsWhatADesktopHasWritten_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<bool>("isSet");
        const auto row = [](const char* name, const char* text, bool isSet) {
            QTest::newRow(name) << QByteArray(text) << isSet;
        };
        row("plain", "[Desktop Entry]\nExec=px-scheduler --hidden\n", true);
        row("hidden", "[Desktop Entry]\nExec=px-scheduler\nHidden=true\n", false);
        row("hidden first", "[Desktop Entry]\nHidden=true\nExec=px-scheduler\n", false);
        row("hidden, with spaces", "[Desktop Entry]\nExec=a\nHidden = true \n", false);
        row("not hidden", "[Desktop Entry]\nExec=px-scheduler\nHidden=false\n", true);
        row("disabled", "[Desktop Entry]\nExec=a\nX-GNOME-Autostart-enabled=false\n", false);
        row("enabled", "[Desktop Entry]\nExec=a\nX-GNOME-Autostart-enabled=true\n", true);
        row("hidden in another group", "[Desktop Entry]\nExec=a\n[Other]\nHidden=true\n", true);
        row("command in another group", "[Desktop Entry]\nName=a\n[Other]\nExec=a\n", false);
        row("commented out", "[Desktop Entry]\n#Exec=a\n", false);
        row("hidden, as a comment", "[Desktop Entry]\nExec=a\n#Hidden=true\n", true);
        row("no command", "[Desktop Entry]\nExec=\n", false);
        row("empty", "", false);
    }

    void readsWhatADesktopHasWritten()
    {
        QFETCH(QByteArray, text);
        QFETCH(bool, isSet);
        WriteEntry(text);
        QCOMPARE(AutostartEntry::IsSet(), isSet);
        QCOMPARE(AutostartEntry::OfThisProgram(Desktop::DefaultSettingsFile()).Set(true),
                 QString());
        QVERIFY(AutostartEntry::IsSet());
    }

    void quotesItsCommand_data()
    {
        QTest::addColumn<QString>("program");
        QTest::addColumn<QString>("expected");
        QTest::newRow("plain") << "/usr/bin/px-scheduler"
                               << "\"/usr/bin/px-scheduler\"";
        QTest::newRow("space") << "/a b/px"
                               << "\"/a b/px\"";
        QTest::newRow("percent") << "/100%/px"
                                 << "\"/100%%/px\"";
        QTest::newRow("quote") << "/a\"b"
                               << "\"/a\\\\\"b\"";
        QTest::newRow("apostrophe") << "/a'b"
                                    << "\"/a'b\"";
        QTest::newRow("backtick") << "/a`b"
                                  << "\"/a\\\\`b\"";
        QTest::newRow("dollar") << "/$HOME"
                                << "\"/\\\\$HOME\"";
        QTest::newRow("backslash") << "/a\\b"
                                   << "\"/a\\\\\\\\b\"";
        QTest::newRow("line feed") << QStringLiteral("/a\nHidden=true") << "\"/a\\nHidden=true\"";
        QTest::newRow("letters") << QString::fromUtf8("/Aufnähme/录制")
                                 << QString::fromUtf8("\"/Aufnähme/录制\"");
    }

    void quotesItsCommand()
    {
        QFETCH(QString, program);
        QFETCH(QString, expected);
        const AutostartEntry plain(program, Desktop::DefaultSettingsFile());
        QCOMPARE(plain.Command(), expected + QStringLiteral(" --hidden"));
        const AutostartEntry withSettings(QStringLiteral("/p"), program);
        QCOMPARE(withSettings.Command(), QStringLiteral("\"/p\" --hidden --settings ") + expected);
        QCOMPARE(plain.Set(true), QString());
        QVERIFY(AutostartEntry::IsSet());
        QVERIFY(Entry().endsWith(QStringLiteral("Exec=%1 --hidden\n").arg(expected)));
    }

    void namesOtherSettingsByTheirFullPath()
    {
        const AutostartEntry entry(QStringLiteral("/p"), QStringLiteral("a.json"));
        QCOMPARE(
            entry.Command(),
            QStringLiteral("\"/p\" --hidden --settings \"%1/a.json\"").arg(QDir::currentPath()));
    }

    void saysWhatFailed()
    {
        const QString folder = QFileInfo(AutostartEntry::FilePath()).path();
        QVERIFY(QDir().mkpath(QFileInfo(folder).path()));
        QFile inTheWay(folder);
        QVERIFY(inTheWay.open(QIODevice::WriteOnly));
        const auto entry = AutostartEntry::OfThisProgram(Desktop::DefaultSettingsFile());
        const QString problem = entry.Set(true);
        QVERIFY2(problem.contains(AutostartEntry::FilePath()), qPrintable(problem));
        QVERIFY(!AutostartEntry::IsSet());
        QVERIFY(inTheWay.remove());

        // A folder with something in it is no file that could be deleted.
        QVERIFY(QDir().mkpath(AutostartEntry::FilePath() + QStringLiteral("/1")));
        const QString notDeleted = entry.Set(false);
        QVERIFY2(notDeleted.contains(AutostartEntry::FilePath()), qPrintable(notDeleted));
        QVERIFY(QDir(AutostartEntry::FilePath()).removeRecursively());
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_AutostartEntry)

#include "tst_AutostartEntry.moc"
