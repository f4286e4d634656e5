// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <algorithm>

#include <QTimeEdit>
#include <QTimer>

#include "AppWindow.h"
#include "PanelParts.h"
#include "Resources.h"
#include "Theme.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

bool IsAnyTimerActive(const QWidget& form)
{
    const auto timers = form.findChildren<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
    return std::any_of(timers.begin(), timers.end(),
                       [](const QTimer* timer) { return timer->isActive(); });
}

} // namespace

class tst_PanelFormTimer : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Desktop::RegisterResources();
        Desktop::ApplyTheme(Desktop::Theme::Light);
    }

    void runsWhileTheFormIsOnScreen()
    {
        const AppWindow app(1);
        const QWidget& form = *app.Find(Desktop::PanelPart::Form);
        QVERIFY(!IsAnyTimerActive(form));
        QVERIFY(app.Show());
        QVERIFY(!IsAnyTimerActive(form));
        app.Press(Qt::Key_Insert);
        QVERIFY(app.IsFormOpen());
        QVERIFY(IsAnyTimerActive(form));
        app.window->hide();
        QVERIFY(!app.IsFormOpen());
        QVERIFY(!IsAnyTimerActive(form));
    }

    void bringsTheStartUpToDateAtOnce()
    {
        const AppWindow app(1);
        QVERIFY(app.Show());
        auto* start = app.Find<QTimeEdit>(Desktop::PanelPart::StartField);
        const QDateTime yesterday = QDateTime::currentDateTime().addDays(-1);
        start->setMinimumDateTime(yesterday);
        start->setDateTime(yesterday);
        app.Press(Qt::Key_Insert);
        QVERIFY(app.IsFormOpen());
        QVERIFY(start->dateTime() > QDateTime::currentDateTime());
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_PanelFormTimer)

#include "tst_PanelFormTimer.moc"
