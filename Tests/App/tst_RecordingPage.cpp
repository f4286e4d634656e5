// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QDesktopServices>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>

#include "AreaPicker.h"
#include "FakeRecorder.h"
#include "FakeScreen.h"
#include "MarkingTranslator.h"
#include "RecordingPage.h"
#include "RecordingSettings.h"
#include "ScreenPixels.h"
#include "StoreIn.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

using Schedule::ChangeRecordingSettings;
using Schedule::RecordingSettings;
using Schedule::RecordingSettingsIn;
using Source = RecordingSettings::Source;
using Quality = RecordingSettings::Quality;

namespace {

/// Stands in for the desktop's programs: notes what they are asked to show.
class DesktopStandIn final : public QObject {
    Q_OBJECT

public:
    DesktopStandIn() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "Show"); }
    ~DesktopStandIn() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }

    QStringList shown;
    QByteArray content;

public Q_SLOTS:
    void Show(const QUrl& url)
    {
        shown << url.toLocalFile();
        QFile file(url.toLocalFile());
        content = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

} // namespace

class tst_RecordingPage : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void showsWhatIsStored();
    void storesWhatIsRecorded();
    void storesHowItIsRecorded();
    void offersTheStoredFrameRateToo();
    void saysHowLargeAnHourIs_data();
    void saysHowLargeAnHourIs();
    void listsTheScreens();
    void keepsAScreenThatIsNotConnected();
    void storesAnAreaThatIsTyped();
    void showsTheFirstScreenWhileThereIsNoArea();
    void saysThatAnAreaIsOnNoScreen();
    void takesAnAreaThatIsDrawn();
    void leavesTheAreaWhenDrawingIsCancelled();
    void followsChangesMadeElsewhere();
    void listsTheSoundDevices();
    void keepsDevicesThatAreAbsent();
    void hasRoomForLongNames();
    void storesTheChosenDevices();
    void mixesOnlySeveralDevices();
    void showsLevelsOfChosenDevices();
    void listensOnlyWhileItMust();
    void saysThatDevicesCannotBeListed_data();
    void saysThatDevicesCannotBeListed();
    void looksForDevicesEachTimeItIsShown();
    void opensATrialRecording();
    void recordsATrialWithTheSettings();
    void saysWhatIsWrongWithATrial_data();
    void saysWhatIsWrongWithATrial();
    void showsWarningsOfATrial();
    void cancelsATrial();
    void tellsEverythingToScreenReaders();
    void followsTheLanguage();

private:
    void Open();
    void Store(const std::function<void(RecordingSettings&)>& change)
    {
        ChangeRecordingSettings(*m_store, change);
    }
    RecordingSettings Stored() const { return RecordingSettingsIn(*m_store); }
    template <typename T> T* Find(const char* objectName) const
    {
        return m_page->findChild<T*>(QLatin1String(objectName));
    }
    QComboBox* Box(const char* objectName) const { return Find<QComboBox>(objectName); }
    QSpinBox* Field(const char* objectName) const { return Find<QSpinBox>(objectName); }
    QLabel* Label(const char* objectName) const { return Find<QLabel>(objectName); }
    void Click(const char* objectName) const { Find<QAbstractButton>(objectName)->click(); }
    /// As a user does; a program that selects an entry does not activate it.
    static void Choose(QComboBox* box, const QVariant& data)
    {
        box->setCurrentIndex(box->findData(data));
        Q_EMIT box->activated(box->currentIndex());
    }
    QStringList Devices() const;
    QCheckBox* Device(const QString& text) const;
    /// 1 where there is no such device.
    int Level(const QString& device) const;
    bool IsTrialOver() const { return Label("trialResultLabel")->isVisible(); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<FakeRecorder> m_recorder;
    std::shared_ptr<PX::SettingsStore> m_store;
    std::unique_ptr<Desktop::RecordingPage> m_page;
};

