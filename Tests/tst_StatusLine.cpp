#include "StatusLine.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

class tst_StatusLine : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void showsWhatDoesNotFitInItsTip()
    {
        App::StatusLine line;
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

    void paintsTheMessageShortened()
    {
        App::StatusLine line;
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
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_StatusLine)

#include "tst_StatusLine.moc"
