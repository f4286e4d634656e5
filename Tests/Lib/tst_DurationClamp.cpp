// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QTimeEdit>

#include "DurationClamp.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

using namespace PX::Scheduler::UI;

namespace {

const QString Format = QStringLiteral("hh:mm:ss");

QTime Reading(const char* text)
{
    return QTime::fromString(QLatin1String(text), Format);
}

/// A time editor that is clamped at every change, as the duration fields are.
class DurationField : public QTimeEdit {
public:
    explicit DurationField(const QTime& time)
    {
        setDisplayFormat(Format);
        setTime(time);
        connect(this, &QTimeEdit::timeChanged, this, [this] { ClampDuration(*this); });
        show();
        activateWindow();
        setFocus(Qt::TabFocusReason);
    }

    QLineEdit& LineEdit() const { return *lineEdit(); }
};

void Wheel(QWidget& widget, int steps)
{
    const QPointF position = widget.rect().center();
    QWheelEvent event(position, widget.mapToGlobal(position.toPoint()), QPoint(),
                      QPoint(0, 120 * steps), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QCoreApplication::sendEvent(&widget, &event);
}

} // namespace

class tst_DurationClamp : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void raisesToTheMinimum_data()
    {
        QTest::addColumn<QTime>("time");
        QTest::addColumn<QTime>("expected");
        QTest::newRow("zero") << QTime(0, 0) << QTime(0, 0, 5);
        QTest::newRow("just below") << QTime(0, 0, 4, 999) << QTime(0, 0, 5);
        QTest::newRow("minimum") << QTime(0, 0, 5) << QTime(0, 0, 5);
        QTest::newRow("just above") << QTime(0, 0, 5, 1) << QTime(0, 0, 5, 1);
        QTest::newRow("two hours") << QTime(2, 0) << QTime(2, 0);
        QTest::newRow("longest") << QTime(23, 59, 59) << QTime(23, 59, 59);
    }

    void raisesToTheMinimum()
    {
        QFETCH(QTime, time);
        QTimeEdit editor(time);
        const QSignalSpy changes(&editor, &QTimeEdit::timeChanged);
        ClampDuration(editor);
        QTEST(editor.time(), "expected");
        QCOMPARE(changes.count(), 0);
        QVERIFY(!editor.signalsBlocked());
    }

    void leavesABlockedEditorBlocked()
    {
        QTimeEdit editor(QTime(0, 0));
        editor.blockSignals(true);
        ClampDuration(editor);
        QVERIFY(editor.signalsBlocked());
    }

    void keepsTheKeysStillToCome_data()
    {
        QTest::addColumn<QTime>("before");
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QTime>("after");
        const auto row = [](const char* before, const char* keys, const char* after) {
            QTest::addRow("%s, then %s", before, keys)
                << Reading(before) << QString::fromLatin1(keys) << Reading(after);
        };
        row("00:00:05", "000130", "00:01:30");
        row("00:00:05", "010000", "01:00:00");
        row("00:00:05", "000010", "00:00:10");
        row("01:00:00", "000200", "00:02:00");
        row("01:00:00", "000010", "00:00:10");
        row("01:00:00", "000003", "00:00:05");
        row("00:02:00", "000010", "00:00:10");
        row("00:00:30", "010203", "01:02:03");
        row("10:00:00", "000000", "00:00:05");
        row("23:59:59", "000004", "00:00:05");
        row("23:59:59", "000005", "00:00:05");
        row("23:59:59", "000006", "00:00:06");
        row("00:00:05", "235959", "23:59:59");
    }

    void keepsTheKeysStillToCome()
    {
        QFETCH(QTime, before);
        QFETCH(QString, keys);
        DurationField field(before);
        QVERIFY(QTest::qWaitForWindowActive(&field));
        field.setSelectedSection(QDateTimeEdit::HourSection);
        QTest::keyClicks(&field, keys);
        QTEST(field.time(), "after");
        QCOMPARE(field.text(), field.time().toString(Format));
    }

    void keepsTheSectionWhileStepping()
    {
        DurationField field(QTime(0, 1));
        QVERIFY(QTest::qWaitForWindowActive(&field));
        field.setSelectedSection(QDateTimeEdit::MinuteSection);
        QTest::keyClick(&field, Qt::Key_Down);
        QCOMPARE(field.time(), QTime(0, 0, 5));
        QCOMPARE(field.currentSection(), QDateTimeEdit::MinuteSection);
        QCOMPARE(field.LineEdit().selectedText(), QStringLiteral("00"));
        QCOMPARE(field.LineEdit().selectionStart(), 3);
        QTest::keyClick(&field, Qt::Key_Up);
        QCOMPARE(field.time(), QTime(0, 1, 5));
    }

    void stopsAtTheMinimum()
    {
        DurationField field(QTime(0, 0, 7));
        QVERIFY(QTest::qWaitForWindowActive(&field));
        field.setSelectedSection(QDateTimeEdit::SecondSection);
        for (int i = 0; i < 5; ++i) {
            Wheel(field, -1);
        }
        QCOMPARE(field.time(), QTime(0, 0, 5));
        QCOMPARE(field.LineEdit().selectedText(), QStringLiteral("05"));
        Wheel(field, 1);
        QCOMPARE(field.time(), QTime(0, 0, 6));
    }

    void keepsTheSelection_data()
    {
        QTest::addColumn<int>("start");
        QTest::addColumn<int>("length");
        QTest::newRow("none") << 4 << 0;
        QTest::newRow("forward") << 3 << 2;
        QTest::newRow("backward") << 5 << -2;
    }

    void keepsTheSelection()
    {
        QFETCH(int, start);
        QFETCH(int, length);
        DurationField field(QTime(1, 0));
        field.blockSignals(true);
        field.setTime(QTime(0, 0));
        field.LineEdit().setSelection(start, length);
        const int cursor = field.LineEdit().cursorPosition();
        ClampDuration(field);
        QCOMPARE(field.text(), QStringLiteral("00:00:05"));
        QCOMPARE(field.LineEdit().cursorPosition(), cursor);
        QCOMPARE(field.LineEdit().selectionLength(), qAbs(length));
    }

    void acceptsPastedText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QTime>("expected");
        QTest::newRow("longer") << QStringLiteral("00:01:30") << QTime(0, 1, 30);
        QTest::newRow("minimum") << QStringLiteral("00:00:05") << QTime(0, 0, 5);
        QTest::newRow("shorter") << QStringLiteral("00:00:03") << QTime(0, 0, 5);
        QTest::newRow("no time") << QStringLiteral("soon") << QTime(1, 0);
    }

    void acceptsPastedText()
    {
        QFETCH(QString, text);
        DurationField field(QTime(1, 0));
        QVERIFY(QTest::qWaitForWindowActive(&field));
        QGuiApplication::clipboard()->setText(text);
        field.selectAll();
        QTest::keySequence(&field, QKeySequence(QKeySequence::Paste));
        QTEST(field.time(), "expected");
        QCOMPARE(field.text(), field.time().toString(Format));
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_DurationClamp)

#include "tst_DurationClamp.moc"