void tst_RecordingPage::init()
{
    WidgetTest::init();
    m_folder = std::make_unique<QTemporaryDir>();
    m_recorder = std::make_unique<FakeRecorder>();
    m_store = OpenStoreIn(*m_folder);
}

void tst_RecordingPage::cleanup()
{
    m_page.reset();
    m_store.reset();
    m_recorder.reset();
    m_folder.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    WidgetTest::cleanup();
}

void tst_RecordingPage::Open()
{
    m_page = std::make_unique<Desktop::RecordingPage>(m_store, nullptr);
    m_page->show();
}

QStringList tst_RecordingPage::Devices() const
{
    QStringList texts;
    const auto boxes = m_page->findChildren<QCheckBox*>("soundDeviceBox");
    for (const QCheckBox* box : boxes) {
        texts << (box->isChecked() ? "+" : "-") + box->text();
    }
    texts.sort();
    return texts;
}

QCheckBox* tst_RecordingPage::Device(const QString& text) const
{
    const auto boxes = m_page->findChildren<QCheckBox*>("soundDeviceBox");
    for (QCheckBox* box : boxes) {
        if (box->text() == text) {
            return box;
        }
    }
    return nullptr;
}

int tst_RecordingPage::Level(const QString& device) const
{
    constexpr int none = 1;
    const QCheckBox* box = Device(device);
    return box == nullptr ? none : box->parentWidget()->findChild<QProgressBar*>()->value();
}

void tst_RecordingPage::showsWhatIsStored()
{
    Store([](auto& settings) {
        settings.source = Source::Area;
        settings.area = QRect(10, 20, 300, 200);
        settings.framesPerSecond = 24;
        settings.quality = Quality::High;
        settings.showPointer = false;
        settings.container = "mp4";
        settings.mixSound = false;
    });
    Open();
    QVERIFY(Find<QRadioButton>("recordAreaButton")->isChecked());
    QVERIFY(!Find<QRadioButton>("recordScreenButton")->isChecked());
    QCOMPARE(Field("areaXField")->value(), 10);
    QCOMPARE(Field("areaYField")->value(), 20);
    QCOMPARE(Field("areaWidthField")->value(), 300);
    QCOMPARE(Field("areaHeightField")->value(), 200);
    QCOMPARE(Box("frameRateBox")->currentText(), QString("24"));
    QVERIFY(Box("qualityBox")->currentText().startsWith("High"));
    QCOMPARE(Box("containerBox")->currentText(), QString("MP4 (.mp4)"));
    QVERIFY(!Find<QCheckBox>("showPointerBox")->isChecked());
    QVERIFY(!Find<QCheckBox>("mixSoundBox")->isChecked());
    QCOMPARE(m_page->Problem(), QString());
}

void tst_RecordingPage::storesWhatIsRecorded()
{
    Open();
    QVERIFY(Find<QRadioButton>("recordScreenButton")->isChecked());
    const QSignalSpy changed(m_store.get(), &PX::SettingsStore::Changed);
    Click("recordAreaButton");
    QVERIFY(Stored().source == Source::Area);
    Click("recordScreenButton");
    QVERIFY(Stored().source == Source::Screen);
    QCOMPARE(changed.count(), 2);
}

void tst_RecordingPage::storesHowItIsRecorded()
{
    Open();
    const QSignalSpy changed(m_store.get(), &PX::SettingsStore::Changed);
    QStringList rates;
    for (int index = 0; index < Box("frameRateBox")->count(); ++index) {
        rates << Box("frameRateBox")->itemText(index);
    }
    QCOMPARE(rates, (QStringList{"10", "15", "24", "25", "30", "50", "60"}));
    Choose(Box("frameRateBox"), "60");
    QCOMPARE(Stored().framesPerSecond, 60);
    Box("qualityBox")->setCurrentIndex(0);
    Q_EMIT Box("qualityBox")->activated(0);
    QVERIFY(Stored().quality == Quality::Small);
    Choose(Box("containerBox"), "mp4");
    QCOMPARE(Stored().container, QString("mp4"));
    Click("showPointerBox");
    QVERIFY(!Stored().showPointer);
    QCOMPARE(changed.count(), 4);
}

