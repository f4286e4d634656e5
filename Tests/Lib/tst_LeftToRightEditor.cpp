// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QDateTimeEdit>
#include <QHBoxLayout>
#include <QScopeGuard>

#include "LeftToRightEditor.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

using namespace PX::Scheduler::UI;

/// An editor at one edge of a wide window.
struct Window : QWidget {
    explicit Window(Qt::Alignment alignment)
    {
        auto* layout = new QHBoxLayout(this);
        layout->addWidget(editor, 0, alignment);
        KeepLeftToRight(*editor);
        editor->setDisplayFormat(QStringLiteral("hh:mm:ss"));
        editor->setTime(QTime(1, 2, 3));
        resize(600, 100);
        show();
    }

    bool IsEditorAtTheLeft()
    {
        layout()->activate();
        return editor->geometry().center().x() < width() / 2;
    }

    QDateTimeEdit* editor = new QDateTimeEdit(this);
};

} // namespace

class tst_LeftToRightEditor : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void keepsTheOrderOfTheSections_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::newRow("LTR") << Qt::LeftToRight;
        QTest::newRow("RTL") << Qt::RightToLeft;
    }

    void keepsTheOrderOfTheSections()
    {
        QFETCH(Qt::LayoutDirection, direction);
        QGuiApplication::setLayoutDirection(direction);
        const auto restore =
            qScopeGuard([] { QGuiApplication::setLayoutDirection(Qt::LeftToRight); });
        const Window window(Qt::AlignLeft);
        QCOMPARE(window.layoutDirection(), direction);
        QCOMPARE(window.editor->layoutDirection(), Qt::LeftToRight);
        QCOMPARE(window.editor->text(), QStringLiteral("01:02:03"));
    }

    void mirrorsThePlace_data()
    {
        QTest::addColumn<Qt::Alignment>("alignment");
        QTest::addColumn<bool>("isAtTheLeft");
        QTest::newRow("left") << Qt::Alignment(Qt::AlignLeft) << true;
        QTest::newRow("right") << Qt::Alignment(Qt::AlignRight) << false;
    }

    void mirrorsThePlace()
    {
        QFETCH(Qt::Alignment, alignment);
        QFETCH(bool, isAtTheLeft);
        Window window(alignment);
        QCOMPARE(window.IsEditorAtTheLeft(), isAtTheLeft);
        window.setLayoutDirection(Qt::RightToLeft);
        QCOMPARE(window.IsEditorAtTheLeft(), !isAtTheLeft);
        window.setLayoutDirection(Qt::LeftToRight);
        QCOMPARE(window.IsEditorAtTheLeft(), isAtTheLeft);
    }

    void mirrorsThePlaceInAnRtlApplication()
    {
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        const auto restore =
            qScopeGuard([] { QGuiApplication::setLayoutDirection(Qt::LeftToRight); });
        Window window(Qt::AlignLeft);
        QVERIFY(!window.IsEditorAtTheLeft());
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_LeftToRightEditor)

#include "tst_LeftToRightEditor.moc"
