// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QDateTimeEdit>

#include "SeparatorKeyFilter.h"
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
        new SeparatorKeyFilter(this);
        show();
        QApplication::setActiveWindow(this);
        setFocus();
        setSelectedSection(sectionAt(0));
    }
};

} // namespace

class tst_SeparatorKeyFilter : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void takesSeparators_data()
    {
        QTest::addColumn<QString>("format");
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("text");
        const auto row = [](const char* format, const char* keys, const char* text) {
            QTest::addRow("%s in %s", keys, format)
                << QString(format) << QString(keys) << QString(text);
        };
        row("hh:mm:ss", "01:02:03", "01:02:03");
        row("hh:mm:ss", "010203", "01:02:03");
        row("hh:mm:ss", "1:2:03", "01:02:03");
        row("hh:mm:ss", "7:8:9", "07:08:09");
        row("hh:mm:ss", "01:0203", "01:02:03");
        row("hh:mm:ss", "::45", "10:20:45");
        row("hh:mm:ss", "01::45", "01:20:45");
        row("hh:mm:ss", "01:02:03:", "01:02:03");
        row("hh.mm.ss", "01.02.03", "01.02.03");
        row("dd.MM.yyyy", "25.12.2027", "25.12.2027");
        row("yyyy-MM-dd", "2027-12-25", "2027-12-25");
        // Not the separator of this format: not taken.
        row("hh:mm:ss", "01.02", "01:02:30");
    }

    void takesSeparators()
    {
        QFETCH(QString, format);
        QFETCH(QString, keys);
        Editor editor(format);
        QVERIFY(QTest::qWaitForWindowActive(&editor));
        QTest::keyClicks(&editor, keys);
        QTEST(editor.text(), "text");
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_SeparatorKeyFilter)

#include "tst_SeparatorKeyFilter.moc"
