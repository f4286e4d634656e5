// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QCalendarWidget>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QLayout>
#include <QLineEdit>
#include <QScrollArea>

#include "AppWindow.h"
#include "Boxes.h"
#include "PageRow.h"
#include "PanelParts.h"
#include "Resources.h"
#include "Theme.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

const QString& AddButton = Desktop::PanelPart::AddButton;
const QString& ScheduleButton = Desktop::PanelPart::ScheduledModeButton;

} // namespace
class tst_SchedulePage : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Desktop::RegisterResources();
        Desktop::ApplyTheme(Desktop::Theme::Light);
    }

    void choosesModesByArrows()
    {
        const AppWindow app;
        QVERIFY(app.Show());
        app.Focus(Desktop::PanelPart::OffModeButton);
        QStringList stops;
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_Up}) {
            app.Press(key);
            stops << app.Focused();
            QVERIFY(app.Button(qPrintable(app.Focused()))->isChecked());
        }
        QCOMPARE(stops,
                 (QStringList{Desktop::PanelPart::LimitedModeButton, ScheduleButton,
                              Desktop::PanelPart::LimitedModeButton,
                              Desktop::PanelPart::OffModeButton}));
    }

    void stopsAtTheModeInUse()
    {
        const AppWindow app(1);
        QVERIFY(app.Show());
        app.Focus("pageList");
        app.Press(Qt::Key_Tab);
        QCOMPARE(app.Focused(), ScheduleButton);
    }

    void staysOnTheModeThatStays()
    {
        const AppWindow app(1);
        QVERIFY(app.Show());
        app.Focus(ScheduleButton);
        {
            const ExpectedBox box(QMessageBox::Cancel);
            app.Press(Qt::Key_Up);
            QVERIFY(box.Came());
        }
        QVERIFY(app.Button(ScheduleButton)->isChecked());
        QTRY_COMPARE_WITH_TIMEOUT(app.Focused(), ScheduleButton, Patience);
        {
            const ExpectedBox box(QMessageBox::Cancel);
            QTest::mouseClick(app.Button(Desktop::PanelPart::OffModeButton), Qt::LeftButton);
            QVERIFY(box.Came());
        }
        QTRY_COMPARE_WITH_TIMEOUT(app.Focused(), ScheduleButton, Patience);
    }

    void tabsInReadingOrder_data()
    {
        QTest::addColumn<int>("page");
        QTest::addColumn<QString>("mode");
        QTest::addColumn<bool>("withForm");
        QTest::addColumn<QString>("stops");
        QTest::newRow("nothing") << 0 << Desktop::PanelPart::OffModeButton << false
                                 << "pageList disableScheduledCaptureRadioButton "
                                    "startRecordingButton";
        QTest::newRow("limited") << 0 << Desktop::PanelPart::LimitedModeButton << false
                                 << "pageList limitedCaptureDurationRadioButton "
                                    "limitedCaptureDurationSettingsCaptureDuration "
                                    "limitedCaptureDurationSettingsActionOnFinishBox "
                                    "startRecordingButton";
        QTest::newRow("empty schedule")
            << 0 << ScheduleButton << false
            << "pageList scheduledCaptureRadioButton recordTableScrollArea "
               "scheduledCaptureSettingsAddRecordButton startRecordingButton";
        QTest::newRow("form") << 0 << ScheduleButton << true
                              << "pageList scheduledCaptureRadioButton "
                                 "scheduledCaptureSettingsNameLineEdit "
                                 "scheduledCaptureSettingsDate scheduledCaptureSettingsStartTime "
                                 "scheduledCaptureSettingsDuration "
                                 "scheduledCaptureSettingsSelectedAreaInfoButton "
                                 "scheduledCaptureSettingsFullScreenAreaButton "
                                 "scheduledCaptureSettingsActionOnFinishBox "
                                 "scheduledCaptureSettingsBackButton "
                                 "scheduledCaptureSettingsCreateButton startRecordingButton";
        QTest::newRow("files") << PageRow::Files << Desktop::PanelPart::OffModeButton << false
                               << "pageList resultsFolderEdit browseButton startRecordingButton";
    }

    void tabsInReadingOrder()
    {
        QFETCH(int, page);
        QFETCH(QString, mode);
        QFETCH(bool, withForm);
        QFETCH(QString, stops);
        const AppWindow app;
        QVERIFY(app.Show());
        app.Button(qPrintable(mode))->click();
        app.PageList()->setCurrentRow(page);
        if (withForm) {
            app.Button(AddButton)->click();
        }
        QCOMPARE(app.TabStops().join(QLatin1Char(' ')), stops);
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_SchedulePage)

#include "tst_SchedulePage.moc"
