// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

// A program with a settings dialog, in which the panel is one page of three.
#include <QApplication>
#include <QMessageBox>

#include "Application/Translations.h"
#include "PXUserSettings/SettingsStore.h"
#include "SettingsDialog.h"

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    Zentor::App::InstallTranslations();

    const auto store = std::make_shared<Zentor::PX::SettingsStore>(QStringLiteral("settings.json"));
    QString error;
    if (!store->Open(&error)) {
        QMessageBox::critical(nullptr, QString(), error);
        return 1;
    }
    // Closing it by OK or Cancel ends the program: it is the only window.
    SettingsDialog dialog(store);
    dialog.show();
    return QApplication::exec();
}
