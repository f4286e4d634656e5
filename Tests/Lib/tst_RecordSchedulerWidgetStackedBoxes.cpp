// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QLayout>
#include <QPointer>
#include <QToolButton>

#include "Boxes.h"
#include "Panel.h"
#include "WidgetTest.h"

namespace {

std::int64_t s_freeBytes = 0;
/// What the host does while it finds out.
std::function<void()> s_whileAsked;

} // namespace

/// Takes the place of the reference host's query.
std::int64_t Zentor::Util::GetAvailableDiskSpace(const ioPath& /*path*/)
{
    if (s_whileAsked) {
        s_whileAsked();
    }
    return s_freeBytes;
}

namespace Zentor::Tests {
namespace {

constexpr std::int64_t PlentyOfBytes = 1000000001;

/// The panel with three tasks in a window.
struct Scene {
    Scene()
        : widget(panel.widget)
    {
        panel.RestoreScheduled({"A", "B", "C"});
        panel.window->show();
    }

    QLayout* Rows() const { return panel.Find<QWidget>("recordTableFrame")->layout(); }

    QToolButton* DeleteButton(int row) const
    {
        return Rows()->itemAt(row)->widget()->findChild<QToolButton*>();
    }

    /// Titles from top to bottom; "-" for the placeholder row.
    QString RowTitles() const
    {
        QStringList titles;
        for (int i = 0; i < Rows()->count(); ++i) {
            if (const QWidget* row = Rows()->itemAt(i)->widget()) {
                const auto* title = row->findChild<ZLabel*>(Desktop::PanelPart::RowTitle);
                titles << (title != nullptr ? title->originalText() : QStringLiteral("-"));
            }
        }
        return titles.join(',');
    }

    Panel panel;
    const QPointer<RecordSchedulerWidget> widget;
};

/// Clicks also what is behind a modal box, as a program may do.
void Click(QAbstractButton* button)
{
    const QPointer<QAbstractButton> guard(button);
    const QPointF middle = QRectF(button->rect()).center();
    const QPointF onScreen = button->mapToGlobal(middle.toPoint());
    QMouseEvent press(QEvent::MouseButtonPress, middle, onScreen, Qt::LeftButton, Qt::LeftButton,
                      {});
    QCoreApplication::sendEvent(button, &press);
    if (guard != nullptr) {
        QMouseEvent release(QEvent::MouseButtonRelease, middle, onScreen, Qt::LeftButton, {}, {});
        QCoreApplication::sendEvent(button, &release);
    }
}

struct Question {
    const char* name;
    void (*ask)(const Scene& scene);
};

void EnterATask(const Scene& scene)
{
    if (!scene.panel.IsFormOpen()) {
        scene.panel.FillForm(QStringLiteral("D"), QTime(18, 0));
    }
}

const Question Questions[] = {
    {"leave",
     [](const Scene& scene) {
         scene.panel.Scheduled()->setChecked(true);
         scene.panel.Limited()->click();
     }},
    {"delete first", [](const Scene& scene) { Click(scene.DeleteButton(0)); }},
    {"delete second", [](const Scene& scene) { Click(scene.DeleteButton(1)); }},
    {"go back",
     [](const Scene& scene) {
         EnterATask(scene);
         Click(scene.panel.Back());
     }},
    {"start",
     [](const Scene& scene) {
         scene.panel.Scheduled()->setChecked(true);
         // One box only: about the entered task or about the disk.
         s_freeBytes = scene.panel.IsFormOpen() ? PlentyOfBytes : 0;
         scene.widget->ValidateSettings();
     }},
};

/// What happens while all boxes are open.
struct Event {
    const char* name;
    void (*happen)(Scene& scene, const std::vector<QPointer<QMessageBox>>& boxes);
    /// Whether no box is left to be answered.
    bool endsAll = false;
};

using OpenBoxes = std::vector<QPointer<QMessageBox>>;

const Event Events[] = {
    {"nothing", [](Scene&, const OpenBoxes&) {}},
    {"panel deleted", [](Scene& scene, const OpenBoxes&) { delete scene.widget; }, true},
    {"window deleted", [](Scene& scene, const OpenBoxes&) { scene.panel.window.reset(); }, true},
    {"schedule cleared",
     [](Scene& scene, const OpenBoxes&) { scene.panel.Table()->ClearSchedule(); }},
    {"first box deleted", [](Scene&, const OpenBoxes& boxes) { delete boxes.front(); }},
    {"last box deleted", [](Scene&, const OpenBoxes& boxes) { delete boxes.back(); }},
    {"first box answered",
     [](Scene&, const OpenBoxes& boxes) { boxes.front()->button(QMessageBox::Cancel)->click(); }},
    {"panel deleted after an answer",
     [](Scene& scene, const OpenBoxes& boxes) {
         boxes.back()->button(QMessageBox::Cancel)->click();
         delete scene.widget;
     },
     true},
    {"schedule cleared and filled",
     [](Scene& scene, const OpenBoxes&) {
         scene.panel.Table()->ClearSchedule();
         scene.panel.Table()->AddRecord(Record("A", "15:00"));
         QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
     }},
};

QAbstractButton* AcceptingButton(const QMessageBox& box)
{
    auto* yes = box.button(QMessageBox::Yes);
    return yes != nullptr ? yes : box.button(QMessageBox::Ok);
}

/// Asks Questions on top of each other, then lets something happen, then answers those still open
/// from the last to the first.
class Stack {
public:
    Stack(Scene& scene, std::vector<const Question*> stacked, const Event& event, bool accept)
        : m_scene(scene)
        , m_questions(std::move(stacked))
        , m_event(event)
        , m_accept(accept)
    {
    }

