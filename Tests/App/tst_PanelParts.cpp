// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QButtonGroup>
#include <QComboBox>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTimeEdit>
#include <QToolButton>

#include "Panel.h"
#include "PanelParts.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

constexpr char FindPartsOfNothing[] = "find-parts-of-nothing";

} // namespace

class tst_PanelParts : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void areTheNamedObjects()
    {
        const Panel panel;
        const Desktop::PanelParts parts(*panel.widget);
        const QList<QPair<const QObject*, const char*>> expected{
            {parts.modeGroup, "timerTypeRadioButtonGroup"},
            {parts.offModeButton, "disableScheduledCaptureRadioButton"},
            {parts.limitedModeButton, "limitedCaptureDurationRadioButton"},
            {parts.scheduledModeButton, "scheduledCaptureRadioButton"},
            {parts.limitedSettings, "limitedCaptureDurationSettingsFrame"},
            {parts.limitedDurationField, "limitedCaptureDurationSettingsCaptureDuration"},
            {parts.limitedActionBox, "limitedCaptureDurationSettingsActionOnFinishBox"},
            {parts.stack, "scheduledCaptureStackedWidget"},
            {parts.table, "scheduledCaptureSettingsRecordTableWidget"},
            {parts.list, "recordTableScrollArea"},
            {parts.rows, "recordTableFrame"},
            {parts.addButton, "scheduledCaptureSettingsAddRecordButton"},
            {parts.form, "createRecordTaskWidget"},
            {parts.nameField, "scheduledCaptureSettingsNameLineEdit"},
            {parts.dateField, "scheduledCaptureSettingsDate"},
            {parts.startField, "scheduledCaptureSettingsStartTime"},
            {parts.durationField, "scheduledCaptureSettingsDuration"},
            {parts.areaGroup, "captureAreaRadioButtonGroup"},
            {parts.selectedAreaButton, "scheduledCaptureSettingsSelectedAreaButton"},
            {parts.selectedAreaInfoButton, "scheduledCaptureSettingsSelectedAreaInfoButton"},
            {parts.fullScreenButton, "scheduledCaptureSettingsFullScreenAreaButton"},
            {parts.screenBox, "scheduledCaptureSettingsScreenSelectBox"},
            {parts.actionBox, "scheduledCaptureSettingsActionOnFinishBox"},
            {parts.createButton, "scheduledCaptureSettingsCreateButton"},
            {parts.backButton, "scheduledCaptureSettingsBackButton"}};
        for (const auto& [part, name] : expected) {
            QCOMPARE(part->objectName(), QString(name));
        }
    }

    void deleteButtonsAreInTheOrderOfTheList()
    {
        Panel panel;
        const Desktop::PanelParts parts(*panel.widget);
        QVERIFY(parts.DeleteButtons().isEmpty());
        panel.RestoreScheduled({"A", "B", "C"});
        // A task between the others has a row that was created last.
        panel.Table()->AddRecord(Record("A2", "10:30", std::chrono::minutes(1)));
        QStringList names;
        for (const QToolButton* button : parts.DeleteButtons()) {
            names << button->accessibleName();
        }
        QCOMPARE(names, QStringList({"Delete A", "Delete A2", "Delete B", "Delete C"}));
    }

    void rowsWithoutADeleteButton()
    {
        const Panel panel;
        QCOMPARE(Desktop::DeleteButtonOf(nullptr), nullptr);
        const auto* placeholder =
            panel.widget->findChild<QWidget*>(Desktop::PanelPart::PlaceholderRow);
        QVERIFY(placeholder != nullptr);
        QCOMPARE(Desktop::DeleteButtonOf(placeholder), nullptr);
    }

    void formIsVisibleOnlyOnScreen()
    {
        Panel panel;
        const Desktop::PanelParts parts(*panel.widget);
        panel.RestoreScheduled({});
        panel.Add()->click();
        QVERIFY(panel.IsFormOpen());
        QVERIFY(!parts.IsFormVisible());
        panel.window->show();
        panel.widget->show();
        panel.Add()->click();
        QVERIFY(parts.IsFormVisible());
        panel.window->hide();
        QVERIFY(!parts.IsFormVisible());
    }

    void missingPartEndsTheProgram()
    {
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(QCoreApplication::applicationFilePath(),
                      {QString::fromLatin1(FindPartsOfNothing)});
        QVERIFY(process.waitForFinished(-1));
        QCOMPARE(process.exitStatus(), QProcess::CrashExit);
        const QByteArray output = process.readAll();
        QVERIFY2(output.contains("no QButtonGroup called \"timerTypeRadioButtonGroup\""),
                 output.constData());
    }
};

} // namespace Zentor::Tests

int main(int argc, char** argv)
{
    const Zentor::Tests::TestEnvironment environment;
    const QApplication application(argc, argv);
    if (QCoreApplication::arguments().contains(QLatin1String(Zentor::Tests::FindPartsOfNothing))) {
        const QWidget nothing;
        const Zentor::Desktop::PanelParts parts(nothing);
        return 0;
    }
    Zentor::Tests::tst_PanelParts test;
    return Zentor::Tests::RunTest(argc, argv, test);
}

#include "tst_PanelParts.moc"
