// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QDir>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "Languages.h"
#include "Resources.h"
#include "TranslationFile.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

/// The texts of the panel with its host, or those of the application.
struct TextSet {
    const char* name;
    /// Of the file in each language, "%1", below the folder of the project.
    const char* path;
    /// Where its texts are written.
    QStringList sources;
};

const std::vector<TextSet>& TextSets()
{
    static const std::vector<TextSet> sets{
        {"library",
         "Host/Translations/PXUiSchedulerWidgets_%1.ts",
         {QStringLiteral("Host"), QStringLiteral("Lib")}},
        {"application",
         "App/Translations/px-scheduler_%1.ts",
         {QStringLiteral("App"), QStringLiteral("Schedule")}},
    };
    return sets;
}

std::vector<Translation> ReadSet(const TextSet& set, const QString& code)
{
    return ReadTranslations(
        QDir(QStringLiteral(PX_SOURCES)).filePath(QString::fromLatin1(set.path).arg(code)));
}

/// All texts in the language \a code.
std::vector<Translation> ReadAll(const QString& code)
{
    std::vector<Translation> entries;
    for (const TextSet& set : TextSets()) {
        const auto ofSet = ReadSet(set, code);
        entries.insert(entries.end(), ofSet.begin(), ofSet.end());
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
    return int(text.remove(QStringLiteral("&&")).count(QLatin1Char('&')));
}

/// Whether the library shows \a entry beside a field. It knows of no keys; they come with the
/// translations, English included.
bool IsCaptionOfField(const Translation& entry)
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

} // namespace

class tst_Translations : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Desktop::RegisterResources(); }

    void finishesEveryText_data() { AddLanguages(); }

    void finishesEveryText()
    {
        QFETCH(QString, code);
        const auto entries = ReadAll(code);
        QVERIFY(entries.size() > 70);
        for (const Translation& entry : entries) {
            QVERIFY2(entry.state.isEmpty(), qPrintable(entry.source));
            QVERIFY2(!entry.translation.trimmed().isEmpty(), qPrintable(entry.source));
        }
    }

    void keepsPlaceholdersAndMarkup_data() { AddLanguages(); }

    void keepsPlaceholdersAndMarkup()
    {
        QFETCH(QString, code);
        for (const Translation& entry : ReadAll(code)) {
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
        for (const Translation& entry : ReadAll(code)) {
            const auto mark = entry.translation.indexOf(QLatin1Char('&'));
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
        for (const Translation& entry : ReadAll(code)) {
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
        const auto entries = ReadAll(code);
        const auto prefix =
            std::find_if(entries.begin(), entries.end(), [](const Translation& entry) {
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
        for (const Translation& entry : ReadAll(code)) {
            QVERIFY2(IsInUse(entry), qPrintable(entry.source));
        }
        translations.Use(QStringLiteral("en"));
        QCoreApplication::sendPostedEvents();
        QLocale::setDefault(QLocale::c());
    }

    void holdsEveryTextOfTheSources_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("code");
        for (std::size_t i = 0; i < TextSets().size(); ++i) {
            const auto codes = Desktop::LanguageCodes();
            for (const QString& code : codes) {
                QTest::addRow("%s %s", TextSets().at(i).name, qPrintable(code)) << int(i) << code;
            }
        }
    }

    void holdsEveryTextOfTheSources()
    {
        QFETCH(const int, index);
        QFETCH(const QString, code);
        const TextSet& set = TextSets().at(std::size_t(index));
        QStringList& extracted = m_extracted[index];
        if (extracted.isEmpty()) {
            Extract(set.sources, extracted);
        }
        QVERIFY(extracted.size() > 50);
        QCOMPARE(Keys(ReadSet(set, code)), extracted);
    }

    void holdsNoTextTwice()
    {
        const QStringList keys = Keys(ReadAll(QStringLiteral("en")));
        QCOMPARE(QStringList(keys).removeDuplicates(), 0);
        QVERIFY(keys.size() > 70);
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

    /// Takes the texts out of \a sources anew, into a file of its own, and adds them to \a keys.
    static void Extract(const QStringList& sources, QStringList& keys)
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("all.ts"));
        QProcess process;
        process.setWorkingDirectory(QStringLiteral(PX_SOURCES));
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(QStringLiteral(PX_LUPDATE),
                      QStringList(sources) << QStringLiteral("-ts") << path);
        QVERIFY(process.waitForFinished());
        QVERIFY2(process.exitCode() == 0, process.readAll().constData());
        keys = Keys(ReadTranslations(path));
    }

    /// The texts of the sources, by the index of the set.
    QMap<int, QStringList> m_extracted;
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_Translations)

#include "tst_Translations.moc"
