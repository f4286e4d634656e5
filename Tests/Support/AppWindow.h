// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <vector>

#include <QAbstractButton>
#include <QApplication>
#include <QListWidget>
#include <QLocale>
#include <QScrollArea>
#include <QStackedWidget>
#include <QStatusBar>
#include <QtTest>
#include <QWindow>

#include "Application/LookAndFeelManager.h"
#include "MainWindow.h"
#include "PanelParts.h"
#include "Samples.h"
#include "StoreIn.h"

namespace Zentor::Tests {

/// The application's window on settings of its own, and short ways to its parts. Where the panel
/// starts with tasks, they are "Task 1", "Task 2" and so on, or those given, and the schedule mode
/// is on.
class AppWindow {
public:
    explicit AppWindow(int taskCount = 0)
        : AppWindow(NumberedTasks(taskCount))
    {
    }
    explicit AppWindow(const std::vector<PX::RecordTime>& tasks)
        : store(OpenStoreIn(folder))
    {
        store->Change([&](PX::UserSettings& settings) {
            settings.schedule = tasks;
            settings.scheduledCaptureEnabled = !tasks.empty();
            settings.resultsFolderPath = folder.path();
        });
        CreateWindow();
        // Whatever room the screen of the test has.
        window->resize(Desktop::MainWindow::FirstSize());
    }

    /// Lets go of the window and the store, and opens new ones on the settings as they were left.
    void Reopen()
    {
        window.reset();
        store.reset();
        store = OpenStoreIn(folder);
        CreateWindow();
    }

    /// Shows the window and waits until it has the keyboard.
    bool Show() const
    {
        window->show();
        window->activateWindow();
        return QTest::qWaitForWindowActive(window.get());
    }

    template <typename T = QWidget> T* Find(const QString& objectName) const
    {
        return window->findChild<T*>(objectName);
    }
    QAbstractButton* Button(const QString& objectName) const
    {
        return Find<QAbstractButton>(objectName);
    }

    /// Presses \a key where a person would: in whatever has the keyboard.
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        const QWidget* popup = QApplication::activePopupWidget();
        QTest::keyClick((popup != nullptr ? popup : window.get())->windowHandle(), key, modifiers);
    }
    void Type(const char* text) const
    {
        for (; *text != '\0'; ++text) {
            QTest::keyClick(window->windowHandle(), *text);
        }
    }

    void Focus(const QString& objectName) const { Find(objectName)->setFocus(Qt::TabFocusReason); }
    /// The name of what has the focus, or what it is called for screen readers when it is one of
    /// several of that name.
    QString Focused() const
    {
        const QWidget* focused = window->focusWidget();
        if (focused == nullptr) {
            return QStringLiteral("nothing");
        }
        return focused->objectName() == Desktop::PanelPart::RowDeleteButton
            ? focused->accessibleName()
            : focused->objectName();
    }

    /// What Tab stops at, from the list of pages once around.
    QStringList TabStops() const
    {
        constexpr int atMost = 50;
        Focus("pageList");
        QStringList stops;
        do {
            // A time editor has a stop for each of its sections.
            if (stops.isEmpty() || stops.constLast() != Focused()) {
                stops << Focused();
            }
            Press(Qt::Key_Tab);
        } while (Focused() != stops.constFirst() && stops.size() < atMost);
        return stops;
    }

    bool IsFormOpen() const { return Find(Desktop::PanelPart::Form)->isVisible(); }
    QString StatusText() const { return window->findChild<QStatusBar*>()->currentMessage(); }
    /// What scrolls the page with the panel.
    QScrollArea* SchedulePageArea() const
    {
        QWidget* widget = Find("recordSchedulerWidget");
        while (qobject_cast<QScrollArea*>(widget) == nullptr) {
            widget = widget->parentWidget();
        }
        return static_cast<QScrollArea*>(widget);
    }
    QListWidget* PageList() const { return Find<QListWidget>("pageList"); }

    /// The titles of the stored tasks, as in "Task 1,Task 2".
    QString Titles() const
    {
        QStringList titles;
        for (const auto& task : store->Settings().schedule) {
            titles << task.title;
        }
        return titles.join(QLatin1Char(','));
    }

    const QTemporaryDir folder;
    std::shared_ptr<PX::SettingsStore> store;
    std::unique_ptr<Desktop::MainWindow> window;

private:
    static std::vector<PX::RecordTime> NumberedTasks(int count)
    {
        std::vector<PX::RecordTime> tasks;
        for (int number = 1; number <= count; ++number) {
            tasks.push_back(Record(QStringLiteral("Task %1").arg(number),
                                   At("00:00") + std::chrono::hours(number),
                                   std::chrono::minutes(30)));
        }
        return tasks;
    }

    void CreateWindow()
    {
        const auto lookAndFeel = std::make_shared<App::LookAndFeelManager>();
        lookAndFeel->SetLanguage(QLocale().name().toStdString());
        window = std::make_unique<Desktop::MainWindow>(store, lookAndFeel);
    }
};

} // namespace Zentor::Tests
