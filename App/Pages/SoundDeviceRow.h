// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

class QCheckBox;
class QProgressBar;

namespace Zentor::Desktop {

/// A sound device that can be chosen, and how loud it is.
class SoundDeviceRow final : public QWidget {
    Q_OBJECT

public:
    /// \a name as px-recorder calls the device.
    SoundDeviceRow(const QString& name, QWidget* parent);

    const QString& Name() const { return m_name; }
    QCheckBox* Box() const { return m_box; }

    /// Shows what the device is called, for people, and whether it is there.
    void SetTitle(const QString& title, bool isPresent);
    /// Shows a level in decibels below full scale.
    void SetLevel(double decibels);
    /// Shows that the level is not known.
    void ClearLevel();

private:
    const QString m_name;
    QCheckBox* m_box;
    QProgressBar* m_level;
};

} // namespace Zentor::Desktop