void tst_RecordingPage::offersTheStoredFrameRateToo()
{
    Store([](auto& settings) { settings.framesPerSecond = 29; });
    Open();
    QCOMPARE(Box("frameRateBox")->count(), 8);
    QCOMPARE(Box("frameRateBox")->currentText(), QString("29"));
    QCOMPARE(Box("frameRateBox")->currentIndex(), 4);
    Choose(Box("frameRateBox"), "60");
    QCOMPARE(Box("frameRateBox")->count(), 7);
}

void tst_RecordingPage::saysHowLargeAnHourIs_data()
{
    QTest::addColumn<QRect>("area");
    QTest::addColumn<int>("framesPerSecond");
    QTest::addColumn<QStringList>("sizes");
    QTest::newRow("screen") << QRect() << 30 << QStringList{"1.1 GB", "1.5 GB", "2.1 GB"};
    QTest::newRow("half as often") << QRect() << 15 << QStringList{"560 MB", "740 MB", "1.0 GB"};
    QTest::newRow("area") << QRect(2000, 0, 640, 360) << 30
                          << QStringList{"210 MB", "270 MB", "380 MB"};
    QTest::newRow("half on the screen")
        << QRect(3280, 0, 1280, 360) << 30 << QStringList{"210 MB", "270 MB", "380 MB"};
}

void tst_RecordingPage::saysHowLargeAnHourIs()
{
    QFETCH(QRect, area);
    QFETCH(int, framesPerSecond);
    QFETCH(QStringList, sizes);
    QLocale::setDefault(QLocale(QLocale::English));
    FakeScreen* screen = Plug("HDMI-A-1", false, QSize(1920, 1080));
    Open();
    Store([&](auto& settings) {
        settings.screenIndex = 1;
        settings.area = area;
        settings.source = area.isNull() ? Source::Screen : Source::Area;
        settings.framesPerSecond = framesPerSecond;
    });
    const char* const names[] = {"Small", "Normal", "High"};
    for (int index = 0; index < 3; ++index) {
        QString text = Box("qualityBox")->itemText(index);
        text.remove(QChar(0x2068)).remove(QChar(0x2069));
        QCOMPARE(text, QStringLiteral("%1: about %2 an hour").arg(names[index], sizes[index]));
    }
    Unplug(screen);
    QLocale::setDefault(QLocale::c());
}

void tst_RecordingPage::listsTheScreens()
{
    Open();
    QComboBox& box = *Box("recordedScreenBox");
    QCOMPARE(box.count(), 1);
    FakeScreen* screen = Plug("HDMI-A-1", false, QSize(1280, 720));
    QCOMPARE(box.count(), 2);
    for (const char* part : {"2", "HDMI-A-1", "1280", "720"}) {
        QVERIFY2(box.itemText(1).contains(QLatin1String(part)), qPrintable(box.itemText(1)));
    }
    Choose(&box, "1");
    QCOMPARE(Stored().screenIndex, 1);
    QVERIFY(Stored().source == Source::Screen);
    QCOMPARE(m_page->Problem(), QString());
    Unplug(screen);
    QTRY_VERIFY_WITH_TIMEOUT(!m_page->Problem().isEmpty(), Patience);
}

void tst_RecordingPage::keepsAScreenThatIsNotConnected()
{
    Store([](auto& settings) { settings.screenIndex = 2; });
    Open();
    QCOMPARE(Box("recordedScreenBox")->currentText(), QString("Screen 3 (not connected)"));
    QCOMPARE(Label("sourceProblemLabel")->text(), m_page->Problem());
    QVERIFY(Label("sourceProblemLabel")->isVisible());
    QCOMPARE(Box("recordedScreenBox")->accessibleDescription(), m_page->Problem());
    QCOMPARE(Stored().screenIndex, 2);
    // It is none of what is recorded.
    Click("recordAreaButton");
    QCOMPARE(m_page->Problem(), QString());
    QVERIFY(!Label("sourceProblemLabel")->isVisible());
}

