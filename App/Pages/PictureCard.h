// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <QFrame>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;

namespace Zentor::PX {
class SettingsStore;
}

namespace Zentor::Desktop {

/// The part of the page "Recording" that says how the picture is recorded, and into what kind of
/// file. A choice is stored at once.
class PictureCard final : public QFrame {
    Q_OBJECT

public:
    PictureCard(std::shared_ptr<PX::SettingsStore> store, QWidget* parent);
    ~PictureCard() override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void BuildWidgets();
    /// Adds a row of \a box and its caption to \a grid.
    QLabel* AddRow(QGridLayout& grid, const QString& labelName, QComboBox* box);
    void Connect();
    void Retranslate();
    void ShowStored();
    /// Offers the usual frame rates and the stored one.
    void FillFrameRates();
    /// Says of each quality how large its files are with what is stored.
    void ShowQualities();

    std::shared_ptr<PX::SettingsStore> m_store;
    QLabel* m_frameRateLabel = nullptr;
    QComboBox* m_frameRateBox = nullptr;
    QLabel* m_qualityLabel = nullptr;
    QComboBox* m_qualityBox = nullptr;
    QLabel* m_containerLabel = nullptr;
    QComboBox* m_containerBox = nullptr;
    QCheckBox* m_pointerBox = nullptr;
};

} // namespace Zentor::Desktop
