// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>

class QAbstractButton;
class QButtonGroup;
class QComboBox;
class QDateTimeEdit;
class QLineEdit;
class QPushButton;
class QScrollArea;
class QStackedWidget;
class QTimeEdit;
class QToolButton;
class QWidget;

namespace Zentor::Desktop {

/// The object names of the parts of a scheduler panel, which are its contract with hosts and style
/// sheets.
namespace PanelPart {

inline const QString ModeGroup = QStringLiteral("timerTypeRadioButtonGroup");
inline const QString OffModeButton = QStringLiteral("disableScheduledCaptureRadioButton");
inline const QString LimitedModeButton = QStringLiteral("limitedCaptureDurationRadioButton");
inline const QString ScheduledModeButton = QStringLiteral("scheduledCaptureRadioButton");
inline const QString LimitedSettings = QStringLiteral("limitedCaptureDurationSettingsFrame");
inline const QString LimitedDurationField =
    QStringLiteral("limitedCaptureDurationSettingsCaptureDuration");
inline const QString LimitedActionBox =
    QStringLiteral("limitedCaptureDurationSettingsActionOnFinishBox");

/// Shows either the list of tasks or the task form.
inline const QString Stack = QStringLiteral("scheduledCaptureStackedWidget");
inline const QString Table = QStringLiteral("scheduledCaptureSettingsRecordTableWidget");
inline const QString List = QStringLiteral("recordTableScrollArea");
/// Its layout holds the rows in their order.
inline const QString Rows = QStringLiteral("recordTableFrame");
inline const QString AddButton = QStringLiteral("scheduledCaptureSettingsAddRecordButton");

inline const QString Row = QStringLiteral("infoRecordFrame");
inline const QString RowTitle = QStringLiteral("titleLabel");
inline const QString RowDate = QStringLiteral("dateLabel");
inline const QString RowTime = QStringLiteral("timeLabel");
inline const QString RowDuration = QStringLiteral("durationLabel");
inline const QString RowDeleteButton = QStringLiteral("deleteToolButton");
/// The row of an empty list.
inline const QString PlaceholderRow = QStringLiteral("stubInfoRecordFrame");

inline const QString Form = QStringLiteral("createRecordTaskWidget");
inline const QString NameField = QStringLiteral("scheduledCaptureSettingsNameLineEdit");
inline const QString DateField = QStringLiteral("scheduledCaptureSettingsDate");
inline const QString StartField = QStringLiteral("scheduledCaptureSettingsStartTime");
inline const QString DurationField = QStringLiteral("scheduledCaptureSettingsDuration");
inline const QString AreaGroup = QStringLiteral("captureAreaRadioButtonGroup");
inline const QString SelectedAreaButton =
    QStringLiteral("scheduledCaptureSettingsSelectedAreaButton");
inline const QString SelectedAreaInfoButton =
    QStringLiteral("scheduledCaptureSettingsSelectedAreaInfoButton");
inline const QString FullScreenButton =
    QStringLiteral("scheduledCaptureSettingsFullScreenAreaButton");
inline const QString ScreenBox = QStringLiteral("scheduledCaptureSettingsScreenSelectBox");
inline const QString ActionBox = QStringLiteral("scheduledCaptureSettingsActionOnFinishBox");
inline const QString CreateButton = QStringLiteral("scheduledCaptureSettingsCreateButton");
inline const QString BackButton = QStringLiteral("scheduledCaptureSettingsBackButton");

} // namespace PanelPart

/// The parts of one scheduler panel that live as long as the panel, found by their object names.
class PanelParts {
public:
    /// Ends the program, with a message that names the part, when \a panel lacks one.
    explicit PanelParts(const QWidget& panel);

    QButtonGroup* const modeGroup;
    QAbstractButton* const offModeButton;
    QAbstractButton* const limitedModeButton;
    QAbstractButton* const scheduledModeButton;
    QWidget* const limitedSettings;
    QTimeEdit* const limitedDurationField;
    QComboBox* const limitedActionBox;

    QStackedWidget* const stack;
    QWidget* const table;
    QScrollArea* const list;
    QWidget* const rows;
    QPushButton* const addButton;

    QWidget* const form;
    QLineEdit* const nameField;
    QDateTimeEdit* const dateField;
    QTimeEdit* const startField;
    QTimeEdit* const durationField;
    QButtonGroup* const areaGroup;
    QAbstractButton* const selectedAreaButton;
    QPushButton* const selectedAreaInfoButton;
    QAbstractButton* const fullScreenButton;
    QComboBox* const screenBox;
    QComboBox* const actionBox;
    QPushButton* const createButton;
    QPushButton* const backButton;

    /// Whether the task form is on screen.
    bool IsFormVisible() const;

    /// The delete buttons of the tasks, in the order of the list.
    QList<QToolButton*> DeleteButtons() const;
};

/// The delete button of \a row; null for the placeholder row and for no row.
QToolButton* DeleteButtonOf(const QWidget* row);

} // namespace Zentor::Desktop
