// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <map>

#include <QFrame>
#include <QPointer>
#include <QStringList>

class QJsonObject;
class QLabel;
class QVBoxLayout;

namespace Zentor::Desktop {

class RecorderLines;
class SoundDeviceRow;

/// The sound devices of the machine, to be chosen from, with how loud the chosen ones are.
///
/// They are looked for each time that the list is shown. The levels are measured only while it is
/// on screen and a device is chosen: nothing listens otherwise.
class SoundDeviceList final : public QFrame {
    Q_OBJECT

public:
    explicit SoundDeviceList(QWidget* parent);
    ~SoundDeviceList() override;

    /// Shows that \a devices are chosen, whether or not they are there.
    void SetChosen(const QStringList& devices);
    const QStringList& Chosen() const { return m_chosen; }
    /// Whether it is not known yet which devices there are.
    bool IsLooking() const { return m_state == State::Looking; }

Q_SIGNALS:
    /// The user has chosen other devices; those that were chosen before come first.
    void ChoiceChanged(const QStringList& devices);

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    enum class State { Looking, Found, Unknown };

    void LookForDevices();
    void Take(const QJsonObject& found);
    /// Shows a row for each device that is there or chosen, and what there is to say.
    void ShowDevices();
    SoundDeviceRow* RowOf(const QString& name);
    void Choose(const QString& name, bool isChosen);
    /// Measures what should be measured now.
    void Listen();
    void ShowLevels(const QJsonObject& line);

    bool m_isOnScreen = false;
    State m_state = State::Looking;
    /// What devices are called for people, by their names.
    std::map<QString, QString> m_titles;
    QStringList m_present;
    QStringList m_chosen;
    QStringList m_heard;
    std::map<QString, SoundDeviceRow*> m_rows;
    QVBoxLayout* m_column;
    QLabel* m_stateLabel;
    QPointer<RecorderLines> m_probe;
    QPointer<RecorderLines> m_levels;
};

} // namespace Zentor::Desktop
