// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QCalendarWidget>
#include <QDateTimeEdit>

#include "CalendarArrow.h"
#include "Resources.h"
#include "Theme.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

class tst_CalendarArrow : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Desktop::RegisterResources(); }

    void init()
    {
        WidgetTest::init();
        // A popup wants the keyboard for itself.
        AllowWarning(QStringLiteral("^This plugin does not support grabbing the keyboard$"));
        m_field = std::make_unique<QDateTimeEdit>(QDate(2030, 3, 1));
        m_field->setCalendarPopup(true);
    }

    void cleanup()
    {
        m_field.reset();
        qApp->setStyleSheet(QString());
        WidgetTest::cleanup();
    }

    void isWhereAClickOpensTheCalendar_data()
    {
        QTest::addColumn<bool>("isThemed");
        QTest::addColumn<bool>("hasFrame");
        QTest::addColumn<bool>("isRightToLeft");
        QTest::addColumn<QSize>("size");
        for (const QSize& size : {QSize(), QSize(300, 60)}) {
            for (const bool isThemed : {false, true}) {
                for (const bool hasFrame : {false, true}) {
                    for (const bool isRightToLeft : {false, true}) {
                        QTest::addRow("%s, %s, %s, %s", isThemed ? "themed" : "plain",
                                      hasFrame ? "framed" : "bare",
                                      isRightToLeft ? "right to left" : "left to right",
                                      size.isEmpty() ? "own size" : "large")
                            << isThemed << hasFrame << isRightToLeft << size;
                    }
                }
            }
        }
    }

    void isWhereAClickOpensTheCalendar()
    {
        QFETCH(bool, isThemed);
        QFETCH(bool, hasFrame);
        QFETCH(bool, isRightToLeft);
        Prepare();
        const QRect arrow = Desktop::CalendarArrowOf(*m_field);
        QVERIFY(arrow.isValid());
        // A style may let it stick out above and below.
        QVERIFY(arrow.left() >= 0 && arrow.right() < m_field->width());
        const int middle = m_field->rect().center().x();
        QVERIFY(isRightToLeft ? arrow.right() < middle : arrow.left() > middle);

        const int row = arrow.center().y();
        const int edgeOfField = isRightToLeft ? arrow.left() : arrow.right();
        const int edgeOfText = isRightToLeft ? arrow.right() : arrow.left();
        const int inText = edgeOfText + (isRightToLeft ? 1 : -1);
        QVERIFY(OpensAt(arrow.center()));
        if (isThemed || hasFrame) {
            QVERIFY(OpensAt({edgeOfField, row}));
            QVERIFY(OpensAt({edgeOfText, row}));
            QVERIFY(!OpensAt({inText, row}));
        } // Else Qt draws no frame, and takes clicks as if there were one: not quite at the arrow.
    }

    void followsTheField()
    {
        m_field->resize(120, 30);
        const QRect before = Desktop::CalendarArrowOf(*m_field);
        m_field->resize(220, 30);
        QCOMPARE(Desktop::CalendarArrowOf(*m_field), before.translated(100, 0));
        m_field->setLayoutDirection(Qt::RightToLeft);
        const QRect mirrored = Desktop::CalendarArrowOf(*m_field);
        QCOMPARE(mirrored.size(), before.size());
        QCOMPARE(mirrored.left(), 220 - 1 - before.translated(100, 0).right());
    }

private:
    void Prepare()
    {
        QFETCH(bool, isThemed);
        QFETCH(bool, hasFrame);
        QFETCH(bool, isRightToLeft);
        QFETCH(QSize, size);
        if (isThemed) {
            Desktop::ApplyTheme(Desktop::Theme::Light);
        }
        m_field->setFrame(hasFrame);
        m_field->setLayoutDirection(isRightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        m_field->resize(size.isEmpty() ? m_field->sizeHint() : size);
        m_field->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_field.get()));
    }

    /// Whether the calendar comes when the field is clicked at \a place. It is gone afterwards.
    bool OpensAt(const QPoint& place) const
    {
        QTest::mouseClick(m_field.get(), Qt::LeftButton, Qt::NoModifier, place);
        QWidget* calendar = m_field->calendarWidget()->window();
        const bool isOpen = calendar != m_field.get() && calendar->isVisible();
        if (isOpen) {
            calendar->close();
        }
        return isOpen;
    }

    std::unique_ptr<QDateTimeEdit> m_field;
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_CalendarArrow)

#include "tst_CalendarArrow.moc"
