// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <limits>

#include <QAccessible>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolButton>

#include "Boxes.h"
#include "HostInterfaces.h"
#include "MarkingTranslator.h"
#include "Samples.h"
#include "ScheduleRecordTableWidget.h"
#include "StandIns.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

using PX::RecordTime;
using PX::Scheduler::UI::ScheduleRecordTableWidget;
using std::chrono::hours;
using std::chrono::microseconds;
using std::chrono::minutes;
using std::chrono::seconds;

/// A window with the table in it, and short ways to its parts.
struct Table {
    explicit Table(QWidget* parent = nullptr)
        : widget(
            new ScheduleRecordTableWidget(settingsManager, parent != nullptr ? parent : &window))
        , changes(widget, &ScheduleRecordTableWidget::ScheduleChanged)
    {
    }

    QLayout* RecordLayout() const
    {
        return widget->findChild<QWidget*>(QStringLiteral("recordTableFrame"))->layout();
    }

    QWidget* Row(int index) const { return RecordLayout()->itemAt(index)->widget(); }

    QString RowText(int index, const char* name) const
    {
        return Row(index)->findChild<ZLabel*>(QString::fromLatin1(name))->originalText();
    }

    /// Titles from top to bottom; "-" for the placeholder row.
    QString Rows() const
    {
        QStringList rows;
        for (int i = 0; i < RecordLayout()->count(); ++i) {
            if (QWidget* row = RecordLayout()->itemAt(i)->widget()) {
                const auto* title = row->findChild<ZLabel*>(QStringLiteral("titleLabel"));
                rows << (title != nullptr ? title->originalText() : QStringLiteral("-"));
            }
        }
        return rows.join(QLatin1Char(','));
    }

    QString Titles() const
    {
        QStringList titles;
        for (const auto& record : widget->GetPreparedSchedule()) {
            titles << record.title;
        }
        return titles.join(QLatin1Char(','));
    }

    void ClickDelete(int index) const
    {
        Row(index)->findChild<QToolButton*>(QStringLiteral("deleteToolButton"))->click();
    }

    QWidget window;
    std::shared_ptr<FakeSettingsManager> settingsManager = std::make_shared<FakeSettingsManager>();
    ScheduleRecordTableWidget* widget;
    QSignalSpy changes;
};

/// A schedule of \a count tasks of a minute each, one after the other.
std::vector<RecordTime> Tasks(int count)
{
    std::vector<RecordTime> records;
    for (int i = 0; i < count; ++i) {
        records.push_back(
            Record(QString::number(i), At("00:00") + minutes(i), microseconds(minutes(1))));
    }
    return records;
}

QStringList Describe(const QLayout* layout)
{
    QStringList items;
    for (int i = 0; i < layout->count(); ++i) {
        auto* item = layout->itemAt(i);
        items << (item->widget() != nullptr ? item->widget()->objectName()
                                            : QStringLiteral("stretch"));
        if (item->alignment() != Qt::Alignment()) {
            items.last() += QStringLiteral(" aligned");
        }
    }
    return items;
}

} // namespace

