// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QJsonDocument>

#include "LineRequest.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

std::optional<Capture::RecordingRequest> Read(const QByteArray& line)
{
    QString problem;
    auto request = Capture::ReadRequest(QJsonDocument::fromJson(line).object(), &problem);
    // Exactly one of the two.
    return request.has_value() == problem.isEmpty() ? request : std::nullopt;
}

} // namespace

class tst_LineRequest : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void readsEverything()
    {
        const auto request =
            Read(R"({"file":"/a/b.mp4","source":{"type":"x11","x":1,"y":2,"w":30,"h":40},"fps":60,
                       "audio":["a.monitor","b"],"mix":true,"reserve":500000000,"pointer":false,
                       "encoder":"vp9enc","quality":"high","unknown":[1]})");
        QVERIFY(request.has_value());
        QCOMPARE(request->file, QStringLiteral("/a/b.mp4"));
        QCOMPARE(request->source, Capture::RecordingRequest::Source::X11);
        QCOMPARE(request->area.value_or(QRect()), QRect(1, 2, 30, 40));
        QCOMPARE(request->framesPerSecond, 60);
        QCOMPARE(request->sound, (QStringList{"a.monitor", "b"}));
        QVERIFY(request->isSoundMixed);
        QVERIFY(!request->isPointerVisible);
        QCOMPARE(request->encoder, QStringLiteral("vp9enc"));
        QCOMPARE(request->quality, Capture::Quality::High);
        QCOMPARE(request->reserve, std::int64_t(500000000));
    }

    void hasDefaults()
    {
        const auto request = Read(R"({"file":"/a.mkv","source":{"type":"x11","screen":1}})");
        QVERIFY(request.has_value());
        QCOMPARE(request->screen, 1);
        QVERIFY(!request->area.has_value());
        QCOMPARE(request->framesPerSecond, 30);
        QVERIFY(request->sound.isEmpty());
        QVERIFY(!request->isSoundMixed);
        QVERIFY(request->isPointerVisible);
        QVERIFY(request->encoder.isEmpty());
        QCOMPARE(request->quality, Capture::Quality::Normal);
        QCOMPARE(request->reserve, std::int64_t(0));
    }

    void refusesWhatCannotBe_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::newRow("no file") << QByteArray(R"({"source":{"type":"test"}})");
        QTest::newRow("relative") << QByteArray(R"({"file":"a.mkv","source":{"type":"test"}})");
        QTest::newRow("ending") << QByteArray(R"({"file":"/a.avi","source":{"type":"test"}})");
        QTest::newRow("source") << QByteArray(R"({"file":"/a.mkv","source":{"type":"film"}})");
        QTest::newRow("no rate") << QByteArray(R"({"file":"/a.mkv","fps":0})");
        QTest::newRow("rate") << QByteArray(R"({"file":"/a.mkv","fps":241})");
        QTest::newRow("quality") << QByteArray(R"({"file":"/a.mkv","quality":"best"})");
        QTest::newRow("encoder") << QByteArray(R"({"file":"/a.mkv","encoder":"magic"})");
        QTest::newRow("screen") << QByteArray(R"({"file":"/a.mkv","source":{"screen":-1}})");
    }

    void refusesWhatCannotBe()
    {
        QFETCH(QByteArray, line);
        QString problem;
        QVERIFY(!Capture::ReadRequest(QJsonDocument::fromJson(line).object(), &problem));
        QVERIFY(!problem.isEmpty());
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_LineRequest)
#include "tst_LineRequest.moc"
