// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QCalendarWidget>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTimeEdit>
#include <QToolButton>

#include "AppWindow.h"
#include "Boxes.h"
#include "FullDisk.h"
#include "Languages.h"
#include "MarkingTranslator.h"
#include "PageRow.h"
#include "PanelParts.h"
#include "QtNames.h"
#include "RecordingsList.h"
#include "RecordSchedulerWidget.h"
#include "Resources.h"
#include "Theme.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

using namespace std::chrono_literals;
using Panel = PX::Scheduler::UI::RecordSchedulerWidget;

std::vector<PX::RecordTime> Tasks(int count)
{
    std::vector<PX::RecordTime> tasks;
    for (int index = 0; index < count; ++index) {
        tasks.push_back(Record(QStringLiteral("Task %1").arg(index),
                               At("10:00") + std::chrono::hours(index), 30min));
    }
    return tasks;
}

/// How many pixels of \a picture stand out from \a ground.
int InkOn(const QImage& picture, const QColor& ground)
{
    constexpr int clearlyOther = 60;
    int ink = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const int difference = picture.pixelColor(x, y).lightness() - ground.lightness();
            ink += std::abs(difference) > clearlyOther ? 1 : 0;
        }
    }
    return ink;
}

/// A folder on a file system that has no room for files.
QString FullFolder()
{
    return QStringLiteral("/proc/recordings");
}

/// Holds back the click of a button that its key only announces: it would come a tenth of a second
/// later, when the test has moved on, and open a question that nobody answers.
class HeldClick final : public QObject {
public:
    explicit HeldClick(QAbstractButton* button)
        : QObject(button)
    {
        button->installEventFilter(this);
    }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        return event->type() == QEvent::Timer;
    }
};

/// Whether the Tab key stops at \a widget itself, not at one that has taken it in.
bool IsStopOfTab(const QWidget& widget)
{
    return widget.isVisible() && widget.isEnabled()
        && (widget.focusPolicy() & Qt::TabFocus) == Qt::TabFocus && widget.focusProxy() == nullptr
        && qobject_cast<const QAbstractSpinBox*>(widget.parentWidget()) == nullptr;
}

/// Presses a letter with its text, for letters that Qt Test knows no key of.
void PressWithAlt(const QWidget& window, int letter)
{
    QTest::sendKeyEvent(QTest::Click, window.windowHandle(), Qt::Key(letter), QChar(letter),
                        Qt::AltModifier);
}

} // namespace

