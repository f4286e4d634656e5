// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "Application/LookAndFeelManager.h"
#include "WidgetTest.h"

using namespace Zentor;

class tst_LookAndFeelManager : public Tests::WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void startsWithTheLanguageOfTheSystem()
    {
        const App::LookAndFeelManager manager;
        QCOMPARE(QString::fromStdString(manager.GetLanguage()), QLocale::system().name());
    }

    void remembersTheLanguage()
    {
        App::LookAndFeelManager manager;
        manager.SetLanguage("pt_BR");
        QCOMPARE(QString::fromStdString(manager.GetLanguage()), QStringLiteral("pt_BR"));
    }
};

SCHEDULER_TEST_MAIN(tst_LookAndFeelManager)
#include "tst_LookAndFeelManager.moc"
