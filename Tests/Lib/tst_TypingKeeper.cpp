// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QDateTimeEdit>
#include <QLineEdit>

#include "TypingKeeper.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

using namespace PX::Scheduler::UI;

/// An editor with the keyboard, in which the first section is selected.
class Editor : public QDateTimeEdit {
public:
    explicit Editor(const QString& format)
    {
        setDisplayFormat(format);
        setDateTime({QDate(2026, 11, 21), QTime(10, 20, 30)});
        show();
        QApplication::setActiveWindow(this);
        setFocus();
        setSelectedSection(sectionAt(0));
    }

    QLineEdit& LineEdit() const { return *lineEdit(); }
};

} // namespace

class tst_TypingKeeper : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void keepsCursorAndSelection_data()
    {
        QTest::addColumn<int>("start");
        QTest::addColumn<int>("length");
        QTest::newRow("cursor") << 4 << 0;
        QTest::newRow("forward") << 3 << 2;
        QTest::newRow("backward") << 5 << -2;
        QTest::newRow("all") << 0 << 8;
    }

    void keepsCursorAndSelection()
    {
        QFETCH(int, start);
        QFETCH(int, length);
        Editor editor("hh:mm:ss");
        editor.LineEdit().setSelection(start, length);
        const int cursor = editor.LineEdit().cursorPosition();
        const QString selected = editor.LineEdit().selectedText();
        {
            const TypingKeeper keeper(editor);
            editor.setTime(QTime(11, 21, 31));
            editor.LineEdit().deselect();
        }
        QCOMPARE(editor.text(), QStringLiteral("11:21:31"));
        QCOMPARE(editor.LineEdit().cursorPosition(), cursor);
        QCOMPARE(editor.LineEdit().selectedText().size(), selected.size());
        QVERIFY(!editor.LineEdit().signalsBlocked());
    }

    void keepsAnIncompleteSection()
    {
        Editor editor("hh:mm:ss");
        QVERIFY(QTest::qWaitForWindowActive(&editor));
        QTest::keyClicks(&editor, "1");
        QCOMPARE(editor.text(), QStringLiteral("1:20:30"));
        {
            const TypingKeeper keeper(editor);
            editor.setTime(QTime(5, 6, 7));
        }
        QCOMPARE(editor.text(), QStringLiteral("1:20:30"));
        QCOMPARE(editor.time(), QTime(5, 6, 7));
        QTest::keyClicks(&editor, "5");
        QCOMPARE(editor.time(), QTime(15, 20, 30));
    }

    void countsAnIncompleteSectionThatIsLeft()
    {
        Editor editor("hh:mm:ss");
        QVERIFY(QTest::qWaitForWindowActive(&editor));
        QTest::keyClicks(&editor, "1");
        {
            const TypingKeeper keeper(editor);
            editor.setTime(QTime(5, 6, 7));
        }
        editor.clearFocus();
        QCOMPARE(editor.time(), QTime(1, 20, 30));
        QCOMPARE(editor.text(), QStringLiteral("01:20:30"));
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_TypingKeeper)

#include "tst_TypingKeeper.moc"
