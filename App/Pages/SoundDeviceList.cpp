// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "SoundDeviceList.h"

#include <QCheckBox>
#include <QEvent>
#include <QJsonArray>
#include <QJsonObject>
#include <QLabel>
#include <QVBoxLayout>

#include "Controls.h"
#include "RecorderLines.h"
#include "SoundDeviceRow.h"

namespace Zentor::Desktop {

SoundDeviceList::SoundDeviceList(QWidget* parent)
    : QFrame(parent)
    , m_column(new QVBoxLayout(this))
    , m_stateLabel(CreateLabel(QStringLiteral("soundStateLabel"), this))
{
    setObjectName(QStringLiteral("soundDeviceList"));
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(ControlSpacing / 2);
    m_column->addWidget(m_stateLabel);
    ShowDevices();
}

SoundDeviceList::~SoundDeviceList() = default;

void SoundDeviceList::SetChosen(const QStringList& devices)
{
    if (devices != m_chosen) {
        m_chosen = devices;
        ShowDevices();
        Listen();
    }
}

void SoundDeviceList::LookForDevices()
{
    if (!m_probe.isNull()) {
        return;
    }
    m_probe = new RecorderLines({QStringLiteral("--probe")}, this);
    connect(m_probe, &RecorderLines::Received, this, &SoundDeviceList::Take);
    connect(m_probe, &RecorderLines::Ended, this, [this] {
        m_state = m_state == State::Looking ? State::Unknown : m_state;
        m_probe->deleteLater();
        m_probe.clear();
        ShowDevices();
    });
}

void SoundDeviceList::Take(const QJsonObject& found)
{
    m_state = State::Found;
    m_present.clear();
    const QJsonObject titles = found.value(QLatin1String("soundDeviceTitles")).toObject();
    const QJsonArray devices = found.value(QLatin1String("soundDevices")).toArray();
    for (const QJsonValue& device : devices) {
        const QString name = device.toString();
        m_present << name;
        const QString title = titles.value(name).toString();
        m_titles[name] = title.isEmpty() ? name : title;
    }
    ShowDevices();
}

void SoundDeviceList::ShowDevices()
{
    QStringList shown = m_present;
    for (const QString& device : qAsConst(m_chosen)) {
        if (!shown.contains(device)) {
            shown << device;
        }
    }
    for (auto row = m_rows.begin(); row != m_rows.end();) {
        if (shown.contains(row->first)) {
            ++row;
        } else {
            row->second->deleteLater();
            row->second->hide();
            row = m_rows.erase(row);
        }
    }
    for (const QString& device : qAsConst(shown)) {
        SoundDeviceRow* row = RowOf(device);
        const auto title = m_titles.find(device);
        // What cannot be looked for may well be there.
        row->SetTitle(title == m_titles.end() ? device : title->second,
                      m_present.contains(device) || m_state != State::Found);
        row->Box()->setChecked(m_chosen.contains(device));
    }
    m_stateLabel->setText(m_state == State::Looking ? tr("Looking for sound devices...")
                              : m_state == State::Unknown
                              ? tr("The sound devices of this computer cannot be listed.")
                              : tr("There are no sound devices on this computer."));
    m_stateLabel->setVisible(m_state == State::Unknown || shown.isEmpty());
}

SoundDeviceRow* SoundDeviceList::RowOf(const QString& name)
{
    SoundDeviceRow*& row = m_rows[name];
    if (row == nullptr) {
        row = new SoundDeviceRow(name, this);
        // What is added to a page on screen has to be shown.
        row->show();
        m_column->insertWidget(m_column->count() - 1, row);
        connect(row->Box(), &QCheckBox::clicked, this,
                [this, name](bool isChosen) { Choose(name, isChosen); });
    }
    return row;
}

void SoundDeviceList::Choose(const QString& name, bool isChosen)
{
    m_chosen.removeAll(name);
    if (isChosen) {
        m_chosen << name;
    }
    Listen();
    Q_EMIT ChoiceChanged(m_chosen);
}

void SoundDeviceList::Listen()
{
    const QStringList wanted = m_isOnScreen ? m_chosen : QStringList();
    if (wanted == m_heard) {
        return;
    }
    m_heard = wanted;
    delete m_levels;
    for (const auto& row : m_rows) {
        row.second->ClearLevel();
    }
    if (wanted.isEmpty()) {
        return;
    }
    QStringList arguments{QStringLiteral("--levels")};
    for (const QString& device : wanted) {
        arguments << QStringLiteral("--sound=") + device;
    }
    m_levels = new RecorderLines(arguments, this);
    connect(m_levels, &RecorderLines::Received, this, &SoundDeviceList::ShowLevels);
}

void SoundDeviceList::ShowLevels(const QJsonObject& line)
{
    const QJsonObject peaks = line.value(QLatin1String("peaks")).toObject();
    for (const auto& [device, row] : m_rows) {
        const QJsonValue peak = peaks.value(device);
        if (peak.isDouble()) {
            row->SetLevel(peak.toDouble());
        } else {
            row->ClearLevel();
        }
    }
}

void SoundDeviceList::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        ShowDevices();
    }
    QFrame::changeEvent(event);
}

void SoundDeviceList::showEvent(QShowEvent* event)
{
    // Also when the window was minimised and comes back.
    m_isOnScreen = true;
    LookForDevices();
    Listen();
    QFrame::showEvent(event);
}

void SoundDeviceList::hideEvent(QHideEvent* event)
{
    m_isOnScreen = false;
    Listen();
    QFrame::hideEvent(event);
}

} // namespace Zentor::Desktop