void tst_RecordingPage::storesAnAreaThatIsTyped()
{
    Store([](auto& settings) { settings.area = QRect(0, 0, 640, 480); });
    Open();
    Field("areaXField")->setValue(-20);
    Field("areaYField")->setValue(31);
    Field("areaWidthField")->setValue(301);
    Field("areaHeightField")->setValue(200);
    // Of even size.
    QCOMPARE(Stored().area, QRect(-20, 31, 300, 200));
    QCOMPARE(Field("areaWidthField")->value(), 300);
    QCOMPARE(Field("areaWidthField")->minimum(), 16);
    QVERIFY(!Field("areaWidthField")->keyboardTracking());
}

void tst_RecordingPage::showsTheFirstScreenWhileThereIsNoArea()
{
    Open();
    const QRect screen = Desktop::PixelsOf(*QGuiApplication::primaryScreen());
    QCOMPARE(Field("areaWidthField")->value(), screen.width());
    QCOMPARE(Field("areaHeightField")->value(), screen.height());
    QVERIFY(Stored().area.isNull());
    QVERIFY(Label("areaNoteLabel")->text().contains("screen 1"));
    Field("areaXField")->setValue(10);
    QCOMPARE(Stored().area, QRect(QPoint(10, 0), screen.size()));
    QVERIFY(!Label("areaNoteLabel")->text().contains("screen 1"));
}

void tst_RecordingPage::saysThatAnAreaIsOnNoScreen()
{
    Store([](auto& settings) {
        settings.area = QRect(-500, -500, 100, 100);
        settings.source = Source::Area;
    });
    Open();
    QVERIFY(!m_page->Problem().isEmpty());
    QCOMPARE(Field("areaXField")->property("SubStyle").toString(), QString("Invalid"));
    QCOMPARE(Field("areaXField")->accessibleDescription(), m_page->Problem());
    m_page->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_page.get()));
    m_page->FocusInput();
    QVERIFY(Field("areaXField")->hasFocus());
    Field("areaXField")->setValue(0);
    QVERIFY(!m_page->Problem().isEmpty());
    Field("areaYField")->setValue(0);
    QCOMPARE(m_page->Problem(), QString());
    QCOMPARE(Field("areaXField")->property("SubStyle").toString(), QString("Normal"));
}

void tst_RecordingPage::takesAnAreaThatIsDrawn()
{
    Open();
    Click("pickAreaButton");
    // Once is enough.
    Click("pickAreaButton");
    const auto pickers = m_page->findChildren<Desktop::AreaPicker*>();
    QCOMPARE(pickers.size(), 1);
    pickers.constFirst()->Obey(Qt::Key_Left, {});
    const QRect area = pickers.constFirst()->Area();
    pickers.constFirst()->Take();
    QCOMPARE(Stored().area, area);
    QVERIFY(Stored().source == Source::Area);
    QCOMPARE(Field("areaXField")->value(), area.x());
}

void tst_RecordingPage::leavesTheAreaWhenDrawingIsCancelled()
{
    Store([](auto& settings) { settings.area = QRect(0, 0, 640, 480); });
    Open();
    Click("pickAreaButton");
    auto* picker = m_page->findChild<Desktop::AreaPicker*>();
    QCOMPARE(picker->Area(), QRect(0, 0, 640, 480));
    picker->Obey(Qt::Key_Right, {});
    picker->Cancel();
    QCOMPARE(Stored().area, QRect(0, 0, 640, 480));
    QVERIFY(Stored().source == Source::Screen);
    Click("pickAreaButton");
    QCOMPARE(m_page->findChildren<Desktop::AreaPicker*>().size(), 2);
    m_page->findChildren<Desktop::AreaPicker*>().constLast()->Cancel();
}