    void Ask()
    {
        const auto* question = m_questions.at(m_boxes.size());
        const ExpectedBox box([&](QMessageBox& shown) { OnShown(shown); });
        question->ask(m_scene);
        m_cameAll &= box.Came();
    }

    bool DidAllCome() const { return m_cameAll && m_boxes.size() == m_questions.size(); }

private:
    void OnShown(QMessageBox& shown)
    {
        const QPointer<QMessageBox> box(&shown);
        m_boxes.push_back(box);
        if (m_boxes.size() < m_questions.size()) {
            Ask();
        } else {
            m_event.happen(m_scene, m_boxes);
        }
        if (box != nullptr && box->isVisible()) {
            (m_accept ? AcceptingButton(*box) : box->button(QMessageBox::Cancel))->click();
        }
    }

    Scene& m_scene;
    const std::vector<const Question*> m_questions;
    const Event& m_event;
    const bool m_accept;
    OpenBoxes m_boxes;
    bool m_cameAll = true;
};

} // namespace
} // namespace Zentor::Tests

Q_DECLARE_METATYPE(std::vector<const Zentor::Tests::Question*>)
Q_DECLARE_METATYPE(const Zentor::Tests::Event*)
Q_DECLARE_METATYPE(QMessageBox::StandardButton)

namespace Zentor::Tests {

class tst_RecordSchedulerWidgetStackedBoxes : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // Without it no row of the table is on screen.
        qApp->setStyleSheet(
            QStringLiteral("#recordTableScrollArea { qproperty-widgetResizable: true; }"));
        QGuiApplication::setQuitOnLastWindowClosed(false);
    }

    void init()
    {
        WidgetTest::init();
        s_freeBytes = 0;
        s_whileAsked = nullptr;
    }

    void staysSound_data()
    {
        QTest::addColumn<std::vector<const Question*>>("stacked");
        QTest::addColumn<const Event*>("event");
        QTest::addColumn<bool>("accept");
        const auto add = [](const std::vector<const Question*>& stacked) {
            QStringList names;
            for (const auto* question : stacked) {
                names << question->name;
            }
            for (const auto& event : Events) {
                for (const bool accept : {false, true}) {
                    if (accept && event.endsAll) {
                        continue;
                    }
                    QTest::addRow("%s: %s, %s", qPrintable(names.join(" + ")), event.name,
                                  accept ? "accepted" : "refused")
                        << stacked << &event << accept;
                }
            }
        };
        constexpr std::size_t count = std::size(Questions);
        for (std::size_t i = 0; i < count; ++i) {
            for (const auto& second : Questions) {
                add({&Questions[i], &second});
            }
            add({&Questions[i], &Questions[i], &Questions[i]});
            add({&Questions[i], &Questions[(i + 1) % count], &Questions[i]});
            add({&Questions[i], &Questions[(i + 2) % count], &Questions[(i + 4) % count]});
        }
    }

    void staysSound()
    {
        QFETCH(std::vector<const Question*>, stacked);
        QFETCH(const Event*, event);
        QFETCH(bool, accept);
        Scene scene;
        Stack stack(scene, stacked, *event, accept);
        stack.Ask();

        QVERIFY(stack.DidAllCome());
        QVERIFY(!IsBoxOpen());
        const auto reported =
            scene.panel.watcher->TakeCalls().filter(QRegularExpression("^Schedule "));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (scene.widget.isNull()) {
            QCOMPARE(reported, QStringList());
            return;
        }
        const QString titles = scene.panel.Titles();
        QCOMPARE(scene.RowTitles(), titles.isEmpty() ? QString("-") : titles);
        QCOMPARE(reported.isEmpty() ? "Schedule A,B,C" : reported.last(), "Schedule " + titles);
        QCOMPARE(scene.panel.Stack()->isHidden(), !scene.panel.Scheduled()->isChecked());
        QCOMPARE(scene.panel.Styles().endsWith("/Active"), scene.panel.Scheduled()->isChecked());
    }

    /// A host that sets the folder in the alert and checks once more.
    void validatesAgainFromItsOwnAlert_data()
    {
        QTest::addColumn<bool>("hasMadeRoom");
        QTest::newRow("the disk is still full") << false;
        QTest::newRow("there is room now") << true;
    }

    void validatesAgainFromItsOwnAlert()
    {
        QFETCH(bool, hasMadeRoom);
        const Scene scene;
        bool mayStart = false;
        int boxCount = 0;
        connect(scene.widget, &RecordSchedulerWidget::OpenFilesSettingsRequested, scene.widget,
                [&] {
                    s_freeBytes = hasMadeRoom ? PlentyOfBytes : 0;
                    const ExpectedBox again(QMessageBox::Cancel);
                    mayStart = scene.widget->ValidateSettings();
                    boxCount += again.Came() ? 1 : 0;
                });
        const ExpectedBox box(QMessageBox::Ok);
        QVERIFY(!scene.widget->ValidateSettings());
        QVERIFY(box.Came());
        QCOMPARE(mayStart, hasMadeRoom);
        QCOMPARE(boxCount, hasMadeRoom ? 0 : 1);
    }

    void answersForTheUnsavedTaskEachTime_data()
    {
        QTest::addColumn<QMessageBox::StandardButton>("first");
        QTest::addColumn<QMessageBox::StandardButton>("second");
        QTest::addColumn<QString>("titles");
        QTest::addColumn<bool>("isFormOpen");
        QTest::newRow("added once") << QMessageBox::Yes << QMessageBox::Yes << "A,B,C,D" << false;
        QTest::newRow("added, then kept")
            << QMessageBox::Cancel << QMessageBox::Yes << "A,B,C,D" << false;
        QTest::newRow("dropped, then added")
            << QMessageBox::Yes << QMessageBox::No << "A,B,C,D" << false;
        QTest::newRow("kept, then added")
            << QMessageBox::Yes << QMessageBox::Cancel << "A,B,C,D" << false;
        QTest::newRow("kept, then dropped")
            << QMessageBox::No << QMessageBox::Cancel << "A,B,C" << false;
        QTest::newRow("kept twice")
            << QMessageBox::Cancel << QMessageBox::Cancel << "A,B,C" << true;
    }

    void answersForTheUnsavedTaskEachTime()
    {
        QFETCH(QMessageBox::StandardButton, first);
        QFETCH(QMessageBox::StandardButton, second);
        const Scene scene;
        EnterATask(scene);
        const ExpectedBox box([&](QMessageBox& shown) {
            const ExpectedBox again(second);
            scene.panel.Back()->click();
            QVERIFY(again.Came());
            shown.button(first)->click();
        });
        scene.panel.Back()->click();
        QVERIFY(box.Came());
        QTEST(scene.panel.Titles(), "titles");
        QTEST(scene.panel.IsFormOpen(), "isFormOpen");
    }

    void endsWithoutAWordWhenThePanelGoesDuringTheDiskQuery_data()
    {
        QTest::addColumn<bool>("isWindow");
        QTest::addColumn<qint64>("freeBytes");
        for (const bool isWindow : {false, true}) {
            for (const qint64 freeBytes : {qint64(0), qint64(PlentyOfBytes)}) {
                QTest::addRow("%s, %lld bytes", isWindow ? "window" : "panel", freeBytes)
                    << isWindow << freeBytes;
            }
        }
    }

    void endsWithoutAWordWhenThePanelGoesDuringTheDiskQuery()
    {
        QFETCH(bool, isWindow);
        QFETCH(qint64, freeBytes);
        Scene scene;
        s_freeBytes = freeBytes;
        s_whileAsked = [&] {
            if (isWindow) {
                scene.panel.window.reset();
            } else {
                delete scene.widget;
            }
        };
        const ExpectedBox noBox(PressEscape);
        QVERIFY(!scene.widget->ValidateSettings());
        QVERIFY(scene.widget.isNull());
        QVERIFY(!noBox.Came());
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_RecordSchedulerWidgetStackedBoxes)

#include "tst_RecordSchedulerWidgetStackedBoxes.moc"
