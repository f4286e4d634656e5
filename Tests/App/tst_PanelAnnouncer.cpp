// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>

#include "PageRow.h"
#include "PanelParts.h"
#include "Resources.h"
#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include "AppWindow.h"
#include "Boxes.h"
#include "PanelAnnouncer.h"
#include "RecordSchedulerWidget.h"
#include "Theme.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

QString DuplicateProblem()
{
    return QStringLiteral("Task with this title already exist");
}

/// What screen readers are told, as in "alert statusBar"; the parts that the tests are about.
QStringList& Told()
{
    static QStringList told;
    return told;
}

void NoteTold(QAccessibleEvent* event)
{
    if (event->type() == QAccessible::Alert) {
        Told() << QStringLiteral("alert ") + event->accessibleInterface()->text(QAccessible::Name);
    } else if (event->type() == QAccessible::DescriptionChanged) {
        Told() << QStringLiteral("description ")
                + event->accessibleInterface()->text(QAccessible::Description);
    }
}

/// Whether the keyboard reaches \a widget itself, not one that has taken it in.
bool IsControl(const QWidget& widget)
{
    return widget.isVisible() && widget.focusPolicy() != Qt::NoFocus
        && widget.focusProxy() == nullptr
        && qobject_cast<const QAbstractSpinBox*>(widget.parentWidget()) == nullptr;
}

} // namespace

