// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QAccessible>
#include <QButtonGroup>
#include <QGridLayout>
#include <QScrollArea>
#include <QToolButton>

#include "Boxes.h"
#include "MarkingTranslator.h"
#include "Panel.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

using std::chrono::hours;
using std::chrono::microseconds;
using std::chrono::milliseconds;

/// One cell of a layout, as "name row,column aligned".
QStringList Describe(QLayout* layout)
{
    QStringList items;
    for (int i = 0; i < layout->count(); ++i) {
        auto* item = layout->itemAt(i);
        QString text =
            item->widget() != nullptr ? item->widget()->objectName() : QStringLiteral("stretch");
        if (const auto* grid = qobject_cast<QGridLayout*>(layout)) {
            int row = 0;
            int column = 0;
            int rowSpan = 0;
            int columnSpan = 0;
            grid->getItemPosition(i, &row, &column, &rowSpan, &columnSpan);
            text += QStringLiteral(" %1,%2").arg(row).arg(column);
        }
        if (item->alignment() == Qt::AlignLeft) {
            text += QStringLiteral(" left");
        }
        items << text;
    }
    return items;
}

/// Without a text, only the indicator of a radio button takes clicks.
void ClickIndicator(QRadioButton* button)
{
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(6, button->height() / 2));
}

void Type(QWidget* widget, const char* keys)
{
    QTest::keyClicks(widget, QString::fromLatin1(keys));
}

/// Counts the events of one type that any widget gets.
class EventCount final : public QObject {
public:
    explicit EventCount(QEvent::Type type)
        : m_type(type)
    {
        qApp->installEventFilter(this);
    }

    int Get() const { return m_count; }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        m_count += watched->isWidgetType() && event->type() == m_type ? 1 : 0;
        return false;
    }

private:
    const QEvent::Type m_type;
    int m_count = 0;
};

void AddPartRow(const char* name, const char* className, const char* parent)
{
    QTest::newRow(name) << QString::fromLatin1(className) << QString::fromLatin1(parent);
}

void AddPartRowsOfTheScheduledMode()
{
    AddPartRow("scheduledCaptureFrame", "Zentor::ZFrame", "panel");
    AddPartRow("scheduledCaptureRadioButtonFrame", "Zentor::ZFrame", "scheduledCaptureFrame");
    AddPartRow("scheduledCaptureRadioButton", "QRadioButton", "scheduledCaptureRadioButtonFrame");
    AddPartRow("scheduledCaptureLabel", "Zentor::ZLabel", "scheduledCaptureRadioButtonFrame");
    AddPartRow("scheduledCaptureStackedWidget", "QStackedWidget", "scheduledCaptureFrame");
    AddPartRow("scheduledCaptureRecordTablePage", "Zentor::ZFrame",
               "scheduledCaptureStackedWidget");
    AddPartRow("scheduledCaptureSettingsRecordTableWidget",
               "Zentor::PX::Scheduler::UI::ScheduleRecordTableWidget",
               "scheduledCaptureRecordTablePage");
    AddPartRow("scheduledCaptureSettingsRecordTableWidgetBorder", "QFrame",
               "scheduledCaptureRecordTablePage");
    AddPartRow("scheduledCaptureSettingsAddRecordButtonFrame", "Zentor::ZFrame",
               "scheduledCaptureRecordTablePage");
    AddPartRow("scheduledCaptureSettingsAddRecordButton", "QPushButton",
               "scheduledCaptureSettingsAddRecordButtonFrame");
    AddPartRow("createRecordTaskWidget", "Zentor::PX::Scheduler::UI::CreateRecordTaskWidget",
               "scheduledCaptureStackedWidget");
}

void ChooseTheLimitedMode(Panel& panel, const QString& input)
{
    if (input == QLatin1String("click")) {
        ClickIndicator(panel.Limited());
    } else if (input == QLatin1String("key")) {
        panel.Scheduled()->setFocus();
        QTest::keyClick(panel.Scheduled(), Qt::Key_Up);
    } else if (input == QLatin1String("caption")) {
        QTest::mouseClick(panel.Find<QWidget>("limitedCaptureDurationLabel"), Qt::LeftButton);
    } else {
        panel.Limited()->setChecked(true);
    }
}

} // namespace

