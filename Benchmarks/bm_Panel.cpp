// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

// What the panel costs by itself, each row beside its floor: the bare Qt widgets that the same
// thing is made of.
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

#include "BenchmarkHost.h"
#include "PanelParts.h"

namespace Zentor::Benchmarks {
namespace {

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

    void typesAName_data()
    {
        QTest::addColumn<int>("taskCount");
        for (const int count : {10, 100, 1000}) {
            QTest::addRow("%d tasks", count) << count;
        }
    }

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