class tst_PanelAnnouncer : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Desktop::RegisterResources();
        Desktop::ApplyTheme(Desktop::Theme::Light);
    }

    void saysWhichTaskIsAdded()
    {
        const AppWindow app(2);
        QVERIFY(app.Show());
        const Spies spies(app);
        app.Press(Qt::Key_Insert);
        app.Type("Standup");
        app.Press(Qt::Key_Return);
        QCOMPARE(spies.Happened(), QStringList{QStringLiteral("Task added: Standup")});
        QCOMPARE(app.StatusText(), QStringLiteral("Task added: Standup"));
    }

    void saysWhichTaskIsDeleted_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("row");
        QTest::newRow("only") << 1 << 1;
        QTest::newRow("first") << 3 << 1;
        QTest::newRow("middle") << 3 << 2;
        QTest::newRow("last") << 3 << 3;
    }

    void saysWhichTaskIsDeleted()
    {
        QFETCH(int, count);
        QFETCH(int, row);
        const AppWindow app(count);
        QVERIFY(app.Show());
        const Spies spies(app);
        const auto buttons =
            app.window->findChildren<QAbstractButton*>(Desktop::PanelPart::RowDeleteButton);
        const ExpectedBox box(QMessageBox::Ok);
        buttons.at(row - 1)->click();
        QVERIFY(box.Came());
        const QString said = QStringLiteral("Task deleted: Task %1").arg(row);
        QCOMPARE(spies.Happened(), QStringList{said});
        QCOMPARE(app.StatusText(), said);
    }

    void saysThatAllTasksAreDeleted()
    {
        const AppWindow app(3);
        QVERIFY(app.Show());
        const Spies spies(app);
        const ExpectedBox box(QMessageBox::Ok);
        app.Button(Desktop::PanelPart::OffModeButton)->click();
        QVERIFY(box.Came());
        QCOMPARE(spies.Happened(), QStringList{QStringLiteral("All tasks deleted")});
    }

    void saysNothingOfOtherChanges()
    {
        const AppWindow app(2);
        QVERIFY(app.Show());
        const Spies spies(app);
        app.store->Change([](PX::UserSettings& settings) { settings.resultsFolderPath.clear(); });
        QCOMPARE(spies.Happened(), QStringList());
        QCOMPARE(app.StatusText(), QString());
    }

    void saysWhatIsWrongOnce()
    {
        const AppWindow app(1);
        QVERIFY(app.Show());
        const Spies spies(app);
        app.Press(Qt::Key_Insert);
        QCOMPARE(spies.Problems(), QStringList());
        app.Type("Task 1");
        QCOMPARE(spies.Problems(), QStringList{DuplicateProblem()});
        QCOMPARE(app.StatusText(), DuplicateProblem());

        // Blanks around a title do not count: still the same problem.
        app.Type("  ");
        QCOMPARE(spies.Problems(), QStringList{DuplicateProblem()});
        app.Type("b");
        QCOMPARE(spies.Problems(), (QStringList{DuplicateProblem(), QString()}));
        QCOMPARE(app.StatusText(), QString());
    }

    void saysTheNewProblemInPlaceOfTheOld()
    {
        const AppWindow app(1);
        QVERIFY(app.Show());
        app.Press(Qt::Key_Insert);
        app.Type("Task 1");
        app.Press(Qt::Key_A, Qt::ControlModifier);
        app.Press(Qt::Key_Delete);
        QCOMPARE(app.StatusText(), QStringLiteral("Need select task name"));
    }

    void forgetsTheProblemWithTheForm_data()
    {
        QTest::addColumn<bool>("byPage");
        QTest::newRow("back") << false;
        QTest::newRow("other page") << true;
    }

    void forgetsTheProblemWithTheForm()
    {
        QFETCH(bool, byPage);
        const AppWindow app(1);
        QVERIFY(app.Show());
        app.Press(Qt::Key_Insert);
        app.Type("Task 1");
        QCOMPARE(app.StatusText(), DuplicateProblem());
        const ExpectedBox box(QMessageBox::No);
        if (byPage) {
            app.PageList()->setCurrentRow(PageRow::Files);
        } else {
            app.Press(Qt::Key_Escape);
        }
        QTRY_VERIFY_WITH_TIMEOUT(box.Came(), Patience);
        QCOMPARE(app.StatusText(), QString());
    }

    void tellsScreenReaders()
    {
        const AppWindow app(1);
        QVERIFY(app.Show());
        app.Press(Qt::Key_Insert);
        Told().clear();
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(true);
        const auto before = QAccessible::installUpdateHandler(NoteTold);
        app.Type("Task 1");
        const QStringList ofProblem = std::exchange(Told(), {});
        app.Type("b");
        app.Press(Qt::Key_Return);
        QAccessible::installUpdateHandler(before);
        // The start time, which is described by its own tip, has nothing wrong.
        QCOMPARE(ofProblem,
                 (QStringList{QStringLiteral("description ") + DuplicateProblem(),
                              QStringLiteral("description "),
                              QStringLiteral("alert ") + DuplicateProblem()}));
        QCOMPARE(Told().constLast(), QStringLiteral("alert Task added: Task 1b"));
    }

    void namesEveryControl_data()
    {
        QTest::addColumn<int>("page");
        QTest::addColumn<QString>("mode");
        QTest::addColumn<bool>("withForm");
        QTest::addColumn<int>("atLeast");
        QTest::newRow("nothing") << 0 << Desktop::PanelPart::OffModeButton << false << 5;
        QTest::newRow("limited") << 0 << Desktop::PanelPart::LimitedModeButton << false << 7;
        QTest::newRow("schedule") << 0 << Desktop::PanelPart::ScheduledModeButton << false << 9;
        QTest::newRow("form") << 0 << Desktop::PanelPart::ScheduledModeButton << true << 14;
        QTest::newRow("files") << PageRow::Files << Desktop::PanelPart::ScheduledModeButton << false
                               << 4;
        QTest::newRow("recording")
            << PageRow::Recording << Desktop::PanelPart::ScheduledModeButton << false << 12;
        QTest::newRow("general") << PageRow::General << Desktop::PanelPart::ScheduledModeButton
                                 << false << 7;
    }

    void namesEveryControl()
    {
        QFETCH(int, page);
        QFETCH(QString, mode);
        QFETCH(bool, withForm);
        QFETCH(int, atLeast);
        const AppWindow app(mode.startsWith(QLatin1String("scheduled")) ? 2 : 0);
        QVERIFY(app.Show());
        app.Button(qPrintable(mode))->click();
        app.PageList()->setCurrentRow(page);
        if (withForm) {
            app.Button(Desktop::PanelPart::AddButton)->click();
        }
        int count = 0;
        const auto widgets = app.window->findChildren<QWidget*>();
        for (QWidget* widget : widgets) {
            if (!IsControl(*widget)) {
                continue;
            }
            const auto* control = QAccessible::queryAccessibleInterface(widget);
            QVERIFY2(control != nullptr, qPrintable(widget->objectName()));
            QVERIFY2(!control->text(QAccessible::Name).isEmpty(), qPrintable(widget->objectName()));
            // A scroll area is a plain region with scroll bars.
            const bool isPlain = control->role() == QAccessible::NoRole
                || (control->role() == QAccessible::Client && !widget->inherits("QScrollArea"));
            QVERIFY2(!isPlain, qPrintable(widget->objectName()));
            ++count;
        }
        QVERIFY2(count >= atLeast, qPrintable(QString::number(count)));
    }

private:
    struct Spies {
        explicit Spies(const AppWindow& app)
            : announcer(app.window->findChild<Desktop::PanelAnnouncer*>())
            , happened(announcer, &Desktop::PanelAnnouncer::Announced)
            , problem(announcer, &Desktop::PanelAnnouncer::ProblemChanged)
        {
        }

        QStringList Happened() const { return TextsOf(happened); }
        QStringList Problems() const { return TextsOf(problem); }

        static QStringList TextsOf(const QSignalSpy& spy)
        {
            QStringList texts;
            for (const auto& arguments : spy) {
                texts << arguments.constFirst().toString();
            }
            return texts;
        }

        Desktop::PanelAnnouncer* announcer;
        QSignalSpy happened;
        QSignalSpy problem;
    };
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_PanelAnnouncer)

#include "tst_PanelAnnouncer.moc"
