// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QFile>
#include <QTemporaryDir>

#include "PXUserSettings/SettingsFormat.h"
#include "PXUserSettings/SettingsStore.h"
#include "Resources.h"
#include "Samples.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

using namespace std::chrono_literals;

/// The sample shows a newcomer what the list of tasks can hold.
class tst_SampleSettings : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Desktop::RegisterResources(); }

    void isReadWithoutAProblem()
    {
        QFile file(QStringLiteral(":/samples/settings.json"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const auto document = PX::ParseSettings(file.readAll());
        QVERIFY(document.isUnderstood);
        QCOMPARE(document.problems, QStringList());
    }

    void restoresSixTasks()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("settings.json"));
        QVERIFY(QFile::copy(QStringLiteral(":/samples/settings.json"), path));
        PX::SettingsStore store(path);
        QString error;
        QVERIFY2(store.Open(&error), qPrintable(error));
        const auto& schedule = store.Settings().schedule;
        QCOMPARE(schedule.size(), std::size_t(6));
        QVERIFY(store.Settings().scheduledCaptureEnabled);

        const auto any = [&](const auto& predicate) {
            return std::any_of(schedule.begin(), schedule.end(), predicate);
        };
        QVERIFY(any([](const auto& task) { return task.title.size() > 60; }));
        QVERIFY(any([](const auto& task) { return task.title.isRightToLeft(); }));
        QVERIFY(
            any([](const auto& task) { return task.title.at(0).script() == QChar::Script_Han; }));
        QVERIFY(any([](const auto& task) { return task.duration == 90min; }));
        QVERIFY(any([](const auto& task) { return task.duration == 23h + 59min + 59s; }));
        // A newcomer's tasks are all to come, for years after the sample was written. Against a
        // fixed day, so that the test says the same on every day.
        const auto yearsAhead = At(QDateTime(QDate(2035, 1, 1), QTime(0, 0), Qt::UTC));
        QVERIFY(!any([&](const auto& task) { return task.start < yearsAhead; }));
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_SampleSettings)

#include "tst_SampleSettings.moc"
