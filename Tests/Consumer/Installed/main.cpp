// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

// The panel with the reference host, in German: plans a task as the user does, and looks for it in
// the file. The exit code tells whether it worked.
#include <QApplication>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTranslator>

#include "Application/LookAndFeelManager.h"
#include "Application/SettingsManager.h"
#include "Application/Translations.h"
#include "PXUserSettings/SettingsStore.h"
#include "PXUserSettings/StoredSettings.h"
#include "RecordSchedulerWidget.h"

using namespace Zentor;

namespace {

/// Whether the texts came along, inside the host's library and as a file.
bool SpeaksGerman()
{
    return QTranslator().load(QStringLiteral(TRANSLATIONS_DIR "/PXUiSchedulerWidgets_de.qm"))
        && App::InstallTranslations(QLocale::German)
        && QCoreApplication::translate("CreateRecordTaskWidget", "Back")
        == QString::fromUtf8("Zurück");
}

/// What AUTOMOC has to find and no keyword of Qt's may stand in.
class Watched final : public QObject {
    Q_OBJECT

Q_SIGNALS:
    void Changed();
};

bool PlansATask(const std::shared_ptr<PX::SettingsStore>& store)
{
    PX::Scheduler::UI::RecordSchedulerWidget panel(std::make_shared<App::LookAndFeelManager>(),
                                                   std::make_shared<App::SettingsManager>(store),
                                                   nullptr);
    panel.SetSchedulerSettings(std::make_shared<PX::StoredSchedulerSettings>(store));
    panel.SetCaptureFinishActionSettings(
        std::make_shared<PX::StoredCaptureFinishActionSettings>(store));
    panel.SetPathSettings(std::make_shared<PX::StoredPathsSettings>(store));
    panel.SetSettingsWatcher(std::make_shared<PX::StoringSettingsWatcher>(store));
    panel.RestoreSettings();
    panel.show();
    for (const char* button :
         {"scheduledCaptureRadioButton", "scheduledCaptureSettingsAddRecordButton",
          "scheduledCaptureSettingsCreateButton"}) {
        panel.findChild<QAbstractButton*>(QLatin1String(button))->click();
    }
    // A type that both libraries know is one type.
    const QWidget& widget = panel;
    return dynamic_cast<const ZFrame*>(&widget) != nullptr
        && qobject_cast<const ZFrame*>(&widget) != nullptr && store->Flush();
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    const auto store =
        std::make_shared<PX::SettingsStore>(folder.filePath(QStringLiteral("s.json")));
    const Watched watched;
    int changes = 0;
    QObject::connect(store.get(), &PX::SettingsStore::Changed, &watched, [&] { ++changes; });
    QString error;
    return SpeaksGerman() && store->Open(&error) && PlansATask(store)
            && store->Settings().schedule.size() == 1 && changes > 0
        ? 0
        : 1;
}

#include "main.moc"
