// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <limits>

#include <QLabel>
#include <QScreen>
#include <QToolTip>

#include <glog/logging.h>

#include "Boxes.h"
#include "Panel.h"
#include "PanelParts.h"
#include "WidgetTest.h"

namespace {

/// What the disk holds, and where it was looked for. Takes the place of the reference host's query.
struct Disk {
    std::int64_t freeBytes = std::numeric_limits<std::int64_t>::max();
    QStringList queriedPaths;
};

Disk& TheDisk()
{
    static Disk disk;
    return disk;
}

} // namespace

std::int64_t Zentor::Util::GetAvailableDiskSpace(const ioPath& path)
{
    TheDisk().queriedPaths << QString::fromStdString(path.ToUtf8());
    return TheDisk().freeBytes;
}

namespace Zentor::Tests {
namespace {

using PX::RecordTime;
using std::chrono::minutes;

constexpr std::int64_t MinimumFreeBytes = 1000000000;

/// Collects the log lines while it exists, as "severity|file|line|text".
class LogLines final : public google::LogSink {
public:
    LogLines() { google::AddLogSink(this); }
    ~LogLines() override { google::RemoveLogSink(this); }

    void send(google::LogSeverity severity, const char* fullFilename, const char* /*baseFilename*/,
              int line, const google::LogMessageTime& /*time*/, const char* message,
              std::size_t length) override
    {
        m_lines << QStringLiteral("%1|%2|%3|%4")
                       .arg(QString::fromLatin1(google::GetLogSeverityName(severity)),
                            QString::fromLatin1(fullFilename), QString::number(line),
                            QString::fromUtf8(message, int(length)));
    }

