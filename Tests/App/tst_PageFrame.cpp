// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QScrollBar>

#include "Page.h"
#include "PageFrame.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

/// A page of a given size with a field in each of two opposite corners.
class BigPage final : public Desktop::Page {
public:
    explicit BigPage(QSize size)
        : Page(QStringLiteral("big"), nullptr)
        , first(new QLineEdit(this))
        , last(new QLineEdit(this))
    {
        setFixedSize(size);
        first->setGeometry(0, 0, 100, 20);
        last->setGeometry(size.width() - 100, size.height() - 20, 100, 20);
    }

    QString Title() const override { return title; }
    QString Description() const override { return QStringLiteral("What it is for."); }

    QLineEdit* first;
    QLineEdit* last;
    QString title = QStringLiteral("Big");
};

/// The frame of a big page in a window of its own.
struct Window {
    explicit Window(QSize pageSize = {600, 1000})
        : page(new BigPage(pageSize))
        , frame(page, nullptr)
    {
        frame.resize(400, 300);
        frame.Retranslate();
        frame.show();
        QApplication::setActiveWindow(&frame);
    }

    bool IsInView(const QWidget* control) const
    {
        const QRect place(control->mapTo(frame.viewport(), QPoint(0, 0)), control->size());
        return frame.viewport()->rect().contains(place);
    }
    QString Text(const char* name) const { return Label(name)->text(); }
    QLabel* Label(const char* name) const { return frame.findChild<QLabel*>(QLatin1String(name)); }

    BigPage* page;
    Desktop::PageFrame frame;
};

} // namespace

class tst_PageFrame : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
        WidgetTest::cleanup();
    }

    void ownsItsPage()
    {
        const QPointer<Desktop::Page> page(new BigPage({100, 100}));
        {
            const Desktop::PageFrame frame(page, nullptr);
            QCOMPARE(frame.Content(), page.data());
        }
        QVERIFY(page.isNull());
    }

    void showsTitleAndDescription()
    {
        Window window;
        QCOMPARE(window.Text("pageTitle"), QStringLiteral("Big"));
        QCOMPARE(window.Text("pageDescription"), QStringLiteral("What it is for."));
        QCOMPARE(window.frame.accessibleName(), QStringLiteral("Big"));
        QCOMPARE(window.frame.accessibleDescription(), QStringLiteral("What it is for."));

        window.page->title = QStringLiteral("Groß");
        window.frame.Retranslate();
        QCOMPARE(window.Text("pageTitle"), QStringLiteral("Groß"));
        QCOMPARE(window.frame.accessibleName(), QStringLiteral("Groß"));
    }

    void textIsText()
    {
        Window window;
        window.page->title = QStringLiteral("<b>A</b>");
        window.frame.Retranslate();
        QCOMPARE(window.Label("pageTitle")->textFormat(), Qt::PlainText);
    }

    void scrollsToWhatReceivesTheFocus_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::newRow("left to right") << Qt::LeftToRight;
        QTest::newRow("right to left") << Qt::RightToLeft;
    }

    void scrollsToWhatReceivesTheFocus()
    {
        QFETCH(Qt::LayoutDirection, direction);
        QGuiApplication::setLayoutDirection(direction);
        Window window;
        QVERIFY(QTest::qWaitForWindowActive(&window.frame));
        QTRY_VERIFY_WITH_TIMEOUT(window.frame.verticalScrollBar()->maximum() > 0, Patience);
        window.page->last->setFocus(Qt::TabFocusReason);
        QVERIFY(window.IsInView(window.page->last));
        QVERIFY(!window.IsInView(window.page->first));
        window.page->first->setFocus(Qt::BacktabFocusReason);
        QVERIFY(window.IsInView(window.page->first));
    }

    void leavesWhatIsInViewWhereItIs()
    {
        Window window;
        QVERIFY(QTest::qWaitForWindowActive(&window.frame));
        QTRY_VERIFY_WITH_TIMEOUT(window.frame.verticalScrollBar()->maximum() > 0, Patience);
        window.page->last->setFocus(Qt::TabFocusReason);
        window.page->first->move(window.page->last->pos() - QPoint(0, 60));
        const int before = window.frame.verticalScrollBar()->value();
        window.page->first->setFocus(Qt::TabFocusReason);
        QVERIFY(window.IsInView(window.page->first));
        QCOMPARE(window.frame.verticalScrollBar()->value(), before);
    }

    /// A page that becomes too long must not move what is above it.
    void scrollsToWhatThePageReveals()
    {
        const Window window;
        auto* part = window.page->last;
        part->setFixedHeight(20);
        QTRY_COMPARE_WITH_TIMEOUT(window.frame.verticalScrollBar()->value(), 0, Patience);
        QVERIFY(!window.IsInView(part));
        Q_EMIT window.page->RevealRequested(part);
        // As a layout does it: in a later pass of the event loop.
        QVERIFY(!window.IsInView(part));
        QTRY_VERIFY_WITH_TIMEOUT(window.IsInView(part), Patience);
    }

    void headIsWrappedAlikeWithAndWithoutAScrollBar()
    {
        const Window small({100, 100});
        const Window big({100, 2000});
        QTRY_VERIFY_WITH_TIMEOUT(big.frame.verticalScrollBar()->maximum() > 0, Patience);
        QCOMPARE(small.frame.verticalScrollBar()->maximum(), 0);
        QCOMPARE(big.Label("pageTitle")->parentWidget()->maximumWidth(),
                 small.Label("pageTitle")->parentWidget()->maximumWidth());
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_PageFrame)

#include "tst_PageFrame.moc"
