// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QScrollArea>
#include <QScrollBar>

#include "AppWindow.h"
#include "MarkingTranslator.h"
#include "PanelParts.h"
#include "Resources.h"
#include "Theme.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

class tst_PanelListHeight : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Desktop::RegisterResources();
        Desktop::ApplyTheme(Desktop::Theme::Light);
    }

    void takesTheHeightOfTheWindow()
    {
        const AppWindow app(20);
        QVERIFY(app.Show());
        app.window->resize(1040, 800);
        QTRY_VERIFY_WITH_TIMEOUT(IsFull(app), Patience);
        const int rows = RowsInView(app);
        QVERIFY(rows > LeastRows);
        app.window->resize(1040, 800 + 4 * RowHeight);
        QTRY_COMPARE_WITH_TIMEOUT(RowsInView(app), rows + 4, Patience);
        QTRY_VERIFY_WITH_TIMEOUT(IsFull(app), Patience);
        app.window->resize(1040, 800);
        QTRY_COMPARE_WITH_TIMEOUT(RowsInView(app), rows, Patience);
    }

    void keepsTheLeastRowsInASmallWindow()
    {
        const AppWindow app(20);
        QVERIFY(app.Show());
        app.window->resize(640, 360);
        QTRY_COMPARE_WITH_TIMEOUT(RowsInView(app), LeastRows, Patience);
    }

    void isNoLongerThanItsTasks()
    {
        const AppWindow app(3);
        QVERIFY(app.Show());
        app.window->resize(1040, 1400);
        QCoreApplication::sendPostedEvents();
        QTRY_COMPARE_WITH_TIMEOUT(app.Find(Desktop::PanelPart::List)->height() / RowHeight, 3,
                                  Patience);
        QCOMPARE(List(app).verticalScrollBar()->maximum(), 0);
    }

    void staysWhenTheThemeChanges()
    {
        const AppWindow app(20);
        QVERIFY(app.Show());
        app.window->resize(1040, 1000);
        QTRY_VERIFY_WITH_TIMEOUT(IsFull(app), Patience);
        const int rows = RowsInView(app);
        Desktop::ApplyTheme(Desktop::Theme::Dark);
        QTRY_COMPARE_WITH_TIMEOUT(RowsInView(app), rows, Patience);
        Desktop::ApplyTheme(Desktop::Theme::Light);
        QTRY_COMPARE_WITH_TIMEOUT(RowsInView(app), rows, Patience);
    }

    void staysWhenTheLanguageChanges()
    {
        const AppWindow app(20);
        QVERIFY(app.Show());
        app.window->resize(1040, 1000);
        QTRY_VERIFY_WITH_TIMEOUT(IsFull(app), Patience);
        const int rows = RowsInView(app);
        LanguageSwitch language;
        language.Toggle();
        QTRY_COMPARE_WITH_TIMEOUT(RowsInView(app), rows, Patience);
    }

private:
    /// Those that the style sheet asks for, and their height.
    static constexpr int LeastRows = 5;
    static constexpr int RowHeight = 40;

    static QScrollArea& List(const AppWindow& app)
    {
        return *app.Find<QScrollArea>(Desktop::PanelPart::List);
    }
    /// Whole rows; where there are more tasks, half a row stands below them.
    static int RowsInView(const AppWindow& app)
    {
        return List(app).viewport()->height() / RowHeight;
    }
    /// Whether there is no room for one more row, and the page need not be scrolled.
    static bool IsFull(const AppWindow& app)
    {
        const QScrollArea* page = app.SchedulePageArea();
        const int room = page->viewport()->height() - page->widget()->sizeHint().height();
        return 0 <= room && room < RowHeight && page->verticalScrollBar()->maximum() == 0;
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_PanelListHeight)

#include "tst_PanelListHeight.moc"