void tst_RecordingPage::followsChangesMadeElsewhere()
{
    Open();
    Store([](auto& settings) {
        settings.area = QRect(0, 0, 100, 80);
        settings.framesPerSecond = 10;
        settings.container = "mp4";
        settings.soundDevices = QStringList{"mic", "gone"};
        settings.mixSound = false;
    });
    QCOMPARE(Field("areaWidthField")->value(), 100);
    QCOMPARE(Box("frameRateBox")->currentText(), QString("10"));
    QCOMPARE(Box("containerBox")->currentData().toString(), QString("mp4"));
    QVERIFY(!Find<QCheckBox>("mixSoundBox")->isChecked());
    QTRY_COMPARE_WITH_TIMEOUT(
        Devices(), (QStringList{"+Microphone", "+gone (not connected)", "-Speakers"}), Patience);
}

void tst_RecordingPage::listsTheSoundDevices()
{
    Open();
    QVERIFY(Label("soundStateLabel")->isVisible());
    QTRY_COMPARE_WITH_TIMEOUT(Devices(), (QStringList{"-Microphone", "-Speakers"}), Patience);
    QVERIFY(!Label("soundStateLabel")->isVisible());
    QCOMPARE(Device("Speakers")->toolTip(), QString("speakers.monitor"));
}

void tst_RecordingPage::keepsDevicesThatAreAbsent()
{
    Store([](auto& settings) { settings.soundDevices = QStringList{"gone"}; });
    Open();
    // As long as nobody knows better, it is there.
    QCOMPARE(Devices(), QStringList{"+gone"});
    QTRY_VERIFY_WITH_TIMEOUT(Device("gone (not connected)") != nullptr, Patience);
    QTRY_VERIFY_WITH_TIMEOUT(Device("Microphone") != nullptr, Patience);
    Device("Microphone")->click();
    QCOMPARE(Stored().soundDevices, (QStringList{"gone", "mic"}));
    Device("gone (not connected)")->click();
    QCOMPARE(Stored().soundDevices, QStringList{"mic"});
    // It can be chosen again until the devices are looked for again.
    QCOMPARE(Devices(), (QStringList{"+Microphone", "-Speakers", "-gone (not connected)"}));
    m_page->hide();
    m_page->show();
    QTRY_COMPARE_WITH_TIMEOUT(Devices(), (QStringList{"+Microphone", "-Speakers"}), Patience);
}

void tst_RecordingPage::hasRoomForLongNames()
{
    Open();
    const int width = m_page->minimumSizeHint().width();
    Store([](auto& settings) { settings.soundDevices = QStringList{QString(500, 'x')}; });
    QCoreApplication::sendPostedEvents();
    QCOMPARE(m_page->minimumSizeHint().width(), width);
    QCOMPARE(Device(QString(500, 'x'))->toolTip(), QString(500, 'x'));
}

void tst_RecordingPage::storesTheChosenDevices()
{
    Open();
    QTRY_VERIFY_WITH_TIMEOUT(Device("Speakers") != nullptr, Patience);
    const QSignalSpy changed(m_store.get(), &PX::SettingsStore::Changed);
    Device("Speakers")->click();
    Device("Microphone")->click();
    QCOMPARE(Stored().soundDevices, (QStringList{"speakers.monitor", "mic"}));
    Device("Speakers")->click();
    QCOMPARE(Stored().soundDevices, QStringList{"mic"});
    QCOMPARE(changed.count(), 3);
}

