// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <QObject>

#include "PXUserSettings/SettingsStore.h"
#include "RunnerPorts.h"

class QScreen;

namespace Zentor::Desktop {

/// The screens of the desktop, in Qt's order, and the area that is chosen in the settings.
class DesktopScreens final : public QObject, public Schedule::IScreens {
    Q_OBJECT

public:
    /// \a store has the section of Schedule::RecordingSettings.
    explicit DesktopScreens(std::shared_ptr<PX::SettingsStore> store);
    ~DesktopScreens() override;

    bool IsThere(int screenIndex) const override;
    QSize SizeOf(int screenIndex) const override;

Q_SIGNALS:
    /// There are others, or one has another place or size.
    void Changed();

private:
    void Follow(const QScreen* screen);
    /// What is recorded of \a screenIndex, in pixels; empty when there is nothing.
    QRect PictureOf(int screenIndex) const;

    const std::shared_ptr<PX::SettingsStore> m_store;
};

} // namespace Zentor::Desktop
