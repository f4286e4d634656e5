// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QLabel>

#include "HostInterfaces.h"
#include "WidgetTest.h"

using namespace Zentor;

namespace {

constexpr const char* SubStyle = "SubStyle";

/// Counts what a widget hears of a new style.
class StyleEvents final : public QObject {
public:
    explicit StyleEvents(QWidget* widget)
        : QObject(widget)
    {
        widget->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto type = event->type();
        if (type == QEvent::StyleChange || type == QEvent::DynamicPropertyChange
            || type == QEvent::Paint || type == QEvent::PaletteChange) {
            ++count;
        }
        return QObject::eventFilter(watched, event);
    }

    int count = 0;
};

} // namespace

class tst_ApplyWidgetStyle : public Tests::WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void appliesTheStyleSheetAnew()
    {
        QWidget window;
        window.setStyleSheet(QStringLiteral("QLabel { color: #000000; }"
                                            "QLabel[SubStyle=\"Hover\"] { color: #ff0000; }"));
        auto* label = new QLabel(QStringLiteral("text"), &window);
        window.show();
        QCOMPARE(label->palette().color(QPalette::WindowText), QColor(Qt::black));
        Util::ApplyWidgetStyle(label, QStringLiteral("Hover"), SubStyle);
        QCOMPARE(label->property(SubStyle).toString(), QStringLiteral("Hover"));
        QCOMPARE(label->palette().color(QPalette::WindowText), QColor(Qt::red));
        Util::ApplyWidgetStyle(label, QStringLiteral("Normal"), SubStyle);
        QCOMPARE(label->palette().color(QPalette::WindowText), QColor(Qt::black));
    }

    void takesPaddingsOver()
    {
        QWidget window;
        window.setStyleSheet(QStringLiteral("QLabel[SubStyle=\"Wide\"] { padding: 7px; }"));
        auto* label = new QLabel(QStringLiteral("text"), &window);
        window.show();
        const QSize plain = label->sizeHint();
        Util::ApplyWidgetStyle(label, QStringLiteral("Wide"), SubStyle);
        QLabel padded(label->text());
        padded.setStyleSheet(QStringLiteral("padding: 7px;"));
        padded.ensurePolished();
        QVERIFY(padded.sizeHint() != plain);
        QCOMPARE(label->sizeHint(), padded.sizeHint());
        QCOMPARE(label->contentsMargins(), padded.contentsMargins());
        Util::ApplyWidgetStyle(label, QStringLiteral("Normal"), SubStyle);
        QCOMPARE(label->sizeHint(), plain);
    }

    void costsNothingWhenNothingChanges()
    {
        QWidget window;
        window.setStyleSheet(QStringLiteral("QLabel[SubStyle=\"Hover\"] { color: #ff0000; }"));
        auto* label = new QLabel(QStringLiteral("text"), &window);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        Util::ApplyWidgetStyle(label, QStringLiteral("Hover"), SubStyle);
        QTRY_VERIFY_WITH_TIMEOUT(!label->testAttribute(Qt::WA_PendingUpdate), Tests::Patience);
        QCoreApplication::sendPostedEvents();

        const auto* events = new StyleEvents(label);
        Util::ApplyWidgetStyle(label, QStringLiteral("Hover"), SubStyle);
        QCoreApplication::sendPostedEvents();
        QCOMPARE(events->count, 0);
        Util::ApplyWidgetStyle(label, QStringLiteral("Normal"), SubStyle);
        QVERIFY(events->count > 0);
    }

    void firstEmptyStyleIsSet()
    {
        QWidget widget;
        QVERIFY(!widget.property(SubStyle).isValid());
        Util::ApplyWidgetStyle(&widget, {}, SubStyle);
        QVERIFY(widget.property(SubStyle).isValid());
    }
};

SCHEDULER_TEST_MAIN(tst_ApplyWidgetStyle)
#include "tst_ApplyWidgetStyle.moc"
