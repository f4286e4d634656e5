// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "System/RecorderRequest.h"

#include <QJsonDocument>

#include "WidgetTest.h"

namespace Zentor::Tests {

using Schedule::RecorderRequest;
using Source = RecorderRequest::Source;

class tst_RecorderRequest : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void saysEverything();
    void namesTheSource_data();
    void namesTheSource();
};

void tst_RecorderRequest::saysEverything()
{
    RecorderRequest request;
    request.file = "/home/user/a.mkv";
    request.source = Source::X11;
    request.screenIndex = 2;
    request.framesPerSecond = 60;
    request.quality = Schedule::RecordingSettings::Quality::High;
    request.showPointer = false;
    request.soundDevices = QStringList{"a.monitor", "b"};
    request.mixSound = false;
    request.reserveBytes = 1'000'000'000'000;
    const auto expected = QJsonDocument::fromJson(
        R"({"cmd":"prepare","file":"/home/user/a.mkv","source":{"type":"x11","screen":2},"fps":60,
            "quality":"high","pointer":false,"audio":["a.monitor","b"],"mix":false,
            "reserve":1000000000000})");
    QCOMPARE(LineOf(request), expected.object());
}

void tst_RecorderRequest::namesTheSource_data()
{
    QTest::addColumn<int>("source");
    QTest::addColumn<QRect>("area");
    QTest::addColumn<bool>("isWayland");
    QTest::addColumn<QByteArray>("line");
    const auto row = [](const char* name, Source source, const QRect& area, bool isWayland,
                        const char* line) {
        QTest::newRow(name) << static_cast<int>(source) << area << isWayland << QByteArray(line);
    };
    const QRect area(-1, 2, 640, 480);
    row("screen", Source::Desktop, {}, false, R"({"type":"x11","screen":1})");
    row("area", Source::Desktop, area, false, R"({"type":"x11","x":-1,"y":2,"w":640,"h":480})");
    row("Wayland", Source::Desktop, {}, true, R"({"type":"portal"})");
    row("area, Wayland", Source::Desktop, area, true,
        R"({"type":"portal","x":-1,"y":2,"w":640,"h":480})");
    row("portal", Source::Portal, {}, false, R"({"type":"portal"})");
    row("X11 on Wayland", Source::X11, {}, true, R"({"type":"x11","screen":1})");
    row("test", Source::Test, {}, true, R"({"type":"test"})");
    row("test with a size", Source::Test, area, false,
        R"({"type":"test","x":-1,"y":2,"w":640,"h":480})");
}

void tst_RecorderRequest::namesTheSource()
{
    QFETCH(int, source);
    QFETCH(QRect, area);
    QFETCH(bool, isWayland);
    QFETCH(QByteArray, line);
    qputenv("WAYLAND_DISPLAY", isWayland ? "wayland-0" : "");
    RecorderRequest request;
    request.source = static_cast<Source>(source);
    request.area = area;
    request.screenIndex = 1;
    QCOMPARE(LineOf(request).value("source").toObject(), QJsonDocument::fromJson(line).object());
    QCOMPARE(IsFromPortal(request), line.contains("portal"));
}

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_RecorderRequest)

#include "tst_RecorderRequest.moc"
