// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <csignal>
#include <functional>

#include <QElapsedTimer>
#include <QJsonDocument>

#include "RecorderTestSupport.h"
#include "SoundServer.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

/// What the recorder measures.
class Levels {
public:
    Levels(const Surroundings& surroundings, const QStringList& devices)
    {
        QStringList arguments{"--levels"};
        for (const auto& device : devices) {
            arguments << "--sound" << device;
        }
        StartRecorder(surroundings, m_process, arguments);
    }
    ~Levels()
    {
        m_process.kill();
        m_process.waitForFinished(Patience);
    }

    QJsonObject NextLine()
    {
        while (!m_process.canReadLine()) {
            if (!m_process.waitForReadyRead(Patience)) {
                return {};
            }
        }
        return QJsonDocument::fromJson(m_process.readLine()).object();
    }
    QJsonObject NextPeaks() { return NextLine().value("peaks").toObject(); }

    /// Reads lines until one has peaks of which \a isWanted is true.
    bool WaitFor(const std::function<bool(const QJsonObject&)>& isWanted)
    {
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < Patience) {
            if (isWanted(NextPeaks())) {
                return true;
            }
        }
        return false;
    }

    QProcess& Process() { return m_process; }

private:
    QProcess m_process;
};

} // namespace

class tst_LevelSession : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void saysHowLoudEachDeviceIs();
    void leavesOutWhatIsAbsent();
    void noticesThatADeviceComesAndGoes();
    void writesTenLinesASecond();
    void runsWithoutASoundServer();
    void endsWithItsInput();
    void endsWithItsOutput();
    void endsWithASignal();
};

void tst_LevelSession::saysHowLoudEachDeviceIs()
{
    Surroundings surroundings;
    SoundServer server(surroundings);
    server.AddOutput("speakers");
    server.AddMicrophone("mic");
    server.PlayTone("speakers");
    QVERIFY(server.IsRunning());
    Levels levels(surroundings, {"mic", "speakers.monitor"});
    // The tone has half of the full scale.
    QVERIFY(levels.WaitFor([](const QJsonObject& peaks) {
        return peaks.size() == 2 && peaks.value("mic").toDouble() < -80
            && std::abs(peaks.value("speakers.monitor").toDouble() + 6) < 1;
    }));
}

void tst_LevelSession::leavesOutWhatIsAbsent()
{
    Surroundings surroundings;
    SoundServer server(surroundings);
    server.AddMicrophone("mic");
    QVERIFY(server.IsRunning());
    Levels levels(surroundings, {"nowhere", "mic"});
    for (int line = 0; line < 5; ++line) {
        QCOMPARE(levels.NextPeaks().keys(), QStringList{"mic"});
    }
}

/// The server would move the stream to what plays the tone.
void tst_LevelSession::noticesThatADeviceComesAndGoes()
{
    Surroundings surroundings;
    SoundServer server(surroundings);
    server.AddOutput("speakers");
    server.PlayTone("speakers");
    QVERIFY(server.IsRunning());
    Levels levels(surroundings, {"mic"});
    QCOMPARE(levels.NextPeaks(), QJsonObject());
    for (int round = 0; round < 2; ++round) {
        const QString number = server.AddMicrophone("mic");
        QVERIFY(levels.WaitFor([](const QJsonObject& peaks) { return peaks.contains("mic"); }));
        server.Remove(number);
        QVERIFY(levels.WaitFor([](const QJsonObject& peaks) { return peaks.isEmpty(); }));
    }
}

void tst_LevelSession::writesTenLinesASecond()
{
    const Surroundings surroundings;
    Levels levels(surroundings, {});
    QVERIFY(!levels.NextLine().isEmpty());
    QElapsedTimer timer;
    timer.start();
    for (int line = 0; line < 10; ++line) {
        QCOMPARE(levels.NextLine().value("event").toString(), QString("levels"));
    }
    // A busy machine may be slower; faster would be wrong.
    QVERIFY(timer.elapsed() > 800);
}

void tst_LevelSession::runsWithoutASoundServer()
{
    const Surroundings surroundings;
    Levels levels(surroundings, {"mic"});
    const QJsonObject expected{{"event", "levels"}, {"peaks", QJsonObject()}};
    QCOMPARE(levels.NextLine(), expected);
}

void tst_LevelSession::endsWithItsInput()
{
    const Surroundings surroundings;
    Levels levels(surroundings, {"mic"});
    QVERIFY(!levels.NextLine().isEmpty());
    levels.Process().closeWriteChannel();
    QCOMPARE(EndOf(levels.Process()).exitCode, 0);
}

void tst_LevelSession::endsWithItsOutput()
{
    const Surroundings surroundings;
    QProcess reader;
    QProcess recorder;
    recorder.setStandardOutputProcess(&reader);
    StartRecorder(surroundings, recorder, {"--levels"});
    reader.start("head", {"--lines=1"});
    QVERIFY(reader.waitForFinished(Patience));
    QVERIFY(reader.readAllStandardOutput().contains("levels"));
    QCOMPARE(EndOf(recorder).exitCode, 0);
}

void tst_LevelSession::endsWithASignal()
{
    const Surroundings surroundings;
    Levels levels(surroundings, {"mic"});
    QVERIFY(!levels.NextLine().isEmpty());
    levels.Process().terminate();
    QCOMPARE(EndOf(levels.Process()).exitCode, 0);
}

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_LevelSession)
#include "tst_LevelSession.moc"