void tst_RecordingPage::mixesOnlySeveralDevices()
{
    Store([](auto& settings) { settings.soundDevices = QStringList{"mic"}; });
    Open();
    QVERIFY(!Find<QCheckBox>("mixSoundBox")->isEnabled());
    Store([](auto& settings) { settings.soundDevices << "speakers.monitor"; });
    QVERIFY(Find<QCheckBox>("mixSoundBox")->isEnabled());
    Click("mixSoundBox");
    QVERIFY(!Stored().mixSound);
}

void tst_RecordingPage::showsLevelsOfChosenDevices()
{
    Store([](auto& settings) { settings.soundDevices = QStringList{"mic"}; });
    m_recorder->SetLevels(
        "no line of ours\n{\"event\": \"levels\", \"peaks\": {\"mic\": -23.5}}\n");
    Open();
    QTRY_VERIFY_WITH_TIMEOUT(Device("Microphone") != nullptr && Device("Speakers") != nullptr,
                             Patience);
    QTRY_COMPARE_WITH_TIMEOUT(Level("Microphone"), -24, Patience);
    QCOMPARE(Level("Speakers"), -60);
    m_recorder->SetLevels("{\"event\": \"levels\", \"peaks\": {}}\n");
    QTRY_COMPARE_WITH_TIMEOUT(Level("Microphone"), -60, Patience);
    m_recorder->SetLevels("{\"event\": \"levels\", \"peaks\": {\"mic\": 3}}\n");
    QTRY_COMPARE_WITH_TIMEOUT(Level("Microphone"), 0, Patience);
    Device("Microphone")->click();
    QCOMPARE(Level("Microphone"), -60);
}

void tst_RecordingPage::listensOnlyWhileItMust()
{
    const auto count = [this] { return m_recorder->CallsWith("--levels"); };
    Store([](auto& settings) { settings.soundDevices = QStringList{"mic"}; });
    Open();
    QTRY_COMPARE_WITH_TIMEOUT(Level("Microphone"), -6, Patience);
    QCOMPARE(m_recorder->Calls().filter("--levels"), QStringList{"--levels --sound=mic"});
    m_page->hide();
    QCOMPARE(Level("Microphone"), -60);
    Store([](auto& settings) { settings.soundDevices.clear(); });
    m_page->show();
    QTRY_COMPARE_WITH_TIMEOUT(m_recorder->CallsWith("--probe"), 2, Patience);
    QCOMPARE(count(), 1);
    Store([](auto& settings) { settings.soundDevices = QStringList{"mic", "speakers.monitor"}; });
    QTRY_COMPARE_WITH_TIMEOUT(Level("Speakers"), -6, Patience);
    QCOMPARE(count(), 2);
    // Another choice is no reason.
    Store([](auto& settings) { settings.framesPerSecond = 10; });
    QTest::qWait(0);
    QCOMPARE(count(), 2);
}

void tst_RecordingPage::saysThatDevicesCannotBeListed_data()
{
    QTest::addColumn<QByteArray>("probe");
    QTest::addColumn<bool>("isInstalled");
    QTest::addColumn<QString>("text");
    QTest::newRow("no recorder") << QByteArray() << false
                                 << "The sound devices of this computer cannot be listed.";
    QTest::newRow("no answer") << QByteArray() << true
                               << "The sound devices of this computer cannot be listed.";
    QTest::newRow("no devices") << QByteArray("{\"soundDevices\": []}\n") << true
                                << "There are no sound devices on this computer.";
}

void tst_RecordingPage::saysThatDevicesCannotBeListed()
{
    QFETCH(QByteArray, probe);
    QFETCH(bool, isInstalled);
    QFETCH(QString, text);
    m_recorder->SetProbe(probe);
    if (!isInstalled) {
        m_recorder.reset();
    }
    Open();
    QTRY_COMPARE_WITH_TIMEOUT(Label("soundStateLabel")->text(), text, Patience);
    QVERIFY(Label("soundStateLabel")->isVisible());
}