class tst_MainWindow : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Desktop::RegisterResources();
        Desktop::ApplyTheme(Desktop::Theme::Light);
    }

    void cleanup()
    {
        Close();
        m_app.reset();
        WidgetTest::cleanup();
    }

    void opensOnTheSchedule()
    {
        Open();
        QCOMPARE(PageList()->currentRow(), PageRow::Schedule);
        QVERIFY(Find<Panel>("recordSchedulerWidget")->isVisible());
        QVERIFY(Button(Desktop::PanelPart::OffModeButton)->isChecked());
    }

    void putsEveryRowOnScreen()
    {
        Open(Tasks(5));
        const QImage picture = Window().grab().toImage();
        const QColor ground(
            Desktop::ColorsOf(Desktop::Theme::Light).value(QStringLiteral("surface")));
        const auto rows = Window().findChildren<QWidget*>(Desktop::PanelPart::Row);
        QCOMPARE(rows.size(), 5);
        for (const QWidget* row : rows) {
            for (const QString& name :
                 {Desktop::PanelPart::RowTitle, Desktop::PanelPart::RowDate,
                  Desktop::PanelPart::RowTime, Desktop::PanelPart::RowDuration,
                  Desktop::PanelPart::RowDeleteButton}) {
                const auto* child = row->findChild<QWidget*>(name);
                QCOMPARE(child->visibleRegion(), QRegion(child->rect()));
                const QRect place(child->mapTo(&Window(), QPoint(0, 0)), child->size());
                QVERIFY2(InkOn(picture.copy(place), ground) > 20, qPrintable(name));
            }
        }
    }

    void givesTheTableItsHeight_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("height");
        QTest::newRow("empty") << 0 << 78;
        QTest::newRow("one") << 1 << 78;
        QTest::newRow("two") << 2 << 118;
        QTest::newRow("all shown") << 5 << 238;
        QTest::newRow("one more") << 6 << 258;
        QTest::newRow("many") << 20 << 258;
    }

    void givesTheTableItsHeight()
    {
        QFETCH(int, count);
        QFETCH(int, height);
        Open(Tasks(count));
        // In a window without room for more rows than the style sheet asks for.
        Window().resize(Desktop::MainWindow::FirstSize().width(), 400);
        Click(Desktop::PanelPart::ScheduledModeButton);
        QTRY_COMPARE_WITH_TIMEOUT(Find<QWidget>(Desktop::PanelPart::Table)->size(),
                                  QSize(710, height), Patience);

        // The numbers that the height is made of are the heights of what is shown.
        QCOMPARE(Find<QWidget>("headerFrame")->height(), 36);
        const QString row =
            count == 0 ? Desktop::PanelPart::PlaceholderRow : Desktop::PanelPart::Row;
        QCOMPARE(Find<QWidget>(row)->height(), 40);
        const auto* scrollArea = Find<QScrollArea>(Desktop::PanelPart::List);
        QTRY_COMPARE_WITH_TIMEOUT(scrollArea->verticalScrollBar()->isVisible(), count > 5,
                                  Patience);
        QVERIFY(!scrollArea->horizontalScrollBar()->isVisible());
    }

    void alignsTheColumns()
    {
        Open(Tasks(6));
        const std::pair<QString, QString> columns[] = {
            {"headerTitleLabel", Desktop::PanelPart::RowTitle},
            {"headerDateLabel", Desktop::PanelPart::RowDate},
            {"headerTimeLabel", Desktop::PanelPart::RowTime},
            {"headerDurationLabel", Desktop::PanelPart::RowDuration}};
        for (const auto& [head, cell] : columns) {
            const QPoint origin(0, 0);
            QCOMPARE(Find<QWidget>(cell)->mapTo(&Window(), origin).x(),
                     Find<QWidget>(head)->mapTo(&Window(), origin).x());
            QCOMPARE(Find<QWidget>(cell)->width(), Find<QWidget>(head)->width());
        }
    }

    void keepsCaptionsBesideTheirButtons()
    {
        Open();
        const std::pair<QString, QString> captions[] = {
            {Desktop::PanelPart::OffModeButton, "disableScheduledCaptureLabel"},
            {Desktop::PanelPart::LimitedModeButton, "limitedCaptureDurationLabel"},
            {Desktop::PanelPart::ScheduledModeButton, "scheduledCaptureLabel"}};
        for (const auto& [button, caption] : captions) {
            QCOMPARE(Find<QWidget>(button)->width(), 24);
            QCOMPARE(Find<QWidget>(caption)->x(), Find<QWidget>(button)->geometry().right() + 1);
        }
    }

    void findsEverythingAsItWasLeft()
    {
        Open(Tasks(3));
        {
            const ExpectedBox box(QMessageBox::Ok);
            Click(Desktop::PanelPart::RowDeleteButton);
            QVERIFY(box.Came());
        }
        PageList()->setCurrentRow(PageRow::Files);
        Find<QLineEdit>("resultsFolderEdit")->setText(QDir::tempPath());
        Window().setGeometry(30, 40, 720, 500);
        Close();

        Reopen();
        QCOMPARE(PageList()->currentRow(), PageRow::Files);
        QCOMPARE(Find<QLineEdit>("resultsFolderEdit")->text(), QDir::tempPath());
        QCOMPARE(Window().geometry(), QRect(30, 40, 720, 500));
        PageList()->setCurrentRow(PageRow::Schedule);
        QVERIFY(Button(Desktop::PanelPart::ScheduledModeButton)->isChecked());
        QCOMPARE(Titles(), (QStringList{QStringLiteral("Task 1"), QStringLiteral("Task 2")}));
        {
            const ExpectedBox box(QMessageBox::Ok);
            Click(Desktop::PanelPart::LimitedModeButton);
            QVERIFY(box.Came());
        }
        Find<QTimeEdit>(Desktop::PanelPart::LimitedDurationField)->setTime(QTime(1, 30));
        Find<QComboBox>(Desktop::PanelPart::LimitedActionBox)->setCurrentIndex(2);
        Close();

        Reopen();
        QCOMPARE(PageList()->currentRow(), PageRow::Schedule);
        QVERIFY(Button(Desktop::PanelPart::LimitedModeButton)->isChecked());
        QCOMPARE(Find<QTimeEdit>(Desktop::PanelPart::LimitedDurationField)->time(), QTime(1, 30));
        QCOMPARE(Find<QComboBox>(Desktop::PanelPart::LimitedActionBox)->currentIndex(), 2);
        QCOMPARE(Titles(), QStringList());
    }

    void showsFilesWhenThePanelAsksForThem()
    {
        Open();
        Q_EMIT Find<Panel>("recordSchedulerWidget")->OpenFilesSettingsRequested();
        QCOMPARE(PageList()->currentRow(), PageRow::Files);
        QVERIFY(Find<QLineEdit>("resultsFolderEdit")->isVisible());
    }

    void asksForARecordingWhereNothingStandsAgainstIt_data()
    {
        QTest::addColumn<int>("page");
        QTest::newRow("schedule") << PageRow::Schedule;
        QTest::newRow("files") << PageRow::Files;
    }

    void asksForARecordingWhereNothingStandsAgainstIt()
    {
        QFETCH(int, page);
        Open();
        PageList()->setCurrentRow(page);
        QVERIFY(Button("startRecordingButton")->isVisible());
        QCOMPARE(StatusText(), QString());
        Click("startRecordingButton");
        QCOMPARE(m_requests, 1);
    }

    void asksForNoRecordingWithAFolderThatCannotBeUsed_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<bool>("isTyped");
        for (const bool isTyped : {false, true}) {
            const char* how = isTyped ? "typed" : "stored";
            QTest::addRow("relative, %s", how) << QStringLiteral("recordings") << isTyped;
            QTest::addRow("file, %s", how) << QStringLiteral("/proc/version") << isTyped;
            QTest::addRow("cannot be created, %s", how)
                << QStringLiteral("/proc/version/recordings") << isTyped;
        }
    }

    void asksForNoRecordingWithAFolderThatCannotBeUsed()
    {
        QFETCH(QString, folder);
        QFETCH(bool, isTyped);
        Open();
        if (isTyped) {
            PageList()->setCurrentRow(PageRow::Files);
            Find<QLineEdit>("resultsFolderEdit")->setText(folder);
        } else {
            KeepRecordingsIn(folder);
        }
        Click("startRecordingButton");
        QCOMPARE(PageList()->currentRow(), PageRow::Files);
        QCOMPARE(StatusText(), Find<QLabel>("folderProblemLabel")->text());
        QVERIFY(Find<QLabel>("folderProblemLabel")->isVisible());
        QCOMPARE(Window().focusWidget(), Find<QWidget>("resultsFolderEdit"));
        QCOMPARE(m_requests, 0);
    }

    void startsByKeyboard_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("modifier");
        QTest::newRow("Space") << int(Qt::Key_Space) << int(Qt::NoModifier);
        QTest::newRow("Return") << int(Qt::Key_Return) << int(Qt::NoModifier);
        QTest::newRow("Enter") << int(Qt::Key_Enter) << int(Qt::KeypadModifier);
        QTest::newRow("mnemonic") << int(Qt::Key_S) << int(Qt::AltModifier);
    }

    void startsByKeyboard()
    {
        QFETCH(int, key);
        QFETCH(int, modifier);
        Open();
        Window().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&Window()));
        Button("startRecordingButton")->setFocus();
        QTest::keyClick(Window().windowHandle(), static_cast<Qt::Key>(key),
                        Qt::KeyboardModifiers(modifier));
        QTRY_COMPARE_WITH_TIMEOUT(m_requests, 1, Patience);
    }

    void startsNothingWhileATaskIsUnsettled_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<int>("requests");
        QTest::addColumn<int>("tasks");
        QTest::newRow("cancel") << int(QMessageBox::Cancel) << 0 << 1;
        QTest::newRow("drop") << int(QMessageBox::No) << 1 << 1;
        QTest::newRow("add") << int(QMessageBox::Yes) << 1 << 2;
    }

    void startsNothingWhileATaskIsUnsettled()
    {
        QFETCH(int, answer);
        QFETCH(int, requests);
        QFETCH(int, tasks);
        Open(Tasks(1));
        KeepRecordingsIn(Folder());
        Click(Desktop::PanelPart::AddButton);
        const ExpectedBox box(static_cast<QMessageBox::StandardButton>(answer));
        Click("startRecordingButton");
        QVERIFY(box.Came());
        QCOMPARE(m_requests, requests);
        QCOMPARE(Titles().size(), tasks);
    }

    void showsFilesWhenTheDiskIsFull_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<int>("page");
        QTest::newRow("file preferences") << int(QMessageBox::Ok) << PageRow::Files;
        QTest::newRow("cancel") << int(QMessageBox::Cancel) << PageRow::Schedule;
    }

    void showsFilesWhenTheDiskIsFull()
    {
        QFETCH(int, answer);
        QFETCH(int, page);
        Open(Tasks(1));
        KeepRecordingsIn(FullFolder());
        const ExpectedBox box(static_cast<QMessageBox::StandardButton>(answer));
        Click("startRecordingButton");
        QVERIFY(box.Came());
        QCOMPARE(PageList()->currentRow(), page);
        QCOMPARE(m_requests, 0);
    }

    void usesTheFolderThatHasJustBeenTyped()
    {
        Open(Tasks(1));
        KeepRecordingsIn(FullFolder());
        PageList()->setCurrentRow(PageRow::Files);
        Find<QLineEdit>("resultsFolderEdit")->setText(Folder());
        Click("startRecordingButton");
        QCOMPARE(m_requests, 1);
    }

    void survivesItsEndWhileAsked_data()
    {
        QTest::addColumn<bool>("withForm");
        QTest::newRow("unsaved task") << true;
        QTest::newRow("disk space") << false;
    }

    void survivesItsEndWhileAsked()
    {
        QFETCH(bool, withForm);
        Open(Tasks(1));
        KeepRecordingsIn(FullFolder());
        if (withForm) {
            Click(Desktop::PanelPart::AddButton);
        }
        const ExpectedBox box([this](QMessageBox&) { m_app->window.reset(); });
        // Not with the mouse, which would touch the button again on return.
        Button("startRecordingButton")->click();
        QVERIFY(box.Came());
        QCOMPARE(Titles().size(), 1);
    }

    void ignoresAPageThatItDoesNotHave()
    {
        Open();
        Window().ShowPage(QStringLiteral("elsewhere"));
        QCOMPARE(PageList()->currentRow(), PageRow::Schedule);
    }

    void changesPagesByKeyboard()
    {
        Open();
        PageList()->setFocus();
        for (int row = PageRow::Schedule; row < PageRow::Files; ++row) {
            QVERIFY(!Find<QLineEdit>("resultsFolderEdit")->isVisible());
            QTest::keyClick(PageList(), Qt::Key_Down);
        }
        QVERIFY(Find<QLineEdit>("resultsFolderEdit")->isVisible());
        QTest::keyClick(PageList(), Qt::Key_Up);
        QVERIFY(!Find<QLineEdit>("resultsFolderEdit")->isVisible());
    }

    void keepsEverythingReachableWhenSmall()
    {
        Open(Tasks(6));
        Window().resize(640, 480);
        QCOMPARE(Window().size(), QSize(640, 480));
        const auto* stack = Find<QStackedWidget>("pages");
        auto* page = qobject_cast<QScrollArea*>(stack->currentWidget());
        for (const QString& name :
             {Desktop::PanelPart::OffModeButton, Desktop::PanelPart::AddButton}) {
            auto* widget = Find<QWidget>(name);
            page->ensureWidgetVisible(widget);
            QCOMPARE(widget->visibleRegion(), QRegion(widget->rect()));
        }
        auto* deleteButton = Find<QWidget>(Desktop::PanelPart::RowDeleteButton);
        const auto regionInView = [&] {
            page->ensureWidgetVisible(deleteButton);
            return deleteButton->visibleRegion();
        };
        QTRY_COMPARE_WITH_TIMEOUT(regionInView(), QRegion(deleteButton->rect()), Patience);
    }

    void hasOnlyIconsBesideThePageWhenNarrow()
    {
        Open(Tasks(2));
        const QListWidgetItem* entry = PageList()->item(PageRow::Files);
        Window().resize(1009, 700);
        QCOMPARE(entry->text(), QString());
        QCOMPARE(entry->toolTip(), QStringLiteral("Files"));
        QCOMPARE(entry->data(Qt::AccessibleTextRole).toString(), QStringLiteral("Files"));
        QTRY_COMPARE_WITH_TIMEOUT(Find<QWidget>("sidebar")->width(), 62, Patience);
        QCOMPARE(Find<QWidget>(Desktop::PanelPart::Table)->width(), 710);
        Window().resize(863, 700);
        QTRY_COMPARE_WITH_TIMEOUT(Find<QWidget>(Desktop::PanelPart::Table)->width(), 512, Patience);
        Window().resize(1010, 700);
        QTRY_COMPARE_WITH_TIMEOUT(Find<QWidget>(Desktop::PanelPart::Table)->width(), 710, Patience);
        QCOMPARE(entry->text(), QStringLiteral("Files"));
        QCOMPARE(entry->toolTip(), QString());
        QTRY_COMPARE_WITH_TIMEOUT(Find<QWidget>("sidebar")->width(), 208, Patience);
    }

    void tellsWhenSavingFailsAndWhenItWorksAgain()
    {
        Open();
        auto* label = Find<QLabel>("saveProblemLabel");
        QVERIFY(!label->isVisible());
        Q_EMIT Store().SaveFailed(QStringLiteral("the <b>disk</b> is full"));
        QVERIFY(label->isVisible());
        QVERIFY(label->text().contains(QLatin1String("the <b>disk</b> is full")));
        QCOMPARE(label->textFormat(), Qt::PlainText);
        Q_EMIT Store().Saved();
        QVERIFY(!label->isVisible());
    }

    void showsOneTextAtATimeInTheStatusLine()
    {
        Open();
        auto* label = Find<QLabel>("saveProblemLabel");
        auto* statusBar = Window().findChild<QStatusBar*>();
        statusBar->showMessage(QStringLiteral("said before"));
        Q_EMIT Store().SaveFailed(QStringLiteral("disk full"));
        QVERIFY(label->isVisible());
        QCOMPARE(StatusText(), QString());
        statusBar->showMessage(QStringLiteral("said after"));
        QVERIFY(!label->isVisible());
        statusBar->clearMessage();
        QVERIFY(label->isVisible());
        statusBar->showMessage(QStringLiteral("said last"));
        Q_EMIT Store().Saved();
        statusBar->clearMessage();
        QVERIFY(!label->isVisible());
    }

    void closesWithoutAQuestionWhenNothingWasChanged()
    {
        Open(Tasks(2));
        QVERIFY(Store().Flush());
        const QSignalSpy failed(&Store(), &PX::SettingsStore::SaveFailed);
        const FullDisk disk(10);
        Store().Change([](auto&) {});
        QVERIFY(Store().Flush());
        QCOMPARE(failed.count(), 0);
        QVERIFY(!Find<QLabel>("saveProblemLabel")->isVisible());
        PageList()->setCurrentRow(PageRow::General);
        Window().resize(Window().size() + QSize(1, 1));
        QVERIFY(Window().close());
    }

    void showsWhatTheStoreHasToSayUntilItIsRead()
    {
        Open();
        QVERIFY(Store().Flush());
        auto* bar = Find<QFrame>("noticeBar");
        QVERIFY(!bar->isVisible());
        ChangeFileOutside("{\"version\": 1}");
        QVERIFY(bar->isVisible());
        const QString text = Find<QLabel>("noticeLabel")->text();
        QCOMPARE(text, Store().Notices().front().Text());
        QVERIFY(text.contains(Store().Notices().front().keptPath));

        Click("noticeCloseButton");
        QVERIFY(!bar->isVisible());
        ChangeFileOutside("{\"version\": 1, \"more\": 1}");
        QCOMPARE(Find<QLabel>("noticeLabel")->text(), Store().Notices().back().Text());
    }

    void showsAtTheStartWhatCouldNotBeUsed()
    {
        Open(Tasks(2));
        Close();
        QFile file(SettingsFile());
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.resize(file.size() / 2));
        file.close();
        Reopen();
        QVERIFY(Find<QFrame>("noticeBar")->isVisible());
        QVERIFY(Find<QLabel>("noticeLabel")->text().contains(QLatin1String(".damaged-")));
        LanguageSwitch language;
        language.Toggle();
        QVERIFY(Find<QLabel>("noticeLabel")->text().startsWith(QLatin1Char('~')));
    }

    void showsOnlyTheLatestNotices()
    {
        Open();
        QVERIFY(Store().Flush());
        for (int number = 1; number <= 5; ++number) {
            ChangeFileOutside(QStringLiteral("{\"version\": 1, \"n\": %1}").arg(number).toUtf8());
        }
        const auto& notices = Store().Notices();
        QCOMPARE(int(notices.size()), 5);
        QCOMPARE(Find<QLabel>("noticeLabel")->text(),
                 QStringList({notices[2].Text(), notices[3].Text(), notices[4].Text()})
                     .join(QLatin1Char('\n')));
    }

    void tellsOnEachPageWhatIsWrongWithTheRecordings()
    {
        Open();
        const QString path = m_app->folder.filePath("recordings.json");
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.write("no list") > 0);
        file.close();
        const auto list = std::make_shared<Schedule::RecordingsList>(path);
        list->Open();
        auto* bar = Find<QFrame>("noticeBar");
        const auto* label = Find<QLabel>("noticeLabel");
        QVERIFY(!bar->isVisible());
        Window().ShowRecordings(list);
        QVERIFY(bar->isVisible());
        QVERIFY(!list->Notice().isEmpty());
        QCOMPARE(label->text(), list->Notice());
        Click("noticeCloseButton");
        QVERIFY(!bar->isVisible());

        for (int round = 0; round < 2; ++round) {
            {
                const FullDisk disk(10);
                list->Add({});
                QVERIFY(!list->SaveProblem().isEmpty());
                QCOMPARE(label->text(), list->SaveProblem());
                Click("noticeCloseButton");
                QVERIFY(!bar->isVisible());
            }
            list->Add({});
            QVERIFY(!bar->isVisible());
        }
    }

    void movesOnlyAsFarAsItsFrameNeeds()
    {
        OpenWithoutPlace();
        Window().setGeometry(0, 0, 600, 450);
        Close();
        Reopen();
        const QMargins frame = ExpectedFrame();
        QCOMPARE(Window().geometry(), QRect(frame.left(), frame.top(), 600, 450));
    }

    void fitsTheScreen_data()
    {
        QTest::addColumn<QRect>("left");
        // The screen of the test is small: 800 pixels wide.
        QTest::newRow("new") << QRect();
        QTest::newRow("left on a larger screen") << QRect(200, 100, 1600, 1200);
        QTest::newRow("left beyond the edge") << QRect(700, 700, 500, 400);
    }

    void fitsTheScreen()
    {
        QFETCH(QRect, left);
        OpenWithoutPlace();
        if (!left.isNull()) {
            Window().setGeometry(left);
            Close();
            Reopen();
        }
        const QRect room = Window().screen()->availableGeometry() + UnexpectedFrame();
        QCOMPARE(room.united(Window().frameGeometry()), room);
    }

    void writesTheListInANewLanguage()
    {
        Open(Tasks(1));
        const auto date = [this] { return Find<QLabel>(Desktop::PanelPart::RowDate)->text(); };
        const QString before = date();
        LanguageSwitch language;
        language.Toggle();
        QCOMPARE(QDate::fromString(date(), QStringLiteral("yyyy-MM-dd")),
                 QDate::fromString(before, QStringLiteral("dd.MM.yyyy")));
        QVERIFY(date() != before);
        QCOMPARE(StatusText(), QString());
        QCOMPARE(Window().findChildren<QLabel*>(Desktop::PanelPart::RowDate).size(), 1);
        QCOMPARE(Window().findChildren<Panel*>().size(), 1);
        QCOMPARE(Titles(), QStringList{QStringLiteral("Task 0")});
        QVERIFY(Button(Desktop::PanelPart::ScheduledModeButton)->isChecked());
        QCOMPARE(Find<QWidget>(Desktop::PanelPart::List)->accessibleName(),
                 QStringLiteral("~Recording schedule"));

        // The new panel is assisted as the one before, and an unfinished task stays as it is.
        Click(Desktop::PanelPart::AddButton);
        QCOMPARE(Window().focusWidget()->objectName(), NameEdit()->objectName());
        language.Toggle();
        QVERIFY(NameEdit()->isVisible());
    }

    void keepsTheOrderOfTabsInANewLanguage()
    {
        Open(Tasks(2));
        const QStringList before = StopsOfTab();
        QVERIFY(before.size() > 6);
        LanguageSwitch language;
        language.Toggle();
        QCOMPARE(StopsOfTab(), before);
    }

    void keepsTheModeInANewLanguage_data()
    {
        QTest::addColumn<QString>("mode");
        QTest::newRow("nothing") << Desktop::PanelPart::OffModeButton;
        QTest::newRow("limited") << Desktop::PanelPart::LimitedModeButton;
        QTest::newRow("empty schedule") << Desktop::PanelPart::ScheduledModeButton;
    }

    void keepsTheModeInANewLanguage()
    {
        QFETCH(QString, mode);
        Open();
        Click(qPrintable(mode));
        LanguageSwitch language;
        language.Toggle();
        QVERIFY(Button(qPrintable(mode))->isChecked());
    }

    void tellsWhyNothingIsSavedInANewLanguage()
    {
        Open();
        QVERIFY(Store().Flush());
        QVERIFY(QFile::remove(SettingsFile()));
        QVERIFY(QDir(Folder()).mkpath(SettingsFile() + QStringLiteral("/in the way")));
        Desktop::ChangeApplicationSettings(
            Store(), [](auto& settings) { settings.page = QStringLiteral("files"); });
        QVERIFY(!Store().Flush());
        const auto* label = Find<QLabel>("saveProblemLabel");
        QVERIFY(label->text().contains(QLatin1String(": your changes are not saved in ")));
        LanguageSwitch language;
        language.Toggle();
        QVERIFY(label->text().startsWith(QLatin1Char('~')));
        language.Toggle();
        QVERIFY(QDir(SettingsFile()).removeRecursively());
        QVERIFY(Store().Flush());
    }

    void goesWhereTheListStandsAfterTheAnswer()
    {
        BeginTask(QStringLiteral("Unfinished"));
        const ExpectedBox box([this](QMessageBox& question) {
            PageList()->setCurrentRow(PageRow::General);
            // What the list has queued comes before the answer.
            QTimer::singleShot(0, &question,
                               [&question] { question.button(QMessageBox::No)->click(); });
        });
        PageList()->setCurrentRow(PageRow::Files);
        QTRY_VERIFY_WITH_TIMEOUT(box.Came(), Patience);
        QTRY_VERIFY_WITH_TIMEOUT(!NameEdit()->isVisible(), Patience);
        QCOMPARE(PageList()->currentRow(), PageRow::General);
        QVERIFY(Find<QWidget>("languageBox")->isVisible());
    }

    void asksAboutAnUnfinishedTaskOnlyOnce()
    {
        BeginTask(QStringLiteral("Unfinished"));
        KeepRecordingsIn(FullFolder());
        std::unique_ptr<ExpectedBox> fullDisk;
        const ExpectedBox unsaved([&](QMessageBox& question) {
            fullDisk = std::make_unique<ExpectedBox>(QMessageBox::Ok);
            question.button(QMessageBox::No)->click();
        });
        Click("startRecordingButton");
        QVERIFY(unsaved.Came());
        QVERIFY(fullDisk->Came());
        QVERIFY(Find<QLineEdit>("resultsFolderEdit")->isVisible());
        QCOMPARE(PageList()->currentRow(), PageRow::Files);
    }

    void asksAboutAnUnfinishedTaskBeforeAnotherPage_data() { AddAnswers(); }

    void asksAboutAnUnfinishedTaskBeforeAnotherPage()
    {
        QFETCH(int, answer);
        QFETCH(QString, title);
        QFETCH(bool, isFinished);
        QFETCH(QString, titles);
        BeginTask(title);
        const ExpectedBox box(static_cast<QMessageBox::StandardButton>(answer));
        ClickPage(PageRow::Files);
        QTRY_VERIFY_WITH_TIMEOUT(box.Came(), Patience);
        QCOMPARE(PageList()->currentRow(), isFinished ? PageRow::Files : PageRow::Schedule);
        QCOMPARE(PageList()->selectedItems(), QList{PageList()->currentItem()});
        QCOMPARE(Find<QLineEdit>("resultsFolderEdit")->isVisible(), isFinished);
        QCOMPARE(NameEdit()->isVisible(), !isFinished);
        QCOMPARE(Titles().join(QLatin1Char(',')), titles);
        if (!isFinished) {
            QCOMPARE(NameEdit()->text(), title);
        }
    }

    void asksAboutAnUnfinishedTaskBeforeItCloses_data() { AddAnswers(); }

    void asksAboutAnUnfinishedTaskBeforeItCloses()
    {
        QFETCH(int, answer);
        QFETCH(QString, title);
        QFETCH(bool, isFinished);
        QFETCH(QString, titles);
        BeginTask(title);
        const ExpectedBox box(static_cast<QMessageBox::StandardButton>(answer));
        QCOMPARE(Window().close(), isFinished);
        QVERIFY(box.Came());
        QCOMPARE(Titles().join(QLatin1Char(',')), titles);
        if (!isFinished) {
            QVERIFY(NameEdit()->isVisible());
            QCOMPARE(NameEdit()->text(), title);
        }
    }

    void survivesItsEndWhileItAsks_data()
    {
        QTest::addColumn<bool>("isClosing");
        QTest::newRow("another page") << false;
        QTest::newRow("closing") << true;
    }

    void survivesItsEndWhileItAsks()
    {
        QFETCH(bool, isClosing);
        BeginTask(QStringLiteral("Unfinished"));
        const ExpectedBox box([this](QMessageBox&) { m_app->window.reset(); });
        if (isClosing) {
            // As a user does it, who leaves no caller behind in the window.
            QTimer::singleShot(0, &Window(), &QWidget::close);
        } else {
            ClickPage(PageRow::Files);
        }
        QTRY_VERIFY_WITH_TIMEOUT(box.Came(), Patience);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void asksBeforeItClosesOnUnsavedSettings()
    {
        Open();
        QVERIFY(Store().Flush());
        // Nothing can be written where a folder stands in the way.
        QVERIFY(QFile::remove(SettingsFile()));
        QVERIFY(QDir(Folder()).mkpath(SettingsFile() + QStringLiteral("/in the way")));
        KeepRecordingsIn(Folder() + QStringLiteral("/other"));
        {
            const ExpectedBox box(PressEscape);
            QVERIFY(!Window().close());
            QVERIFY(box.Came());
        }
        QVERIFY(Window().isVisible());
        {
            const ExpectedBox box(QMessageBox::Ok);
            QVERIFY(Window().close());
            QVERIFY(box.Came());
        }
        QVERIFY(!Window().isVisible());
    }

    void followsAChangeOfTheme()
    {
        Open(Tasks(2));
        Desktop::ApplyTheme(Desktop::Theme::Dark);
        const QColor ground(
            Desktop::ColorsOf(Desktop::Theme::Dark).value(QStringLiteral("window")));
        const QImage picture = Window().grab().toImage();
        QCOMPARE(picture.pixelColor(picture.rect().bottomRight()), ground);
        QCOMPARE(Find<QWidget>(Desktop::PanelPart::Table)->width(), 710);
        Desktop::ApplyTheme(Desktop::Theme::Light);
    }

    void turnsToOtherMonthsInTheDirectionOfWriting_data()
    {
        QTest::addColumn<int>("direction");
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        const auto left = QStringLiteral("arrow-left");
        const auto right = QStringLiteral("arrow-right");
        QTest::newRow("to the right") << int(Qt::LeftToRight) << left << right;
        QTest::newRow("to the left") << int(Qt::RightToLeft) << right << left;
    }

    void turnsToOtherMonthsInTheDirectionOfWriting()
    {
        QFETCH(int, direction);
        QFETCH(QString, before);
        QFETCH(QString, after);
        QGuiApplication::setLayoutDirection(static_cast<Qt::LayoutDirection>(direction));
        Open();
        const auto* calendar = Find<QDateTimeEdit>(Desktop::PanelPart::DateField)->calendarWidget();
        const auto shows = [&](const QString& button, const QString& icon) {
            auto* arrow = calendar->findChild<QToolButton*>(button);
            arrow->ensurePolished();
            return arrow->icon().pixmap(16).toImage()
                == Desktop::ThemedIcon(icon).pixmap(16).toImage();
        };
        QVERIFY(shows("qt_calendar_prevmonth", before));
        QVERIFY(shows("qt_calendar_nextmonth", after));
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    }

    void showsFocusOnEveryControl_data()
    {
        QTest::addColumn<QString>("clicked");
        QTest::addColumn<int>("page");
        QTest::addColumn<QString>("controls");
        // Of a group of radio buttons, Tab stops at the checked one; the arrow keys lead to the
        // rest.
        QTest::newRow("schedule")
            << Desktop::PanelPart::ScheduledModeButton << 0
            << QStringLiteral(
                   "pageList scheduledCaptureRadioButton recordTableScrollArea "
                   "deleteToolButton scheduledCaptureSettingsAddRecordButton startRecordingButton");
        QTest::newRow("limited capture")
            << Desktop::PanelPart::LimitedModeButton << 0
            << QStringLiteral(
                   "pageList limitedCaptureDurationRadioButton "
                   "limitedCaptureDurationSettingsCaptureDuration "
                   "limitedCaptureDurationSettingsActionOnFinishBox startRecordingButton");
        QTest::newRow("recording")
            << Desktop::PanelPart::OffModeButton << PageRow::Recording
            << QStringLiteral("pageList recordScreenButton recordedScreenBox areaXField areaYField "
                              "areaWidthField areaHeightField pickAreaButton outlineAreaButton "
                              "frameRateBox qualityBox containerBox showPointerBox trialButton "
                              "startRecordingButton");
        QTest::newRow("files")
            << Desktop::PanelPart::OffModeButton << PageRow::Files
            << QStringLiteral("pageList resultsFolderEdit browseButton startRecordingButton");
        QTest::newRow("recordings") << Desktop::PanelPart::OffModeButton << PageRow::Recordings
                                    << QStringLiteral("pageList startRecordingButton");
        QTest::newRow("general")
            << Desktop::PanelPart::OffModeButton << PageRow::General
            << QStringLiteral(
                   "pageList languageBox themeBox autostartBox keepRunningBox openFolderButton "
                   "startRecordingButton");
    }

    void showsFocusOnEveryControl()
    {
        QFETCH(QString, clicked);
        QFETCH(int, page);
        QFETCH(QString, controls);
        const bool withTask = clicked == Desktop::PanelPart::ScheduledModeButton;
        Open(Tasks(withTask ? 1 : 0));
        Click(qPrintable(clicked));
        PageList()->setCurrentRow(page);
        Window().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&Window()));
        QStringList found;
        const auto widgets = Window().findChildren<QWidget*>();
        for (QWidget* widget : widgets) {
            if (!IsStopOfTab(*widget)) {
                continue;
            }
            if (QWidget* before = QApplication::focusWidget()) {
                before->clearFocus();
            }
            const QImage without = Window().grab().toImage();
            widget->setFocus(Qt::TabFocusReason);
            QVERIFY2(widget->hasFocus(), qPrintable(widget->objectName()));
            QVERIFY2(Window().grab().toImage() != without, qPrintable(widget->objectName()));
            found << widget->objectName();
        }
        QCOMPARE(found.join(QLatin1Char(' ')), controls);
    }

    void reachesEveryFieldByItsKey_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("clicked");
        QTest::addColumn<int>("page");
        QTest::addColumn<int>("fields");
        const auto codes = Desktop::LanguageCodes();
        for (const QString& code : codes) {
            const auto row = [&](const char* name, const QString& clicked, int page, int fields) {
                QTest::addRow("%s, %s", qPrintable(code), name)
                    << code << clicked << page << fields;
            };
            row("limited capture", Desktop::PanelPart::LimitedModeButton, 0, 5);
            row("form", Desktop::PanelPart::AddButton, 0, 8);
            row("recording", "", PageRow::Recording, 7);
            row("files", "", PageRow::Files, 1);
            row("general", "", PageRow::General, 2);
        }
    }

    void reachesEveryFieldByItsKey()
    {
        QFETCH(QString, language);
        QFETCH(QString, clicked);
        QFETCH(int, page);
        QFETCH(int, fields);
        Desktop::Translations translations;
        translations.Use(language);
        Open(Tasks(1));
        if (!clicked.isEmpty()) {
            const ExpectedBox box(QMessageBox::Ok);
            Click(qPrintable(clicked));
        }
        PageList()->setCurrentRow(page);
        Window().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&Window()));
        QList<QKeySequence> keys = KeysOfButtons();
        int reached = 0;
        const auto labels = Window().findChildren<QLabel*>();
        for (const QLabel* label : labels) {
            QWidget* field = label->buddy();
            if (!label->isVisible() || field == nullptr || field->focusPolicy() == Qt::NoFocus) {
                continue;
            }
            const QKeySequence key = QKeySequence::mnemonic(label->text());
            QVERIFY2(!key.isEmpty() && !keys.contains(key), qPrintable(label->text()));
            keys << key;
            if (auto* button = qobject_cast<QAbstractButton*>(field)) {
                new HeldClick(button);
            }
            Window().setFocus();
            PressWithAlt(Window(), Desktop::FirstKey(key));
            QVERIFY2(field->hasFocus(), qPrintable(label->text()));
            ++reached;
        }
        QCOMPARE(reached, fields);
        Close();
        translations.Use(QStringLiteral("en"));
        QCoreApplication::sendPostedEvents();
        QLocale::setDefault(QLocale::c());
    }

