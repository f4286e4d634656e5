// What the panel costs, each row beside its floor: the bare Qt widgets that the same thing is made
// of.
//
// Run it with QT_QPA_PLATFORM=offscreen; "-median 5" steadies the numbers.
#include <QButtonGroup>
#include <QCalendarWidget>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTimeEdit>
#include <QToolButton>
#include <QtTest>

#include "PanelParts.h"
#include "RecordSchedulerWidget.h"
#include "Samples.h"

namespace Zentor::Benchmarks {
namespace {

using PX::Scheduler::UI::RecordSchedulerWidget;

struct LookAndFeel final : App::ILookAndFeelManager {
    std::string GetLanguage() const override { return "en_GB"; }
};

struct Answers final : App::ISettingsManager {
    bool IsConfirmed(const QString& /*confirmationId*/) const override { return true; }
    void SetConfirmed(const QString& /*confirmationId*/, bool /*confirmed*/) override { }
};

struct Settings final : PX::SchedulerSettings {
    explicit Settings(int taskCount)
    {
        for (int i = 0; i < taskCount; ++i) {
            schedule.push_back(Tests::Record("Lecture " + QString::number(i),
                                             Tests::At("00:00") + std::chrono::minutes(i),
                                             std::chrono::minutes(1)));
        }
    }

    bool IsLimitedCaptureEnabled() const override { return false; }
    std::chrono::microseconds GetLimitedCaptureDuration() const override
    {
        return std::chrono::hours(1);
    }
    bool IsScheduledCaptureEnabled() const override { return true; }
    std::vector<PX::RecordTime> GetSchedule() const override { return schedule; }

    std::vector<PX::RecordTime> schedule;
};

struct FinishAction final : PX::CaptureFinishActionSettings {
    PX::PowerAction GetCaptureFinishAction() const override { return PX::DoNothing; }
};

struct Watcher final : PX::ISettingsWatcher {
    void OnCaptureFinishActionChanged(int /*index*/) override { }
    void OnLimitedCaptureStateChanged(bool /*enabled*/) override { }
    void OnLimitedCaptureDurationChanged(const std::chrono::microseconds& /*duration*/) override { }
    void OnScheduleChanged(const std::vector<PX::RecordTime>& /*schedule*/) override { }
    void OnScheduleStateChanged(bool /*enabled*/) override { }
};

std::unique_ptr<RecordSchedulerWidget> CreatePanel(int taskCount)
{
    auto panel = std::make_unique<RecordSchedulerWidget>(std::make_shared<LookAndFeel>(),
                                                         std::make_shared<Answers>(), nullptr);
    panel->SetSchedulerSettings(std::make_shared<Settings>(taskCount));
    panel->SetCaptureFinishActionSettings(std::make_shared<FinishAction>());
    panel->SetSettingsWatcher(std::make_shared<Watcher>());
    return panel;
}

/// A row of the list from bare Qt widgets.
QWidget* CreateBareRow(QWidget* parent)
{
    auto* row = new QFrame(parent);
    auto* layout = new QHBoxLayout(row);
    for (const char* text : {"Lecture 1", "01.03.2030", "10:00:00", "00:01:00"}) {
        layout->addWidget(new QLabel(QString::fromLatin1(text), row));
    }
    layout->addWidget(new QToolButton(row));
    layout->addStretch();
    return row;
}

/// About the widgets of panel and form, bare and without an arrangement.
std::unique_ptr<QWidget> CreateBarePanel()
{
    auto panel = std::make_unique<QWidget>();
    const auto add = [&](auto* widget, int count) {
        using Widget = std::remove_pointer_t<decltype(widget)>;
        for (int i = 0; i < count; ++i) {
            new Widget(panel.get());
        }
    };
    add(static_cast<QFrame*>(nullptr), 22);
    add(static_cast<QLabel*>(nullptr), 18);
    add(static_cast<QRadioButton*>(nullptr), 5);
    add(static_cast<QTimeEdit*>(nullptr), 3);
    add(static_cast<QComboBox*>(nullptr), 3);
    add(static_cast<QPushButton*>(nullptr), 4);
    add(static_cast<QLineEdit*>(nullptr), 1);
    auto* date = new QDateTimeEdit(panel.get());
    date->setCalendarPopup(true);
    date->calendarWidget();
    return panel;
}

} // namespace

class bm_Panel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void builds()
    {
        QBENCHMARK
        {
            CreatePanel(0);
        }
    }

    void builds_floor()
    {
        QBENCHMARK
        {
            CreateBarePanel();
        }
    }

    void restores_data()
    {
        QTest::addColumn<int>("taskCount");
        for (const int count : {10, 100, 1000}) {
            QTest::addRow("%d tasks", count) << count;
        }
    }

    void restores()
    {
        QFETCH(int, taskCount);
        const auto panel = CreatePanel(taskCount);
        panel->show();
        QBENCHMARK_ONCE
        {
            panel->RestoreSettings();
            QCoreApplication::sendPostedEvents();
        }
    }

    void restores_floor_data() { restores_data(); }

    void restores_floor()
    {
        QFETCH(int, taskCount);
        QWidget list;
        auto* layout = new QVBoxLayout(&list);
        list.show();
        QBENCHMARK_ONCE
        {
            for (int i = 0; i < taskCount; ++i) {
                layout->addWidget(CreateBareRow(&list));
            }
            QCoreApplication::sendPostedEvents();
        }
    }

    void switchesModes()
    {
        const auto panel = CreatePanel(0);
        panel->RestoreSettings();
        panel->show();
        auto* limited = panel->findChild<QRadioButton*>(Desktop::PanelPart::LimitedModeButton);
        auto* none = panel->findChild<QRadioButton*>(Desktop::PanelPart::OffModeButton);
        QBENCHMARK
        {
            limited->click();
            none->click();
        }
    }

    void typesAName_data() { restores_data(); }

    void typesAName()
    {
        QFETCH(int, taskCount);
        const auto panel = CreatePanel(taskCount);
        panel->RestoreSettings();
        panel->show();
        panel->findChild<QPushButton*>(Desktop::PanelPart::AddButton)->click();
        auto* name = panel->findChild<QLineEdit*>(Desktop::PanelPart::NameField);
        QBENCHMARK
        {
            QTest::keyClick(name, Qt::Key_X);
            QTest::keyClick(name, Qt::Key_Backspace);
        }
    }

    void typesAName_floor()
    {
        QLineEdit name;
        name.show();
        QBENCHMARK
        {
            QTest::keyClick(&name, Qt::Key_X);
            QTest::keyClick(&name, Qt::Key_Backspace);
        }
    }
};

} // namespace Zentor::Benchmarks

QTEST_MAIN(Zentor::Benchmarks::bm_Panel)

#include "bm_Panel.moc"