void tst_RecordingPage::looksForDevicesEachTimeItIsShown()
{
    Open();
    QTRY_COMPARE_WITH_TIMEOUT(Devices().size(), 2, Patience);
    m_page->hide();
    m_recorder->SetProbe("{\"soundDevices\": [\"headset\"]}\n");
    // What was asked before has to end first.
    QTRY_VERIFY_WITH_TIMEOUT((m_page->show(), Devices() == QStringList{"-headset"})
                                 || (m_page->hide(), false),
                             Patience);
}

void tst_RecordingPage::opensATrialRecording()
{
    const DesktopStandIn desktop;
    m_recorder->SetRecording("echo 5 seconds > \"$2\"");
    Open();
    const QSignalSpy announced(m_page.get(), &Desktop::Page::Announced);
    const QSignalSpy revealed(m_page.get(), &Desktop::Page::RevealRequested);
    QVERIFY(!Find<QProgressBar>("trialProgressBar")->isVisible());
    Find<QPushButton>("trialButton")->setFocus();
    Click("trialButton");
    QVERIFY(Find<QProgressBar>("trialProgressBar")->isVisible());
    QCOMPARE(revealed.count(), 1);
    QTRY_VERIFY_WITH_TIMEOUT(IsTrialOver(), Patience);
    QCOMPARE(revealed.count(), 2);
    QCOMPARE(desktop.shown.size(), 1);
    QVERIFY(desktop.shown.constFirst().endsWith(".mkv"));
    QCOMPARE(desktop.content, QByteArray("5 seconds\n"));
    // The player may still be reading it.
    QVERIFY(QFile::exists(desktop.shown.constFirst()));
    QVERIFY(!Find<QProgressBar>("trialProgressBar")->isVisible());
    QCOMPARE(Label("trialResultLabel")->property("SubStyle").toString(), QString("Normal"));
    QCOMPARE(announced.count(), 1);
    m_page.reset();
    QVERIFY(!QFile::exists(desktop.shown.constFirst()));
}

void tst_RecordingPage::recordsATrialWithTheSettings()
{
    const DesktopStandIn desktop;
    Store([](auto& settings) {
        settings.container = "mp4";
        settings.framesPerSecond = 24;
        settings.soundDevices = QStringList{"mic"};
    });
    Open();
    const QSignalSpy revealed(m_page.get(), &Desktop::Page::RevealRequested);
    Click("trialButton");
    Find<QPushButton>("outlineAreaButton")->setFocus();
    QTRY_VERIFY_WITH_TIMEOUT(IsTrialOver(), Patience);
    // Who has gone on is not fetched back.
    QCOMPARE(revealed.count(), 1);
    const QString call = m_recorder->Calls().filter("--file").join('\n');
    QVERIFY2(call.contains(".mp4 --fps 24 ") && call.contains("--duration 5 ")
                 && call.contains("--screen 0") && call.contains("--sound=mic"),
             qPrintable(call));
}

void tst_RecordingPage::saysWhatIsWrongWithATrial_data()
{
    QTest::addColumn<bool>("isInstalled");
    QTest::addColumn<QByteArray>("commands");
    QTest::addColumn<QString>("said");
    QTest::newRow("refused") << true
                             << QByteArray("echo px-recorder: there is no display >&2; exit 1")
                             << "there is no display";
    QTest::newRow("wrong usage") << true << QByteArray("echo px-recorder: what? >&2; exit 2")
                                 << "what?";
    QTest::newRow("crash") << true << QByteArray("kill -KILL $$") << "the recorder crashed";
    QTest::newRow("not installed") << false << QByteArray() << "cannot be started";
}