class tst_RecordSchedulerWidget : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void declaresOneSignalAndNothingElse()
    {
        const auto& meta = RecordSchedulerWidget::staticMetaObject;
        QCOMPARE(meta.className(), "Zentor::PX::Scheduler::UI::RecordSchedulerWidget");
        QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
        QCOMPARE(meta.method(meta.methodOffset()).methodSignature(),
                 QByteArray("OpenFilesSettingsRequested()"));
    }

    void refusesToBeBuiltWithoutItsManagers_data()
    {
        QTest::addColumn<bool>("hasLookAndFeel");
        QTest::newRow("no look-and-feel manager") << false;
        QTest::newRow("no settings manager") << true;
    }

    void refusesToBeBuiltWithoutItsManagers()
    {
        QFETCH(bool, hasLookAndFeel);
        const auto lookAndFeel =
            hasLookAndFeel ? std::make_shared<FakeLookAndFeelManager>() : nullptr;
        const auto settingsManager =
            hasLookAndFeel ? nullptr : std::make_shared<FakeSettingsManager>();
        QWidget window;
        try {
            const RecordSchedulerWidget panel(lookAndFeel, settingsManager, &window);
            QFAIL("no exception");
        } catch (const std::logic_error& error) {
            QCOMPARE(error.what(), "NotNull can not initialized by null");
        }
        QVERIFY(window.children().isEmpty());
    }

    void buildsItsTree_data()
    {
        QTest::addColumn<QString>("className");
        QTest::addColumn<QString>("parent");
        AddPartRow("timerTypeRadioButtonGroup", "QButtonGroup", "panel");
        AddPartRow("disableScheduledCaptureRadioButtonFrame", "Zentor::ZFrame", "panel");
        AddPartRow("disableScheduledCaptureRadioButton", "QRadioButton",
                   "disableScheduledCaptureRadioButtonFrame");
        AddPartRow("disableScheduledCaptureLabel", "Zentor::ZLabel",
                   "disableScheduledCaptureRadioButtonFrame");
        AddPartRow("limitedCaptureDurationFrame", "Zentor::ZFrame", "panel");
        AddPartRow("limitedCaptureDurationRadioButtonFrame", "Zentor::ZFrame",
                   "limitedCaptureDurationFrame");
        AddPartRow("limitedCaptureDurationRadioButton", "QRadioButton",
                   "limitedCaptureDurationRadioButtonFrame");
        AddPartRow("limitedCaptureDurationLabel", "Zentor::ZLabel",
                   "limitedCaptureDurationRadioButtonFrame");
        AddPartRow("limitedCaptureDurationSettingsFrame", "Zentor::ZFrame",
                   "limitedCaptureDurationFrame");
        AddPartRow("limitedCaptureDurationSettingsDurationLabel", "Zentor::ZLabel",
                   "limitedCaptureDurationSettingsFrame");
        AddPartRow("limitedCaptureDurationSettingsCaptureDuration", "QTimeEdit",
                   "limitedCaptureDurationSettingsFrame");
        AddPartRow("limitedCaptureDurationSettingsActionOnFinishLabel", "Zentor::ZLabel",
                   "limitedCaptureDurationSettingsFrame");
        AddPartRow("limitedCaptureDurationSettingsActionOnFinishBox", "QComboBox",
                   "limitedCaptureDurationSettingsFrame");
        AddPartRowsOfTheScheduledMode();
    }

    void buildsItsTree()
    {
        const Panel panel;
        panel.widget->setObjectName(QStringLiteral("panel"));
        const auto found =
            panel.widget->findChildren<QObject*>(QString::fromLatin1(QTest::currentDataTag()));
        QCOMPARE(found.size(), 1);
        QTEST(QString::fromLatin1(found.first()->metaObject()->className()), "className");
        QTEST(found.first()->parent()->objectName(), "parent");
    }

    void laysOut_data()
    {
        QTest::addColumn<QStringList>("items");
        const auto row = [](const char* owner, const char* items) {
            QTest::newRow(owner) << QString::fromLatin1(items).split(QLatin1String(", "));
        };
        row("panel",
            "disableScheduledCaptureRadioButtonFrame, limitedCaptureDurationFrame, "
            "scheduledCaptureFrame, stretch");
        row("disableScheduledCaptureRadioButtonFrame",
            "disableScheduledCaptureRadioButton, disableScheduledCaptureLabel");
        row("limitedCaptureDurationFrame",
            "limitedCaptureDurationRadioButtonFrame, limitedCaptureDurationSettingsFrame");
        row("limitedCaptureDurationRadioButtonFrame",
            "limitedCaptureDurationRadioButton, limitedCaptureDurationLabel");
        row("limitedCaptureDurationSettingsFrame",
            "limitedCaptureDurationSettingsDurationLabel 0,0 left, "
            "limitedCaptureDurationSettingsCaptureDuration 0,1 left, "
            "limitedCaptureDurationSettingsActionOnFinishLabel 1,0 left, "
            "limitedCaptureDurationSettingsActionOnFinishBox 1,1 left");
        row("scheduledCaptureFrame",
            "scheduledCaptureRadioButtonFrame, scheduledCaptureStackedWidget");
        row("scheduledCaptureRadioButtonFrame",
            "scheduledCaptureRadioButton, scheduledCaptureLabel");
        row("scheduledCaptureRecordTablePage",
            "scheduledCaptureSettingsRecordTableWidget, "
            "scheduledCaptureSettingsRecordTableWidgetBorder, "
            "scheduledCaptureSettingsAddRecordButtonFrame left, stretch");
        row("scheduledCaptureSettingsAddRecordButtonFrame",
            "scheduledCaptureSettingsAddRecordButton");
    }

    void laysOut()
    {
        const Panel panel;
        const auto name = QString::fromLatin1(QTest::currentDataTag());
        const QWidget* owner =
            name == QLatin1String("panel") ? panel.widget : panel.widget->findChild<QWidget*>(name);
        QTEST(Describe(owner->layout()), "items");
        QCOMPARE(owner->layout()->contentsMargins(), QMargins());
        QCOMPARE(owner->layout()->spacing(), 0);
    }

    void ordersPagesAndModeButtons()
    {
        const Panel panel;
        QCOMPARE(panel.Stack()->widget(0)->objectName(),
                 QString("scheduledCaptureRecordTablePage"));
        QCOMPARE(panel.Stack()->widget(1), panel.Form());
        QCOMPARE(panel.Stack()->count(), 2);
        const auto* group = panel.Find<QButtonGroup>("timerTypeRadioButtonGroup");
        QVERIFY(group->exclusive());
        QCOMPARE(group->buttons(),
                 QList<QAbstractButton*>({panel.None(), panel.Limited(), panel.Scheduled()}));
        for (const auto* button : group->buttons()) {
            QVERIFY(button->text().isEmpty());
        }
    }

    void isFreshBeforeItIsRestored()
    {
        const Panel panel;
        QCOMPARE(panel.Mode(), QString());
        QCOMPARE(panel.Styles(), QString("-/-"));
        QCOMPARE(panel.Duration()->time(), QTime(0, 0, 5));
        QCOMPARE(panel.FinishAction()->count(), int(PX::ShutDown) + 1);
        QCOMPARE(panel.FinishAction()->currentIndex(), -1);
        QCOMPARE(panel.Stack()->currentIndex(), 0);
        QCOMPARE(panel.watcher->TakeCalls(), QStringList());
    }

    void setsItsTexts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("disableScheduledCaptureLabel") << "Do not schedule capture";
        QTest::newRow("limitedCaptureDurationLabel") << "Stop capture after";
        QTest::newRow("scheduledCaptureLabel") << "Record on schedule";
        QTest::newRow("scheduledCaptureSettingsAddRecordButton") << "Add record event";
        QTest::newRow("limitedCaptureDurationSettingsDurationLabel")
            << "Capture duration in limited capture:";
        QTest::newRow("limitedCaptureDurationSettingsActionOnFinishLabel") << "When capture ends:";
    }

    void setsItsTexts()
    {
        QFETCH(QString, text);
        const Panel panel;
        const auto* widget = panel.Find<QWidget>(QTest::currentDataTag());
        QCOMPARE(widget->property("text").toString(), text);
        LanguageSwitch language("RecordSchedulerWidget");
        language.Toggle();
        QCOMPARE(widget->property("text").toString(), "~" + text);
    }

    void keepsItsStateInALanguageChange()
    {
        Panel panel;
        panel.finishAction->action = PX::Hibernate;
        panel.settings->limited = true;
        panel.settings->duration = hours(2);
        panel.widget->RestoreSettings();
        panel.watcher->TakeCalls();
        QCOMPARE(panel.Duration()->displayFormat(), QString("hh:mm:ss"));

        LanguageSwitch language("RecordSchedulerWidget");
        language.Toggle();
        QCOMPARE(panel.Duration()->displayFormat(), QString("hh.mm.ss"));
        QCOMPARE(panel.Duration()->time(), QTime(2, 0));
        QCOMPARE(panel.FinishAction()->currentIndex(), int(PX::Hibernate));
        QCOMPARE(panel.FinishAction()->count(), int(PX::ShutDown) + 1);
        QCOMPARE(panel.watcher->TakeCalls(), QStringList());
    }

    void restores_data()
    {
        QTest::addColumn<bool>("limited");
        QTest::addColumn<bool>("scheduled");
        QTest::addColumn<QString>("mode");
        QTest::addColumn<QString>("styles");
        QTest::addColumn<QStringList>("calls");
        QTest::newRow("neither") << false << false << "none"
                                 << "-/-" << QStringList();
        QTest::newRow("limited") << true << false << "limited+values"
                                 << "Active/-" << QStringList("LimitedState true");
        QTest::newRow("scheduled") << false << true << "scheduled+stack"
                                   << "-/Active" << QStringList();
        QTest::newRow("both: the schedule wins")
            << true << true << "scheduled+stack"
            << "Inactive/Active" << QStringList({"LimitedState true", "LimitedState false"});
    }

    void restores()
    {
        QFETCH(bool, limited);
        QFETCH(bool, scheduled);
        Panel panel;
        panel.settings->limited = limited;
        panel.settings->scheduled = scheduled;
        panel.widget->RestoreSettings();
        QTEST(panel.Mode(), "mode");
        QTEST(panel.Styles(), "styles");
        QFETCH(QStringList, calls);
        QCOMPARE(panel.watcher->TakeCalls(), QStringList("FinishAction 0") + calls);
    }

    void restoresValuesInOrder()
    {
        Panel panel;
        panel.finishAction->action = PX::Sleep;
        panel.settings->duration = hours(1);
        panel.settings->limited = true;
        panel.settings->scheduled = true;
        panel.settings->schedule = {Record("B", "11:00"), Record("A", "10:00"),
                                    Record("A", "12:00"), Record("C", "12:00")};
        panel.widget->RestoreSettings();
        QCOMPARE(panel.watcher->TakeCalls(),
                 QStringList({"FinishAction 2", "LimitedDuration 3600000000", "Schedule B",
                              "ScheduleState true", "Schedule A,B", "ScheduleState true",
                              "Schedule A,B,C", "ScheduleState true", "LimitedState true",
                              "LimitedState false"}));
        QCOMPARE(panel.FinishAction()->currentIndex(), 2);
        QCOMPARE(panel.Duration()->time(), QTime(1, 0));
    }

    /// An action of a newer host, of which the box has no entry, takes a choice away. A box of Qt 6
    /// reports that where there was none, too.
    void restoresAnActionThatIsNoEntry()
    {
        Panel panel;
        panel.finishAction->action = static_cast<PX::PowerAction>(int(PX::ShutDown) + 1);
        panel.widget->RestoreSettings();
        QCOMPARE(panel.FinishAction()->currentIndex(), -1);
        QCOMPARE(panel.watcher->TakeCalls(),
                 QT_VERSION_MAJOR < 6 ? QStringList() : QStringList("FinishAction -1"));
        panel.FinishAction()->setCurrentIndex(PX::Sleep);
        QCOMPARE(panel.watcher->TakeCalls(), QStringList("FinishAction 2"));
        panel.widget->RestoreSettings();
        QCOMPARE(panel.FinishAction()->currentIndex(), -1);
        QCOMPARE(panel.watcher->TakeCalls(), QStringList("FinishAction -1"));
    }

    void restoresWhatItShowsAlreadyWithoutACall()
    {
        Panel panel;
        panel.widget->RestoreSettings();
        QCOMPARE(panel.watcher->TakeCalls(), QStringList("FinishAction 0"));
        panel.widget->RestoreSettings();
        QCOMPARE(panel.watcher->TakeCalls(), QStringList());
    }

    void restoresADuration_data()
    {
        QTest::addColumn<qint64>("stored");
        QTest::addColumn<QTime>("shown");
        QTest::addColumn<QStringList>("calls");
        const auto row = [](const char* name, qint64 stored, const QTime& shown, qint64 reported) {
            QTest::newRow(name) << stored << shown
                                << (reported < 0 ? QStringList()
                                                 : QStringList("LimitedDuration "
                                                               + QString::number(reported)));
        };
        row("zero", 0, QTime(0, 0, 5), 5000000);
        row("below the minimum", 4999999, QTime(0, 0, 5), 5000000);
        row("the minimum, shown already", 5000000, QTime(0, 0, 5), -1);
        row("above the minimum", 6000000, QTime(0, 0, 6), 6000000);
        row("cut to milliseconds", 6000999, QTime(0, 0, 6), 6000000);
        row("23:59:59", 86399000000, QTime(23, 59, 59), 86399000000);
        row("24 hours is no time of day", 86400000000, QTime(0, 0, 5), -1);
        row("a year", 31536000000000, QTime(0, 0, 5), -1);
        row("narrowed to int it would be seven seconds", (1LL << 32) * 1000 + 7000000,
            QTime(0, 0, 5), -1);
        row("negative", -1000000, QTime(0, 0, 5), -1);
    }

    void restoresADuration()
    {
        QFETCH(qint64, stored);
        Panel panel;
        panel.settings->duration = microseconds(stored);
        panel.widget->RestoreSettings();
        QTEST(panel.Duration()->time(), "shown");
        QTEST(panel.watcher->TakeCalls().filter(QStringLiteral("Limited")), "calls");
    }

    void switchesModes()
    {
        Panel panel;
        panel.widget->RestoreSettings();
        panel.watcher->TakeCalls();
        panel.Limited()->click();
        QCOMPARE(panel.Mode(), QString("limited+values"));
        QCOMPARE(panel.Styles(), QString("Active/-"));
        QCOMPARE(panel.watcher->TakeCalls(), QStringList("LimitedState true"));

        panel.Scheduled()->click();
        QCOMPARE(panel.Mode(), QString("scheduled+stack"));
        QCOMPARE(panel.Styles(), QString("Inactive/Active"));
        QCOMPARE(panel.watcher->TakeCalls(), QStringList("LimitedState false"));

        const ExpectedBox noBox(QMessageBox::Cancel);
        panel.None()->click();
        QCOMPARE(panel.Mode(), QString("none"));
        QCOMPARE(panel.Styles(), QString("Inactive/Inactive"));
        QCOMPARE(panel.watcher->TakeCalls(), QStringList());
        QVERIFY(!noBox.Came());
    }

    void switchesModesByCaption()
    {
        const Panel panel;
        panel.widget->RestoreSettings();
        panel.window->show();
        QTest::mouseClick(panel.Find<QWidget>("limitedCaptureDurationLabel"), Qt::LeftButton);
        QCOMPARE(panel.Mode(), QString("limited+values"));
        QTest::mouseClick(panel.Find<QWidget>("scheduledCaptureLabel"), Qt::LeftButton);
        QCOMPARE(panel.Mode(), QString("scheduled+stack"));
        QTest::mouseClick(panel.Find<QWidget>("disableScheduledCaptureLabel"), Qt::LeftButton);
        QCOMPARE(panel.Mode(), QString("none"));
    }

    void asksBeforeTheScheduleIsLeft()
    {
        Panel panel;
        panel.RestoreScheduled({"A", "B"});
        ExpectedBox box([&](QMessageBox& question) {
            QCOMPARE(question.text(),
                     QString("All tasks will be permanently deleted from the recording schedule. "
                             "Are you sure you want to continue?"));
            QCOMPARE(question.windowTitle(), QString());
            QCOMPARE(question.standardButtons(), QMessageBox::Ok | QMessageBox::Cancel);
            QCOMPARE(question.button(QMessageBox::Ok)->text(), QString("Continue"));
            QCOMPARE(question.icon(), QMessageBox::Information);
            QCOMPARE(question.parentWidget(), panel.window.get());
            QVERIFY(question.windowFlags().testFlag(Qt::MSWindowsFixedSizeDialogHint));
            QCOMPARE(panel.watcher->TakeCalls(), QStringList());
            question.button(QMessageBox::Ok)->click();
        });
        panel.Limited()->click();
        QVERIFY(box.Came());
        QCOMPARE(panel.Mode(), QString("limited+values"));
        QCOMPARE(panel.Styles(), QString("Active/Inactive"));
        QCOMPARE(panel.Titles(), QString());
        QCOMPARE(panel.watcher->TakeCalls(),
                 QStringList({"Schedule ", "ScheduleState false", "LimitedState true"}));
    }

    void staysInTheScheduleWhenTheAnswerIsNo_data()
    {
        QTest::addColumn<bool>("toLimited");
        QTest::addColumn<int>("way");
        QTest::addColumn<QStringList>("calls");
        const QStringList limitedCalls{"LimitedState false", "LimitedState false"};
        QTest::newRow("to limited, Cancel") << true << 0 << limitedCalls;
        QTest::newRow("to limited, Escape") << true << 1 << limitedCalls;
        QTest::newRow("to limited, closed") << true << 2 << limitedCalls;
        QTest::newRow("to none, Cancel") << false << 0 << QStringList();
        QTest::newRow("to none, Escape") << false << 1 << QStringList();
        QTest::newRow("to none, closed") << false << 2 << QStringList();
    }

    void staysInTheScheduleWhenTheAnswerIsNo()
    {
        QFETCH(bool, toLimited);
        QFETCH(int, way);
        Panel panel;
        panel.RestoreScheduled({"A", "B"});
        ExpectedBox box([way](QMessageBox& question) {
            if (way == 0) {
                question.button(QMessageBox::Cancel)->click();
            } else if (way == 1) {
                PressEscape(question);
            } else {
                question.close();
            }
        });
        (toLimited ? panel.Limited() : panel.None())->click();
        QVERIFY(box.Came());
        QCOMPARE(panel.Mode(), QString("scheduled+stack"));
        QCOMPARE(panel.Styles(), toLimited ? QString("Inactive/Active") : QString("-/Active"));
        QCOMPARE(panel.Titles(), QString("A,B"));
        QTEST(panel.watcher->TakeCalls(), "calls");
    }

    void doesNotDeleteByEnterInTheQuestion()
    {
        Panel panel;
        panel.RestoreScheduled({"A"});
        ExpectedBox box([](QMessageBox& question) { QTest::keyClick(&question, Qt::Key_Return); });
        panel.None()->click();
        QVERIFY(box.Came());
        QCOMPARE(panel.Titles(), QString("A"));
    }

    void keepsItsLabelInALanguageChange()
    {
        Panel panel;
        panel.RestoreScheduled({"A"});
        LanguageSwitch language("RecordSchedulerWidget");
        ExpectedBox box([&](QMessageBox& question) {
            language.Toggle();
            QCOMPARE(question.button(QMessageBox::Ok)->text(), QString("Continue"));
            question.reject();
        });
        panel.None()->click();
        QVERIFY(box.Came());
        QCOMPARE(panel.Titles(), QString("A"));
    }

    void survivesItsEndWhileItAsks_data()
    {
        QTest::addColumn<QString>("victim");
        QTest::addColumn<QString>("moment");
        QTest::addColumn<QString>("input");
        for (const char* victim : {"panel", "window", "box"}) {
            for (const char* moment : {"timer", "queued"}) {
                for (const char* input : {"click", "key", "caption", "program"}) {
                    QTest::addRow("%s deleted, %s, %s", victim, moment, input)
                        << victim << moment << input;
                }
            }
        }
    }

    void survivesItsEndWhileItAsks()
    {
        QFETCH(QString, victim);
        QFETCH(QString, moment);
        QFETCH(QString, input);
        Panel panel;
        panel.RestoreScheduled({"A", "B"});
        panel.window->show();
        panel.window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(panel.window.get()));
        const auto end = [&](QMessageBox* question) {
            if (victim == QLatin1String("panel")) {
                delete panel.widget;
            } else if (victim == QLatin1String("window")) {
                panel.window.reset();
            } else {
                delete question;
            }
        };
        ExpectedBox box([&](QMessageBox& question) {
            if (moment == QLatin1String("timer")) {
                end(&question);
            } else {
                QTimer::singleShot(0, qApp, [&] { end(&question); });
            }
        });
        ChooseTheLimitedMode(panel, input);
        QVERIFY(box.Came());
        QVERIFY(!IsBoxOpen());
        if (victim == QLatin1String("box")) {
            QCOMPARE(panel.Mode(), QString("scheduled+stack"));
            QCOMPARE(panel.Titles(), QString("A,B"));
        }
        QCOMPARE(panel.watcher->TakeCalls().filter(QLatin1String("Schedule")), QStringList());
    }

    void refusesWhenTheApplicationQuits()
    {
        Panel panel;
        panel.RestoreScheduled({"A"});
        ExpectedBox box([](QMessageBox&) { QCoreApplication::quit(); });
        QTimer::singleShot(0, panel.None(), [&] { panel.None()->click(); });
        QCoreApplication::exec();
        QVERIFY(box.Came());
        QCOMPARE(panel.Mode(), QString("scheduled+stack"));
        QCOMPARE(panel.Titles(), QString("A"));
    }

    void typesADuration_data()
    {
        QTest::addColumn<QTime>("before");
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QTime>("after");
        QTest::addColumn<QStringList>("calls");
        const auto calls = [](std::initializer_list<qint64> secondsReported) {
            QStringList result;
            for (const auto value : secondsReported) {
                result << QStringLiteral("LimitedDuration %1").arg(value * 1000000);
            }
            return result;
        };
        QTest::newRow("two minutes at one hour")
            << QTime(1, 0) << "000200" << QTime(0, 2) << calls({5, 125, 120});
        QTest::newRow("two minutes at one hour, with separators")
            << QTime(1, 0) << "00:02:00" << QTime(0, 2) << calls({5, 125, 120});
        QTest::newRow("three seconds")
            << QTime(0, 0, 7) << "000003" << QTime(0, 0, 5) << calls({5});
        QTest::newRow("longest") << QTime(0, 0, 5) << "235959" << QTime(23, 59, 59)
                                 << calls({82805, 86345, 86399});
        QTest::newRow("ten seconds at one hour")
            << QTime(1, 0) << "000010" << QTime(0, 0, 10) << calls({5, 10});
    }

    void typesADuration()
    {
        QFETCH(QTime, before);
        QFETCH(QString, keys);
        Panel panel;
        panel.settings->limited = true;
        panel.settings->duration = microseconds(milliseconds(before.msecsSinceStartOfDay()));
        panel.widget->RestoreSettings();
        panel.window->show();
        panel.watcher->TakeCalls();
        panel.Duration()->setFocus();
        panel.Duration()->setSelectedSection(QDateTimeEdit::HourSection);
        Type(panel.Duration(), keys.toLatin1().constData());
        QTEST(panel.Duration()->time(), "after");
        QTEST(panel.watcher->TakeCalls(), "calls");
    }

    void placesTheDurationBesideItsCaption_data()
    {
        QTest::addColumn<bool>("isMirrored");
        QTest::newRow("left to right") << false;
        QTest::newRow("right to left") << true;
    }

    void placesTheDurationBesideItsCaption()
    {
        QFETCH(bool, isMirrored);
        Panel panel;
        panel.settings->limited = true;
        panel.widget->RestoreSettings();
        panel.window->setLayoutDirection(Qt::RightToLeft);
        if (!isMirrored) {
            panel.window->setLayoutDirection(Qt::LeftToRight);
        }
        panel.window->resize(800, 400);
        panel.widget->resize(800, 400);
        panel.window->show();
        const auto place = panel.Duration()->geometry();
        const auto other = panel.FinishAction()->geometry();
        QVERIFY(place.width() < panel.LimitedValues()->width() / 2);
        QCOMPARE(isMirrored ? place.right() : place.left(),
                 isMirrored ? other.right() : other.left());
    }

    void writesTheDurationFromLeftToRight()
    {
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        const Panel panel;
        panel.Duration()->setTime(QTime(1, 2, 3));
        QCOMPARE(panel.Duration()->text(), QString("01:02:03"));
        QCOMPARE(panel.Duration()->layoutDirection(), Qt::LeftToRight);
        QCOMPARE(panel.widget->layoutDirection(), Qt::RightToLeft);
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    }

    void neverChangesTheBlockingOfItsControls()
    {
        Panel panel;
        panel.Duration()->setTime(QTime(0, 0, 1));
        QVERIFY(!panel.Duration()->signalsBlocked());
        QCOMPARE(panel.Duration()->time(), QTime(0, 0, 5));
        QEvent languageChange(QEvent::LanguageChange);
        QCoreApplication::sendEvent(panel.widget, &languageChange);
        QVERIFY(!panel.FinishAction()->signalsBlocked());
        panel.FinishAction()->blockSignals(true);
        QCoreApplication::sendEvent(panel.widget, &languageChange);
        QVERIFY(panel.FinishAction()->signalsBlocked());
    }

    void reportsTheFinishAction()
    {
        Panel panel;
        panel.FinishAction()->setCurrentIndex(0);
        panel.watcher->TakeCalls();
        panel.FinishAction()->setCurrentIndex(PX::ShutDown);
        QCOMPARE(panel.watcher->TakeCalls(), QStringList("FinishAction 5"));
        panel.FinishAction()->setCurrentIndex(PX::ShutDown);
        QCOMPARE(panel.watcher->TakeCalls(), QStringList());
    }

    void worksWithoutAWatcherWhereItMay()
    {
        QWidget window;
        const auto settings = std::make_shared<FakeSchedulerSettings>();
        settings->limited = true;
        settings->duration = hours(1);
        RecordSchedulerWidget panel(std::make_shared<FakeLookAndFeelManager>(),
                                    std::make_shared<FakeSettingsManager>(), &window);
        panel.SetSchedulerSettings(settings);
        panel.SetCaptureFinishActionSettings(std::make_shared<FakeFinishActionSettings>());
        panel.RestoreSettings();
        QCOMPARE(panel.findChild<QTimeEdit*>()->time(), QTime(1, 0));
        panel.findChild<QRadioButton*>(QStringLiteral("disableScheduledCaptureRadioButton"))
            ->click();
    }

    void reportsDeletionsOfTasks()
    {
        Panel panel;
        panel.RestoreScheduled({"A", "B"});
        panel.settingsManager->SetConfirmed(QStringLiteral("remove_schedule_record_always"), true);
        panel.Table()->findChild<QToolButton*>()->click();
        QCOMPARE(panel.watcher->TakeCalls(), QStringList({"Schedule B", "ScheduleState true"}));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        panel.Table()->findChild<QToolButton*>()->click();
        QCOMPARE(panel.watcher->TakeCalls(), QStringList({"Schedule ", "ScheduleState false"}));
    }

    void sharesItsSettingsObjects()
    {
        Panel panel;
        QCOMPARE(panel.watcher.use_count(), 2L);
        const auto next = std::make_shared<RecordingWatcher>();
        panel.widget->SetSettingsWatcher(next);
        QCOMPARE(panel.watcher.use_count(), 1L);
        QCOMPARE(next.use_count(), 2L);
        QVERIFY_EXCEPTION_THROWN(
            panel.widget->SetSettingsWatcher(std::shared_ptr<RecordingWatcher>()),
            std::logic_error);
        QCOMPARE(next.use_count(), 2L);
        delete panel.widget;
        QCOMPARE(next.use_count(), 1L);
        QCOMPARE(panel.settings.use_count(), 1L);
        QCOMPARE(panel.finishAction.use_count(), 1L);
        QCOMPARE(panel.paths.use_count(), 1L);
        QCOMPARE(panel.settingsManager.use_count(), 1L);
    }

    void returnsToTheTableWhenShown()
    {
        const Panel panel;
        panel.window->show();
        panel.Stack()->setCurrentWidget(panel.Form());
        panel.window->hide();
        QVERIFY(panel.IsFormOpen());
        panel.window->show();
        QVERIFY(!panel.IsFormOpen());
        QCOMPARE(panel.Stack()->currentIndex(), 0);
    }

    void keepsItsPageWhenTheWindowIsRestored()
    {
        const Panel panel;
        panel.window->show();
        panel.Stack()->setCurrentWidget(panel.Form());
        QShowEvent restored;
        QSpontaneKeyEvent::setSpontaneous(&restored);
        qApp->notify(panel.widget, &restored);
        QVERIFY(panel.IsFormOpen());
    }

    void namesItsControlsForScreenReaders_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("disableScheduledCaptureRadioButton") << "Do not schedule capture";
        QTest::newRow("limitedCaptureDurationRadioButton") << "Stop capture after";
        QTest::newRow("scheduledCaptureRadioButton") << "Record on schedule";
        QTest::newRow("limitedCaptureDurationSettingsCaptureDuration")
            << "Capture duration in limited capture:";
        QTest::newRow("limitedCaptureDurationSettingsActionOnFinishBox") << "When capture ends:";
        QTest::newRow("scheduledCaptureSettingsAddRecordButton") << "Add record event";
    }

    void namesItsControlsForScreenReaders()
    {
        QFETCH(QString, name);
        const Panel panel;
        auto* interface =
            QAccessible::queryAccessibleInterface(panel.Find<QWidget>(QTest::currentDataTag()));
        QCOMPARE(interface->text(QAccessible::Name), name);
        LanguageSwitch language("RecordSchedulerWidget");
        language.Toggle();
        QCOMPARE(interface->text(QAccessible::Name), "~" + name);
    }

    void restoresWithTheSameWorkForEachTask_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("perTask");
        // A row, its four labels and its button.
        QTest::newRow("polishes") << int(QEvent::Polish) << 6;
        QTest::newRow("shows") << int(QEvent::Show) << 6;
        QTest::newRow("style changes") << int(QEvent::StyleChange) << 6;
        QTest::newRow("paints of what is not seen") << int(QEvent::Paint) << 0;
    }

    void restoresWithTheSameWorkForEachTask()
    {
        QFETCH(int, type);
        QFETCH(int, perTask);
        const int few = EventsOfRestoring(100, QEvent::Type(type));
        const int many = EventsOfRestoring(300, QEvent::Type(type));
        QCOMPARE(many - few, 200 * perTask);
    }

private:
    /// How many events of \a type it takes to restore \a taskCount tasks on screen.
    static int EventsOfRestoring(int taskCount, QEvent::Type type)
    {
        Panel panel;
        panel.window->setStyleSheet(
            QStringLiteral("#recordTableScrollArea { qproperty-widgetResizable: true; }"
                           "#titleLabel { color: #202020; padding: 2px; }"));
        panel.settings->scheduled = true;
        for (int i = 0; i < taskCount; ++i) {
            panel.settings->schedule.push_back(Record("Task " + QString::number(i),
                                                      At("00:00") + std::chrono::minutes(i),
                                                      std::chrono::minutes(1)));
        }
        (new QVBoxLayout(panel.window.get()))->addWidget(panel.widget);
        panel.window->show();
        const EventCount count(type);
        panel.widget->RestoreSettings();
        QCoreApplication::sendPostedEvents();
        return panel.watcher->TakeCalls().size() == 2 * taskCount + 1 ? count.Get() : -1;
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_RecordSchedulerWidget)

#include "tst_RecordSchedulerWidget.moc"
