// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QWheelEvent>

#include "Controls.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

class tst_Controls : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void labelShowsItsTextLiterally()
    {
        QWidget parent;
        const QLabel* label = Desktop::CreateLabel(QStringLiteral("name"), &parent);
        QCOMPARE(label->objectName(), QStringLiteral("name"));
        QCOMPARE(label->parent(), &parent);
        QCOMPARE(label->textFormat(), Qt::PlainText);
        QVERIFY(label->wordWrap());
    }

    void buttonIsPressedByEnter()
    {
        QWidget parent;
        QPushButton* button = Desktop::CreateButton(QStringLiteral("name"), &parent);
        const QSignalSpy clicked(button, &QPushButton::clicked);
        QTest::keyClick(button, Qt::Key_Return);
        QCOMPARE(clicked.count(), 1);
    }

    void comboBoxHasTheValuesAsData()
    {
        QWidget parent;
        QComboBox* box = Desktop::CreateComboBox(QStringLiteral("name"), {"a", "b"}, &parent);
        QCOMPARE(box->count(), 2);
        QCOMPARE(box->itemData(1).toString(), QStringLiteral("b"));
        QCOMPARE(box->maxVisibleItems(), 2);
    }

    void comboBoxStaysUnderTheWheel()
    {
        QWidget parent;
        QComboBox* box = Desktop::CreateComboBox(QStringLiteral("name"), {"a", "b"}, &parent);
        QWheelEvent wheel(QPointF(1, 1), box->mapToGlobal(QPointF(1, 1).toPoint()), {}, {0, -120},
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(box, &wheel);
        QCOMPARE(box->currentIndex(), 0);
    }

    void comboBoxIsAsWideAsItsLongestText()
    {
        QWidget parent;
        QComboBox* box = Desktop::CreateComboBox(QStringLiteral("name"), {"a", "b"}, &parent);
        box->setItemText(1, QString(40, QLatin1Char('i')));
        Desktop::WidenToTexts(*box);
        const QFontMetrics metrics = box->fontMetrics();
        QVERIFY(box->minimumContentsLength() * metrics.horizontalAdvance(QLatin1Char('X'))
                >= metrics.horizontalAdvance(box->itemText(1)));
    }

    void selectsAValue_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<int>("index");
        QTest::newRow("first") << "a" << 0;
        QTest::newRow("last") << "b" << 1;
        QTest::newRow("unknown") << "c" << 0;
        QTest::newRow("none") << QString() << 0;
    }

    void selectsAValue()
    {
        QFETCH(QString, value);
        QWidget parent;
        QComboBox* box = Desktop::CreateComboBox(QStringLiteral("name"), {"a", "b"}, &parent);
        Desktop::SelectValue(*box, QStringLiteral("b"));
        Desktop::SelectValue(*box, value);
        QTEST(box->currentIndex(), "index");
    }

    void offersOtherValues()
    {
        QWidget parent;
        QComboBox* box = Desktop::CreateComboBox(QStringLiteral("name"), {}, &parent);
        const QSignalSpy inserted(box->model(), &QAbstractItemModel::rowsInserted);
        Desktop::OfferValues(*box, {"A", "B"}, {"a", "b"}, "b");
        QCOMPARE(box->itemText(0), QString("A"));
        QCOMPARE(box->itemData(0).toString(), QString("a"));
        QCOMPARE(box->currentText(), QString("B"));
        QCOMPARE(inserted.count(), 2);
        // The same are left alone.
        Desktop::OfferValues(*box, {"A", "B"}, {"a", "b"}, "a");
        QCOMPARE(box->currentText(), QString("A"));
        QCOMPARE(inserted.count(), 2);
        Desktop::OfferValues(*box, {"A", "C", "B"}, {"a", "c", "b"}, "c");
        QCOMPARE(box->currentText(), QString("C"));
        QCOMPARE(box->count(), 3);
        QCOMPARE(box->maxVisibleItems(), 3);
    }

    void leavesListsToTheStyleSheet()
    {
        QWidget parent;
        QComboBox* box = Desktop::CreateComboBox(QStringLiteral("name"), {"a"}, &parent);
        Desktop::StyleComboBoxLists(parent);
        QCOMPARE(box->itemDelegate()->metaObject(), &QStyledItemDelegate::staticMetaObject);
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_Controls)

#include "tst_Controls.moc"
