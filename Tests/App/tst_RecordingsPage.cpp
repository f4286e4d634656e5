// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QDesktopServices>
#include <QLabel>
#include <QListView>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>

#include "Boxes.h"
#include "RecordingsPage.h"
#include "Resources.h"
#include "Theme.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

using namespace std::chrono_literals;
using Schedule::Moment;
using Schedule::Outcome;
using Schedule::RecordingEntry;
using Schedule::RecordingsList;

/// Takes the place of the programs of the desktop.
class Opener : public QObject {
    Q_OBJECT

public:
    Opener() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "Open"); }
    ~Opener() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }

    QStringList opened;

public Q_SLOTS:
    void Open(const QUrl& url) { opened << url.toLocalFile(); }
};

} // namespace

class tst_RecordingsPage : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Desktop::RegisterResources();
        Desktop::ApplyTheme(Desktop::Theme::Light);
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/none");
        // Pictures and trash go into a folder of the test.
        qputenv("XDG_CACHE_HOME", QFile::encodeName(m_home.filePath("cache")));
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_home.filePath("data")));
    }

    void init()
    {
        WidgetTest::init();
        m_folder = std::make_unique<QTemporaryDir>();
        m_list = std::make_shared<RecordingsList>(Path("recordings.json"));
        QCOMPARE(m_list->Open(), QString());
        WriteRecorder("exit 1");
        m_page = std::make_unique<Desktop::RecordingsPage>(Path("recorder"), nullptr);
        m_page->resize(700, 500);
        m_page->SetList(m_list);
        m_page->show();
        QVERIFY(QTest::qWaitForWindowActive(m_page.get()));
    }

    void cleanup()
    {
        m_page.reset();
        m_list.reset();
        m_folder.reset();
        WidgetTest::cleanup();
    }

    void helpsWhereThereIsNothing()
    {
        QVERIFY(Label("recordingsHelpLabel")->isVisible());
        QVERIFY(!View()->isVisible());
        QVERIFY(!Button("openRecordingButton")->isVisible());
        m_list->Add(Entry("Lecture"));
        QVERIFY(!Label("recordingsHelpLabel")->isVisible());
        QVERIFY(View()->isVisible());
    }

    void allowsWhatIsPossible_data()
    {
        QTest::addColumn<int>("outcome");
        QTest::addColumn<QString>("reason");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("allowed");
        const auto row = [](const char* name, Outcome outcome, const QString& reason,
                            const char* file, const char* allowed) {
            QTest::newRow(name) << int(outcome) << reason << file << allowed;
        };
        namespace Why = Schedule::Why;
        row("complete", Outcome::Complete, {}, "a.mkv", "open show remove");
        row("late", Outcome::Partial, Why::Late, "a.mkv", "open show remove");
        row("crashed", Outcome::Partial, Why::ProgramDied, "a.mkv", "open show repair remove");
        row("recorder crashed", Outcome::Partial, Why::RecorderDied, "a.mkv",
            "open show repair remove");
        row("crashed MP4", Outcome::Partial, Why::ProgramDied, "a.mp4", "open show remove");
        row("gone", Outcome::Partial, Why::ProgramDied, "gone.mkv", "show remove");
        row("missed", Outcome::Missed, Why::NotRunning, "", "remove");
        row("recording", Outcome::Recording, {}, "a.mkv", "open show");
    }

    void allowsWhatIsPossible()
    {
        QFETCH(int, outcome);
        QFETCH(QString, reason);
        QFETCH(QString, file);
        QFETCH(QString, allowed);
        const QString path = file.isEmpty() ? QString() : Path(file);
        if (file.startsWith('a')) {
            Touch(path);
        }
        m_list->Add({"Lecture", Moment(5s), Moment(9s), Outcome(outcome), path, reason});
        QCOMPARE(Allowed(), QString());
        View()->setCurrentIndex(View()->model()->index(0, 0));
        QTRY_COMPARE_WITH_TIMEOUT(Allowed(), allowed, Patience);
    }

    void opens_data()
    {
        QTest::addColumn<QString>("by");
        QTest::newRow("button") << "button";
        QTest::newRow("Enter") << "Enter";
        QTest::newRow("double click") << "double click";
    }

    void opens()
    {
        QFETCH(QString, by);
        Opener opener;
        Select("Lecture", "a.mkv");
        if (by == "button") {
            Button("openRecordingButton")->click();
        } else if (by == "Enter") {
            QTest::keyClick(View(), Qt::Key_Return);
        } else {
            const QPoint place = View()->visualRect(View()->currentIndex()).center();
            QTest::mouseClick(View()->viewport(), Qt::LeftButton, {}, place);
            QTest::mouseDClick(View()->viewport(), Qt::LeftButton, {}, place);
        }
        QCOMPARE(opener.opened, QStringList{Path("a.mkv")});
        QVERIFY(!Label("recordingsProblemLabel")->isVisible());
    }

    void selectsTheNewestWithTheFocus()
    {
        m_list->Add(Entry("First"));
        m_list->Add(Entry("Second"));
        m_page->setFocus();
        View()->setFocus(Qt::TabFocusReason);
        QVERIFY(View()->selectionModel()->isSelected(View()->model()->index(0, 0)));
        QTest::keyClick(View(), Qt::Key_Down);
        QCOMPARE(View()->selectionModel()->selectedIndexes(),
                 QModelIndexList{View()->model()->index(1, 0)});
        QCOMPARE(Allowed(), QStringLiteral("remove"));
    }

    void saysThatAFileIsGone()
    {
        Opener opener;
        Select("Lecture", "a.mkv");
        QVERIFY(QFile::remove(Path("a.mkv")));
        Button("openRecordingButton")->click();
        QCOMPARE(opener.opened, QStringList());
        QVERIFY(Label("recordingsProblemLabel")->text().contains(Path("a.mkv")));
        // Files are looked at anew when the page is shown again.
        m_page->hide();
        m_page->show();
        QTRY_COMPARE_WITH_TIMEOUT(Allowed(), QStringLiteral("show remove"), Patience);
        QVERIFY(View()->currentIndex().data(Qt::AccessibleTextRole).toString().contains("gone"));
    }

    void showsTheFolderWithoutAFileManager()
    {
        Opener opener;
        Select("Lecture", "a.mkv");
        Button("showRecordingButton")->click();
        QTRY_COMPARE_WITH_TIMEOUT(opener.opened, QStringList{m_folder->path()}, Patience);
    }

    void movesToTheTrash_data()
    {
        QTest::addColumn<bool>("byKey");
        QTest::addColumn<bool>("isAccepted");
        QTest::newRow("button") << false << true;
        QTest::newRow("key") << true << true;
        QTest::newRow("not") << true << false;
    }

    void movesToTheTrash()
    {
        QFETCH(bool, byKey);
        QFETCH(bool, isAccepted);
        Select("Lecture", "a.mkv");
        const QSignalSpy announced(m_page.get(), &Desktop::Page::Announced);
        const ExpectedBox box(isAccepted ? QMessageBox::Ok : QMessageBox::Cancel);
        if (byKey) {
            QTest::keyClick(View(), Qt::Key_Delete);
        } else {
            Button("removeRecordingButton")->click();
        }
        QVERIFY(box.Came());
        QCOMPARE(QFile::exists(Path("a.mkv")), !isAccepted);
        QCOMPARE(m_list->Items().empty(), isAccepted);
        QCOMPARE(announced.count(), isAccepted ? 1 : 0);
    }

    void removesWhatHasNoFileFromTheList()
    {
        m_list->Add({"Lecture", Moment(5s), Moment(9s), Outcome::Missed, {}, "not-running"});
        View()->setCurrentIndex(View()->model()->index(0, 0));
        const ExpectedBox box([](QMessageBox& question) {
            QVERIFY2(question.text().contains("list"), qPrintable(question.text()));
            question.button(QMessageBox::Ok)->click();
        });
        Button("removeRecordingButton")->click();
        QVERIFY(box.Came());
        QVERIFY(m_list->Items().empty());
    }

    void removesTheOneThatWasAskedAbout()
    {
        m_list->Add(Entry("First"));
        m_list->Add(Entry("Second"));
        View()->setCurrentIndex(View()->model()->index(1, 0));
        const ExpectedBox box([this](QMessageBox& question) {
            m_list->Add(Entry("Third"));
            question.button(QMessageBox::Ok)->click();
        });
        Button("removeRecordingButton")->click();
        QVERIFY(box.Came());
        QCOMPARE(m_list->Items().size(), std::size_t(2));
        QCOMPARE(m_list->Items().front().entry.title, QStringLiteral("Second"));
    }

    void survivesItsEndDuringTheQuestion()
    {
        m_list->Add(Entry("First"));
        View()->setCurrentIndex(View()->model()->index(0, 0));
        View()->setFocus();
        const ExpectedBox box([this](QMessageBox&) { m_page.reset(); });
        QTest::keyClick(View(), Qt::Key_Delete);
        QVERIFY(box.Came());
        QCOMPARE(m_list->Items().size(), std::size_t(1));
    }

    void repairs_data()
    {
        QTest::addColumn<QString>("work");
        QTest::addColumn<QString>("problem");
        QTest::newRow("well") << "exit 0"
                              << "";
        QTest::newRow("with a reason") << "echo 'px-recorder: no room' >&2; exit 1"
                                       << "no room";
        QTest::newRow("without a reason") << "exit 1"
                                          << "Lecture could not be repaired";
        QTest::newRow("crash") << "kill -9 $$"
                               << "Lecture could not be repaired";
    }

    void repairs()
    {
        QFETCH(QString, work);
        QFETCH(QString, problem);
        Select("Lecture", "a.mkv", Outcome::Partial, Schedule::Why::ProgramDied);
        QTRY_VERIFY_WITH_TIMEOUT(Button("repairRecordingButton")->isEnabled(), Patience);
        WriteRecorder("test \"$1\" = --picture && exit 1\necho \"$1 $2\" > " + Path("called") + "\n"
                      + work);
        const QSignalSpy announced(m_page.get(), &Desktop::Page::Announced);
        Button("repairRecordingButton")->setFocus();
        Button("repairRecordingButton")->click();
        QVERIFY(!Button("repairRecordingButton")->isEnabled());
        QCOMPARE(m_page->window()->focusWidget(), View());
        QTRY_VERIFY_WITH_TIMEOUT(Button("repairRecordingButton")->isEnabled(), Patience);
        QFile called(Path("called"));
        QVERIFY(called.open(QIODevice::ReadOnly));
        QCOMPARE(called.readAll().trimmed(), QByteArray("--repair ") + Path("a.mkv").toUtf8());
        QCOMPARE(announced.count(), 2);
        QCOMPARE(Label("recordingsProblemLabel")->isVisible(), !problem.isEmpty());
        QVERIFY(Label("recordingsProblemLabel")->text().contains(problem));
    }

    void offersTheSameInAMenu()
    {
        // Qt's own platforms say so of themselves; a popup wants the keyboard for itself.
        AllowWarning("^This plugin does not support grabbing the keyboard");
        Opener opener;
        Select("Lecture", "a.mkv");
        QTRY_COMPARE_WITH_TIMEOUT(Allowed(), QStringLiteral("open show remove"), Patience);
        Q_EMIT View()->customContextMenuRequested({});
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QVERIFY(menu != nullptr);
        QCOMPARE(menu->actions().size(), 4);
        menu->actions().first()->trigger();
        QCOMPARE(opener.opened, QStringList{Path("a.mkv")});
        menu->close();
        QTRY_VERIFY_WITH_TIMEOUT(QApplication::activePopupWidget() == nullptr, Patience);
    }

    void hasNoMenuBelowTheRows()
    {
        Select("Lecture", "a.mkv");
        Q_EMIT View()->customContextMenuRequested(View()->viewport()->rect().bottomLeft());
        QVERIFY(QApplication::activePopupWidget() == nullptr);
    }

    void tabsInReadingOrder()
    {
        Select("Lecture", "a.mkv", Outcome::Partial, Schedule::Why::ProgramDied);
        QTRY_VERIFY_WITH_TIMEOUT(Button("repairRecordingButton")->isEnabled(), Patience);
        QStringList stops;
        for (int stop = 0; stop < 5; ++stop) {
            stops << m_page->focusWidget()->objectName();
            QTest::keyClick(m_page->windowHandle(), Qt::Key_Tab);
        }
        QCOMPARE(stops,
                 (QStringList{"recordingsList", "openRecordingButton", "showRecordingButton",
                              "repairRecordingButton", "removeRecordingButton"}));
    }

    void makesPicturesOfWhatIsInView()
    {
        QImage(4, 3, QImage::Format_RGB32).save(Path("sample.png"));
        WriteRecorder("cp " + Path("sample.png") + " \"$3\"");
        Select("Lecture", "a.mkv");
        QTRY_VERIFY_WITH_TIMEOUT(!View()
                                      ->currentIndex()
                                      .data(Desktop::RecordingsModel::PictureRole)
                                      .value<QImage>()
                                      .isNull(),
                                 Patience);
    }

    void showsWhatIsWrongWithTheList()
    {
        QFile damaged(Path("damaged.json"));
        QVERIFY(damaged.open(QIODevice::WriteOnly));
        damaged.write("{");
        damaged.close();
        const auto list = std::make_shared<RecordingsList>(damaged.fileName());
        QCOMPARE(list->Open(), QString());
        Desktop::RecordingsPage page(Path("recorder"), nullptr);
        page.SetList(list);
        page.show();
        const auto* label = page.findChild<QLabel*>("recordingsListProblemLabel");
        QVERIFY(label->isVisible());
        QVERIFY(label->text().contains("damaged.json.damaged-"));
    }

    /// However many there are, only those in view are drawn, and only their files are looked at.
    void scrollsThousandsOfEntriesSmoothly()
    {
        WriteManyEntries(Path("many.json"));
        const auto list = std::make_shared<RecordingsList>(Path("many.json"));
        QCOMPARE(list->Open(), QString());
        Desktop::RecordingsPage page(Path("recorder"), nullptr);
        page.resize(700, 500);
        page.SetList(list);
        QElapsedTimer timer;
        timer.start();
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        auto* view = page.findChild<QListView*>("recordingsList");
        const qint64 shown = timer.restart();
        constexpr int steps = 100;
        for (int step = 0; step < steps; ++step) {
            view->verticalScrollBar()->setValue(view->verticalScrollBar()->maximum() / steps
                                                * step);
            view->viewport()->repaint();
        }
        qInfo("shown in %lld ms, %d pages scrolled in %lld ms", shown, steps, timer.elapsed());
        QVERIFY2(timer.elapsed() < 10'000, "scrolling takes too long");
        QTest::qWait(0);
        const auto* model = static_cast<const Desktop::RecordingsModel*>(view->model());
        int lookedAt = 0;
        for (int row = 0; row < model->rowCount(); ++row) {
            lookedAt += model->FactsAt(row) ? 1 : 0;
        }
        QVERIFY2(lookedAt < 50, qPrintable(QString::number(lookedAt)));
    }

private:
    QString Path(const QString& name) const { return m_folder->filePath(name); }
    QListView* View() const { return m_page->findChild<QListView*>("recordingsList"); }
    QPushButton* Button(const char* name) const { return m_page->findChild<QPushButton*>(name); }
    QLabel* Label(const char* name) const { return m_page->findChild<QLabel*>(name); }

    /// The actions that can be chosen, in short.
    QString Allowed() const
    {
        QStringList allowed;
        for (const char* action : {"open", "show", "repair", "remove"}) {
            if (Button(qPrintable(QLatin1String(action) + QStringLiteral("RecordingButton")))
                    ->isEnabled()) {
                allowed << action;
            }
        }
        return allowed.join(' ');
    }

    static RecordingEntry Entry(const QString& title)
    {
        return {title, Moment(5s), Moment(9s), Outcome::Complete, {}, {}};
    }

    void Touch(const QString& path) const
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("recorded");
    }

    static void WriteManyEntries(const QString& path)
    {
        constexpr int entries = 10'000;
        QStringList texts;
        for (int number = 0; number < entries; ++number) {
            texts << QStringLiteral(R"({"title":"a","start":5,"end":9,"outcome":"complete",)"
                                    R"("file":"/none/%1.mkv"})")
                         .arg(number);
        }
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(R"({"version":1,"recordings":[)" + texts.join(',').toUtf8() + "]}");
    }

    /// Adds an entry with a file, and selects it.
    void Select(const QString& title, const QString& file, Outcome outcome = Outcome::Complete,
                const QString& reason = {})
    {
        Touch(Path(file));
        m_list->Add({title, Moment(5s), Moment(9s), outcome, Path(file), reason});
        View()->setCurrentIndex(View()->model()->index(0, 0));
        View()->setFocus();
        QTRY_VERIFY_WITH_TIMEOUT(Button("openRecordingButton")->isEnabled(), Patience);
    }

    void WriteRecorder(const QString& work) const
    {
        QFile script(Path("recorder"));
        QVERIFY(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/sh\n" + work.toUtf8() + "\n");
        QVERIFY(script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }

    const QTemporaryDir m_home;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::shared_ptr<RecordingsList> m_list;
    std::unique_ptr<Desktop::RecordingsPage> m_page;
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_RecordingsPage)

#include "tst_RecordingsPage.moc"