void tst_RecordingPage::saysWhatIsWrongWithATrial()
{
    QFETCH(bool, isInstalled);
    QFETCH(QByteArray, commands);
    QFETCH(QString, said);
    const DesktopStandIn desktop;
    m_recorder->SetRecording(commands);
    if (!isInstalled) {
        m_recorder.reset();
    }
    Open();
    const QSignalSpy announced(m_page.get(), &Desktop::Page::Announced);
    Click("trialButton");
    QTRY_VERIFY_WITH_TIMEOUT(IsTrialOver(), Patience);
    QVERIFY2(Label("trialResultLabel")->text().contains(said),
             qPrintable(Label("trialResultLabel")->text()));
    QVERIFY(!Label("trialResultLabel")->text().contains("px-recorder: "));
    QCOMPARE(Label("trialResultLabel")->property("SubStyle").toString(), QString("Invalid"));
    QVERIFY(desktop.shown.isEmpty());
    QCOMPARE(announced.count(), 1);
    QCOMPARE(announced.first().first().toString(), Label("trialResultLabel")->text());
}

void tst_RecordingPage::showsWarningsOfATrial()
{
    const DesktopStandIn desktop;
    m_recorder->SetRecording("echo 'px-recorder: warning: the sound device mic is absent' >&2");
    Open();
    Click("trialButton");
    QTRY_VERIFY_WITH_TIMEOUT(IsTrialOver(), Patience);
    QCOMPARE(desktop.shown.size(), 1);
    QVERIFY(Label("trialResultLabel")->text().contains("warning: the sound device mic is absent"));
}

void tst_RecordingPage::cancelsATrial()
{
    const DesktopStandIn desktop;
    m_recorder->SetRecording("exec sleep 1000");
    Open();
    const QString text = Find<QPushButton>("trialButton")->text();
    Click("trialButton");
    QVERIFY(Find<QPushButton>("trialButton")->text() != text);
    QTRY_VERIFY_WITH_TIMEOUT(Find<QProgressBar>("trialProgressBar")->value() > 0, Patience);
    Click("trialButton");
    QVERIFY(IsTrialOver());
    QCOMPARE(Find<QPushButton>("trialButton")->text(), text);
    QVERIFY(!Find<QProgressBar>("trialProgressBar")->isVisible());
    QVERIFY(desktop.shown.isEmpty());
}

void tst_RecordingPage::tellsEverythingToScreenReaders()
{
    Open();
    QTRY_COMPARE_WITH_TIMEOUT(Devices().size(), 2, Patience);
    const auto widgets = m_page->findChildren<QWidget*>();
    for (QWidget* widget : widgets) {
        const bool isTold = widget->isVisible()
            && (widget->focusPolicy() != Qt::NoFocus
                || qobject_cast<QProgressBar*>(widget) != nullptr);
        // The parts of a spin box are told as the box.
        if (isTold && qobject_cast<QSpinBox*>(widget->parentWidget()) == nullptr) {
            auto* told = QAccessible::queryAccessibleInterface(widget);
            QVERIFY2(!told->text(QAccessible::Name).isEmpty(), widget->metaObject()->className());
        }
    }
}

void tst_RecordingPage::followsTheLanguage()
{
    Store([](auto& settings) { settings.soundDevices = QStringList{"gone"}; });
    Open();
    QTRY_VERIFY_WITH_TIMEOUT(Device("gone (not connected)") != nullptr, Patience);
    LanguageSwitch language;
    language.Toggle();
    const auto labels = m_page->findChildren<QLabel*>();
    for (const QLabel* label : labels) {
        QVERIFY2(label->isHidden() || label->text().startsWith('~'), qPrintable(label->text()));
    }
    const auto buttons = m_page->findChildren<QAbstractButton*>();
    for (const QAbstractButton* button : buttons) {
        const bool isDevice = button->objectName() == "soundDeviceBox";
        QVERIFY2((isDevice && !button->text().contains("gone")) || button->text().startsWith('~'),
                 qPrintable(button->text()));
    }
    for (int index = 0; index < 3; ++index) {
        QVERIFY(Box("qualityBox")->itemText(index).startsWith('~'));
    }
}

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_RecordingPage)

#include "tst_RecordingPage.moc"
