// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QAccessible>
#include <QButtonGroup>
#include <QClipboard>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QToolTip>
#include <QValidator>

#include "MarkingTranslator.h"
#include "TaskForm.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

using namespace PX::Scheduler::UI;

const QString Prefix = QStringLiteral("scheduledCaptureSettings");

/// Counts the events of some types that a widget and its children receive.
class EventCounter final : public QObject {
public:
    EventCounter(QWidget* widget, QSet<QEvent::Type> types)
        : m_types(std::move(types))
    {
        widget->installEventFilter(this);
        const auto children = widget->findChildren<QWidget*>();
        for (QWidget* child : children) {
            child->installEventFilter(this);
        }
    }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        count += m_types.contains(event->type()) ? 1 : 0;
        return false;
    }

    int count = 0;

private:
    QSet<QEvent::Type> m_types;
};

/// Names of the children that are no layouts, in creation order.
QStringList ChildNames(const QObject* parent)
{
    QStringList names;
    for (const QObject* child : parent->children()) {
        if (!child->inherits("QLayout") && !child->objectName().isEmpty()) {
            names << child->objectName();
        }
    }
    return names;
}

QString StyleOf(const QWidget* widget)
{
    return widget->property("SubStyle").toString();
}

QString AccessibleName(QWidget* widget)
{
    // Qt calls a combo box by its current entry, and by its own name only without one.
    if (auto* box = qobject_cast<QComboBox*>(widget)) {
        box->setCurrentIndex(-1);
    }
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
}

} // namespace

