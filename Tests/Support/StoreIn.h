#pragma once

#include <memory>

#include <QTemporaryDir>

#include "PXUserSettings/SettingsStore.h"

namespace Zentor::Tests {

/// A new store that keeps its settings in the file "settings.json" of \a folder and has been
/// opened.
inline std::shared_ptr<PX::SettingsStore> OpenStoreIn(const QTemporaryDir& folder)
{
    auto store =
        std::make_shared<PX::SettingsStore>(folder.filePath(QStringLiteral("settings.json")));
    QString error;
    if (!store->Open(&error)) {
        qFatal("%s", qPrintable(error));
    }
    return store;
}

} // namespace Zentor::Tests
