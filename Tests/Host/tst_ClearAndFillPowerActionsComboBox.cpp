// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QComboBox>

#include "HostInterfaces.h"
#include "MarkingTranslator.h"
#include "WidgetTest.h"

using namespace Zentor;

namespace {

QStringList Entries(const QComboBox& box)
{
    QStringList entries;
    for (int index = 0; index < box.count(); ++index) {
        entries << box.itemText(index);
    }
    return entries;
}

} // namespace

class tst_ClearAndFillPowerActionsComboBox : public Tests::WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void fillsInTheOrderOfTheActions()
    {
        QComboBox box;
        box.addItem(QStringLiteral("old"));
        PX::UI::ClearAndFillPowerActionsComboBox(&box);
        const QStringList expected{
            QStringLiteral("Do nothing"), QStringLiteral("Quit the application"),
            QStringLiteral("Sleep"),      QStringLiteral("Hibernate"),
            QStringLiteral("Restart"),    QStringLiteral("Shut down")};
        QCOMPARE(Entries(box), expected);
        QCOMPARE(box.itemText(PX::QuitApplication), QStringLiteral("Quit the application"));
        QCOMPARE(box.itemText(PX::ShutDown), QStringLiteral("Shut down"));
        QCOMPARE(box.currentIndex(), int(PX::DoNothing));
    }

    void fillsInTheCurrentLanguage()
    {
        QComboBox box;
        PX::UI::ClearAndFillPowerActionsComboBox(&box);
        Tests::MarkingTranslator translator("PowerAction");
        QCoreApplication::installTranslator(&translator);
        PX::UI::ClearAndFillPowerActionsComboBox(&box);
        QCOMPARE(box.count(), 6);
        for (int index = 0; index < box.count(); ++index) {
            QVERIFY(box.itemText(index).startsWith(QLatin1Char('~')));
        }
    }
};

SCHEDULER_TEST_MAIN(tst_ClearAndFillPowerActionsComboBox)
#include "tst_ClearAndFillPowerActionsComboBox.moc"
