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
        QList<const QObject*> found{parts.modeGroup,
                                    parts.offModeButton,
                                    parts.limitedModeButton,
                                    parts.scheduledModeButton,
                                    parts.limitedSettings,
                                    parts.limitedDurationField,
                                    parts.limitedActionBox,
                                    parts.stack,
                                    parts.table,
                                    parts.list,
                                    parts.rows,
                                    parts.addButton,
                                    parts.form,
                                    parts.nameField,
                                    parts.dateField,
                                    parts.startField,
                                    parts.durationField,
                                    parts.areaGroup,
                                    parts.selectedAreaButton,
                                    parts.selectedAreaInfoButton,
                                    parts.fullScreenButton,
                                    parts.screenBox,
                                    parts.actionBox,
                                    parts.createButton,
                                    parts.backButton};
        QStringList names;
        for (const QObject* part : found) {
            names << part->objectName();
        }
        const QStringList expected{"timerTypeRadioButtonGroup",
                                   "disableScheduledCaptureRadioButton",
                                   "limitedCaptureDurationRadioButton",
                                   "scheduledCaptureRadioButton",
                                   "limitedCaptureDurationSettingsFrame",
                                   "limitedCaptureDurationSettingsCaptureDuration",
                                   "limitedCaptureDurationSettingsActionOnFinishBox",
                                   "scheduledCaptureStackedWidget",
                                   "scheduledCaptureSettingsRecordTableWidget",
                                   "recordTableScrollArea",
                                   "recordTableFrame",
                                   "scheduledCaptureSettingsAddRecordButton",
                                   "createRecordTaskWidget",
                                   "scheduledCaptureSettingsNameLineEdit",
                                   "scheduledCaptureSettingsDate",
                                   "scheduledCaptureSettingsStartTime",
                                   "scheduledCaptureSettingsDuration",
                                   "captureAreaRadioButtonGroup",
                                   "scheduledCaptureSettingsSelectedAreaButton",
                                   "scheduledCaptureSettingsSelectedAreaInfoButton",
                                   "scheduledCaptureSettingsFullScreenAreaButton",
                                   "scheduledCaptureSettingsScreenSelectBox",
                                   "scheduledCaptureSettingsActionOnFinishBox",
                                   "scheduledCaptureSettingsCreateButton",
                                   "scheduledCaptureSettingsBackButton"};
        QCOMPARE(names, expected);
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
