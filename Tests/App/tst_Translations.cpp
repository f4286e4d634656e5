// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QDir>
#include <QFile>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include "Languages.h"
#include "Resources.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

/// One text of a language file, or one of the forms that it has for numbers.
struct Entry {
    QString context;
    QString source;
    QString translation;
    /// Anything but a finished translation, as in "unfinished".
    QString state;
    /// Which form it is; -1 for a text without a number.
    int form = -1;
};

QString FileName(const QString& code)
{
    return QStringLiteral("px-scheduler_%1.ts").arg(code);
}

QString PathOf(const QString& code)
{
    return QDir(QStringLiteral(PX_TRANSLATIONS)).filePath(FileName(code));
}

/// Adds what \a reader has come to, a translation, to the last of \a entries.
void ReadTranslation(QXmlStreamReader& reader, std::vector<Entry>& entries)
{
    Entry entry = entries.back();
    entry.state = reader.attributes().value(QStringLiteral("type")).toString();
    entry.translation = reader.readElementText(QXmlStreamReader::IncludeChildElements);
    entries.back() = entry;
    if (!entry.source.contains(QLatin1String("%n"))) {
        return;
    }
    entries.pop_back();
    const QStringList forms =
        entry.translation.trimmed().split(QRegularExpression(QStringLiteral("\\s*\n\\s*")));
    for (const QString& form : forms) {
        ++entry.form;
        entry.translation = form;
        entries.push_back(entry);
    }
}

std::vector<Entry> ReadEntries(const QString& path)
{
    std::vector<Entry> entries;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return entries;
    }
    QXmlStreamReader reader(&file);
    QString context;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (reader.name() == QLatin1String("name")) {
            context = reader.readElementText();
        } else if (reader.name() == QLatin1String("source")) {
            entries.push_back({context, reader.readElementText(), {}, {}, -1});
        } else if (reader.name() == QLatin1String("translation")) {
            ReadTranslation(reader, entries);
        }
    }
    return entries;
}

/// The placeholders and the markup of \a text, in alphabetical order.
QStringList Marks(const QString& text)
{
    static const QRegularExpression mark(QStringLiteral("%L?[0-9]+|%n|<[^>]*>"));
    QStringList marks;
    auto matches = mark.globalMatch(text);
    while (matches.hasNext()) {
        marks << matches.next().captured();
    }
    marks.sort();
    return marks;
}

/// How often \a text names a key to reach it by: "&a", but not "&&".
int Mnemonics(QString text)
{
    return text.remove(QStringLiteral("&&")).count(QLatin1Char('&'));
}

/// Whether the library shows \a entry beside a field. It knows of no keys; they come with the
/// translations, English included.
bool IsCaptionOfField(const Entry& entry)
{
    static const QStringList captions{QStringLiteral("Do not schedule capture"),
                                      QStringLiteral("Stop capture after"),
                                      QStringLiteral("Record on schedule"),
                                      QStringLiteral("File name:"),
                                      QStringLiteral("Date:"),
                                      QStringLiteral("Time:"),
                                      QStringLiteral("Duration:"),
                                      QStringLiteral("Action on finish:"),
                                      QStringLiteral("Capture duration in limited capture:"),
                                      QStringLiteral("When capture ends:")};
    return captions.contains(entry.source);
}

/// Whether \a entry is what the program says, for some number where it has one.
bool IsInUse(const Entry& entry)
{
    constexpr int mostNumbers = 200;
    const QByteArray context = entry.context.toUtf8();
    const QByteArray source = entry.source.toUtf8();
    for (int number = 0; entry.form >= 0 && number < mostNumbers; ++number) {
        const QString expected =
            QString(entry.translation).replace(QLatin1String("%n"), QString::number(number));
        if (QCoreApplication::translate(context, source, nullptr, number) == expected) {
            return true;
        }
    }
    return entry.form < 0 && QCoreApplication::translate(context, source) == entry.translation;
}

QStringList Keys(const std::vector<Entry>& entries)
{
    QStringList keys;
    for (const Entry& entry : entries) {
        if (entry.form <= 0) {
            keys << entry.context + QStringLiteral(": ") + entry.source;
        }
    }
    keys.sort();
    return keys;
}

} // namespace

