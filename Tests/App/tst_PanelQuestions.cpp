// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QCheckBox>
#include <QLayout>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolButton>

#include "AppWindow.h"
#include "Boxes.h"
#include "Languages.h"
#include "PanelParts.h"
#include "QtNames.h"
#include "Resources.h"
#include "Theme.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

QWidget* Row(const AppWindow& app, int index)
{
    return app.Find(Desktop::PanelPart::Rows)->layout()->itemAt(index)->widget();
}

/// The indexes of the rows that are marked in all their parts.
QList<int> MarkedRows(const AppWindow& app)
{
    QList<int> marked;
    const auto isMarked = [](const QWidget* widget) {
        return widget->property("Question") == QLatin1String("Open");
    };
    const QLayout* rows = app.Find(Desktop::PanelPart::Rows)->layout();
    for (int index = 0; index < rows->count(); ++index) {
        const QWidget* row = rows->itemAt(index)->widget();
        if (row != nullptr && isMarked(row)) {
            const auto parts = row->findChildren<QWidget*>();
            marked << (std::all_of(parts.begin(), parts.end(), isMarked) ? index : -1);
        }
    }
    return marked;
}

QRect OnScreen(const QWidget& widget)
{
    return {widget.mapToGlobal(QPoint(0, 0)), widget.size()};
}

/// Opens a question: the one before deleting, the one before leaving the schedule, the one about
/// an unsaved task.
using Ask = void (*)(const AppWindow& app);

void AskToDelete(const AppWindow& app)
{
    Desktop::DeleteButtonOf(Row(app, 0))->click();
}

void AskToLeave(const AppWindow& app)
{
    app.Button(Desktop::PanelPart::OffModeButton)->click();
}

void AskAboutTask(const AppWindow& app)
{
    app.Button(Desktop::PanelPart::AddButton)->click();
    app.Find<QLineEdit>(Desktop::PanelPart::NameField)->setText(QStringLiteral("Other"));
    app.Button(Desktop::PanelPart::BackButton)->click();
}

/// Presses a key with Alt, together with its text, for letters that Qt Test knows no key of.
void PressWithAlt(const QMessageBox& box, const QKeySequence& mnemonic)
{
    const int letter = Desktop::FirstKey(mnemonic);
    QTest::sendKeyEvent(QTest::Click, box.windowHandle(), Qt::Key(letter), QChar(letter),
                        Qt::AltModifier);
}

QList<QAbstractButton*> ButtonsOf(const QMessageBox& box)
{
    auto buttons = box.buttons();
    if (box.checkBox() != nullptr) {
        buttons << box.checkBox();
    }
    return buttons;
}

/// Puts into \a problems which buttons of \a box have no key of their own, or are not pressed by
/// it.
void TryKeys(QMessageBox& box, QStringList& problems)
{
    QList<QKeySequence> keys;
    const auto buttons = ButtonsOf(box);
    for (QAbstractButton* button : buttons) {
        const QKeySequence key = QKeySequence::mnemonic(button->text());
        if (key.isEmpty() || keys.contains(key)) {
            problems << button->text();
        }
        keys << key;
    }
    if (!problems.isEmpty()) {
        box.reject();
        return;
    }
    if (box.checkBox() != nullptr) {
        PressWithAlt(box, keys.constLast());
        // A button that is pressed by its key shows it for a moment before it acts.
        if (!QTest::qWaitFor([&] { return box.checkBox()->isChecked(); })) {
            problems << box.checkBox()->text();
        }
        box.checkBox()->setChecked(false);
    }
    const auto cancel = buttons.indexOf(box.button(QMessageBox::Cancel));
    PressWithAlt(box, keys.at(cancel));
    if (!QTest::qWaitFor([&] { return !box.isVisible(); })) {
        problems << buttons.at(cancel)->text();
        box.reject();
    }
}

} // namespace
} // namespace Zentor::Tests

Q_DECLARE_METATYPE(Zentor::Tests::Ask)
Q_DECLARE_METATYPE(QMessageBox::StandardButton)

