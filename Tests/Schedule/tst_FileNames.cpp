// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QDir>
#include <QFileInfo>

#include "FileNames.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

using namespace std::chrono_literals;
using Schedule::Moment;
using Schedule::RecordingFilePath;

/// 2026-11-21 20:15 of the local time.
Moment Evening()
{
    const QDateTime evening(QDate(2026, 11, 21), QTime(20, 15));
    return Moment(std::chrono::milliseconds(evening.toMSecsSinceEpoch()));
}

QString NameOf(const QString& path)
{
    return QFileInfo(path).fileName();
}

void Touch(const QString& path)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
}

} // namespace

class tst_FileNames : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void namesAfterTitleAndStart_data();
    void namesAfterTitleAndStart();
    void liesInTheFolder();
    void showsLocalTime();
    void leavesFractionsOut();
    void countsWhereAFileExists();
    void takesTheFileThatIsConvertedIntoAccount();
    void takesALinkForAFile();
    void cutsTitlesThatAreTooLong_data();
    void cutsTitlesThatAreTooLong();
};

void tst_FileNames::namesAfterTitleAndStart_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("shown");
    QTest::newRow("plain") << "Lecture 1"
                           << "Lecture 1";
    QTest::newRow("none") << ""
                          << "Recording";
    QTest::newRow("blank") << " \t "
                           << "Recording";
    QTest::newRow("blanks around") << "  Lecture "
                                   << "Lecture";
    QTest::newRow("refused") << R"(a\b/c:d*e?f"g<h>i|j)"
                             << "a_b_c_d_e_f_g_h_i_j";
    QTest::newRow("controls") << QString::fromUtf8("a\nb\x7f"
                                                   "c\xc2\x85"
                                                   "d")
                              << "a_b_c_d";
    QTest::newRow("line separator") << QString("a") + QChar(0x2028) + "b"
                                    << "a_b";
    QTest::newRow("zero") << QString("a") + QChar(0) + "b"
                          << "a_b";
    QTest::newRow("dot") << "."
                         << "_";
    QTest::newRow("two dots") << ".."
                              << "_.";
    QTest::newRow("hidden") << ".profile"
                            << "_profile";
    QTest::newRow("way out") << "../../etc/passwd"
                             << "_._.._etc_passwd";
    QTest::newRow("dots at the end") << "Lecture..."
                                     << "Lecture...";
    QTest::newRow("letters") << QString::fromUtf8("Ünïcödé 講義 📹")
                             << QString::fromUtf8("Ünïcödé 講義 📹");
    QTest::newRow("half a character") << QString("a") + QChar(0xD83D) + "/b"
                                      << "a__b";
}

void tst_FileNames::namesAfterTitleAndStart()
{
    QFETCH(QString, title);
    QFETCH(QString, shown);
    const QTemporaryDir folder;
    QCOMPARE(NameOf(RecordingFilePath(folder.path(), title, Evening(), "mkv")),
             shown + " 2026-11-21 20-15-00.mkv");
}

void tst_FileNames::liesInTheFolder()
{
    const QTemporaryDir folder;
    const QString path = RecordingFilePath(folder.path() + "/", "a", Evening(), "mp4");
    QCOMPARE(path, folder.path() + "/a 2026-11-21 20-15-00.mp4");
}

void tst_FileNames::showsLocalTime()
{
    const QByteArray before = qgetenv("TZ");
    qputenv("TZ", "Pacific/Auckland");
    tzset();
    const QString name = NameOf(RecordingFilePath("/none", "a", Moment(1'900'000'000s), "mkv"));
    qputenv("TZ", before);
    tzset();
    QCOMPARE(name, QStringLiteral("a 2030-03-18 06-46-40.mkv"));
}

void tst_FileNames::leavesFractionsOut()
{
    QCOMPARE(NameOf(RecordingFilePath("/none", "a", Evening() + 999'999us, "mkv")),
             QStringLiteral("a 2026-11-21 20-15-00.mkv"));
    QCOMPARE(NameOf(RecordingFilePath("/none", "a", Evening() - 1us, "mkv")),
             QStringLiteral("a 2026-11-21 20-14-59.mkv"));
}

void tst_FileNames::countsWhereAFileExists()
{
    const QTemporaryDir folder;
    QStringList names;
    for (int i = 0; i < 3; ++i) {
        const QString path = RecordingFilePath(folder.path(), "a", Evening(), "mkv");
        names << NameOf(path);
        Touch(path);
    }
    QCOMPARE(names,
             (QStringList{"a 2026-11-21 20-15-00.mkv", "a 2026-11-21 20-15-00 (2).mkv",
                          "a 2026-11-21 20-15-00 (3).mkv"}));
}

void tst_FileNames::takesTheFileThatIsConvertedIntoAccount()
{
    const QTemporaryDir folder;
    Touch(folder.filePath("a 2026-11-21 20-15-00.mkv"));
    QCOMPARE(NameOf(RecordingFilePath(folder.path(), "a", Evening(), "mp4")),
             QStringLiteral("a 2026-11-21 20-15-00 (2).mp4"));
}

void tst_FileNames::takesALinkForAFile()
{
    const QTemporaryDir folder;
    QVERIFY(QFile::link("/none", folder.filePath("a 2026-11-21 20-15-00.mkv")));
    QCOMPARE(NameOf(RecordingFilePath(folder.path(), "a", Evening(), "mkv")),
             QStringLiteral("a 2026-11-21 20-15-00 (2).mkv"));
}

void tst_FileNames::cutsTitlesThatAreTooLong_data()
{
    QTest::addColumn<QString>("letter");
    QTest::newRow("one byte") << "a";
    QTest::newRow("two bytes") << QString::fromUtf8("ä");
    QTest::newRow("three bytes") << QString::fromUtf8("講");
    QTest::newRow("four bytes") << QString::fromUtf8("📹");
    QTest::newRow("with an accent of its own") << QString::fromUtf8("a\xcc\x88");
    QTest::newRow("blanks") << "abc ";
}

void tst_FileNames::cutsTitlesThatAreTooLong()
{
    QFETCH(QString, letter);
    constexpr int mostBytes = 255 - int(sizeof(".4194304.part") - 1);
    const QTemporaryDir folder;
    const QString title = letter.repeated(300);
    for (int i = 0; i < 11; ++i) {
        const QString path = RecordingFilePath(folder.path(), title, Evening(), "mkv");
        const int bytes = int(NameOf(path).toUtf8().size());
        QVERIFY2(bytes <= mostBytes, qPrintable(QString::number(bytes)));
        QVERIFY2(bytes > mostBytes - 16, qPrintable(QString::number(bytes)));
        Touch(path);
        const QString shown = NameOf(path).section(" 2026-11-21 20-15-00", 0, 0);
        QVERIFY(letter == "abc " || shown.endsWith(letter));
        QCOMPARE(shown, shown.trimmed());
        QVERIFY(title.startsWith(shown));
    }
}

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_FileNames)

#include "tst_FileNames.moc"