class tst_Translations : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Desktop::RegisterResources(); }

    void finishesEveryText_data() { AddLanguages(); }

    void finishesEveryText()
    {
        QFETCH(QString, code);
        const auto entries = ReadEntries(PathOf(code));
        QVERIFY(entries.size() > 70);
        for (const Entry& entry : entries) {
            QVERIFY2(entry.state.isEmpty(), qPrintable(entry.source));
            QVERIFY2(!entry.translation.trimmed().isEmpty(), qPrintable(entry.source));
        }
    }

    void keepsPlaceholdersAndMarkup_data() { AddLanguages(); }

    void keepsPlaceholdersAndMarkup()
    {
        QFETCH(QString, code);
        for (const Entry& entry : ReadEntries(PathOf(code))) {
            QVERIFY2(Marks(entry.translation) == Marks(entry.source), qPrintable(entry.source));
            const bool hasKey = Mnemonics(entry.source) > 0 || IsCaptionOfField(entry);
            QVERIFY2(Mnemonics(entry.translation) == (hasKey ? 1 : 0), qPrintable(entry.source));
        }
    }

    void underlinesNoJoinedLetter_data() { AddLanguages(); }

    /// Underlined within its word, such a letter takes another form and does not fit its place.
    void underlinesNoJoinedLetter()
    {
        QFETCH(QString, code);
        for (const Entry& entry : ReadEntries(PathOf(code))) {
            const int mark = entry.translation.indexOf(QLatin1Char('&'));
            const QString letters = entry.translation.mid(qMax(0, mark - 1), 4);
            const auto joined = std::count_if(letters.begin(), letters.end(), [](QChar letter) {
                return letter.joiningType() > QChar::Joining_None;
            });
            QVERIFY2(mark < 0 || joined <= 1, qPrintable(entry.source));
        }
    }

    void givesDatesAndTimesAsWhole_data() { AddLanguages(); }

    void givesDatesAndTimesAsWhole()
    {
        QFETCH(QString, code);
        const QDate date(2031, 12, 27);
        const QTime time(23, 45, 9);
        int formats = 0;
        for (const Entry& entry : ReadEntries(PathOf(code))) {
            if (entry.source == QLatin1String("dd.MM.yyyy")) {
                const QString shown = date.toString(entry.translation);
                QCOMPARE(QDate::fromString(shown, entry.translation), date);
                ++formats;
            } else if (entry.source == QLatin1String("hh:mm:ss")) {
                // Also the format of durations: hours from 0 to 23, without "AM".
                QCOMPARE(time.toString(entry.translation), QStringLiteral("23:45:09"));
                ++formats;
            }
        }
        QCOMPARE(formats, 5);
    }

    void namesTasksByAPrefix_data() { AddLanguages(); }

    void namesTasksByAPrefix()
    {
        QFETCH(QString, code);
        const auto entries = ReadEntries(PathOf(code));
        const auto prefix = std::find_if(entries.begin(), entries.end(), [](const Entry& entry) {
            return entry.source == QLatin1String("Task ");
        });
        QVERIFY(prefix != entries.end());
        // A digit at its end would become part of the number.
        QVERIFY(!prefix->translation.at(prefix->translation.size() - 1).isDigit());
        const bool writesBlanks = code != QLatin1String("ja") && code != QLatin1String("zh_CN");
        QCOMPARE(prefix->translation.endsWith(QLatin1Char(' ')), writesBlanks);
    }

    void comesWithTheProgram_data() { AddLanguages(); }

    void comesWithTheProgram()
    {
        QFETCH(QString, code);
        Desktop::Translations translations;
        translations.Use(code);
        for (const Entry& entry : ReadEntries(PathOf(code))) {
            QVERIFY2(IsInUse(entry), qPrintable(entry.source));
        }
        translations.Use(QStringLiteral("en"));
        QCoreApplication::sendPostedEvents();
        QLocale::setDefault(QLocale::c());
    }

    void holdsEveryTextOfTheSources_data() { AddLanguages(); }

    void holdsEveryTextOfTheSources()
    {
        QFETCH(QString, code);
        if (m_extracted.isEmpty()) {
            Extract();
        }
        QVERIFY(m_extracted.size() > 70);
        QCOMPARE(Keys(ReadEntries(PathOf(code))), m_extracted);
    }

private:
    static void AddLanguages()
    {
        QTest::addColumn<QString>("code");
        const auto codes = Desktop::LanguageCodes();
        for (const QString& code : codes) {
            QTest::newRow(qPrintable(code)) << code;
        }
    }

    /// Takes the texts out of the sources anew, into a file of its own.
    void Extract()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("all.ts"));
        QProcess process;
        process.setWorkingDirectory(QStringLiteral(PX_SOURCES));
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(QStringLiteral(PX_LUPDATE),
                      {QStringLiteral("App"), QStringLiteral("Host"), QStringLiteral("Lib"),
                       QStringLiteral("Schedule"), QStringLiteral("-ts"), path});
        QVERIFY(process.waitForFinished());
        QVERIFY2(process.exitCode() == 0, process.readAll().constData());
        m_extracted = Keys(ReadEntries(path));
    }

    QStringList m_extracted;
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_Translations)

#include "tst_Translations.moc"