private:
    QString SettingsFile() const { return m_app->folder.filePath(QStringLiteral("settings.json")); }

    static void AddAnswers()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<QString>("title");
        QTest::addColumn<bool>("isFinished");
        QTest::addColumn<QString>("titles");
        const QString before = QStringLiteral("Task 0");
        QTest::newRow("cancel") << int(QMessageBox::Cancel) << QStringLiteral("Unfinished") << false
                                << before;
        QTest::newRow("do not add")
            << int(QMessageBox::No) << QStringLiteral("Unfinished") << true << before;
        QTest::newRow("add") << int(QMessageBox::Yes) << QStringLiteral("Unfinished") << true
                             << QStringLiteral("Unfinished,Task 0");
        QTest::newRow("add what cannot be added")
            << int(QMessageBox::Yes) << before << false << before;
    }

    /// Opens the window with one task and types the title of another one.
    void BeginTask(const QString& title)
    {
        Open({Record(QStringLiteral("Task 0"), At("10:00") + 24h * 3650, 30min)});
        Click(Desktop::PanelPart::AddButton);
        NameEdit()->setText(title);
    }

    /// Gives up the task in the form, if the form is open.
    void FinishTask()
    {
        if (NameEdit()->isVisible()) {
            const ExpectedBox box(QMessageBox::No);
            Click(Desktop::PanelPart::BackButton);
        }
    }

    void ClickPage(int row)
    {
        const QRect place = PageList()->visualItemRect(PageList()->item(row));
        QTest::mouseClick(PageList()->viewport(), Qt::LeftButton, Qt::NoModifier, place.center());
    }

    QLineEdit* NameEdit() const { return Find<QLineEdit>(Desktop::PanelPart::NameField); }

    /// Where the Tab key stops, one after another, from the list of pages on.
    QStringList StopsOfTab() const
    {
        QStringList stops;
        const QWidget* widget = PageList();
        do {
            if (IsStopOfTab(*widget)) {
                stops << widget->objectName();
            }
            widget = widget->nextInFocusChain();
        } while (widget != PageList());
        return stops;
    }

    /// The keys of the buttons that are on screen.
    QList<QKeySequence> KeysOfButtons() const
    {
        QList<QKeySequence> keys;
        const auto buttons = Window().findChildren<QAbstractButton*>();
        for (const QAbstractButton* button : buttons) {
            const QKeySequence key = QKeySequence::mnemonic(button->text());
            if (button->isVisible() && !key.isEmpty()) {
                keys << key;
            }
        }
        return keys;
    }

    /// Opens a window on new settings that hold \a tasks, in the mode that goes with them.
    void Open(const std::vector<PX::RecordTime>& tasks = {})
    {
        m_app = std::make_unique<AppWindow>(tasks);
        ShowWindow();
    }

    /// Opens a window on settings that have no place of a window.
    void OpenWithoutPlace()
    {
        m_app = std::make_unique<AppWindow>();
        Reopen();
    }

    /// Opens a window on the settings as they were left.
    void Reopen()
    {
        m_app->Reopen();
        ShowWindow();
    }

    void ShowWindow()
    {
        m_requests = 0;
        connect(&Window(), &Desktop::MainWindow::RecordingRequested, this,
                [this] { ++m_requests; });
        Window().show();
        QVERIFY(QTest::qWaitForWindowExposed(&Window()));
    }

    void Close()
    {
        if (m_app != nullptr && m_app->window != nullptr && Window().isVisible()) {
            FinishTask();
            Window().close();
        }
    }

    Desktop::MainWindow& Window() const { return *m_app->window; }
    PX::SettingsStore& Store() const { return *m_app->store; }
    QString Folder() const { return m_app->folder.path(); }

    void KeepRecordingsIn(const QString& folder) const
    {
        Store().Change([&](auto& settings) { settings.resultsFolderPath = folder; });
    }

    /// The frame that the window expects: the desktop's own is known only when it is on screen.
    QMargins ExpectedFrame() const
    {
        const auto metric = [this](QStyle::PixelMetric which) {
            return Window().style()->pixelMetric(which, nullptr, &Window());
        };
        const int side = metric(QStyle::PM_MdiSubWindowFrameWidth);
        return {side, metric(QStyle::PM_TitleBarHeight), side, side};
    }

    /// By how much the frame that the desktop has drawn is larger than the expected one.
    QMargins UnexpectedFrame() const
    {
        const QMargins more = Window().windowHandle()->frameMargins() - ExpectedFrame();
        return {qMax(0, more.left()), qMax(0, more.top()), qMax(0, more.right()),
                qMax(0, more.bottom())};
    }

    void ChangeFileOutside(const QByteArray& content)
    {
        QFile file(SettingsFile());
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.write(content) == content.size());
        file.close();
        KeepRecordingsIn(Folder() + QString::number(Store().Notices().size()));
        QVERIFY(Store().Flush());
    }

    QString StatusText() const { return m_app->StatusText(); }

    template <typename T> T* Find(const QString& objectName) const
    {
        return m_app->Find<T>(objectName);
    }
    QListWidget* PageList() const { return m_app->PageList(); }
    QAbstractButton* Button(const QString& name) const { return m_app->Button(name); }
    void Click(const QString& name) const
    {
        QTest::mouseClick(Button(name), Qt::LeftButton);
        // What is deleted later is gone now, and what moved has its new place.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::sendPostedEvents();
    }
    QStringList Titles() const
    {
        QStringList titles;
        for (const auto& task : Store().Settings().schedule) {
            titles << task.title;
        }
        return titles;
    }

    std::unique_ptr<AppWindow> m_app;
    /// How often the window has asked for a recording.
    int m_requests = 0;
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_MainWindow)

#include "tst_MainWindow.moc"