namespace Zentor::Tests {

class tst_PanelQuestions : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Desktop::RegisterResources();
        Desktop::ApplyTheme(Desktop::Theme::Light);
    }

    void showsWhichTaskIsMeant_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<QMessageBox::StandardButton>("answer");
        for (int row = 0; row < TaskCount; ++row) {
            QTest::addRow("row %d, keep", row) << row << QMessageBox::Cancel;
        }
        QTest::newRow("first row, delete") << 0 << QMessageBox::Ok;
        QTest::newRow("last row, delete") << TaskCount - 1 << QMessageBox::Ok;
    }

    void showsWhichTaskIsMeant()
    {
        QFETCH(int, row);
        QFETCH(QMessageBox::StandardButton, answer);
        const AppWindow app(TaskCount);
        QVERIFY(app.Show());
        QList<int> marked;
        bool isOff = false;
        QString told;
        const ExpectedBox box([&](QMessageBox& opened) {
            marked = MarkedRows(app);
            told = opened.accessibleDescription();
            isOff = !opened.frameGeometry().intersects(OnScreen(*Row(app, row)))
                && opened.screen()->availableGeometry().contains(opened.geometry());
            opened.button(answer)->click();
        });
        Desktop::DeleteButtonOf(Row(app, row))->click();
        QVERIFY(box.Came());
        QCOMPARE(marked, QList<int>{row});
        QVERIFY(isOff);
        QCOMPARE(told, QStringLiteral("Delete Task %1").arg(row + 1));
        QCOMPARE(MarkedRows(app), QList<int>());
        QCOMPARE(app.store->Settings().schedule.size(),
                 std::size_t(answer == QMessageBox::Ok ? TaskCount - 1 : TaskCount));
    }

    void bringsTheTaskIntoView()
    {
        constexpr int many = 40;
        const AppWindow app(many);
        QVERIFY(app.Show());
        const auto* list = app.Find<QScrollArea>(Desktop::PanelPart::List);
        QWidget* last = Row(app, many - 1);
        const auto isInViewWhenAsked = [&] {
            list->verticalScrollBar()->setValue(0);
            bool isInView = false;
            const ExpectedBox box([&](QMessageBox& opened) {
                isInView = !last->visibleRegion().isEmpty();
                opened.reject();
            });
            Desktop::DeleteButtonOf(last)->click();
            return box.Came() && isInView;
        };
        // The list takes the height that it has in the window only after some rounds. Asked once in
        // each, which QTRY_VERIFY() does not promise.
        QVERIFY(QTest::qWaitFor(isInViewWhenAsked, Patience));
    }

    void marksNothingForOtherQuestions()
    {
        const AppWindow app(2);
        QVERIFY(app.Show());
        // The mouse leaves the pressed button, which makes no click.
        auto* button = Desktop::DeleteButtonOf(Row(app, 0));
        const QSignalSpy releases(button, &QAbstractButton::released);
        QTest::mousePress(button, Qt::LeftButton);
        const QPoint beside(-100, 5);
        QMouseEvent move(QEvent::MouseMove, beside, button->mapToGlobal(beside), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(button, &move);
        QTest::mouseRelease(button, Qt::LeftButton, {}, beside);
        QCOMPARE(releases.size(), 1);
        QCoreApplication::processEvents();
        QList<int> marked{-1};
        const ExpectedBox box([&](QMessageBox& opened) {
            marked = MarkedRows(app);
            opened.reject();
        });
        AskToLeave(app);
        QVERIFY(box.Came());
        QCOMPARE(marked, QList<int>());
    }

    void givesButtonsKeys_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<Ask>("ask");
        const auto languages = Desktop::LanguageCodes();
        for (const QString& language : languages) {
            QTest::addRow("%s, delete", qPrintable(language)) << language << Ask(AskToDelete);
            QTest::addRow("%s, leave", qPrintable(language)) << language << Ask(AskToLeave);
            QTest::addRow("%s, unsaved", qPrintable(language)) << language << Ask(AskAboutTask);
        }
    }

    void givesButtonsKeys()
    {
        QFETCH(QString, language);
        QFETCH(Ask, ask);
        Desktop::Translations translations;
        translations.Use(language);
        {
            const AppWindow app(2);
            QVERIFY(app.Show());
            QStringList problems;
            const ExpectedBox box([&](QMessageBox& opened) { TryKeys(opened, problems); });
            ask(app);
            QVERIFY(box.Came());
            QCOMPARE(problems, QStringList());
            QCOMPARE(app.store->Settings().schedule.size(), std::size_t(2));
        }
        translations.Use(QStringLiteral("en"));
        QCoreApplication::sendPostedEvents();
        QLocale::setDefault(QLocale::c());
    }

private:
    static constexpr int TaskCount = 6;
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_PanelQuestions)

#include "tst_PanelQuestions.moc"
