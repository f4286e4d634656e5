// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "AppWindow.h"
#include "FakeScreen.h"
#include "MarkingTranslator.h"
#include "PanelParts.h"
#include "RecordingSettings.h"
#include "Resources.h"
#include "ScreenPixels.h"
#include "Theme.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

/// What the button beside "Selected area" tells.
QString TipIn(const AppWindow& app)
{
    const QWidget* button = app.Find(Desktop::PanelPart::SelectedAreaInfoButton);
    return button->toolTip() == button->accessibleName() ? button->toolTip() : QString();
}

void Select(const AppWindow& app, const QRect& area)
{
    Schedule::ChangeRecordingSettings(*app.store, [&](auto& settings) { settings.area = area; });
}

} // namespace

class tst_PanelAreaTip : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Desktop::RegisterResources();
        Desktop::ApplyTheme(Desktop::Theme::Light);
    }

    void saysThatTheScreenIsRecordedWithoutAnArea()
    {
        const AppWindow app;
        const QScreen& screen = *QGuiApplication::primaryScreen();
        QVERIFY(TipIn(app).startsWith("No area has been selected yet: all of screen 1 ("));
        QVERIFY(TipIn(app).contains(Desktop::PixelsText(Desktop::PixelsOf(screen).size())));
    }

    void saysWhichAreaIsRecorded()
    {
        const AppWindow app;
        Select(app, {10, 20, 640, 480});
        QVERIFY(TipIn(app).startsWith("Records "));
        QVERIFY(TipIn(app).contains(Desktop::PixelsText(QRect(10, 20, 640, 480))));
        Select(app, {0, 0, 300, 200});
        QVERIFY(TipIn(app).contains(Desktop::PixelsText(QRect(0, 0, 300, 200))));
        Select(app, {});
        QVERIFY(TipIn(app).startsWith("No area has been selected yet"));
    }

    void followsThePrimaryScreen()
    {
        const AppWindow app;
        FakeScreen* screen = Plug("HDMI-A-1", true, QSize(1234, 702));
        const QString size = Desktop::PixelsText(Desktop::PixelsOf(*screen->screen()).size());
        QVERIFY(TipIn(app).contains(size));
        Unplug(screen);
        QVERIFY(!TipIn(app).contains(size));
    }

    void followsTheLanguage_data()
    {
        QTest::addColumn<int>("tasks");
        QTest::newRow("same panel") << 0;
        QTest::newRow("new panel") << 2;
    }

    void followsTheLanguage()
    {
        QFETCH(int, tasks);
        const AppWindow app(tasks);
        Select(app, {10, 20, 640, 480});
        LanguageSwitch language;
        language.Toggle();
        QVERIFY(TipIn(app).startsWith("~Records "));
        language.Toggle();
        QVERIFY(TipIn(app).startsWith("Records "));
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_PanelAreaTip)

#include "tst_PanelAreaTip.moc"
