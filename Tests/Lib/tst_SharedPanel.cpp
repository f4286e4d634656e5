// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QLineEdit>
#include <QPushButton>

#include "PanelParts.h"
#include "RecordSchedulerWidget.h"
#include "Samples.h"
#include "StandIns.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

using PX::Scheduler::UI::RecordSchedulerWidget;

/// The panel of the shared library, with one task.
struct PanelWithTask {
    explicit PanelWithTask(const char* title)
    {
        settings->schedule = {Record(title, "10:00")};
        settings->scheduled = true;
        widget.SetSchedulerSettings(settings);
        widget.SetCaptureFinishActionSettings(std::make_shared<FakeFinishActionSettings>());
        widget.SetSettingsWatcher(std::make_shared<RecordingWatcher>());
        widget.RestoreSettings();
        widget.show();
    }

    const std::shared_ptr<FakeSchedulerSettings> settings =
        std::make_shared<FakeSchedulerSettings>();
    RecordSchedulerWidget widget{std::make_shared<FakeLookAndFeelManager>(),
                                 std::make_shared<FakeSettingsManager>(), nullptr};
};

} // namespace

/// What crosses the borders of shared libraries that export the listed names only.
class tst_SharedPanel : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void metaObjectsAreTheHosts()
    {
        PanelWithTask panel("Lecture");
        QObject* object = &panel.widget;
        QCOMPARE(qobject_cast<RecordSchedulerWidget*>(object), &panel.widget);
        QCOMPARE(panel.widget.metaObject()->superClass(), &ZFrame::staticMetaObject);
        QVERIFY(panel.widget.findChildren<ZFrame*>().size() > 1);
        QVERIFY(panel.widget.findChildren<ZLabel*>().size() > 1);
    }

    void typesAreTheHosts()
    {
        PanelWithTask panel("Lecture");
        QObject* object = &panel.widget;
        QCOMPARE(dynamic_cast<RecordSchedulerWidget*>(object), &panel.widget);
        for (QObject* frame : panel.widget.findChildren<ZFrame*>()) {
            QVERIFY(dynamic_cast<ZFrame*>(frame) != nullptr);
            QVERIFY(dynamic_cast<AbstractLayoutController*>(frame) != nullptr);
        }
    }

    void exceptionsArriveOutside()
    {
        const std::shared_ptr<App::ILookAndFeelManager> nothing;
        QVERIFY_EXCEPTION_THROWN(
            RecordSchedulerWidget(nothing, std::make_shared<FakeSettingsManager>(), nullptr),
            std::logic_error);
    }

    void exceptionsArriveInside_data()
    {
        QTest::addColumn<QByteArray>("title");
        QTest::addColumn<QString>("name");
        QTest::newRow("a number") << QByteArray("Task 8") << QStringLiteral("Task 9");
        QTest::newRow("no octal number") << QByteArray("Task 09") << QString();
    }

    void exceptionsArriveInside()
    {
        QFETCH(QByteArray, title);
        PanelWithTask panel(title.constData());
        panel.widget.findChild<QPushButton*>(Desktop::PanelPart::AddButton)->click();
        QTEST(panel.widget.findChild<QLineEdit*>(Desktop::PanelPart::NameField)->text(), "name");
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_SharedPanel)

#include "tst_SharedPanel.moc"
