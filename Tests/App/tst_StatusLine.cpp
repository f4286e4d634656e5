// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QPaintEvent>
#include <QtMath>

#include "StatusLine.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

namespace {

/// Notes what is painted anew.
class PaintedLine final : public Desktop::StatusLine {
public:
    QRegion painted;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        painted += event->region();
        Desktop::StatusLine::paintEvent(event);
    }
};

} // namespace

class tst_StatusLine : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void showsWhatDoesNotFitInItsTip()
    {
        Desktop::StatusLine line;
        line.resize(300, 24);
        line.show();
        line.showMessage("Short");
        QCOMPARE(line.toolTip(), QString());
        const QString message = QString("A <b>long</b> message ").repeated(10);
        line.showMessage(message);
        QCOMPARE(line.toolTip(), message.toHtmlEscaped());
        QCOMPARE(line.currentMessage(), message);
        line.resize(3000, 24);
        QCOMPARE(line.toolTip(), QString());
        line.clearMessage();
        QCOMPARE(line.toolTip(), QString());
    }

    void clearsTheWholeMessage_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::newRow("left to right") << Qt::LeftToRight;
        QTest::newRow("right to left") << Qt::RightToLeft;
    }

    void clearsTheWholeMessage()
    {
        QFETCH(Qt::LayoutDirection, direction);
        PaintedLine line;
        line.setLayoutDirection(direction);
        line.resize(200, 24);
        line.show();
        line.showMessage("Message");
        QVERIFY(QTest::qWaitForWindowExposed(&line));
        QTRY_VERIFY_WITH_TIMEOUT(!line.painted.isEmpty(), Patience);
        line.painted = {};
        line.clearMessage();
        QTRY_COMPARE_WITH_TIMEOUT(line.painted.boundingRect(), line.rect(), Patience);
    }

    void paintsTheMessageShortened()
    {
        Desktop::StatusLine line;
        line.resize(200, 24);
        line.show();
        line.showMessage(QString("Message ").repeated(20));
        const auto picture = line.grab().toImage();
        const auto ground = picture.pixelColor(1, 1);
        const auto hasInk = [&](int from, int to) {
            for (int x = from; x < to; ++x) {
                for (int y = 4; y < 20; ++y) {
                    if (picture.pixelColor(x, y) != ground) {
                        return true;
                    }
                }
            }
            return false;
        };
        QVERIFY(hasInk(6, 60));
        QVERIFY(!hasInk(195, 199));
    }

    /// The last letter of an italic text leans out of the room that the text takes.
    void paintsTheLastLetterWhole()
    {
        Desktop::StatusLine line;
        line.setSizeGripEnabled(false);
        QFont font = line.font();
        font.setItalic(true);
        font.setPixelSize(20);
        line.setFont(font);
        line.showMessage("Stuff");
        constexpr int margin = 6;
        const qreal width = QFontMetricsF(line.font()).horizontalAdvance("Stuff");
        line.resize(qCeil(width) + 2 * margin, 60);
        line.show();
        QCOMPARE(line.toolTip(), QString());
        const QImage picture = line.grab().toImage();
        line.resize(line.width() + 100, line.height());
        QCOMPARE(picture, line.grab().toImage().copy(picture.rect()));
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_StatusLine)

#include "tst_StatusLine.moc"
