#include <QAbstractButton>
#include <QPointer>

#include "Boxes.h"
#include "ModalQuestion.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

using PX::Scheduler::UI::ModalQuestion;
using Util::AlertBox;

/// A widget in a window that has two questions to ask, and the box of the last one.
class Asker final : public QWidget {
public:
    explicit Asker(QWidget* parent)
        : QWidget(parent)
    {
    }

    QMessageBox::StandardButton Ask(ModalQuestion& which)
    {
        auto asked = std::make_unique<AlertBox>(
            AlertBox::Question, QString(), QStringLiteral("Sure?"),
            QMessageBox::Ok | QMessageBox::No | QMessageBox::Cancel, window(), Qt::Dialog);
        box = asked.get();
        return ModalQuestion::Ask(which, std::move(asked), this);
    }

    ModalQuestion question;
    ModalQuestion other;
    QPointer<AlertBox> box;
};

/// An asker that may go at any time, and what is left of it.
struct Scene {
    std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
    const QPointer<Asker> asker = new Asker(window.get());
};

} // namespace
} // namespace Zentor::Tests

Q_DECLARE_METATYPE(QMessageBox::StandardButton)

namespace Zentor::Tests {

class tst_ModalQuestion : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void returnsTheAnswer_data()
    {
        QTest::addColumn<QMessageBox::StandardButton>("answer");
        QTest::newRow("OK") << QMessageBox::Ok;
        QTest::newRow("No") << QMessageBox::No;
        QTest::newRow("Cancel") << QMessageBox::Cancel;
    }

    void returnsTheAnswer()
    {
        QFETCH(QMessageBox::StandardButton, answer);
        const Scene scene;
        const ExpectedBox box(answer);
        QCOMPARE(scene.asker->Ask(scene.asker->question), answer);
        QVERIFY(box.Came());
        QVERIFY(scene.asker->box.isNull());
    }

    void isRefusedByEscape()
    {
        const Scene scene;
        const ExpectedBox box(PressEscape);
        QCOMPARE(scene.asker->Ask(scene.asker->question), QMessageBox::Cancel);
        QVERIFY(box.Came());
    }

    void isOpenWhileItIsAsked()
    {
        const Scene scene;
        bool wasOpen = false;
        bool wasOtherOpen = true;
        QVERIFY(!scene.asker->question.IsOpen());
        const ExpectedBox box([&](QMessageBox& open) {
            wasOpen = scene.asker->question.IsOpen();
            wasOtherOpen = scene.asker->other.IsOpen();
            open.reject();
        });
        scene.asker->Ask(scene.asker->question);
        QVERIFY(box.Came());
        QVERIFY(wasOpen);
        QVERIFY(!wasOtherOpen);
        QVERIFY(!scene.asker->question.IsOpen());
    }

    void isAskedOnceAtATime()
    {
        const Scene scene;
        auto again = QMessageBox::NoButton;
        bool wasOpen = false;
        const ExpectedBox box([&](QMessageBox& open) {
            const ExpectedBox second(QMessageBox::No);
            again = scene.asker->Ask(scene.asker->question);
            QVERIFY(!second.Came());
            QVERIFY(scene.asker->box.isNull());
            QCOMPARE(QApplication::activeModalWidget(), &open);
            wasOpen = scene.asker->question.IsOpen();
            open.button(QMessageBox::Ok)->click();
        });
        QCOMPARE(scene.asker->Ask(scene.asker->question), QMessageBox::Ok);
        QVERIFY(box.Came());
        QCOMPARE(again, QMessageBox::Cancel);
        QVERIFY(wasOpen);
    }

    void isAskedAgainOnceItIsAnswered()
    {
        const Scene scene;
        for (const auto answer : {QMessageBox::Cancel, QMessageBox::Ok, QMessageBox::No}) {
            const ExpectedBox box(answer);
            QCOMPARE(scene.asker->Ask(scene.asker->question), answer);
            QVERIFY(box.Came());
        }
    }

    void leavesRoomForAnotherQuestion()
    {
        const Scene scene;
        auto inside = QMessageBox::NoButton;
        const ExpectedBox box([&](QMessageBox& open) {
            const ExpectedBox other(QMessageBox::No);
            inside = scene.asker->Ask(scene.asker->other);
            QVERIFY(other.Came());
            QVERIFY(scene.asker->question.IsOpen());
            QVERIFY(!scene.asker->other.IsOpen());
            open.button(QMessageBox::Ok)->click();
        });
        QCOMPARE(scene.asker->Ask(scene.asker->question), QMessageBox::Ok);
        QVERIFY(box.Came());
        QCOMPARE(inside, QMessageBox::No);
    }

    void isRefusedWhenItsAskerGoes_data()
    {
        QTest::addColumn<QString>("victim");
        QTest::addColumn<bool>("isAccepted");
        for (const char* victim : {"asker", "window"}) {
            QTest::addRow("%s", victim) << victim << false;
            QTest::addRow("%s, after the answer", victim) << victim << true;
        }
    }

    void isRefusedWhenItsAskerGoes()
    {
        QFETCH(QString, victim);
        QFETCH(bool, isAccepted);
        Scene scene;
        QPointer<QMessageBox> asked;
        bool wasClosed = false;
        const ExpectedBox box([&](QMessageBox& open) {
            asked = &open;
            if (isAccepted) {
                open.button(QMessageBox::Ok)->click();
            }
            if (victim == QLatin1String("asker")) {
                delete scene.asker;
            } else {
                scene.window.reset();
            }
            wasClosed = asked.isNull() || asked->isHidden();
        });
        QCOMPARE(scene.asker->Ask(scene.asker->question), QMessageBox::Cancel);
        QVERIFY(box.Came());
        QVERIFY(wasClosed);
        QVERIFY(scene.asker.isNull());
        QVERIFY(asked.isNull());
        QVERIFY(!IsBoxOpen());
    }

    void isRefusedWhenItsBoxGoes()
    {
        const Scene scene;
        {
            const ExpectedBox box([](QMessageBox& open) { delete &open; });
            QCOMPARE(scene.asker->Ask(scene.asker->question), QMessageBox::Cancel);
            QVERIFY(box.Came());
        }
        QVERIFY(!scene.asker->question.IsOpen());
        const ExpectedBox next(QMessageBox::Ok);
        QCOMPARE(scene.asker->Ask(scene.asker->question), QMessageBox::Ok);
        QVERIFY(next.Came());
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_ModalQuestion)

#include "tst_ModalQuestion.moc"
