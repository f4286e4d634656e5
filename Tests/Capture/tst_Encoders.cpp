// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "Encoders.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

using Capture::Encoding;
using Capture::Quality;

class tst_Encoders : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    /// Without a bit rate of its own, x264 keeps to one at which all qualities are the same.
    void limitsTheRateByTheQuality_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("rate");
        QTest::addColumn<int>("quality");
        QTest::addColumn<QString>("limit");
        const QSize full(1920, 1080);
        QTest::newRow("small") << full << 30 << int(Quality::Small) << "bitrate=6000 ";
        QTest::newRow("normal") << full << 30 << int(Quality::Normal) << "bitrate=12000 ";
        QTest::newRow("high") << full << 30 << int(Quality::High) << "bitrate=24000 ";
        QTest::newRow("fast") << full << 60 << int(Quality::Normal) << "bitrate=24000 ";
        QTest::newRow("half") << QSize(960, 1080) << 30 << int(Quality::Normal) << "bitrate=6000 ";
        QTest::newRow("tiny") << QSize(64, 64) << 30 << int(Quality::Normal) << "bitrate=500 ";
    }

    void limitsTheRateByTheQuality()
    {
        QFETCH(QSize, size);
        QFETCH(int, rate);
        QFETCH(int, quality);
        QFETCH(QString, limit);
        const Encoding encoding{size, rate, static_cast<Quality>(quality)};
        const QString description =
            Capture::EncoderDescription(QStringLiteral("x264enc"), encoding);
        QVERIFY2(description.contains(limit), qPrintable(description));
    }

    void isSlowerOnlyWhereThatCanBeChanged()
    {
        Encoding encoding{QSize(640, 360)};
        const auto names = Capture::EncoderNames();
        for (const auto& name : names) {
            encoding.isFast = false;
            const QString slow = Capture::EncoderDescription(name, encoding);
            encoding.isFast = true;
            QCOMPARE(Capture::EncoderDescription(name, encoding) != slow,
                     Capture::HasFastMode(name));
        }
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_Encoders)
#include "tst_Encoders.moc"
