// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

// What the schedule costs with many tasks, each figure beside its floor: the same widgets made
// bare, in the same panel, by the same calls of Qt.
//
// Run it with QT_QPA_PLATFORM=offscreen; its arguments are counts of tasks (without any: 10 100
// 1000 5000) and names of actions (without any: all). The figures are processor time of the
// process.
#include <algorithm>
#include <cstdio>
#include <functional>

#include <QApplication>
#include <QDateTimeEdit>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QTimeEdit>
#include <QToolButton>

#include "BenchmarkHost.h"
#include "CpuTimer.h"
#include "PanelParts.h"
#include "Resources.h"
#include "ScheduleRecordTableWidget.h"
#include "Theme.h"

namespace Zentor::Benchmarks {
namespace {

using Desktop::PanelPart::AddButton;
using PX::Scheduler::UI::ScheduleRecordTableWidget;

void Settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

void Show(QWidget& widget)
{
    widget.resize(900, 700);
    widget.show();
    Settle();
}

/// A row of the list from bare widgets of Qt.
QWidget* CreateBareRow(QWidget* parent, int number)
{
    auto* row = new QFrame(parent);
    row->setObjectName(Desktop::PanelPart::Row);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    const std::pair<QString, QString> cells[] = {
        {Desktop::PanelPart::RowTitle, QStringLiteral("Lecture %1").arg(number)},
        {Desktop::PanelPart::RowDate, QStringLiteral("01.03.2030")},
        {Desktop::PanelPart::RowTime, QStringLiteral("10:00:00")},
        {Desktop::PanelPart::RowDuration, QStringLiteral("00:01:00")}};
    for (const auto& [name, text] : cells) {
        auto* label = new QLabel(row);
        label->setObjectName(name);
        label->setTextFormat(Qt::PlainText);
        label->setText(text);
        layout->addWidget(label);
    }
    auto* button = new QToolButton(row);
    button->setObjectName(QStringLiteral("deleteToolButton"));
    layout->addWidget(button);
    layout->addStretch();
    return row;
}

/// A shown panel, whose list is filled by itself or with bare rows.
struct Scene {
    explicit Scene(int taskCount)
        : count(taskCount)
        , panel(CreatePanel(taskCount))
        , empty(CreatePanel(0))
    {
    }

    void Restore() const { panel->RestoreSettings(); }

    QWidget* Frame() const
    {
        return empty->findChild<QWidget*>(QStringLiteral("recordTableFrame"));
    }
    QBoxLayout* Rows() const { return static_cast<QBoxLayout*>(Frame()->layout()); }
    ScheduleRecordTableWidget* Table(QWidget& widget) const
    {
        return widget.findChild<ScheduleRecordTableWidget*>();
    }
    void FixSize() const
    {
        auto* table = Table(*empty);
        table->setFixedSize(table->width(), table->height());
    }
    void AddBareRow(int index) const
    {
        Rows()->insertWidget(index, CreateBareRow(Frame(), index));
        FixSize();
    }
    /// As in the panel, the list is not on screen before the mode is set.
    void RestoreBare() const
    {
        for (int i = 0; i < count; ++i) {
            AddBareRow(i);
        }
        empty->RestoreSettings();
    }
    QWidget* FirstRow(QWidget& widget) const
    {
        return widget.findChild<QWidget*>(Desktop::PanelPart::Row);
    }