class tst_CreateRecordTaskWidget : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    // --- The widget tree ---

    void isBuiltOfNamedWidgets_data()
    {
        QTest::addColumn<QByteArray>("className");
        QTest::addColumn<QString>("parentName");
        const auto row = [](const QString& name, const char* className, const QString& parent) {
            QTest::newRow(qPrintable(name)) << QByteArray(className) << parent;
        };
        const QString frame = QStringLiteral("createRecordTaskFrame");
        const QString mode = Prefix + "CaptureModeFrame";
        row(frame, "Zentor::ZFrame", "theForm");
        for (const char* label : {"Label", "NameLabel", "DateLabel", "TimeLabel", "DurationLabel",
                                  "CaptureModeLabel", "ActionOnFinishLabel"}) {
            row(Prefix + label, "Zentor::ZLabel", frame);
        }
        row(Prefix + "NameLineEdit", "QLineEdit", frame);
        row(Prefix + "Date", "QDateTimeEdit", frame);
        row(Prefix + "StartTime", "QTimeEdit", frame);
        row(Prefix + "Duration", "QTimeEdit", frame);
        row(mode, "Zentor::ZFrame", frame);
        row("captureAreaRadioButtonGroup", "QButtonGroup", mode);
        row(Prefix + "SelectedAreaButton", "QRadioButton", mode);
        row(Prefix + "SelectedAreaInfoButton", "QPushButton", mode);
        row(Prefix + "FullScreenAreaButton", "QRadioButton", mode);
        row(Prefix + "ScreenSelectBox", "QComboBox", mode);
        row(Prefix + "ActionOnFinishBox", "QComboBox", frame);
        row(Prefix + "ButtonsFrame", "Zentor::ZFrame", frame);
        row(Prefix + "CreateButton", "QPushButton", Prefix + "ButtonsFrame");
        row(Prefix + "BackButton", "QPushButton", Prefix + "ButtonsFrame");
    }

    void isBuiltOfNamedWidgets()
    {
        const TaskForm form;
        form.widget->setObjectName("theForm");
        const auto found = form.widget->findChildren<QObject*>(QTest::currentDataTag());
        QCOMPARE(found.size(), 1);
        QTEST(QByteArray(found.first()->metaObject()->className()), "className");
        QTEST(found.first()->parent()->objectName(), "parentName");
    }

    void isBuiltInOrder()
    {
        const TaskForm form;
        const auto names = [](std::initializer_list<const char*> parts) {
            QStringList list;
            for (const char* part : parts) {
                list << Prefix + part;
            }
            return list;
        };
        QCOMPARE(ChildNames(form.widget).mid(0, 1), QStringList("createRecordTaskFrame"));
        QCOMPARE(
            ChildNames(form.Find("createRecordTaskFrame")),
            names({"Label", "NameLabel", "NameLineEdit", "DateLabel", "Date", "TimeLabel",
                   "StartTime", "DurationLabel", "Duration", "CaptureModeLabel", "CaptureModeFrame",
                   "ActionOnFinishLabel", "ActionOnFinishBox", "ButtonsFrame"}));
        QCOMPARE(ChildNames(form.Find("scheduledCaptureSettingsCaptureModeFrame")),
                 QStringList("captureAreaRadioButtonGroup")
                     + names({"SelectedAreaButton", "SelectedAreaInfoButton",
                              "FullScreenAreaButton", "ScreenSelectBox"}));
        QCOMPARE(ChildNames(form.Find("scheduledCaptureSettingsButtonsFrame")),
                 names({"CreateButton", "BackButton"}));
    }

    void hasTheClassNameInItsMetaObject()
    {
        const TaskForm form;
        const QMetaObject* meta = form.widget->metaObject();
        QCOMPARE(meta->className(), "Zentor::PX::Scheduler::UI::CreateRecordTaskWidget");
        QVERIFY(form.widget->inherits("Zentor::ZFrame"));
        QStringList methods;
        for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
            methods << meta->method(i).methodSignature();
        }
        QCOMPARE(methods,
                 QStringList({"TaskNameChanged()", "RecordDateChanged()",
                              "RecordStartTimeChanged()", "RecordDurationChanged()",
                              "BackButtonClicked()", "CreateTaskButtonClicked()"}));
    }

    void laysOutItsFields_data()
    {
        QTest::addColumn<QVector<int>>("cell"); // row, column, rows, columns
        QTest::addColumn<int>("alignment");
        const auto row = [](const char* name, QVector<int> cell, int alignment) {
            QTest::newRow(qPrintable(Prefix + name)) << std::move(cell) << alignment;
        };
        row("Label", {0, 0, 1, 4}, 0);
        row("NameLabel", {1, 0, 1, 1}, 0);
        row("NameLineEdit", {1, 1, 1, 3}, 0);
        row("DateLabel", {2, 0, 1, 1}, 0);
        row("Date", {2, 1, 1, 3}, Qt::AlignLeft);
        row("TimeLabel", {3, 0, 1, 1}, 0);
        row("StartTime", {3, 1, 1, 1}, Qt::AlignLeft);
        row("DurationLabel", {3, 2, 1, 1}, Qt::AlignRight);
        row("Duration", {3, 3, 1, 1}, Qt::AlignRight);
        row("CaptureModeLabel", {4, 0, 2, 1}, Qt::AlignTop);
        row("CaptureModeFrame", {4, 1, 1, 3}, 0);
        row("ActionOnFinishLabel", {5, 0, 1, 1}, 0);
        row("ActionOnFinishBox", {5, 1, 1, 3}, 0);
        row("ButtonsFrame", {6, 0, 1, 4}, 0);
        row("SelectedAreaButton", {0, 0, 1, 1}, 0);
        row("SelectedAreaInfoButton", {0, 1, 1, 1}, Qt::AlignLeft);
        row("FullScreenAreaButton", {1, 0, 1, 1}, 0);
        row("ScreenSelectBox", {1, 1, 1, 1}, Qt::AlignRight);
    }

    void laysOutItsFields()
    {
        const TaskForm form;
        auto* widget = form.Find(QTest::currentDataTag());
        const auto* grid = qobject_cast<QGridLayout*>(widget->parentWidget()->layout());
        QVERIFY(grid != nullptr);
        const int index = grid->indexOf(widget);
        QVector<int> cell(4);
        grid->getItemPosition(index, &cell[0], &cell[1], &cell[2], &cell[3]);
        QTEST(cell, "cell");
        QTEST(int(grid->itemAt(index)->alignment()), "alignment");
    }

    void sharesTheCellOfTheInfoButtonWithASpacer()
    {
        const TaskForm form;
        const auto* grid = qobject_cast<QGridLayout*>(
            form.Find("scheduledCaptureSettingsCaptureModeFrame")->layout());
        QCOMPARE(grid->count(), 5);
        auto* spacer = grid->itemAt(4)->spacerItem();
        QVERIFY(spacer != nullptr);
        QVector<int> cell(4);
        grid->getItemPosition(4, &cell[0], &cell[1], &cell[2], &cell[3]);
        QCOMPARE(cell, QVector<int>({0, 1, 1, 1}));
        QCOMPARE(spacer->sizeHint(), QSize(0, 0));
        QCOMPARE(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
        QCOMPARE(spacer->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
    }

    void putsBackBeforeCreate()
    {
        const TaskForm form;
        const auto* row =
            qobject_cast<QHBoxLayout*>(form.Find("scheduledCaptureSettingsButtonsFrame")->layout());
        QCOMPARE(row->count(), 3);
        QCOMPARE(row->itemAt(0)->widget(), form.Back());
        QCOMPARE(row->itemAt(1)->widget(), form.Create());
        QVERIFY(row->itemAt(2)->spacerItem() != nullptr);
        QCOMPARE(row->stretch(2), 0);
    }

    void keepsItsContentAtTheTop()
    {
        const TaskForm form;
        const auto* column = qobject_cast<QVBoxLayout*>(form.widget->layout());
        QCOMPARE(column->count(), 2);
        QCOMPARE(column->itemAt(0)->widget(), form.Find("createRecordTaskFrame"));
        QCOMPARE(int(column->itemAt(0)->alignment()), 0);
        QVERIFY(column->itemAt(1)->spacerItem() != nullptr);
        QCOMPARE(column->stretch(1), 0);
    }

    void leavesSizesToTheStyleSheet()
    {
        const TaskForm form;
        const auto layouts = form.widget->findChildren<QLayout*>();
        int ownLayouts = 0;
        for (const QLayout* layout : layouts) {
            if (layout->parentWidget()->inherits("Zentor::ZFrame")) {
                ++ownLayouts;
                QCOMPARE(layout->contentsMargins(), QMargins());
                QCOMPARE(layout->spacing(), 0);
            }
        }
        QCOMPARE(ownLayouts, 4);
        for (const QWidget* widget :
             {form.Find("createRecordTaskFrame"), static_cast<QWidget*>(form.Name()),
              static_cast<QWidget*>(form.Create())}) {
            QCOMPARE(widget->minimumSize(), QSize(0, 0));
            QCOMPARE(widget->maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
        }
    }

    void groupsTheCaptureAreas()
    {
        const TaskForm form;
        const auto* group = form.Find<QButtonGroup>("captureAreaRadioButtonGroup");
        QVERIFY(group->exclusive());
        QCOMPARE(group->buttons(),
                 QList<QAbstractButton*>({form.SelectedArea(), form.FullScreen()}));
        QCOMPARE(group->id(form.SelectedArea()), -2);
        QCOMPARE(group->id(form.FullScreen()), -3);
    }

    // --- Construction ---

    void startsWithDefaults()
    {
        const QDateTime before = QDateTime::currentDateTime();
        const TaskForm form;
        const QDateTime after = QDateTime::currentDateTime();

        QCOMPARE(form.Name()->text(), QString());
        QCOMPARE(form.Name()->maxLength(), 100);
        QVERIFY(form.Name()->validator() != nullptr);
        QCOMPARE(form.Name()->validator()->parent(), form.widget);
        const QDateTime start = form.Start()->dateTime();
        QVERIFY(before <= start && start <= after);
        QCOMPARE(form.Start()->minimumDateTime(), start);
        QCOMPARE(form.Date()->date(), start.date());
        QCOMPARE(form.Date()->minimumDateTime(), QDateTime(start.date(), QTime(0, 0)));
        QVERIFY(form.Date()->calendarPopup());
        QCOMPARE(form.Duration()->time(), QTime(0, 0, 5));
        QCOMPARE(form.Duration()->minimumTime(), QTime(0, 0));
        QVERIFY(form.FullScreen()->isChecked());
        QVERIFY(!form.SelectedArea()->isChecked());
        QVERIFY(form.Screens()->isEnabled());
        QVERIFY(form.Screens()->isHidden());
        QCOMPARE(form.Screens()->count(), QGuiApplication::screens().size());
        QCOMPARE(form.FinishAction()->count(), int(PX::ShutDown) + 1);
        QVERIFY(form.Create()->isEnabled());
        QCOMPARE(form.Name()->toolTip(), QString());
        QCOMPARE(form.Start()->toolTip(), QString());
        QCOMPARE(StyleOf(form.Info()), QStringLiteral("QuestionButton"));
        QVERIFY(!form.Name()->property("SubStyle").isValid());
        QVERIFY(!form.Start()->property("SubStyle").isValid());
    }

    void answersWithDefaults()
    {
        const TaskForm form;
        QCOMPARE(form.widget->GetTaskName(), QString());
        QCOMPARE(form.widget->GetStartDateTime(), form.Start()->dateTime());
        QCOMPARE(form.widget->GetDuration(), QTime(0, 0, 5));
        QVERIFY(form.widget->IsFullScreen());
        QCOMPARE(form.widget->GetScreenIndex(), 0);
        QCOMPARE(form.widget->GetActionOnFinishIndex(), -1);
    }

    void ownsOneRepeatingTimer()
    {
        const TaskForm form;
        QCOMPARE(form.widget->findChildren<QTimer*>(QString(), Qt::FindDirectChildrenOnly).size(),
                 1);
        QCOMPARE(form.Timer()->interval(), 300);
        QVERIFY(form.Timer()->isActive());
        QVERIFY(!form.Timer()->isSingleShot());
    }

    void refusesNoManager()
    {
        QWidget parent;
        std::string error;
        try {
            new CreateRecordTaskWidget(nullptr, &parent);
        } catch (const std::logic_error& exception) {
            error = exception.what();
        }
        QCOMPARE(error, std::string("NotNull can not initialized by null"));
        QVERIFY(parent.children().isEmpty());
    }

    void holdsItsManagerUntilTheEnd()
    {
        TaskForm form;
        QCOMPARE(form.lookAndFeel.use_count(), 2L);
        form.window.reset();
        QCOMPARE(form.lookAndFeel.use_count(), 1L);
    }

    // --- Texts ---

    void showsItsTexts_data()
    {
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("translated");
        const auto row = [](const char* name, const char* property, const char* text,
                            const char* translated = nullptr) {
            QTest::addRow("%s %s", qPrintable(Prefix + name), property)
                << QByteArray(property) << QString(text)
                << (translated == nullptr ? QString("~") + text : QString(translated));
        };
        row("Label", "text", "New record:");
        row("NameLabel", "text", "File name:");
        row("DateLabel", "text", "Date:");
        row("Date", "displayFormat", "dd.MM.yyyy", "yyyy-MM-dd");
        row("TimeLabel", "text", "Time:");
        row("StartTime", "displayFormat", "hh:mm:ss", "hh.mm.ss");
        row("DurationLabel", "text", "Duration:");
        row("Duration", "displayFormat", "hh:mm:ss", "hh.mm.ss");
        row("CaptureModeLabel", "text", "Capture:");
        row("SelectedAreaButton", "text", "Selected area");
        row("SelectedAreaInfoButton", "toolTip", "Selected area tooltip");
        row("SelectedAreaInfoButton", "text", "", "");
        row("FullScreenAreaButton", "text", "Fullscreen");
        row("ActionOnFinishLabel", "text", "Action on finish:");
        row("CreateButton", "text", "Create");
        row("BackButton", "text", "Back");
    }

    void showsItsTexts()
    {
        QFETCH(QByteArray, property);
        const TaskForm form;
        const QByteArray name = QByteArray(QTest::currentDataTag()).split(' ').first();
        const auto* widget = form.Find(name.constData());
        QTEST(widget->property(property).toString(), "text");

        LanguageSwitch language("CreateRecordTaskWidget");
        language.Toggle();
        QTEST(widget->property(property).toString(), "translated");
        language.Toggle();
        QTEST(widget->property(property).toString(), "text");
    }

    void speaksTheLanguageOfTheCalendar()
    {
        const TaskForm form;
        QCOMPARE(form.Date()->calendarWidget()->locale(), QLocale("en_GB"));
        form.lookAndFeel->language = "ar_EG";
        QCOMPARE(form.Date()->calendarWidget()->locale(), QLocale("en_GB"));
        QEvent event(QEvent::LanguageChange);
        QCoreApplication::sendEvent(form.widget, &event);
        QCOMPARE(form.Date()->calendarWidget()->locale(), QLocale("ar_EG"));
        QCOMPARE(form.Date()->calendarWidget()->size(), form.Date()->calendarWidget()->sizeHint());
    }

    void changesOnlyTextsWithTheLanguage()
    {
        TaskForm form;
        form.widget->ResetForm("Lecture");
        form.FinishAction()->setCurrentIndex(PX::Sleep);
        form.Date()->setDate(form.Date()->date().addDays(3));
        form.Start()->setTime(QTime(0, 0, 1));
        form.Duration()->setTime(QTime(1, 2, 3));
        const QDateTime start = form.Start()->dateTime();
        const QDateTime earliest = form.Start()->minimumDateTime();
        const QDateTime firstDay = form.Date()->minimumDateTime();
        ChangeSpies spies(form.widget);
        const QSignalSpy finishAction(form.FinishAction(),
                                      qOverload<int>(&QComboBox::currentIndexChanged));

        QEvent event(QEvent::LanguageChange);
        QCoreApplication::sendEvent(form.widget, &event);
        QCOMPARE(form.widget->GetTaskName(), QStringLiteral("Lecture"));
        QCOMPARE(form.widget->GetActionOnFinishIndex(), int(PX::Sleep));
        QCOMPARE(form.FinishAction()->count(), int(PX::ShutDown) + 1);
        QCOMPARE(form.widget->GetStartDateTime(), start);
        QCOMPARE(form.Start()->minimumDateTime(), earliest);
        QCOMPARE(form.Date()->date(), start.date());
        QCOMPARE(form.Date()->minimumDateTime(), firstDay);
        QCOMPARE(form.widget->GetDuration(), QTime(1, 2, 3));
        QCOMPARE(spies.Take(), QStringLiteral("0 0 0 0"));
        QCOMPARE(finishAction.count(), 0);
        QVERIFY(!form.FinishAction()->signalsBlocked());
        QVERIFY(!form.Start()->signalsBlocked());
    }

    // --- Name ---

    void limitsTheName_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("expected");
        QTest::newRow("plain") << "Lecture 1"
                               << "Lecture 1";
        QTest::newRow("longest") << QString(100, 'x') << QString(100, 'x');
        QTest::newRow("too long") << QString(101, 'x') << QString(100, 'x');
        QTest::newRow("not for files") << "a/b\\c:d*e?f\"g<h>i|j"
                                       << "abcdefghij";
    }

    void limitsTheName()
    {
        QFETCH(QString, typed);
        const TaskForm form;
        QTest::keyClicks(form.Name(), typed);
        QTEST(form.widget->GetTaskName(), "expected");
    }

    void trimsTheName()
    {
        const TaskForm form;
        form.Name()->setText(" \t Lecture 1 \u2003");
        QCOMPARE(form.widget->GetTaskName(), QStringLiteral("Lecture 1"));
        form.Name()->setText("   ");
        QCOMPARE(form.widget->GetTaskName(), QString());
    }

    void reportsEachChangeOfTheName()
    {
        const TaskForm form;
        ChangeSpies spies(form.widget);
        QTest::keyClicks(form.Name(), "abc");
        QCOMPARE(spies.Take(), QStringLiteral("3 0 0 0"));
        QTest::keyClick(form.Name(), '/');
        QCOMPARE(spies.Take(), QStringLiteral("0 0 0 0"));
        form.widget->ResetForm("Lecture");
        QCOMPARE(spies.Take(), QStringLiteral("1 0 0 0"));
        form.widget->ResetForm("Lecture");
        QCOMPARE(spies.Take(), QStringLiteral("0 0 0 0"));
    }

    // --- Duration ---

    void keepsTheDurationAboveItsMinimum_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QTime>("expected");
        QTest::newRow("too short") << "000003" << QTime(0, 0, 5);
        QTest::newRow("zero") << "000000" << QTime(0, 0, 5);
        QTest::newRow("minimum") << "000005" << QTime(0, 0, 5);
        QTest::newRow("just above") << "000006" << QTime(0, 0, 6);
        QTest::newRow("ten seconds") << "000010" << QTime(0, 0, 10);
        QTest::newRow("minutes") << "000130" << QTime(0, 1, 30);
        QTest::newRow("an hour") << "010000" << QTime(1, 0);
        QTest::newRow("two hours") << "020000" << QTime(2, 0);
        QTest::newRow("longest") << "235959" << QTime(23, 59, 59);
        QTest::newRow("with colons") << "00:01:30" << QTime(0, 1, 30);
        QTest::newRow("too short, with colons") << "00:00:03" << QTime(0, 0, 5);
        QTest::newRow("single digits and colons") << "1:2:30" << QTime(1, 2, 30);
    }

    void keepsTheDurationAboveItsMinimum()
    {
        QFETCH(QString, keys);
        const TaskForm form;
        QVERIFY(form.Show());
        for (const QTime before : {QTime(0, 0, 5), QTime(1, 0), QTime(23, 59, 59)}) {
            form.Duration()->setTime(before);
            form.Duration()->setFocus();
            form.Duration()->setSelectedSection(QDateTimeEdit::HourSection);
            QTest::keyClicks(form.Duration(), keys);
            QTEST(form.widget->GetDuration(), "expected");
            QCOMPARE(form.Duration()->text(), form.widget->GetDuration().toString("hh:mm:ss"));
        }
    }

    void keepsTheDurationAboveItsMinimumOtherwise()
    {
        const TaskForm form;
        QVERIFY(form.Show());
        QTimeEdit* duration = form.Duration();
        duration->setFocus();
        const auto is = [&](const QTime& time) {
            return form.widget->GetDuration() == time
                && duration->text() == time.toString("hh:mm:ss");
        };
        duration->setTime(QTime(0, 1, 6));
        duration->setSelectedSection(QDateTimeEdit::SecondSection);
        QTest::keyClick(duration, Qt::Key_Down);
        QVERIFY(is(QTime(0, 1, 5)));
        duration->setSelectedSection(QDateTimeEdit::MinuteSection);
        QTest::keyClick(duration, Qt::Key_Down);
        QVERIFY(is(QTime(0, 0, 5)));
        QTest::keyClick(duration, Qt::Key_Down);
        QVERIFY(is(QTime(0, 0, 5)));
        QTest::keyClick(duration, Qt::Key_PageUp);
        QVERIFY(is(QTime(0, 10, 5)));

        duration->setSelectedSection(QDateTimeEdit::HourSection);
        for (const int angle : {120, 120, -120, -120, -120}) {
            QWheelEvent wheel(QPointF(5, 5), duration->mapToGlobal(QPoint(5, 5)), QPoint(),
                              QPoint(0, angle), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                              false);
            QCoreApplication::sendEvent(duration, &wheel);
        }
        QVERIFY(is(QTime(0, 10, 5)));

        for (const char* text : {"00:01:30", "00:00:02", "23:59:59"}) {
            QGuiApplication::clipboard()->setText(text);
            duration->selectAll();
            QTest::keySequence(duration, QKeySequence(QKeySequence::Paste));
            QVERIFY(is(qMax(QTime::fromString(text, "hh:mm:ss"), QTime(0, 0, 5))));
        }
    }

    void reportsACorrectedDurationOnce()
    {
        const TaskForm form;
        ChangeSpies spies(form.widget);
        const QSignalSpy ofField(form.Duration(), &QTimeEdit::timeChanged);
        form.Duration()->setTime(QTime(0, 0, 3));
        QCOMPARE(spies.Take(), QStringLiteral("0 0 0 1"));
        QCOMPARE(ofField.count(), 1);
        QCOMPARE(form.widget->GetDuration(), QTime(0, 0, 5));
        form.Duration()->setTime(QTime(0, 0, 5));
        QCOMPARE(spies.Take(), QStringLiteral("0 0 0 0"));
        form.Duration()->setTime(QTime(2, 0));
        QCOMPARE(spies.Take(), QStringLiteral("0 0 0 1"));
        QVERIFY(!form.Duration()->signalsBlocked());
    }

    void reportsTheDurationAfterItsCorrection()
    {
        const TaskForm form;
        QTime reported;
        connect(form.widget, &CreateRecordTaskWidget::RecordDurationChanged, this, [&] {
            reported = form.widget->GetDuration();
            QVERIFY(form.Duration()->signalsBlocked());
            QVERIFY(!form.widget->signalsBlocked());
        });
        form.Duration()->setTime(QTime(0, 0, 0));
        QCOMPARE(reported, QTime(0, 0, 5));
    }

    // --- Capture area, buttons ---

    void enablesTheScreensForTheFullScreen()
    {
        const TaskForm form;
        form.SelectedArea()->click();
        QVERIFY(!form.Screens()->isEnabled());
        QVERIFY(!form.widget->IsFullScreen());
        form.FullScreen()->click();
        QVERIFY(form.Screens()->isEnabled());
        QVERIFY(form.widget->IsFullScreen());
    }

    void passesOnItsButtons()
    {
        const TaskForm form;
        const QSignalSpy back(form.widget, &CreateRecordTaskWidget::BackButtonClicked);
        const QSignalSpy create(form.widget, &CreateRecordTaskWidget::CreateTaskButtonClicked);
        form.Back()->click();
        QCOMPARE(back.count(), 1);
        QCOMPARE(create.count(), 0);
        form.Create()->click();
        QCOMPARE(back.count(), 1);
        QCOMPARE(create.count(), 1);
        form.Create()->setEnabled(false);
        form.Create()->click();
        QCOMPARE(create.count(), 1);
    }

    void isResetForANewTask()
    {
        const TaskForm form;
        form.SelectedArea()->setChecked(true);
        form.FinishAction()->setCurrentIndex(PX::Restart);
        form.Screens()->addItem("another");
        form.Screens()->setCurrentIndex(1);
        form.Duration()->setTime(QTime(1, 0));
        form.Date()->setDate(form.Date()->date().addDays(1));
        const QDateTime start = form.widget->GetStartDateTime();
        ChangeSpies spies(form.widget);

        form.widget->ResetForm("Task 01");
        QCOMPARE(form.widget->GetTaskName(), QStringLiteral("Task 01"));
        QCOMPARE(form.widget->GetActionOnFinishIndex(), int(PX::DoNothing));
        QVERIFY(form.widget->IsFullScreen());
        QVERIFY(form.Screens()->isEnabled());
        QCOMPARE(form.widget->GetScreenIndex(), 0);
        QCOMPARE(form.widget->GetStartDateTime(), start);
        QCOMPARE(form.Date()->date(), start.date());
        QCOMPARE(form.widget->GetDuration(), QTime(1, 0));
        QCOMPARE(spies.Take(), QStringLiteral("1 0 0 0"));
    }

    void leavesTheInfoOnTheButton()
    {
        const TaskForm form;
        QVERIFY(form.Show());
        QVERIFY(!QToolTip::isVisible());
        QTest::mouseClick(form.Info(), Qt::LeftButton);
        QVERIFY(QToolTip::isVisible());
        QCOMPARE(QToolTip::text(), QStringLiteral("Selected area tooltip"));
    }

    // --- Errors ---

    void showsAnError_data()
    {
        QTest::addColumn<int>("error");
        QTest::addColumn<QString>("nameStyle");
        QTest::addColumn<QString>("startStyle");
        QTest::addColumn<QString>("nameTip");
        QTest::addColumn<QString>("startTip");
        QTest::newRow("none") << int(NoError) << "Normal"
                              << "Normal"
                              << ""
                              << "";
        QTest::newRow("empty") << int(EmptyTitle) << "Invalid"
                               << "Normal"
                               << "Need select task name"
                               << "";
        QTest::newRow("exists") << int(TitleAlreadyExists) << "Invalid"
                                << "Normal"
                                << "Task with this title already exist"
                                << "";
        QTest::newRow("intersected")
            << int(CaptureTimeIntersected) << "Normal"
            << "Invalid"
            << ""
            << "Curent capture time intersect with other capture time in the list";
        QTest::newRow("unknown") << 4 << "Normal"
                                 << "Normal"
                                 << ""
                                 << "";
    }

    void showsAnError()
    {
        QFETCH(int, error);
        QFETCH(QString, nameTip);
        QFETCH(QString, startTip);
        const TaskForm form;
        QVERIFY(form.Show());
        for (const ValidateError before : {NoError, EmptyTitle, CaptureTimeIntersected}) {
            form.widget->ShowValidateError(before);
            form.widget->ShowValidateError(static_cast<ValidateError>(error));
            QTEST(StyleOf(form.Name()), "nameStyle");
            QTEST(StyleOf(form.Start()), "startStyle");
            QCOMPARE(form.Name()->toolTip(), nameTip);
            QCOMPARE(form.Start()->toolTip(), startTip);
            QCOMPARE(form.Create()->isEnabled(), error == NoError);
            const QString tip = nameTip + startTip;
            QTRY_COMPARE_WITH_TIMEOUT(QToolTip::isVisible(), !tip.isEmpty(), Patience);
            if (!tip.isEmpty()) {
                QCOMPARE(QToolTip::text(), tip);
            }
        }
    }

    void translatesItsErrors()
    {
        const TaskForm form;
        QVERIFY(form.Show());
        MarkingTranslator translator("CreateRecordTaskWidget");
        QCoreApplication::installTranslator(&translator);
        form.widget->ShowValidateError(EmptyTitle);
        QCOMPARE(form.Name()->toolTip(), QStringLiteral("~Need select task name"));
        form.widget->ShowValidateError(TitleAlreadyExists);
        QCOMPARE(form.Name()->toolTip(), QStringLiteral("~Task with this title already exist"));
        form.widget->ShowValidateError(CaptureTimeIntersected);
        QCOMPARE(form.Start()->toolTip(),
                 QStringLiteral("~Curent capture time intersect with other capture time in the "
                                "list"));
        QCoreApplication::removeTranslator(&translator);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
    }

    void showsTheTipAtItsField()
    {
        const TaskForm form;
        QVERIFY(form.Show());
        form.widget->ShowValidateError(CaptureTimeIntersected);
        const auto widgets = QApplication::topLevelWidgets();
        const auto tip = std::find_if(widgets.begin(), widgets.end(), [](const QWidget* widget) {
            return widget->inherits("QTipLabel") && widget->isVisible();
        });
        QVERIFY(tip != widgets.end());
        const QPoint corner = form.Start()->mapToGlobal(QPoint(0, 0));
        // The platform moves a tip aside from the pointer.
        QVERIFY(((*tip)->pos() - corner).manhattanLength() < 40);
    }

    void leavesOtherTipsAlone()
    {
        const TaskForm form;
        QVERIFY(form.Show());
        form.widget->ShowValidateError(EmptyTitle);
        QToolTip::showText(QPoint(10, 10), "of somebody else");
        form.widget->ShowValidateError(NoError);
        QVERIFY(QToolTip::isVisible());
        QCOMPARE(QToolTip::text(), QStringLiteral("of somebody else"));
    }

    void ignoresErrorsWhileHidden()
    {
        const TaskForm form;
        form.widget->ShowValidateError(EmptyTitle);
        QVERIFY(form.Create()->isEnabled());
        QVERIFY(!form.Name()->property("SubStyle").isValid());
        QVERIFY(!QToolTip::isVisible());

        QVERIFY(form.Show());
        form.widget->ShowValidateError(CaptureTimeIntersected);
        form.widget->hide();
        form.widget->ShowValidateError(NoError);
        QVERIFY(!form.Create()->isEnabled());
        QCOMPARE(StyleOf(form.Start()), QStringLiteral("Invalid"));
        QVERIFY(!form.Start()->toolTip().isEmpty());
    }

    void resetsAMarkThatStays_data()
    {
        QTest::addColumn<int>("before");
        QTest::addColumn<int>("after");
        QTest::addColumn<int>("changes");
        QTest::newRow("none, none") << int(NoError) << int(NoError) << 0;
        QTest::newRow("empty, empty") << int(EmptyTitle) << int(EmptyTitle) << 2;
        QTest::newRow("empty, exists") << int(EmptyTitle) << int(TitleAlreadyExists) << 2;
        QTest::newRow("overlap, overlap")
            << int(CaptureTimeIntersected) << int(CaptureTimeIntersected) << 2;
        QTest::newRow("none, empty") << int(NoError) << int(EmptyTitle) << 1;
        QTest::newRow("empty, none") << int(EmptyTitle) << int(NoError) << 1;
        QTest::newRow("empty, overlap") << int(EmptyTitle) << int(CaptureTimeIntersected) << 2;
    }

    void resetsAMarkThatStays()
    {
        QFETCH(int, before);
        QFETCH(int, after);
        const TaskForm form;
        QVERIFY(form.Show());
        form.widget->ShowValidateError(static_cast<ValidateError>(before));
        const EventCounter restyles(form.widget, {QEvent::DynamicPropertyChange});
        form.widget->ShowValidateError(static_cast<ValidateError>(after));
        QTEST(restyles.count, "changes");
    }

    // --- Quiet, keyboard, accessibility ---

    void isQuietWhileNothingChanges()
    {
        const TaskForm form;
        QVERIFY(form.Show());
        form.Date()->setDate(form.Date()->date().addDays(1));
        form.Back()->setFocus();
        form.widget->ShowValidateError(NoError);
        QSignalSpy ticks(form.Timer(), &QTimer::timeout);
        QTRY_VERIFY_WITH_TIMEOUT(ticks.count() >= 1, Patience);
        ChangeSpies spies(form.widget);
        const EventCounter events(form.widget,
                                  {QEvent::Paint, QEvent::UpdateRequest, QEvent::LayoutRequest,
                                   QEvent::Polish, QEvent::StyleChange, QEvent::ToolTipChange,
                                   QEvent::DynamicPropertyChange});
        QTRY_VERIFY_WITH_TIMEOUT(ticks.count() >= 4, Patience);
        QCOMPARE(events.count, 0);
        QCOMPARE(spies.Take(), QStringLiteral("0 0 0 0"));
    }

    void spendsLittleOnItsTimer()
    {
#if defined(__SANITIZE_ADDRESS__)
        QSKIP("Timed in a normal build");
#endif
        const TaskForm form;
        QVERIFY(form.Show());
        form.Date()->setDate(form.Date()->date().addDays(1));
        constexpr int TickCount = 200;
        constexpr qint64 LongestTick = 50000;
        // The best of several rounds: others may be using the processor.
        qint64 best = std::numeric_limits<qint64>::max();
        for (int round = 0; round < 20; ++round) {
            QElapsedTimer timer;
            timer.start();
            for (int tick = 0; tick < TickCount; ++tick) {
                form.Tick();
            }
            best = qMin(best, timer.nsecsElapsed() / TickCount);
        }
        qInfo("A tick takes %lld ns", best);
        QVERIFY(best <= LongestTick);
    }

    void isWalkedThroughInReadingOrder()
    {
        const TaskForm form;
        QVERIFY(form.Show());
        form.Screens()->show();
        // Of the two capture areas one is reached by Tab, the other from there by an arrow key.
        const QList<QWidget*> order{
            form.Name(), form.Date(),    form.Start(),        form.Duration(), form.SelectedArea(),
            form.Info(), form.Screens(), form.FinishAction(), form.Back(),     form.Create()};
        form.Name()->setFocus();
        QList<QWidget*> visited{QApplication::focusWidget()};
        // An editor takes a step for each of its sections.
        for (int step = 0; step < 30 && visited.size() < order.size(); ++step) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            if (QApplication::focusWidget() != visited.last()) {
                visited << QApplication::focusWidget();
            }
        }
        QCOMPARE(visited, order);
        form.SelectedArea()->setFocus();
        QTest::keyClick(form.SelectedArea(), Qt::Key_Down);
        QCOMPARE(QApplication::focusWidget(), form.FullScreen());
        QTest::keyClick(form.FullScreen(), Qt::Key_Up);
        QCOMPARE(QApplication::focusWidget(), form.SelectedArea());
        QVERIFY(form.SelectedArea()->isChecked());
    }

    void namesItsFieldsForAssistiveTechnology_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("scheduledCaptureSettingsNameLineEdit") << "File name:";
        QTest::newRow("scheduledCaptureSettingsDate") << "Date:";
        QTest::newRow("scheduledCaptureSettingsStartTime") << "Time:";
        QTest::newRow("scheduledCaptureSettingsDuration") << "Duration:";
        QTest::newRow("scheduledCaptureSettingsCaptureModeFrame") << "Capture:";
        QTest::newRow("scheduledCaptureSettingsSelectedAreaButton") << "Selected area";
        QTest::newRow("scheduledCaptureSettingsSelectedAreaInfoButton") << "Selected area tooltip";
        QTest::newRow("scheduledCaptureSettingsFullScreenAreaButton") << "Fullscreen";
        QTest::newRow("scheduledCaptureSettingsScreenSelectBox") << "Fullscreen";
        QTest::newRow("scheduledCaptureSettingsActionOnFinishBox") << "Action on finish:";
        QTest::newRow("scheduledCaptureSettingsCreateButton") << "Create";
        QTest::newRow("scheduledCaptureSettingsBackButton") << "Back";
    }

    void namesItsFieldsForAssistiveTechnology()
    {
        QFETCH(QString, name);
        const TaskForm form;
        QWidget* widget = form.Find(QTest::currentDataTag());
        QCOMPARE(AccessibleName(widget), name);
        LanguageSwitch language("CreateRecordTaskWidget");
        language.Toggle();
        QCOMPARE(AccessibleName(widget), "~" + name);
    }

    void canBeDestroyedWithItsCalendarOpen()
    {
        AllowWarning("^This plugin does not support grabbing the keyboard");
        TaskForm form;
        QVERIFY(form.Show());
        form.Date()->calendarWidget()->window()->show();
        QVERIFY(form.Date()->calendarWidget()->isVisible());
        form.window.reset();
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_CreateRecordTaskWidget)

#include "tst_CreateRecordTaskWidget.moc"