class tst_ScheduleRecordTableWidget : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void refusesToBeBuiltWithoutSettingsManager()
    {
        try {
            const ScheduleRecordTableWidget table(nullptr, nullptr);
            QFAIL("no exception");
        } catch (const std::logic_error& error) {
            QCOMPARE(error.what(), "NotNull can not initialized by null");
        }
    }

    void declaresOneSignalAndFourProperties()
    {
        const auto& meta = ScheduleRecordTableWidget::staticMetaObject;
        QCOMPARE(meta.className(), "Zentor::PX::Scheduler::UI::ScheduleRecordTableWidget");
        QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
        QCOMPARE(meta.method(meta.methodOffset()).methodSignature(),
                 QByteArray("ScheduleChanged()"));
        const std::vector<std::pair<const char*, int>> expected{
            {"minHeight", 20}, {"maxRecordCount", 2}, {"heightStep", 20}, {"heightOverflow", 0}};
        QCOMPARE(meta.propertyCount() - meta.propertyOffset(), int(expected.size()));
        const Table table;
        for (std::size_t i = 0; i < expected.size(); ++i) {
            const auto property = meta.property(meta.propertyOffset() + int(i));
            QCOMPARE(property.name(), expected[i].first);
            QCOMPARE(property.read(table.widget).toInt(), expected[i].second);
            QVERIFY(property.isWritable());
            QCOMPARE(int(property.userType()), int(QMetaType::Int));
        }
    }

    void buildsItsTree_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("className");
        QTest::addColumn<QString>("parent");
        const auto row = [](const char* name, const char* className, const char* parent) {
            QTest::newRow(name) << QString::fromLatin1(name) << QString::fromLatin1(className)
                                << QString::fromLatin1(parent);
        };
        row("headerFrame", "Zentor::ZFrame", "table");
        row("headerTitleLabel", "Zentor::ZLabel", "headerFrame");
        row("headerDateLabel", "Zentor::ZLabel", "headerFrame");
        row("headerTimeLabel", "Zentor::ZLabel", "headerFrame");
        row("headerDurationLabel", "Zentor::ZLabel", "headerFrame");
        row("endHeaderSpacer", "QFrame", "headerFrame");
        row("recordTableScrollArea", "QScrollArea", "table");
        row("recordTableFrame", "Zentor::ZFrame", "qt_scrollarea_viewport");
        row("wheelEventsBlocker", "Zentor::PX::UI::WheelEventsBlocker", "qt_scrollarea_viewport");
        row("stubInfoRecordFrame", "Zentor::ZFrame", "recordTableFrame");
        for (const char* name : {"stubTitleLabel", "stubDateLabel", "stubTimeLabel",
                                 "stubDurationLabel", "stubDeleteToolButton"}) {
            row(name, "QFrame", "stubInfoRecordFrame");
        }
    }

    void buildsItsTree()
    {
        QFETCH(QString, name);
        QFETCH(QString, className);
        QFETCH(QString, parent);
        const Table table;
        table.widget->setObjectName(QStringLiteral("table"));
        const auto found = table.widget->findChildren<QObject*>(name);
        QCOMPARE(found.size(), 1);
        QCOMPARE(QString::fromLatin1(found.first()->metaObject()->className()), className);
        QCOMPARE(found.first()->parent()->objectName(), parent);
    }

    void createsChildrenInOrder()
    {
        const Table table;
        QStringList names;
        for (const auto* child : table.widget->findChildren<QFrame*>(
                 QRegularExpression(QStringLiteral("^header|^endHeader|^recordTableScroll")))) {
            names << child->objectName();
        }
        QCOMPARE(
            names,
            QStringList({"headerFrame", "headerTitleLabel", "headerDateLabel", "headerTimeLabel",
                         "headerDurationLabel", "endHeaderSpacer", "recordTableScrollArea"}));
    }

    void laysOutWithoutMarginsAndSpacing()
    {
        Table table;
        table.widget->AddRecord(Record("A", "10:00"));
        auto layouts = table.widget->findChildren<QLayout*>();
        // The scroll area lays out its scroll bars by itself.
        layouts.erase(std::remove_if(layouts.begin(), layouts.end(),
                                     [](const QLayout* layout) {
                                         return layout->parent()->objectName().startsWith(
                                             QLatin1String("qt_"));
                                     }),
                      layouts.end());
        QCOMPARE(layouts.size(), 4);
        for (const auto* layout : layouts) {
            QCOMPARE(layout->contentsMargins(), QMargins());
            QCOMPARE(layout->spacing(), 0);
        }
        QCOMPARE(Describe(table.widget->layout()),
                 QStringList({"headerFrame", "recordTableScrollArea"}));
        QVERIFY(qobject_cast<QVBoxLayout*>(table.widget->layout()) != nullptr);
        const auto* header = table.widget->findChild<QWidget*>(QStringLiteral("headerFrame"));
        QVERIFY(qobject_cast<QHBoxLayout*>(header->layout()) != nullptr);
        QCOMPARE(Describe(header->layout()),
                 QStringList({"headerTitleLabel", "headerDateLabel", "headerTimeLabel",
                              "headerDurationLabel", "endHeaderSpacer", "stretch"}));
        QVERIFY(qobject_cast<QVBoxLayout*>(table.RecordLayout()) != nullptr);
        QCOMPARE(Describe(table.RecordLayout()), QStringList({"infoRecordFrame", "stretch"}));
        QCOMPARE(Describe(table.Row(0)->layout()),
                 QStringList({"titleLabel", "dateLabel", "timeLabel", "durationLabel",
                              "deleteToolButton", "stretch"}));
    }

    void keepsTheScrollAreasDefaults()
    {
        const Table table;
        const auto* area = table.widget->findChild<QScrollArea*>();
        const QScrollArea defaults;
        QCOMPARE(area->widgetResizable(), false);
        QCOMPARE(area->frameShape(), defaults.frameShape());
        QCOMPARE(area->verticalScrollBarPolicy(), defaults.verticalScrollBarPolicy());
        QCOMPARE(area->horizontalScrollBarPolicy(), defaults.horizontalScrollBarPolicy());
    }

    void showsThePlaceholderWhileEmpty()
    {
        Table table;
        QCOMPARE(table.Rows(), QString("-"));
        QCOMPARE(table.widget->height(), 40);
        QCOMPARE(Describe(table.Row(0)->layout()),
                 QStringList({"stubTitleLabel", "stubDateLabel", "stubTimeLabel",
                              "stubDurationLabel", "stubDeleteToolButton", "stretch"}));
        table.settingsManager->SetConfirmed(QStringLiteral("remove_schedule_record_always"), true);

        table.widget->AddRecord(Record("A", "10:00"));
        QCOMPARE(table.Rows(), QString("A"));
        table.widget->AddRecord(Record("B", "11:00"));
        QCOMPARE(table.Rows(), QString("A,B"));
        table.ClickDelete(0);
        QCOMPARE(table.Rows(), QString("B"));
        table.ClickDelete(0);
        QCOMPARE(table.Rows(), QString("-"));
        table.widget->AddRecord(Record("C", "10:00"));
        QCOMPARE(table.Rows(), QString("C"));
    }

    void insertsRowsWhereTheScheduleHasThem()
    {
        Table table;
        table.widget->AddRecords({Record("C", "12:00"), Record("A", "10:00"), Record("D", "13:00"),
                                  Record("B", "11:00")});
        QCOMPARE(table.Rows(), QString("A,B,C,D"));
        QCOMPARE(table.Titles(), QString("A,B,C,D"));
        QCOMPARE(table.changes.count(), 4);
    }

    void ignoresRefusedRecords()
    {
        Table table;
        table.widget->AddRecords({Record("A", "10:00"), Record("A", "12:00"), Record("B", "10:00"),
                                  Record("", "14:00")});
        QCOMPARE(table.Rows(), QString("A"));
        QCOMPARE(table.changes.count(), 1);
    }

    void clearsEverything()
    {
        Table table;
        table.widget->AddRecords(Tasks(5));
        table.changes.clear();
        const QPointer<QWidget> row(table.Row(2));
        table.widget->ClearSchedule();
        QVERIFY(row.isNull());
        QCOMPARE(table.Rows(), QString("-"));
        QVERIFY(table.widget->IsScheduleEmpty());
        QCOMPARE(table.changes.count(), 1);
        QCOMPARE(table.widget->height(), 40);

        table.widget->ClearSchedule();
        QCOMPARE(table.Rows(), QString("-"));
        QCOMPARE(table.changes.count(), 2);
        QCOMPARE(Describe(table.RecordLayout()), QStringList({"stubInfoRecordFrame", "stretch"}));
    }

    void forwardsToItsSchedule()
    {
        Table table;
        QVERIFY(table.widget->IsScheduleEmpty());
        table.widget->AddRecord(Record("A", "10:00", minutes(10)));
        QVERIFY(!table.widget->IsScheduleEmpty());
        QVERIFY(table.widget->DoesTitleAlreadyExists(QStringLiteral("A")));
        QVERIFY(!table.widget->DoesTitleAlreadyExists(QStringLiteral("a")));
        QVERIFY(table.widget->DoesCaptureTimeIntersected(Record("", "10:05")));
        QVERIFY(!table.widget->DoesCaptureTimeIntersected(Record("", "10:10")));
        QCOMPARE(table.Titles(), QString("A"));
    }

    void showsRecords_data()
    {
        QTest::addColumn<qint64>("start");
        QTest::addColumn<qint64>("duration");
        QTest::addColumn<QString>("date");
        QTest::addColumn<QString>("time");
        QTest::addColumn<QString>("durationText");
        const qint64 day = 86400000000;
        const auto row = [](const char* name, qint64 start, qint64 duration, const char* texts) {
            const auto parts = QString::fromLatin1(texts).split(QLatin1Char(' '));
            QTest::newRow(name) << start << duration << parts.value(0) << parts.value(1)
                                << parts.value(2);
        };
        row("epoch", 0, 0, "01.01.1970 00:00:00 00:00:00");
        row("start cut to milliseconds", 999, 999, "01.01.1970 00:00:00 00:00:00");
        row("before the epoch, cut toward zero", -999, 0, "01.01.1970 00:00:00 00:00:00");
        row("a second before the epoch", -1000000, 0, "31.12.1969 23:59:59 00:00:00");
        row("90 minutes", day, 5400000000, "02.01.1970 00:00:00 01:30:00");
        row("longest clock reading", day, day - 1000000, "02.01.1970 00:00:00 23:59:59");
        row("last microsecond of a day", day, day - 1, "02.01.1970 00:00:00 23:59:59");
        row("24 hours", day, day, "02.01.1970 00:00:00 ");
        row("narrowed to int it would be five seconds", day, (1LL << 32) * 1000 + 5000000,
            "02.01.1970 00:00:00 ");
    }

    void showsRecords()
    {
        QFETCH(qint64, start);
        QFETCH(qint64, duration);
        Table table;
        table.widget->AddRecord(Record(QStringLiteral("A"),
                                       Time::IClock::time_point(microseconds(start)),
                                       microseconds(duration)));
        QTEST(table.RowText(0, "dateLabel"), "date");
        QTEST(table.RowText(0, "timeLabel"), "time");
        QTEST(table.RowText(0, "durationLabel"), "durationText");
        QCOMPARE(table.RowText(0, "titleLabel"), QString("A"));
        QCOMPARE(table.Row(0)->objectName(), QString("infoRecordFrame"));
        QCOMPARE(table.Row(0)->parentWidget()->objectName(), QString("recordTableFrame"));
    }

    void showsTitlesLiterally()
    {
        Table table;
        const auto title = QStringLiteral("<b>Bold</b> & <img src='x'>");
        table.widget->AddRecord(Record(title, At("10:00"), minutes(1)));
        const auto* label = table.Row(0)->findChild<ZLabel*>(QStringLiteral("titleLabel"));
        QCOMPARE(label->textFormat(), Qt::PlainText);
        QCOMPARE(label->text(), title);
    }

    void namesTheDeleteButtonForScreenReaders()
    {
        Table table;
        table.widget->AddRecord(Record("Lecture", "10:00"));
        auto* button = table.Row(0)->findChild<QToolButton*>();
        QVERIFY(button->text().isEmpty());
        QVERIFY(button->icon().isNull());
        QCOMPARE(QAccessible::queryAccessibleInterface(button)->text(QAccessible::Name),
                 QString("Delete Lecture"));
    }

    void computesItsHeight_data()
    {
        QTest::addColumn<int>("maxRecordCount");
        QTest::addColumn<int>("heightOverflow");
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("height");
        const auto rows = [](const char* name, int maxRecordCount, int overflow,
                             std::initializer_list<int> heights) {
            const int counts[] = {0, 1, 2, 3, 10};
            const int* count = counts;
            for (const int height : heights) {
                QTest::addRow("%s, %d tasks", name, *count)
                    << maxRecordCount << overflow << *count << height;
                ++count;
            }
        };
        rows("defaults", 2, 0, {40, 40, 60, 60, 60});
        rows("overflow 5", 2, 5, {40, 40, 60, 65, 65});
        rows("maximum 0", 0, 5, {40, 40, 45, 45, 45});
        rows("maximum 1", 1, 5, {40, 40, 45, 45, 45});
        rows("maximum 3", 3, 5, {40, 40, 60, 80, 85});
        rows("negative maximum", -1, 5, {40, 40, 60, 80, 220});
        rows("lowest maximum", std::numeric_limits<int>::min(), 5, {40, 40, 60, 80, 220});
        rows("highest maximum", std::numeric_limits<int>::max(), 5, {40, 40, 60, 80, 220});
    }

    void computesItsHeight()
    {
        QFETCH(int, maxRecordCount);
        QFETCH(int, heightOverflow);
        QFETCH(int, count);
        Table table;
        table.widget->setProperty("maxRecordCount", maxRecordCount);
        table.widget->setProperty("heightOverflow", heightOverflow);
        const int width = table.widget->width();
        table.widget->ClearSchedule();
        table.widget->AddRecords(Tasks(count));
        QTEST(table.widget->height(), "height");
        QCOMPARE(table.widget->minimumSize(), table.widget->maximumSize());
        QCOMPARE(table.widget->minimumWidth(), width);
    }

    void survivesNonsenseHeights()
    {
        Table table;
        table.widget->setProperty("heightStep", std::numeric_limits<int>::max());
        table.widget->AddRecords(Tasks(3));
        QCOMPARE(table.widget->height(), QWIDGETSIZE_MAX);
        table.widget->setProperty("heightStep", std::numeric_limits<int>::min());
        table.widget->ClearSchedule();
        QCOMPARE(table.widget->height(), 0);
    }

    void takesWidthAndHeightsFromTheStyleSheetByClass()
    {
        QWidget window;
        window.setStyleSheet(QStringLiteral(
            "Zentor--PX--Scheduler--UI--ScheduleRecordTableWidget { min-width: 432px;"
            " qproperty-minHeight: 30; qproperty-heightStep: 7; qproperty-maxRecordCount: 3;"
            " qproperty-heightOverflow: 2; }"));
        const Table table(&window);
        QCOMPARE(table.widget->size(), QSize(432, 37));
        table.widget->AddRecords(Tasks(4));
        QCOMPARE(table.widget->size(), QSize(432, 53));
    }

    void fixesItsHeightBeforeAnyoneElseHears()
    {
        Table table;
        QList<int> heights;
        connect(table.widget, &ScheduleRecordTableWidget::ScheduleChanged, table.widget,
                [&] { heights << table.widget->height(); });
        table.widget->AddRecords(Tasks(3));
        QCOMPARE(heights, QList<int>({40, 60, 60}));
    }

    void putsRowsOnTheScreenWithAResizableList()
    {
        QWidget window;
        window.setStyleSheet(QStringLiteral(
            "Zentor--PX--Scheduler--UI--ScheduleRecordTableWidget { min-width: 400px;"
            " qproperty-heightStep: 30; }"
            "#recordTableScrollArea { qproperty-widgetResizable: true; }"
            "#infoRecordFrame { background: #ff0000; min-height: 30px; }"));
        const Table table(&window);
        table.widget->AddRecord(Record("A", "10:00"));
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QVERIFY(!table.Row(0)->visibleRegion().isEmpty());
        const auto picture = table.widget->grab().toImage();
        const auto middle =
            table.Row(0)->mapTo(table.widget, QPoint(table.Row(0)->width() - 3, 15));
        QCOMPARE(picture.pixelColor(middle), QColor(Qt::red));
    }

    void restylesTheChildrenOfTheRowUnderTheMouse()
    {
        Table table;
        table.widget->AddRecords(Tasks(2));
        const auto styles = [&](int row) {
            QStringList result;
            for (const auto* child : table.Row(row)->findChildren<QWidget*>()) {
                result << child->property("SubStyle").toString();
            }
            return result.join(QLatin1Char(','));
        };
        QEvent enter(QEvent::Enter);
        QEvent leave(QEvent::Leave);
        QVERIFY(!table.widget->eventFilter(table.Row(0), &enter));
        QCOMPARE(styles(0), QString("Hover,Hover,Hover,Hover,Hover"));
        QCOMPARE(styles(1), QString(",,,,"));
        QVERIFY(!table.Row(0)->property("SubStyle").isValid());
        QVERIFY(!table.widget->eventFilter(table.Row(0), &leave));
        QCOMPARE(styles(0), QString("Normal,Normal,Normal,Normal,Normal"));
        QCoreApplication::sendEvent(table.Row(1), &enter);
        QCOMPARE(styles(1), QString("Hover,Hover,Hover,Hover,Hover"));
        QCOMPARE(styles(0), QString("Normal,Normal,Normal,Normal,Normal"));
    }

    void clearsTheScheduleUnderTheMouse_data()
    {
        QTest::addColumn<QString>("name");
        for (const char* name : {"titleLabel", "durationLabel", "deleteToolButton"}) {
            QTest::newRow(name) << QString(name);
        }
    }

    /// The row is told that the mouse is on it once more, when it has begun to lose its children.
    void clearsTheScheduleUnderTheMouse()
    {
        QFETCH(QString, name);
        QWidget window;
        window.setStyleSheet(QStringLiteral(
            "Zentor--PX--Scheduler--UI--ScheduleRecordTableWidget { min-width: 400px;"
            " qproperty-heightStep: 30; }"
            "#recordTableScrollArea { qproperty-widgetResizable: true; }"
            "#infoRecordFrame { min-height: 30px; }"));
        const Table table(&window);
        table.widget->AddRecords(Tasks(2));
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QWidget* child = table.Row(0)->findChild<QWidget*>(name);
        // From the other row: Qt 5 overlooks the first thing that the mouse is on.
        for (const QWidget* widget : {table.Row(1)->findChild<QWidget*>(name), child}) {
            const QPoint place = widget->mapTo(&window, widget->rect().center());
            QMouseEvent move(QEvent::MouseMove, place, place, window.mapToGlobal(place),
                             Qt::NoButton, Qt::NoButton, Qt::NoModifier);
            QCoreApplication::sendEvent(window.windowHandle(), &move);
        }
        QCOMPARE(child->property("SubStyle").toString(), QStringLiteral("Hover"));
        table.widget->ClearSchedule();
        QCOMPARE(table.Rows(), QStringLiteral("-"));
    }

    void letsOtherEventsOfRowsPass()
    {
        Table table;
        table.widget->AddRecord(Record("A", "10:00"));
        QMouseEvent press(QEvent::MouseButtonPress, QPointF(), QPointF(), Qt::LeftButton,
                          Qt::LeftButton, {});
        QVERIFY(!table.widget->eventFilter(table.Row(0), &press));
        QVERIFY(!table.Row(0)->findChild<QToolButton*>()->property("SubStyle").isValid());
    }

    void isNotScrolledByTheWheel()
    {
        QWidget window;
        window.setStyleSheet(
            QStringLiteral("#recordTableScrollArea { qproperty-widgetResizable: true; }"
                           "#infoRecordFrame { min-height: 40px; }"));
        const Table table(&window);
        table.widget->AddRecords(Tasks(20));
        window.show();
        auto* area = table.widget->findChild<QScrollArea*>();
        QTRY_VERIFY_WITH_TIMEOUT(area->verticalScrollBar()->maximum() > 0, Patience);
        QWheelEvent wheel(QPointF(5, 5), area->viewport()->mapToGlobal(QPoint(5, 5)), QPoint(),
                          QPoint(0, -120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(area->viewport(), &wheel);
        QCOMPARE(area->verticalScrollBar()->value(), 0);
    }

    void asksBeforeItDeletes()
    {
        Table table;
        table.widget->AddRecord(Record("A", "10:00"));
        table.changes.clear();
        ExpectedBox box([&](QMessageBox& question) {
            QCOMPARE(question.text(),
                     QString("The task will be permanently deleted from the recording schedule. "
                             "Are you sure you want to delete the task?"));
            QCOMPARE(question.windowTitle(), QString());
            QCOMPARE(question.standardButtons(), QMessageBox::Ok | QMessageBox::Cancel);
            QCOMPARE(question.button(QMessageBox::Ok)->text(), QString("Delete"));
            QCOMPARE(question.checkBox()->text(), QString("Always delete"));
            QCOMPARE(question.parentWidget(), &table.window);
            QVERIFY(question.windowFlags().testFlag(Qt::Dialog));
            QVERIFY(question.windowFlags().testFlag(Qt::MSWindowsFixedSizeDialogHint));
            QCOMPARE(question.icon(), QMessageBox::Question);
            QVERIFY(qobject_cast<App::ConfirmationAlertBox*>(&question) != nullptr);
            question.button(QMessageBox::Ok)->click();
        });
        table.ClickDelete(0);
        QVERIFY(box.Came());
        QCOMPARE(table.Titles(), QString());
        QCOMPARE(table.Rows(), QString("-"));
        QCOMPARE(table.changes.count(), 1);
        QVERIFY(
            !table.settingsManager->IsConfirmed(QStringLiteral("remove_schedule_record_always")));
    }

    void deletesTheRowInTheEventLoop()
    {
        Table table;
        table.widget->AddRecords(Tasks(2));
        table.settingsManager->SetConfirmed(QStringLiteral("remove_schedule_record_always"), true);
        const QPointer<QWidget> row(table.Row(0));
        table.ClickDelete(0);
        QVERIFY(!row.isNull());
        QVERIFY(row->isHidden());
        QTRY_VERIFY_WITH_TIMEOUT(row.isNull(), Patience);
    }

    void keepsTheTaskWhenTheAnswerIsNo_data()
    {
        QTest::addColumn<int>("way");
        QTest::newRow("Cancel") << 0;
        QTest::newRow("Escape") << 1;
        QTest::newRow("closed") << 2;
    }

    void keepsTheTaskWhenTheAnswerIsNo()
    {
        QFETCH(int, way);
        Table table;
        table.widget->AddRecord(Record("A", "10:00"));
        table.changes.clear();
        ExpectedBox box([way](QMessageBox& question) {
            question.checkBox()->setChecked(true);
            if (way == 0) {
                question.button(QMessageBox::Cancel)->click();
            } else if (way == 1) {
                PressEscape(question);
            } else {
                question.close();
            }
        });
        table.ClickDelete(0);
        QVERIFY(box.Came());
        QCOMPARE(table.Rows(), QString("A"));
        QCOMPARE(table.Titles(), QString("A"));
        QCOMPARE(table.changes.count(), 0);
        QVERIFY(table.settingsManager->confirmed.isEmpty());
    }

    void doesNotAskAgainOnceAlwaysIsTicked()
    {
        Table table;
        table.widget->AddRecords(Tasks(3));
        ExpectedBox box([](QMessageBox& question) {
            question.checkBox()->setChecked(true);
            question.button(QMessageBox::Ok)->click();
        });
        table.ClickDelete(1);
        QVERIFY(box.Came());
        QCOMPARE(table.Rows(), QString("0,2"));
        QVERIFY(
            table.settingsManager->IsConfirmed(QStringLiteral("remove_schedule_record_always")));

        const ExpectedBox noBox(QMessageBox::Cancel);
        table.ClickDelete(0);
        QVERIFY(!noBox.Came());
        QCOMPARE(table.Rows(), QString("2"));
    }

    void asksForEachRowWhileAQuestionIsOpen_data()
    {
        QTest::addColumn<int>("second");
        QTest::addColumn<bool>("isFirstAccepted");
        QTest::addColumn<bool>("isSecondAccepted");
        QTest::addColumn<QString>("rows");
        QTest::newRow("another row, both") << 1 << true << true << "2";
        QTest::newRow("another row, the first") << 1 << true << false << "1,2";
        QTest::newRow("another row, the second") << 1 << false << true << "0,2";
        QTest::newRow("another row, none") << 1 << false << false << "0,1,2";
        QTest::newRow("the same row, both") << 0 << true << true << "1,2";
        QTest::newRow("the same row, the first") << 0 << true << false << "1,2";
        QTest::newRow("the same row, the second") << 0 << false << true << "1,2";
        QTest::newRow("the same row, none") << 0 << false << false << "0,1,2";
    }

    void asksForEachRowWhileAQuestionIsOpen()
    {
        QFETCH(int, second);
        QFETCH(bool, isFirstAccepted);
        QFETCH(bool, isSecondAccepted);
        QFETCH(QString, rows);
        Table table;
        table.widget->AddRecords(Tasks(3));
        table.changes.clear();
        const auto answer = [](bool isAccepted) {
            return isAccepted ? QMessageBox::Ok : QMessageBox::Cancel;
        };
        const ExpectedBox box([&](QMessageBox& question) {
            const ExpectedBox other(answer(isSecondAccepted));
            table.ClickDelete(second);
            QVERIFY(other.Came());
            question.button(answer(isFirstAccepted))->click();
        });
        table.ClickDelete(0);
        QVERIFY(box.Came());
        QCOMPARE(table.Rows(), rows);
        QCOMPARE(table.Titles(), rows);
        QCOMPARE(table.changes.count(), 3 - rows.split(',').size());
    }

    /// The answer is about the task that has gone, not about a new one that has its title.
    void leavesANewTaskOfTheSameTitleAlone()
    {
        Table table;
        table.widget->AddRecord(Record("A", "10:00"));
        table.changes.clear();
        const ExpectedBox box([&](QMessageBox& question) {
            const ExpectedBox other(QMessageBox::Ok);
            table.ClickDelete(0);
            QVERIFY(other.Came());
            QCOMPARE(table.Rows(), QString("-"));
            table.widget->AddRecord(Record("A", "12:00"));
            question.button(QMessageBox::Ok)->click();
        });
        table.ClickDelete(0);
        QVERIFY(box.Came());
        QCOMPARE(table.Rows(), QString("A"));
        QCOMPARE(table.Titles(), QString("A"));
        QCOMPARE(table.changes.count(), 2);
    }

    void survivesItsEndWhileItAsks_data()
    {
        QTest::addColumn<QString>("victim");
        QTest::newRow("the table") << "table";
        QTest::newRow("its window") << "window";
        QTest::newRow("the box") << "box";
        QTest::newRow("the row") << "row";
    }

    void survivesItsEndWhileItAsks()
    {
        QFETCH(QString, victim);
        auto window = std::make_unique<QWidget>();
        window->setStyleSheet(
            QStringLiteral("#recordTableScrollArea { qproperty-widgetResizable: true; }"));
        const auto table = std::make_unique<Table>(window.get());
        table->widget->AddRecord(Record("A", "10:00"));
        table->changes.clear();
        window->show();
        ExpectedBox box([&](QMessageBox& question) {
            if (victim == QLatin1String("table")) {
                delete table->widget;
            } else if (victim == QLatin1String("window")) {
                window.reset();
            } else if (victim == QLatin1String("box")) {
                delete &question;
            } else {
                table->widget->ClearSchedule();
                question.button(QMessageBox::Ok)->click();
            }
        });
        QTest::mouseClick(table->Row(0)->findChild<QToolButton*>(), Qt::LeftButton);
        QVERIFY(box.Came());
        QVERIFY(!IsBoxOpen());
        QCOMPARE(table->changes.count(), victim == QLatin1String("row") ? 1 : 0);
    }

    void retranslatesTheHeaderOnly()
    {
        Table table;
        table.widget->AddRecord(Record("A", "10:00", minutes(90)));
        const auto texts = [&] {
            QStringList result;
            for (const auto* label : table.widget->findChildren<ZLabel*>()) {
                result << label->originalText();
            }
            return result;
        };
        const QStringList row{"A", "01.03.2030", "10:00:00", "01:30:00"};
        QCOMPARE(texts(), QStringList({"File name", "Date", "Time", "Duration"}) + row);
        table.changes.clear();
        LanguageSwitch language("ScheduleRecordTableWidget");
        language.Toggle();
        QCOMPARE(texts(), QStringList({"~File name", "~Date", "~Time", "~Duration"}) + row);
        QCOMPARE(table.changes.count(), 0);

        table.widget->ClearSchedule();
        table.widget->AddRecord(Record("B", "10:00", minutes(90)));
        QCOMPARE(texts(),
                 QStringList({"~File name", "~Date", "~Time", "~Duration", "B", "2030-03-01",
                              "10.00.00", "01.30.00"}));
        ExpectedBox box([&](QMessageBox& question) {
            QVERIFY(question.text().startsWith(QLatin1String("~The task will be")));
            QCOMPARE(question.button(QMessageBox::Ok)->text(), QString("~Delete"));
            QCOMPARE(question.checkBox()->text(), QString("~Always delete"));
            question.reject();
        });
        table.ClickDelete(0);
        QVERIFY(box.Came());
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_ScheduleRecordTableWidget)

#include "tst_ScheduleRecordTableWidget.moc"