    const int count;
    const std::unique_ptr<RecordSchedulerWidget> panel;
    const std::unique_ptr<RecordSchedulerWidget> empty;
};

using Step = std::function<void(const Scene&)>;

/// One thing that a user does, and the same with bare widgets; what goes before is not measured.
struct Action {
    const char* name;
    Step prepare;
    Step run;
    Step prepareBare;
    Step runBare;
};

void EnterTask(const Scene& scene, RecordSchedulerWidget& panel)
{
    panel.findChild<QPushButton*>(AddButton)->click();
    panel.findChild<QLineEdit*>(Desktop::PanelPart::NameField)->setText(QStringLiteral("New"));
    panel.findChild<QDateTimeEdit*>(Desktop::PanelPart::DateField)
        ->setDate(QDate(2031, 1, 1).addDays(scene.count));
}

void ClearBare(const Scene& scene)
{
    auto* rows = scene.Rows();
    while (rows->itemAt(0)->widget() != nullptr) {
        auto* row = rows->itemAt(0)->widget();
        rows->removeWidget(row);
        delete row;
    }
    scene.FixSize();
}

void DeleteBare(const Scene& scene)
{
    auto* row = scene.FirstRow(*scene.empty);
    scene.Rows()->removeWidget(row);
    row->hide();
    row->deleteLater();
    scene.FixSize();
}

std::vector<Action> Actions()
{
    const Step nothing = [](const Scene&) {};
    const Step restore = [](const Scene& scene) { scene.Restore(); };
    const Step restoreBare = [](const Scene& scene) { scene.RestoreBare(); };
    return {
        {"restore", nothing, restore, nothing, restoreBare},
        {"create",
         [](const Scene& scene) {
             scene.Restore();
             EnterTask(scene, *scene.panel);
         },
         [](const Scene& scene) {
             scene.panel->findChild<QPushButton*>(Desktop::PanelPart::CreateButton)->click();
         },
         [](const Scene& scene) {
             scene.RestoreBare();
             EnterTask(scene, *scene.empty);
         },
         [](const Scene& scene) {
             scene.AddBareRow(scene.count);
             scene.empty->findChild<QStackedWidget*>(Desktop::PanelPart::Stack)->setCurrentIndex(0);
         }},
        {"delete", restore,
         [](const Scene& scene) {
             scene.FirstRow(*scene.panel)->findChild<QToolButton*>()->click();
         },
         restoreBare, DeleteBare},
        {"clear", restore, [](const Scene& scene) { scene.Table(*scene.panel)->ClearSchedule(); },
         restoreBare, ClearBare},
    };
}

double Measure(const Scene& scene, QWidget& shown, const Step& prepare, const Step& run)
{
    Show(shown);
    prepare(scene);
    Settle();
    const Tests::CpuTimer timer;
    run(scene);
    Settle();
    return timer.Milliseconds();
}

double Median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

void Print(const char* sheet, const Action& action, int count)
{
    const int rounds = count <= 100 ? 9 : count <= 1000 ? 3 : 1;
    std::vector<double> panel;
    std::vector<double> bare;
    for (int i = 0; i < rounds; ++i) {
        const Scene own(count);
        panel.push_back(Measure(own, *own.panel, action.prepare, action.run));
        const Scene floor(count);
        bare.push_back(Measure(floor, *floor.empty, action.prepareBare, action.runBare));
    }
    std::printf("| %s | %s | %d | %.1f | %.1f | %.2f |\n", sheet, action.name, count, Median(panel),
                Median(bare), Median(panel) / Median(bare));
    std::fflush(stdout);
}

} // namespace
} // namespace Zentor::Benchmarks

int main(int argc, char** argv)
{
    using namespace Zentor;
    const QApplication application(argc, argv);
    Desktop::RegisterResources();
    std::vector<int> counts;
    QStringList actions;
    for (int i = 1; i < argc; ++i) {
        const QString argument = QString::fromLocal8Bit(argv[i]);
        const int count = argument.toInt();
        count > 0 ? counts.push_back(count) : actions.push_back(argument);
    }
    if (counts.empty()) {
        counts = {10, 100, 1000, 5000};
    }
    std::printf("| style sheet | action | tasks | panel, ms | bare, ms | ratio |\n"
                "| --- | --- | ---: | ---: | ---: | ---: |\n");
    for (const char* sheet : {"none", "application's"}) {
        for (const auto& action : Benchmarks::Actions()) {
            const bool isChosen = actions.isEmpty() || actions.contains(QString(action.name));
            for (const int count : isChosen ? counts : std::vector<int>()) {
                Benchmarks::Print(sheet, action, count);
            }
        }
        Desktop::ApplyTheme(Desktop::Theme::Light);
    }
    return 0;
}
