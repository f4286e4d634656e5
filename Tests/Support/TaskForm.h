// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>
#include <QCalendarWidget>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTimeEdit>
#include <QTimer>
#include <QtTest>

#include "CreateRecordTaskWidget.h"
#include "PanelParts.h"
#include "StandIns.h"

namespace Zentor::Tests {

/// The record task form in a window of its own, and short ways to its parts.
struct TaskForm {
    using Widget = PX::Scheduler::UI::CreateRecordTaskWidget;

    TaskForm()
        : window(std::make_unique<QWidget>())
        , widget(new Widget(lookAndFeel, window.get()))
    {
    }

    /// Shows the window with the form filling it and waits until it has the keyboard.
    bool Show() const
    {
        widget->resize(widget->sizeHint().expandedTo(QSize(400, 300)));
        window->resize(widget->size());
        window->show();
        QApplication::setActiveWindow(window.get());
        return QTest::qWaitForWindowActive(window.get());
    }

    template <typename Child = QWidget> Child* Find(const QString& name) const
    {
        return widget->findChild<Child*>(name);
    }

    QLineEdit* Name() const { return Find<QLineEdit>(Desktop::PanelPart::NameField); }
    QDateTimeEdit* Date() const { return Find<QDateTimeEdit>(Desktop::PanelPart::DateField); }
    QTimeEdit* Start() const { return Find<QTimeEdit>(Desktop::PanelPart::StartField); }
    QTimeEdit* Duration() const { return Find<QTimeEdit>(Desktop::PanelPart::DurationField); }
    QRadioButton* SelectedArea() const
    {
        return Find<QRadioButton>(Desktop::PanelPart::SelectedAreaButton);
    }
    QPushButton* Info() const
    {
        return Find<QPushButton>(Desktop::PanelPart::SelectedAreaInfoButton);
    }
    QRadioButton* FullScreen() const
    {
        return Find<QRadioButton>(Desktop::PanelPart::FullScreenButton);
    }
    QComboBox* Screens() const { return Find<QComboBox>(Desktop::PanelPart::ScreenBox); }
    QComboBox* FinishAction() const { return Find<QComboBox>(Desktop::PanelPart::ActionBox); }
    QPushButton* Create() const { return Find<QPushButton>(Desktop::PanelPart::CreateButton); }
    QPushButton* Back() const { return Find<QPushButton>(Desktop::PanelPart::BackButton); }
    QTimer* Timer() const
    {
        return widget->findChild<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
    }

    /// Lets the timer go off once, now.
    void Tick() const
    {
        QTimerEvent event(Timer()->timerId());
        QCoreApplication::sendEvent(Timer(), &event);
    }

    QStringList ScreenNames() const
    {
        QStringList names;
        for (int index = 0; index < Screens()->count(); ++index) {
            names << Screens()->itemText(index);
        }
        return names;
    }

    std::shared_ptr<FakeLookAndFeelManager> lookAndFeel =
        std::make_shared<FakeLookAndFeelManager>();
    std::unique_ptr<QWidget> window;
    Widget* widget;
};

/// How often each change signal of a form was sent.
struct ChangeSpies {
    using Widget = PX::Scheduler::UI::CreateRecordTaskWidget;

    explicit ChangeSpies(const Widget* widget)
        : name(widget, &Widget::TaskNameChanged)
        , date(widget, &Widget::RecordDateChanged)
        , start(widget, &Widget::RecordStartTimeChanged)
        , duration(widget, &Widget::RecordDurationChanged)
    {
    }

    /// Counts since the last take in the order name, date, start, duration, as in "0 1 1 0".
    QString Take()
    {
        QStringList counts;
        for (QSignalSpy* spy : {&name, &date, &start, &duration}) {
            counts << QString::number(spy->count());
            spy->clear();
        }
        return counts.join(' ');
    }

    QSignalSpy name;
    QSignalSpy date;
    QSignalSpy start;
    QSignalSpy duration;
};

} // namespace Zentor::Tests
