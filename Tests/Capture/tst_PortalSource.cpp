// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "RecorderTestSupport.h"
#include "SoundServer.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

/// A desktop with a portal whose screen shows colour bars in this format.
bool StartDesktop(Surroundings& surroundings, const QStringList& picture)
{
    surroundings.Set("WAYLAND_DISPLAY", "none");
    auto& portal =
        surroundings.Start(PX_PORTAL, QStringList{surroundings.Path("portal.log")} + picture);
    return portal.waitForReadyRead(Patience);
}

QStringList Bars(const QString& format)
{
    return {"videotestsrc", "!", "video/x-raw,format=BGRx," + format};
}

QByteArray LogOf(const Surroundings& surroundings)
{
    QFile file(surroundings.Path("portal.log"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class tst_PortalSource : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void asksItsUserOnce()
    {
        Surroundings surroundings;
        const SoundServer pipeWire(surroundings);
        QVERIFY(pipeWire.IsRunning());
        QVERIFY(StartDesktop(surroundings, Bars("width=641,height=361,framerate=30/1")));
        for (const char* name : {"a.mkv", "b.mkv", "c.mkv"}) {
            const QString file = surroundings.Path(name);
            QCOMPARE(Record(surroundings, {"--file", file, "--duration", "1"}).exitCode, 0);
            const auto media = MediaIn(file);
            QCOMPARE(media.Frames(), 30);
            QCOMPARE(media.Size(), QSize(640, 360));
        }
        QCOMPARE(LogOf(surroundings), QByteArray("asked\nrestored\nrestored\n"));
        const QFileInfo token(surroundings.Path("state/px-recorder/restore-token"));
        QVERIFY(token.exists());
        QVERIFY(!token.permission(QFile::ReadGroup) && !token.permission(QFile::ReadOther));
    }

    /// The first of the colour bars is white, the fifth magenta.
    void recordsAnArea()
    {
        Surroundings surroundings;
        const SoundServer pipeWire(surroundings);
        QVERIFY(pipeWire.IsRunning());
        QVERIFY(StartDesktop(surroundings, Bars("width=700,height=400,framerate=30/1")));
        const QString file = surroundings.Path("a.mkv");
        QCOMPARE(
            Record(surroundings, {"--file", file, "--area", "410,10,81,9999", "--duration", "1"})
                .exitCode,
            0);
        QCOMPARE(MediaIn(file).Size(), QSize(80, 390));
        QVERIFY(IsAbout(ColourAt(file, 0.5, {40, 100}), Qt::magenta));
    }

    /// It sends one frame in half a minute.
    void recordsAScreenThatStandsStill()
    {
        Surroundings surroundings;
        const SoundServer pipeWire(surroundings);
        QVERIFY(pipeWire.IsRunning());
        QVERIFY(StartDesktop(surroundings, Bars("width=640,height=360,framerate=1/30")));
        const QString file = surroundings.Path("a.mkv");
        QCOMPARE(Record(surroundings, {"--file", file, "--duration", "3"}).exitCode, 0);
        QCOMPARE(MediaIn(file).Frames(), 90);
        QCOMPARE(DecodingErrors(file), QString());
    }

    void acceptsThatItsUserRefuses()
    {
        Surroundings surroundings;
        const SoundServer pipeWire(surroundings);
        QVERIFY(pipeWire.IsRunning());
        QVERIFY(StartDesktop(surroundings, {"refuse"}));
        const QString file = surroundings.Path("a.mkv");
        const auto outcome = Record(surroundings, {"--file", file, "--duration", "1"});
        QCOMPARE(outcome.exitCode, 1);
        QCOMPARE(outcome.errorLines.size(), 1);
        QVERIFY(!QFile::exists(file));
    }

    void failsWithoutAPortal()
    {
        Surroundings surroundings;
        surroundings.Set("WAYLAND_DISPLAY", "none");
        surroundings.Set("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + surroundings.Path("bus"));
        const QString file = surroundings.Path("a.mkv");
        const auto outcome = Record(surroundings, {"--file", file, "--duration", "1"});
        QCOMPARE(outcome.exitCode, 1);
        QCOMPARE(outcome.errorLines.size(), 1);
        QVERIFY(!QFile::exists(file));
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_PortalSource)
#include "tst_PortalSource.moc"
