// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QAbstractButton>
#include <QCheckBox>
#include <QMessageBox>

#include "BoxKeys.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

class tst_BoxKeys : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void choosesKeys_data()
    {
        QTest::addColumn<QStringList>("texts");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("first letters") << QStringList{"Delete", "Cancel", "Always delete"}
                                       << QStringList{"&Delete", "&Cancel", "&Always delete"};
        QTest::newRow("second word") << QStringList{"Add", "Cancel", "Add always"}
                                     << QStringList{"&Add", "&Cancel", "A&dd always"};
        QTest::newRow("within a word") << QStringList{"Continue", "Cancel", "Cc"}
                                       << QStringList{"&Continue", "C&ancel", "Cc(&B)"};
        QTest::newRow("what has a key keeps it") << QStringList{"Delete", "No &delete", "&Always"}
                                                 << QStringList{"D&elete", "No &delete", "&Always"};
        QTest::newRow("Cyrillic") << QStringList{"Удалить", "Отмена", "Удалять всегда"}
                                  << QStringList{"&Удалить", "&Отмена", "Удалять &всегда"};
        QTest::newRow("Hebrew") << QStringList{"מחיקה", "ביטול", "תמיד למחוק"}
                                << QStringList{"&מחיקה", "&ביטול", "&תמיד למחוק"};
        QTest::newRow("joined letters")
            << QStringList{"حذف", "إلغاء", "الحذف دائما"}
            << QStringList{"حذف (&ح)", "إلغاء (&إ)", "الحذف دائما (&ا)"};
        QTest::newRow("ideographs")
            << QStringList{"削除", "キャンセル", "常に削除する"}
            << QStringList{"削除(&O)", "キャンセル(&C)", "常に削除する(&A)"};
    }

    void choosesKeys()
    {
        QFETCH(QStringList, texts);
        QFETCH(QStringList, expected);
        QMessageBox box(QMessageBox::Question, {}, {}, QMessageBox::Ok | QMessageBox::Cancel);
        box.setCheckBox(new QCheckBox(&box));
        const QList<QAbstractButton*> buttons{box.button(QMessageBox::Ok),
                                              box.button(QMessageBox::Cancel), box.checkBox()};
        for (int index = 0; index < buttons.size(); ++index) {
            buttons.at(index)->setText(texts.at(index));
        }
        Desktop::GiveKeys(box);
        QStringList actual;
        for (const QAbstractButton* button : buttons) {
            actual << button->text();
        }
        QCOMPARE(actual, expected);
        Desktop::GiveKeys(box);
        QCOMPARE(buttons.constFirst()->text(), expected.constFirst());
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_BoxKeys)

#include "tst_BoxKeys.moc"
