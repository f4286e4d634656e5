// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <QFrame>
#include <QPointer>

class QComboBox;
class QLabel;
class QLayout;
class QPushButton;
class QRadioButton;
class QSpinBox;

namespace Zentor::PX {
class SettingsStore;
}

namespace Zentor::Desktop {

class AreaPicker;

/// The part of the page "Recording" that says what is recorded: a screen, or the selected area,
/// which tasks record, too.
///
/// A choice is stored at once. Areas are in pixels of the X display.
class SourceCard final : public QFrame {
    Q_OBJECT

public:
    SourceCard(std::shared_ptr<PX::SettingsStore> store, QWidget* parent);
    ~SourceCard() override;

    /// Why nothing can be recorded of what is stored, in a sentence; empty when it can.
    QString Problem() const;
    /// Gives the focus to what the problem is about.
    void FocusInput();

protected:
    void changeEvent(QEvent* event) override;

private:
    void BuildWidgets();
    QLayout* CreateScreenRow();
    QLayout* CreateAreaFields();
    QLayout* CreateAreaButtons();
    QSpinBox* CreateField(const QString& objectName, int lowest);
    void Connect();
    void ConnectArea();
    void Retranslate();
    void ShowStored();
    void FillScreens();
    /// Shows the area, or where there is none the screen that is recorded instead.
    void ShowArea();
    void ShowProblem();
    void StoreFields();
    void StoreArea(const QRect& area);
    void PickArea();

    std::shared_ptr<PX::SettingsStore> m_store;
    QRadioButton* m_screenButton = nullptr;
    QRadioButton* m_areaButton = nullptr;
    QComboBox* m_screenBox = nullptr;
    QLabel* m_xLabel = nullptr;
    QLabel* m_yLabel = nullptr;
    QLabel* m_widthLabel = nullptr;
    QLabel* m_heightLabel = nullptr;
    QSpinBox* m_xField = nullptr;
    QSpinBox* m_yField = nullptr;
    QSpinBox* m_widthField = nullptr;
    QSpinBox* m_heightField = nullptr;
    QPushButton* m_pickButton = nullptr;
    QPushButton* m_outlineButton = nullptr;
    QLabel* m_noteLabel = nullptr;
    QLabel* m_problemLabel = nullptr;
    QPointer<AreaPicker> m_picker;
};

} // namespace Zentor::Desktop
