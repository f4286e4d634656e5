// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <QFrame>

class QCheckBox;
class QLabel;

namespace Zentor::PX {
class SettingsStore;
}

namespace Zentor::Desktop {

class SoundDeviceList;

/// The part of the page "Recording" that says which sound is recorded. A choice is stored at once.
class SoundCard final : public QFrame {
    Q_OBJECT

public:
    SoundCard(std::shared_ptr<PX::SettingsStore> store, QWidget* parent);
    ~SoundCard() override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void Connect();
    void Retranslate();
    void ShowStored();

    std::shared_ptr<PX::SettingsStore> m_store;
    QLabel* m_label;
    SoundDeviceList* m_list;
    QCheckBox* m_mixBox;
};

} // namespace Zentor::Desktop
