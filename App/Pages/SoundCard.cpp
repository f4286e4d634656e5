// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "SoundCard.h"

#include <QCheckBox>
#include <QEvent>
#include <QLabel>
#include <QVBoxLayout>

#include "Controls.h"
#include "RecordingSettings.h"
#include "SoundDeviceList.h"

namespace Zentor::Desktop {

using Schedule::ChangeRecordingSettings;
using Schedule::RecordingSettings;
using Schedule::RecordingSettingsIn;

SoundCard::SoundCard(std::shared_ptr<PX::SettingsStore> store, QWidget* parent)
    : QFrame(parent)
    , m_store(std::move(store))
    , m_label(CreateLabel(QStringLiteral("soundLabel"), this))
    , m_list(new SoundDeviceList(this))
    , m_mixBox(new QCheckBox(this))
{
    setObjectName(QStringLiteral("soundCard"));
    m_mixBox->setObjectName(QStringLiteral("mixSoundBox"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(ControlSpacing);
    column->addWidget(m_label);
    column->addWidget(m_list);
    column->addWidget(m_mixBox, 0, Qt::AlignLeading);
    Connect();
    Retranslate();
}

SoundCard::~SoundCard() = default;

void SoundCard::Connect()
{
    connect(m_list, &SoundDeviceList::ChoiceChanged, this, [this](const QStringList& devices) {
        ChangeRecordingSettings(*m_store, [&](auto& settings) { settings.soundDevices = devices; });
    });
    connect(m_mixBox, &QCheckBox::clicked, this, [this](bool isMixed) {
        ChangeRecordingSettings(*m_store, [&](auto& settings) { settings.mixSound = isMixed; });
    });
    connect(m_store.get(), &PX::SettingsStore::Changed, this, &SoundCard::ShowStored);
}

void SoundCard::Retranslate()
{
    m_label->setText(tr("Record the sound of:"));
    m_list->setAccessibleName(tr("Sound devices"));
    m_mixBox->setText(tr("All sound in one trac&k"));
    m_mixBox->setToolTip(tr("Otherwise each device has a track of its own, for editing. Most "
                            "players play only the first."));
    ShowStored();
}

void SoundCard::ShowStored()
{
    const RecordingSettings settings = RecordingSettingsIn(*m_store);
    m_list->SetChosen(settings.soundDevices);
    m_mixBox->setChecked(settings.mixSound);
    // One device alone has one track anyway.
    m_mixBox->setEnabled(settings.soundDevices.size() > 1);
}

void SoundCard::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        Retranslate();
    }
    QFrame::changeEvent(event);
}

} // namespace Zentor::Desktop
