// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "ThemeName.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

using Desktop::Theme;

class tst_ThemeName : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void findsEachThemeByItsName()
    {
        QCOMPARE(Desktop::ThemeNames(), (QStringList{"light", "dark"}));
        for (const Theme theme : {Theme::Light, Theme::Dark}) {
            const Theme other = theme == Theme::Light ? Theme::Dark : Theme::Light;
            QVERIFY(Desktop::ThemeNames().contains(Desktop::ThemeName(theme)));
            QVERIFY(Desktop::ThemeFromName(Desktop::ThemeName(theme), other) == theme);
        }
    }

    void takesTheOtherwiseForAnyOtherName_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("none") << QString();
        QTest::newRow("capital") << "Dark";
        QTest::newRow("another") << "sepia";
    }

    void takesTheOtherwiseForAnyOtherName()
    {
        QFETCH(QString, name);
        QVERIFY(Desktop::ThemeFromName(name, Theme::Light) == Theme::Light);
        QVERIFY(Desktop::ThemeFromName(name, Theme::Dark) == Theme::Dark);
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_ThemeName)

#include "tst_ThemeName.moc"
