// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QSignalSpy>

#include "DesktopTheme.h"
#include "FakePortal.h"
#include "Resources.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

using Desktop::DesktopTheme;
using Desktop::Theme;

class tst_DesktopTheme : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Desktop::RegisterResources(); }

    void cleanup()
    {
        QApplication::setPalette(QPalette());
        WidgetTest::cleanup();
    }

    void asksThePortal_data()
    {
        QTest::addColumn<unsigned>("preference");
        QTest::addColumn<bool>("isDarkPalette");
        QTest::addColumn<bool>("isDark");
        QTest::newRow("dark") << 1U << false << true;
        QTest::newRow("light") << 2U << true << false;
        QTest::newRow("no preference, light palette") << 0U << false << false;
        QTest::newRow("no preference, dark palette") << 0U << true << true;
        QTest::newRow("nonsense") << 7U << true << true;
    }

    void asksThePortal()
    {
        QFETCH(unsigned, preference);
        QFETCH(bool, isDarkPalette);
        QFETCH(bool, isDark);
        const FakePortal portal(preference);
        QVERIFY(portal.IsRegistered());
        SetPalette(isDarkPalette);
        const DesktopTheme theme;
        QCOMPARE(theme.Current() == Theme::Dark, isDark);
    }

    void goesByThePaletteWithoutPortal_data()
    {
        QTest::addColumn<bool>("isDark");
        QTest::newRow("light") << false;
        QTest::newRow("dark") << true;
    }

    void goesByThePaletteWithoutPortal()
    {
        QFETCH(bool, isDark);
        SetPalette(isDark);
        const DesktopTheme theme;
        QCOMPARE(theme.Current() == Theme::Dark, isDark);
    }

    void followsThePortal()
    {
        FakePortal portal(2);
        const DesktopTheme theme;
        const QSignalSpy changed(&theme, &DesktopTheme::Changed);
        portal.Prefer(1);
        QTRY_COMPARE_WITH_TIMEOUT(theme.Current(), Theme::Dark, Patience);
        QCOMPARE(changed.count(), 1);
        portal.Prefer(0);
        QTRY_COMPARE_WITH_TIMEOUT(theme.Current(), Theme::Light, Patience);
        QCOMPARE(changed.count(), 2);
    }

    void staysSilentWhereNothingChanges()
    {
        FakePortal portal(1);
        const DesktopTheme theme;
        const QSignalSpy changed(&theme, &DesktopTheme::Changed);
        portal.Prefer(1);
        Q_EMIT portal.SettingChanged(QStringLiteral("org.freedesktop.appearance"),
                                     QStringLiteral("accent-color"), QDBusVariant(2U));
        Q_EMIT portal.SettingChanged(QStringLiteral("org.example"), QStringLiteral("color-scheme"),
                                     QDBusVariant(2U));
        // What is sent later arrives later.
        portal.Prefer(2);
        QTRY_COMPARE_WITH_TIMEOUT(theme.Current(), Theme::Light, Patience);
        QCOMPARE(changed.count(), 1);
    }

private:
    static void SetPalette(bool isDark)
    {
        QApplication::setPalette(Desktop::PaletteOf(isDark ? Theme::Dark : Theme::Light));
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_DesktopTheme)

#include "tst_DesktopTheme.moc"
