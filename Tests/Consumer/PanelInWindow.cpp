// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

// Puts the panel into a window and restores two tasks, then asks of the host what the panel relies
// on: the exit code tells whether it worked.
#include <cstdio>

#include <QApplication>
#include <QPointer>
#include <QRadioButton>
#include <QTimer>
#include <QVBoxLayout>

#include "RecordSchedulerWidget.h"

namespace {

using namespace Zentor;

struct LookAndFeel final : App::ILookAndFeelManager {
    std::string GetLanguage() const override { return "en_GB"; }
};

struct Answers final : App::ISettingsManager {
    bool IsConfirmed(const QString& /*confirmationId*/) const override { return false; }
    void SetConfirmed(const QString& /*confirmationId*/, bool /*confirmed*/) override { }
};

struct Settings final : PX::SchedulerSettings {
    bool IsLimitedCaptureEnabled() const override { return false; }
    std::chrono::microseconds GetLimitedCaptureDuration() const override
    {
        return std::chrono::minutes(10);
    }
    bool IsScheduledCaptureEnabled() const override { return true; }
    std::vector<PX::RecordTime> GetSchedule() const override
    {
        return std::vector<PX::RecordTime>(2);
    }
};

struct FinishAction final : PX::CaptureFinishActionSettings {
    PX::PowerAction GetCaptureFinishAction() const override { return PX::DoNothing; }
};

struct Watcher final : PX::ISettingsWatcher {
    void OnCaptureFinishActionChanged(int /*index*/) override { }
    void OnLimitedCaptureStateChanged(bool /*enabled*/) override { }
    void OnLimitedCaptureDurationChanged(const std::chrono::microseconds& /*duration*/) override { }
    void OnScheduleChanged(const std::vector<PX::RecordTime>& schedule) override
    {
        taskCount = schedule.size();
    }
    void OnScheduleStateChanged(bool /*enabled*/) override { }

    std::size_t taskCount = 0;
};

/// The panel in a window.
struct Window {
    Window()
        : panel(new PX::Scheduler::UI::RecordSchedulerWidget(std::make_shared<LookAndFeel>(),
                                                             std::make_shared<Answers>(), &widget))
    {
        (new QVBoxLayout(&widget))->addWidget(panel);
        panel->SetSchedulerSettings(std::make_shared<Settings>());
        panel->SetCaptureFinishActionSettings(std::make_shared<FinishAction>());
        panel->SetSettingsWatcher(std::static_pointer_cast<PX::ISettingsWatcher>(watcher));
        panel->RestoreSettings();
        widget.show();
    }

    const std::shared_ptr<Watcher> watcher = std::make_shared<Watcher>();
    QWidget widget;
    PX::Scheduler::UI::RecordSchedulerWidget* panel;
};

bool RestoresTasks()
{
    const Window window;
    return window.watcher->taskCount == 2;
}

/// Leaves the scheduled mode, and closes the question about that as \a close does: the tasks stay.
template <typename Close> bool KeepsTasks(Close close)
{
    auto window = std::make_unique<Window>();
    const auto watcher = window->watcher;
    QTimer::singleShot(0, [&window, close] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box != nullptr) {
            close(box, window);
        }
    });
    window->panel->findChild<QRadioButton*>(QStringLiteral("disableScheduledCaptureRadioButton"))
        ->click();
    return watcher->taskCount == 2;
}

bool KeepsTasksWhenRejected()
{
    return KeepsTasks([](QMessageBox* box, std::unique_ptr<Window>&) { box->reject(); });
}

bool KeepsTasksWhenDeleted()
{
    return KeepsTasks([](QMessageBox* box, std::unique_ptr<Window>&) { delete box; });
}

bool KeepsTasksWhenWindowIsDeleted()
{
    return KeepsTasks([](QMessageBox*, std::unique_ptr<Window>& window) { window.reset(); });
}

/// What Exec() answers when the box is closed as \a close does.
template <typename Close> QMessageBox::StandardButton AnswerOf(Close close)
{
    const QPointer<Util::AlertBox> box(new Util::AlertBox(
        Util::AlertBox::Question, QString(), QStringLiteral("Really?"),
        QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, nullptr, Qt::Dialog));
    QTimer::singleShot(0, [box, close] { close(box.data()); });
    const auto answer = box->Exec();
    delete box;
    return answer;
}

bool AnswersCancel()
{
    return AnswerOf([](QMessageBox* box) { box->button(QMessageBox::Yes)->click(); })
        == QMessageBox::Yes
        && AnswerOf([](QMessageBox* box) { box->reject(); }) == QMessageBox::Cancel
        && AnswerOf([](QMessageBox* box) { delete box; }) == QMessageBox::Cancel;
}

/// The sheet has a width for the frame of the chosen mode, and only for that.
bool AppliesSheetAgain()
{
    const Window window;
    const auto* frame =
        window.panel->findChild<QFrame*>(QStringLiteral("limitedCaptureDurationRadioButtonFrame"));
    auto* button =
        window.panel->findChild<QRadioButton*>(QStringLiteral("limitedCaptureDurationRadioButton"));
    constexpr int width = 321;
    qApp->setStyleSheet(
        QStringLiteral("#limitedCaptureDurationRadioButtonFrame[SubStyle=\"Active\"] "
                       "{ min-width: %1px; }")
            .arg(width));
    QTimer::singleShot(0, [] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box != nullptr) {
            box->button(QMessageBox::Ok)->click();
        }
    });
    const int widthBefore = frame->minimumWidth();
    button->click();
    return widthBefore != width && frame->minimumWidth() == width;
}

struct Check {
    const char* name;
    bool (*passes)();
};

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const Check checks[] = {
        {"RestoresTasks", RestoresTasks},
        {"KeepsTasksWhenRejected", KeepsTasksWhenRejected},
        {"KeepsTasksWhenDeleted", KeepsTasksWhenDeleted},
        {"KeepsTasksWhenWindowIsDeleted", KeepsTasksWhenWindowIsDeleted},
        {"AnswersCancel", AnswersCancel},
        {"AppliesSheetAgain", AppliesSheetAgain},
    };
    int failures = 0;
    for (const auto& check : checks) {
        if (!check.passes()) {
            std::fprintf(stderr, "%s failed\n", check.name);
            ++failures;
        }
    }
    return failures;
}
