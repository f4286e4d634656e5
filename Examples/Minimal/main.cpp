// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QMessageBox>
#include <QVBoxLayout>

#include "Application/LookAndFeelManager.h"
#include "Application/PlainStyle.h"
#include "Application/SettingsManager.h"
#include "Application/Translations.h"
#include "PXUserSettings/SettingsStore.h"
#include "PXUserSettings/StoredSettings.h"
#include "RecordSchedulerWidget.h"

using namespace Zentor;

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    // In the user's language, colours and font; both before the panel is built.
    App::InstallTranslations();
    App::ApplyPlainStyle(application);

    const auto store = std::make_shared<PX::SettingsStore>(QStringLiteral("settings.json"));
    QString error;
    if (!store->Open(&error)) {
        QMessageBox::critical(nullptr, QString(), error);
        return 1;
    }
    QWidget window;
    auto* panel = new PX::Scheduler::UI::RecordSchedulerWidget(
        std::make_shared<App::LookAndFeelManager>(), std::make_shared<App::SettingsManager>(store),
        &window);
    (new QVBoxLayout(&window))->addWidget(panel);
    panel->SetSchedulerSettings(std::make_shared<PX::StoredSchedulerSettings>(store));
    panel->SetCaptureFinishActionSettings(
        std::make_shared<PX::StoredCaptureFinishActionSettings>(store));
    panel->SetPathSettings(std::make_shared<PX::StoredPathsSettings>(store));
    panel->SetSettingsWatcher(std::make_shared<PX::StoringSettingsWatcher>(store));
    panel->RestoreSettings();
    window.show();
    return QApplication::exec();
}
