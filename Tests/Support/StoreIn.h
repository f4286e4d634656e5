// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <QTemporaryDir>

#include "ApplicationSettings.h"
#include "BackgroundSettings.h"
#include "RecordingSettings.h"
#include "UnfinishedTask.h"

namespace Zentor::Tests {

/// A new store of the application that keeps its settings in the file "settings.json" of \a folder
/// and has been opened.
inline std::shared_ptr<PX::SettingsStore> OpenStoreIn(const QTemporaryDir& folder)
{
    auto store =
        std::make_shared<PX::SettingsStore>(folder.filePath(QStringLiteral("settings.json")));
    store->AddSection(Desktop::ApplicationSettingsSection());
    store->AddSection(Desktop::BackgroundSettingsSection());
    store->AddSection(Desktop::UnfinishedTaskSection());
    store->AddSection(Schedule::RecordingSettingsSection());
    QString error;
    if (!store->Open(&error)) {
        qFatal("%s", qPrintable(error));
    }
    return store;
}

} // namespace Zentor::Tests