    const QStringList& Lines() const { return m_lines; }

private:
    QStringList m_lines;
};

/// What the form shows of a verdict, as "name: message" or "start: message"; "fine" for none.
QString Verdict(const Panel& panel)
{
    QStringList marks;
    const auto add = [&](const QWidget* field, const char* name) {
        if (field->property("SubStyle").toString() == QLatin1String("Invalid")) {
            marks << QString::fromLatin1(name) + ": " + field->toolTip();
        }
    };
    add(panel.Name(), "name");
    add(panel.StartTime(), "start");
    if (panel.Create()->isEnabled()) {
        marks << QStringLiteral("fine");
    }
    return marks.join(QLatin1String(", "));
}

const QString EmptyName = QStringLiteral("name: Need select task name");
const QString Duplicate = QStringLiteral("name: Task with this title already exist");
const QString Overlap =
    QStringLiteral("start: Curent capture time intersect with other capture time in the list");
const QString Fine = QStringLiteral("fine");

const QString UnsavedText = QStringLiteral(
    "The task hasn't been saved. Would you like to add this task to the recording schedule?");
const QString DiskText = QStringLiteral(
    "Could not start recording because there is not enough disk space. Free more disk space and "
    "try again. Or set a different disk drive for storing output videos in "
    "<a href='pxz://ShowSettingsDialog/Files'>File Preferences</a>. ");

} // namespace

class tst_RecordSchedulerWidgetScheduling : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        WidgetTest::init();
        TheDisk() = {};
    }

    void opensTheFormForANewTask()
    {
        Panel panel;
        panel.RestoreScheduled({"Task 3"});
        panel.window->show();
        const QSignalSpy nameChanges(panel.Form(), &CreateRecordTaskWidget::TaskNameChanged);
        panel.Add()->click();
        QVERIFY(panel.IsFormOpen());
        QCOMPARE(panel.Name()->text(), QString("Task 4"));
        QCOMPARE(panel.Form()->GetActionOnFinishIndex(), 0);
        QVERIFY(panel.Form()->IsFullScreen());
        QCOMPARE(nameChanges.count(), 0);
        QVERIFY(!panel.Form()->signalsBlocked());
        QCOMPARE(Verdict(panel), Fine);
        QCOMPARE(panel.watcher->TakeCalls(), QStringList());
    }

    void opensTheFormWithoutANameWhenNoneCanBeProposed()
    {
        Panel panel;
        panel.RestoreScheduled({"Task 09"});
        panel.window->show();
        panel.Add()->click();
        QVERIFY(panel.IsFormOpen());
        QCOMPARE(panel.Name()->text(), QString());
        QCOMPARE(Verdict(panel), EmptyName);
        QTest::keyClicks(panel.Name(), QStringLiteral("x"));
        QCOMPARE(Verdict(panel), Fine);
    }

    void validates_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QTime>("start");
        QTest::addColumn<QTime>("duration");
        QTest::addColumn<QString>("verdict");
        // Scheduled are A from 10:00 and B from 11:00, for a minute each.
        const QTime free(12, 0);
        const QTime minute(0, 1);
        QTest::newRow("valid") << "C" << free << minute << Fine;
        QTest::newRow("empty") << "" << free << minute << EmptyName;
        QTest::newRow("blanks") << "   " << free << minute << EmptyName;
        QTest::newRow("empty comes before overlap") << " " << QTime(10, 0) << minute << EmptyName;
        QTest::newRow("duplicate in a free span") << "A" << free << minute << Duplicate;
        QTest::newRow("duplicate with blanks around") << " A " << free << minute << Duplicate;
        QTest::newRow("duplicate comes before overlap")
            << "A" << QTime(11, 0) << minute << Duplicate;
        QTest::newRow("other case is another title") << "a" << free << minute << Fine;
        QTest::newRow("overlap") << "C" << QTime(10, 0, 30) << minute << Overlap;
        QTest::newRow("same start") << "C" << QTime(10, 0) << minute << Overlap;
        QTest::newRow("contains") << "C" << QTime(9, 0) << QTime(4, 0) << Overlap;
        QTest::newRow("ends when another starts") << "C" << QTime(9, 59) << minute << Fine;
        QTest::newRow("ends a second later") << "C" << QTime(9, 59) << QTime(0, 1, 1) << Overlap;
        QTest::newRow("starts when another ends") << "C" << QTime(10, 1) << minute << Fine;
        QTest::newRow("milliseconds are dropped")
            << "C" << QTime(10, 0, 59, 999) << minute << Overlap;
    }

    void validates()
    {
        QFETCH(QString, name);
        QFETCH(QTime, start);
        QFETCH(QTime, duration);
        Panel panel;
        panel.RestoreScheduled({"A", "B"});
        panel.window->show();
        panel.FillForm(name, start, duration);
        QTEST(Verdict(panel), "verdict");
        QCOMPARE(panel.watcher->TakeCalls(), QStringList());
    }

    void validatesAtEveryChange()
    {
        Panel panel;
        panel.RestoreScheduled({"A"});
        panel.window->show();
        panel.FillForm(QStringLiteral("C"), QTime(12, 0));
        QCOMPARE(Verdict(panel), Fine);
        panel.Name()->setText(QStringLiteral("A"));
        QCOMPARE(Verdict(panel), Duplicate);
        panel.Name()->setText(QStringLiteral("B"));
        QCOMPARE(Verdict(panel), Fine);
        panel.StartTime()->setTime(QTime(10, 0));
        QCOMPARE(Verdict(panel), Overlap);
        panel.Date()->setDate(QDate(2030, 3, 2));
        QCOMPARE(Verdict(panel), Fine);
        panel.Date()->setDate(QDate(2030, 3, 1));
        QCOMPARE(Verdict(panel), Overlap);
        panel.StartTime()->setTime(QTime(9, 0));
        QCOMPARE(Verdict(panel), Fine);
        panel.FormDuration()->setTime(QTime(1, 0, 1));
        QCOMPARE(Verdict(panel), Overlap);
        panel.FormDuration()->setTime(QTime(1, 0));
        QCOMPARE(Verdict(panel), Fine);
    }

    void judgesAgainWhenTheFormComesBack()
    {
        Panel panel;
        panel.RestoreScheduled({"A"});
        panel.window->show();
        panel.FillForm(QStringLiteral("A"), QTime(12, 0));
        QCOMPARE(Verdict(panel), Duplicate);
        const ExpectedBox box(QMessageBox::Ok);
        panel.Limited()->click();
        QVERIFY(box.Came());
        panel.Scheduled()->click();
        QVERIFY(panel.IsFormOpen());
        QCOMPARE(Verdict(panel), Fine);
    }

    void schedulesATask_data()
    {
        QTest::addColumn<bool>("fullScreen");
        QTest::addColumn<int>("screenIndex");
        QTest::newRow("full screen") << true << 0;
        QTest::newRow("selected area") << false << -1;
    }

    void schedulesATask()
    {
        QFETCH(bool, fullScreen);
        Panel panel;
        panel.RestoreScheduled({"A", "B"});
        panel.window->show();
        panel.FillForm(QStringLiteral("  New task "), QTime(10, 30, 15, 999), QTime(2, 3, 4, 5));
        panel.FormDuration()->setTime(QTime(0, 3, 4));
        panel.Find<QComboBox>(Desktop::PanelPart::ActionBox)->setCurrentIndex(PX::Restart);
        panel
            .Find<QRadioButton>(fullScreen ? Desktop::PanelPart::FullScreenButton
                                           : Desktop::PanelPart::SelectedAreaButton)
            ->click();
        panel.Create()->click();

        QVERIFY(!panel.IsFormOpen());
        QCOMPARE(panel.watcher->TakeCalls(),
                 QStringList({"Schedule A,New task,B", "ScheduleState true"}));
        const RecordTime record = panel.Table()->GetPreparedSchedule().at(1);
        QCOMPARE(record.title, QString("New task"));
        QVERIFY(record.start == At("10:30:15"));
        QVERIFY(record.duration == std::chrono::seconds(184));
        QTEST(int(record.screenIndex), "screenIndex");
        QCOMPARE(record.finishAction, PX::Restart);
    }

    void schedulesAZeroDuration()
    {
        Panel panel;
        panel.RestoreScheduled({"A"});
        panel.window->show();
        panel.FillForm(QStringLiteral("B"), QTime(12, 0));
        const QSignalBlocker noClamp(panel.FormDuration());
        panel.FormDuration()->setTime(QTime(0, 0));
        Q_EMIT panel.Form()->TaskNameChanged();
        QCOMPARE(Verdict(panel), Fine);
        panel.Create()->click();
        QVERIFY(panel.Table()->GetPreparedSchedule().at(1).duration
                == std::chrono::microseconds::zero());
    }

    void leavesTheFormThoughTheTaskIsRefused()
    {
        Panel panel;
        panel.RestoreScheduled({"A"});
        panel.window->show();
        panel.FillForm(QStringLiteral("A"), QTime(10, 0));
        QVERIFY(!panel.Create()->isEnabled());
        Q_EMIT panel.Form()->CreateTaskButtonClicked();
        QVERIFY(!panel.IsFormOpen());
        QCOMPARE(panel.Titles(), QString("A"));
        QCOMPARE(panel.Name()->text(), QString("A"));
        QCOMPARE(panel.watcher->TakeCalls(), QStringList());
    }

    void schedulesNothingWithoutAWatcher()
    {
        QWidget window;
        const auto lookAndFeel = std::make_shared<FakeLookAndFeelManager>();
        auto* widget = new RecordSchedulerWidget(lookAndFeel,
                                                 std::make_shared<FakeSettingsManager>(), &window);
        widget->SetPathSettings(std::make_shared<FakePathsSettings>());
        auto* stack = widget->findChild<QStackedWidget*>(Desktop::PanelPart::Stack);
        auto* form = widget->findChild<CreateRecordTaskWidget*>();
        widget->findChild<QRadioButton*>(Desktop::PanelPart::ScheduledModeButton)->click();
        window.show();
        widget->findChild<QPushButton*>(Desktop::PanelPart::AddButton)->click();
        Q_EMIT form->CreateTaskButtonClicked();
        QCOMPARE(stack->currentWidget(), form);
        QVERIFY(widget->findChild<ScheduleRecordTableWidget*>()->IsScheduleEmpty());

        ExpectedBox box(QMessageBox::Yes);
        QVERIFY(widget->ValidateSettings());
        QVERIFY(box.Came());
        QCOMPARE(stack->currentWidget(), form);
        QVERIFY(widget->findChild<ScheduleRecordTableWidget*>()->IsScheduleEmpty());
        QCOMPARE(TheDisk().queriedPaths.size(), 1);
    }

    void asksAboutAnUnsavedTask()
    {
        Panel panel;
        panel.RestoreScheduled({"A"});
        panel.window->show();
        panel.FillForm(QStringLiteral("B"), QTime(12, 0));
        ExpectedBox box([&](QMessageBox& question) {
            QCOMPARE(question.objectName(), QString("RecordSchedulerWidget_UnsavedRecordAlertBox"));
            QCOMPARE(question.text(), UnsavedText);
            QCOMPARE(question.windowTitle(), QString());
            QCOMPARE(question.standardButtons(),
                     QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
            QCOMPARE(question.button(QMessageBox::Yes)->text(), QString("Add"));
            QCOMPARE(question.button(QMessageBox::No)->text(), QString("Don't Add"));
            QCOMPARE(question.defaultButton(),
                     qobject_cast<QPushButton*>(question.button(QMessageBox::Cancel)));
            QCOMPARE(question.icon(), QMessageBox::Question);
            QCOMPARE(question.parentWidget(), panel.window.get());
            QVERIFY(question.windowFlags().testFlag(Qt::MSWindowsFixedSizeDialogHint));
            QVERIFY(qobject_cast<App::ConfirmationAlertBox*>(&question) == nullptr);
            question.reject();
        });
        panel.Back()->click();
        QVERIFY(box.Came());
        QVERIFY(panel.IsFormOpen());
    }

    void goesBack_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("isFormOpen");
        QTest::addColumn<QString>("titles");
        QTest::newRow("add a valid task") << "B" << int(QMessageBox::Yes) << false << "A,B";
        QTest::newRow("add an invalid task") << "A" << int(QMessageBox::Yes) << true << "A";
        QTest::newRow("drop") << "B" << int(QMessageBox::No) << false << "A";
        QTest::newRow("drop an invalid task") << "" << int(QMessageBox::No) << false << "A";
        QTest::newRow("cancel") << "B" << int(QMessageBox::Cancel) << true << "A";
        QTest::newRow("Escape") << "B" << int(QMessageBox::Escape) << true << "A";
        QTest::newRow("close") << "B" << int(QMessageBox::NoButton) << true << "A";
    }

    void goesBack()
    {
        QFETCH(QString, name);
        QFETCH(int, answer);
        Panel panel;
        panel.RestoreScheduled({"A"});
        panel.window->show();
        panel.FillForm(name, QTime(12, 0));
        ExpectedBox box([answer](QMessageBox& question) {
            if (answer == QMessageBox::Escape) {
                PressEscape(question);
            } else if (answer == QMessageBox::NoButton) {
                question.close();
            } else {
                question.button(QMessageBox::StandardButton(answer))->click();
            }
        });
        panel.Back()->click();
        QVERIFY(box.Came());
        QTEST(panel.IsFormOpen(), "isFormOpen");
        QTEST(panel.Titles(), "titles");
        QCOMPARE(panel.watcher->TakeCalls().isEmpty(), panel.Titles() == QLatin1String("A"));
    }

    void showsTheErrorOfAnUnsavedTask()
    {
        Panel panel;
        panel.RestoreScheduled({"A"});
        panel.window->show();
        panel.FillForm(QStringLiteral("B"), QTime(12, 0));
        QCOMPARE(Verdict(panel), Fine);
        ExpectedBox box([&](QMessageBox& question) {
            panel.Table()->AddRecord(Record("B", "15:00"));
            question.button(QMessageBox::Yes)->click();
        });
        QVERIFY(!panel.widget->ValidateSettings());
        QVERIFY(box.Came());
        QVERIFY(panel.IsFormOpen());
        QCOMPARE(Verdict(panel), Duplicate);
        QCOMPARE(TheDisk().queriedPaths, QStringList());
    }

    void dropsTheFormWhenHidden()
    {
        Panel panel;
        panel.RestoreScheduled({"A"});
        panel.window->show();
        panel.FillForm(QStringLiteral("B"), QTime(12, 0));
        const ExpectedBox noBox(QMessageBox::Cancel);
        panel.window->hide();
        panel.window->show();
        QVERIFY(!panel.IsFormOpen());
        QCOMPARE(panel.Titles(), QString("A"));
        QVERIFY(panel.widget->ValidateSettings());
        QVERIFY(!noBox.Came());
    }

    void checksNothingOutsideTheScheduledMode()
    {
        Panel panel;
        panel.settings->limited = true;
        panel.widget->RestoreSettings();
        panel.window->show();
        panel.Stack()->setCurrentWidget(panel.Form());
        TheDisk().freeBytes = 0;
        const LogLines log;
        const ExpectedBox noBox(QMessageBox::Cancel);
        QVERIFY(panel.widget->ValidateSettings());
        QVERIFY(!noBox.Came());
        QCOMPARE(TheDisk().queriedPaths, QStringList());
        QCOMPARE(log.Lines(), QStringList());
    }

    void checksTheDisk_data()
    {
        QTest::addColumn<qint64>("freeBytes");
        QTest::addColumn<bool>("isEnough");
        using Limits = std::numeric_limits<qint64>;
        QTest::newRow("exactly the minimum") << qint64(MinimumFreeBytes) << false;
        QTest::newRow("a byte more") << qint64(MinimumFreeBytes + 1) << true;
        QTest::newRow("a byte less") << qint64(MinimumFreeBytes - 1) << false;
        QTest::newRow("50 MiB") << qint64(52428800) << false;
        QTest::newRow("nothing") << qint64(0) << false;
        QTest::newRow("cannot be told") << qint64(-1) << false;
        QTest::newRow("lowest") << Limits::min() << false;
        QTest::newRow("highest") << Limits::max() << true;
        QTest::newRow("times eight it would be zero") << (qint64(1) << 61) << true;
        QTest::newRow("times eight it would be negative") << (qint64(1) << 60) << true;
        QTest::newRow("times eight it would be huge") << -(qint64(1) << 60) - 1 << false;
    }

    void checksTheDisk()
    {
        QFETCH(qint64, freeBytes);
        QFETCH(bool, isEnough);
        Panel panel;
        panel.RestoreScheduled({"A"});
        panel.paths->folder = QString::fromUtf8("/videos/Übung 録画");
        TheDisk().freeBytes = freeBytes;
        const LogLines log;
        const QSignalSpy requests(panel.widget, &RecordSchedulerWidget::OpenFilesSettingsRequested);
        const ExpectedBox box(QMessageBox::Cancel);
        QCOMPARE(panel.widget->ValidateSettings(), isEnough);
        QCOMPARE(box.Came(), !isEnough);
        QCOMPARE(TheDisk().queriedPaths, QStringList(panel.paths->folder));
        QCOMPARE(requests.count(), 0);
        const QStringList line(
            QStringLiteral(
                "WARNING|Lib/UI/SchedulerWidgets/RecordSchedulerWidget|187|"
                "Zentor::PX::Scheduler::UI::RecordSchedulerWidget::ValidateSettings: freeSize=%1; "
                "min required=1000000000")
                .arg(freeBytes));
        QCOMPARE(log.Lines(), isEnough ? QStringList() : line);
    }

    void alertsAboutTheDisk()
    {
        Panel panel;
        panel.RestoreScheduled({"A"});
        TheDisk().freeBytes = 0;
        ExpectedBox box([&](QMessageBox& alert) {
            QCOMPARE(alert.text(), DiskText);
            QCOMPARE(alert.windowTitle(), QString());
            QCOMPARE(alert.standardButtons(), QMessageBox::Ok | QMessageBox::Cancel);
            QCOMPARE(alert.button(QMessageBox::Ok)->text(), QString("File Preferences"));
            QCOMPARE(alert.icon(), QMessageBox::Warning);
            QCOMPARE(alert.parentWidget(), panel.window.get());
            QVERIFY(alert.windowFlags().testFlag(Qt::MSWindowsFixedSizeDialogHint));
            const auto labels = alert.findChildren<QLabel*>();
            QVERIFY(!labels.isEmpty());
            for (const auto* label : labels) {
                QCOMPARE(label->textInteractionFlags(),
                         Qt::TextInteractionFlags(Qt::LinksAccessibleByMouse));
                QVERIFY(!label->openExternalLinks());
            }
            alert.reject();
        });
        QVERIFY(!panel.widget->ValidateSettings());
        QVERIFY(box.Came());
    }

    void leadsToTheFileSettings_data()
    {
        QTest::addColumn<QString>("link");
        QTest::addColumn<int>("requestCount");
        QTest::newRow("the button") << QString() << 1;
        QTest::newRow("the link") << "pxz://ShowSettingsDialog/Files" << 1;
        QTest::newRow("another link") << "pxz://ShowSettingsDialog/files" << 0;
    }

    void leadsToTheFileSettings()
    {
        QFETCH(QString, link);
        QFETCH(int, requestCount);
        Panel panel;
        panel.RestoreScheduled({"A"});
        TheDisk().freeBytes = 0;
        const QSignalSpy requests(panel.widget, &RecordSchedulerWidget::OpenFilesSettingsRequested);
        ExpectedBox box([&](QMessageBox& alert) {
            if (link.isEmpty()) {
                alert.button(QMessageBox::Ok)->click();
                return;
            }
            auto* label = alert.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
            Q_EMIT label->linkActivated(link);
            QCOMPARE(alert.isVisible(), requestCount == 0);
            alert.reject();
        });
        QVERIFY(!panel.widget->ValidateSettings());
        QVERIFY(box.Came());
        QCOMPARE(requests.count(), requestCount);
    }

    void settlesTheFormBeforeTheDisk_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<int>("queryCount");
        QTest::addColumn<bool>("mayStart");
        QTest::newRow("Add") << int(QMessageBox::Yes) << 1 << true;
        QTest::newRow("Don't Add") << int(QMessageBox::No) << 1 << true;
        QTest::newRow("Cancel") << int(QMessageBox::Cancel) << 0 << false;
    }

    void settlesTheFormBeforeTheDisk()
    {
        QFETCH(int, answer);
        Panel panel;
        panel.RestoreScheduled({"A"});
        panel.window->show();
        panel.FillForm(QStringLiteral("B"), QTime(12, 0));
        ExpectedBox box{QMessageBox::StandardButton(answer)};
        QTEST(panel.widget->ValidateSettings(), "mayStart");
        QVERIFY(box.Came());
        QTEST(int(TheDisk().queriedPaths.size()), "queryCount");
        QCOMPARE(panel.IsFormOpen(), answer != QMessageBox::Yes);
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_RecordSchedulerWidgetScheduling)

#include "tst_RecordSchedulerWidgetScheduling.moc"
