// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QVBoxLayout>

#include "Resources.h"
#include "ScreenshotTour.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

QStringList ExpectedPictures()
{
    return {QStringLiteral("01-schedule.png"),
            QStringLiteral("02-task-under-mouse.png"),
            QStringLiteral("03-delete-question.png"),
            QStringLiteral("04-leave-schedule-question.png"),
            QStringLiteral("05-nothing-scheduled.png"),
            QStringLiteral("06-limited-capture.png"),
            QStringLiteral("07-limited-capture-duration.png"),
            QStringLiteral("08-limited-capture-actions.png"),
            QStringLiteral("09-empty-schedule.png"),
            QStringLiteral("10-new-task.png"),
            QStringLiteral("11-new-task-without-name.png"),
            QStringLiteral("12-files.png"),
            QStringLiteral("13-new-task-same-name.png"),
            QStringLiteral("14-new-task-same-time.png"),
            QStringLiteral("15-unsaved-task-question.png"),
            QStringLiteral("16-full-disk.png"),
            QStringLiteral("17-general.png"),
            QStringLiteral("18-general-languages.png"),
            QStringLiteral("19-recording.png"),
            QStringLiteral("20-recordings.png"),
            QStringLiteral("21-next-task.png"),
            QStringLiteral("22-task-is-recorded.png"),
            QStringLiteral("23-paused.png"),
            QStringLiteral("24-countdown.png")};
}

int RunProgram(const QStringList& arguments, QString* error = nullptr)
{
    constexpr int patience = 120000;
    QProcess process;
    process.start(QStringLiteral(PX_PROGRAM), arguments);
    const bool ended = process.waitForFinished(patience);
    if (error != nullptr) {
        *error = QString::fromUtf8(process.readAllStandardError());
    }
    return ended && process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

QByteArray Read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A window with a line edit and a button that writes into it.
struct Window : QWidget {
    Window()
    {
        auto* layout = new QVBoxLayout(this);
        edit->setObjectName(QStringLiteral("edit"));
        button->setObjectName(QStringLiteral("button"));
        layout->addWidget(edit);
        layout->addWidget(button);
        connect(button, &QPushButton::clicked, this,
                [this] { edit->setText(edit->text() + QStringLiteral("!")); });
    }

    QLineEdit* edit = new QLineEdit(this);
    QPushButton* button = new QPushButton(QStringLiteral("Shout"), this);
};

/// Runs \a tour to its end and returns what it reports.
QString Run(Desktop::ScreenshotTour& tour)
{
    QSignalSpy finished(&tour, &Desktop::ScreenshotTour::Finished);
    tour.Start();
    if (finished.isEmpty() && !finished.wait()) {
        return QStringLiteral("did not end");
    }
    return finished.constFirst().constFirst().toString();
}

} // namespace

class tst_ScreenshotTour : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void takesEveryPictureOfTheSample()
    {
        const QTemporaryDir folder;
        const QString pictures = folder.filePath(QStringLiteral("new/pictures"));
        QString error;
        QVERIFY2(RunProgram({QStringLiteral("--screenshots"), pictures}, &error) == 0,
                 qPrintable(error));
        QCOMPARE(QDir(pictures).entryList(QDir::Files, QDir::Name), ExpectedPictures());

        QStringList hashes;
        const auto names = ExpectedPictures();
        for (const QString& name : names) {
            const QImage picture(QDir(pictures).filePath(name));
            QVERIFY2(!picture.isNull() && picture.width() > 640, qPrintable(name));
            const QByteArray data = Read(QDir(pictures).filePath(name));
            hashes << QString::fromLatin1(
                QCryptographicHash::hash(data, QCryptographicHash::Sha256).toHex());
        }
        QCOMPARE(hashes.removeDuplicates(), 0);
    }

    void leavesTheUsersSettingsAlone()
    {
        const QTemporaryDir folder;
        const QString settings = folder.filePath(QStringLiteral("mine.json"));
        Desktop::RegisterResources();
        QVERIFY(QFile::copy(QStringLiteral(":/samples/settings.json"), settings));
        const QByteArray before = Read(settings);
        const QString pictures = folder.filePath(QStringLiteral("pictures"));
        QCOMPARE(
            RunProgram({QStringLiteral("--settings"), settings, QStringLiteral("--screenshots"),
                        pictures, QStringLiteral("--theme"), QStringLiteral("dark")}),
            0);
        QCOMPARE(Read(settings), before);
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files),
                 QStringList{QStringLiteral("mine.json")});

        const QImage dark(QDir(pictures).filePath(QStringLiteral("05-nothing-scheduled.png")));
        QVERIFY(dark.pixelColor(dark.rect().bottomRight()).lightness() < 64);
    }

    void failsWhenItCannotWrite()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("file"));
        QVERIFY(QFile(file).open(QIODevice::WriteOnly));
        const QString pictures = file + QStringLiteral("/pictures");
        QString error;
        QCOMPARE(RunProgram({QStringLiteral("--screenshots"), pictures}, &error), 1);
        QVERIFY2(error.contains(pictures), qPrintable(error));
    }

    void worksByMouseAndKeys()
    {
        const QTemporaryDir folder;
        Window window;
        Desktop::ScreenshotTour tour(window, folder.path());
        tour.Click(QStringLiteral("edit"));
        tour.Type(QStringLiteral("Hi2"));
        tour.Press(Qt::Key_Backspace);
        tour.Click(QStringLiteral("button"));
        tour.WaitFor(QStringLiteral("text"),
                     [&] { return window.edit->text() == QLatin1String("Hi!"); });
        tour.Picture(QStringLiteral("done"));
        QCOMPARE(Run(tour), QString());
        QVERIFY(QFile::exists(folder.filePath(QStringLiteral("done.png"))));
    }

    void namesTheStateThatItCannotReach()
    {
        const QTemporaryDir folder;
        Window window;
        Desktop::ScreenshotTour tour(window, folder.path());
        tour.SetTimeout(std::chrono::milliseconds(50));
        tour.WaitFor(QStringLiteral("the moon"), [] { return false; });
        tour.Picture(QStringLiteral("moon"));
        QVERIFY(Run(tour).contains(QLatin1String("the moon")));
        QVERIFY(!QFile::exists(folder.filePath(QStringLiteral("moon.png"))));
    }

    void waitsForWhatIsDisabled()
    {
        const QTemporaryDir folder;
        Window window;
        window.button->setEnabled(false);
        Desktop::ScreenshotTour tour(window, folder.path());
        tour.SetTimeout(std::chrono::milliseconds(50));
        tour.Click(QStringLiteral("button"));
        QVERIFY(Run(tour).contains(QLatin1String("button")));
    }

    void saysWhichPictureItCannotWrite()
    {
        const QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("taken.png")));
        Window window;
        Desktop::ScreenshotTour tour(window, folder.path());
        tour.Picture(QStringLiteral("taken"));
        QVERIFY(Run(tour).contains(QLatin1String("taken.png")));
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_ScreenshotTour)

#include "tst_ScreenshotTour.moc"
