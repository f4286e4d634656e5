// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "RecordingPage.h"

#include <QVBoxLayout>

#include "Controls.h"
#include "PictureCard.h"
#include "SoundCard.h"
#include "SourceCard.h"
#include "TrialCard.h"

namespace Zentor::Desktop {

RecordingPage::RecordingPage(const std::shared_ptr<PX::SettingsStore>& store, QWidget* parent)
    : Page(PageId(), parent)
    , m_sourceCard(new SourceCard(store, this))
{
    setObjectName(QStringLiteral("recordingPage"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_sourceCard);
    column->addWidget(new PictureCard(store, this));
    column->addWidget(new SoundCard(store, this));
    auto* trialCard = new TrialCard(store, this);
    column->addWidget(trialCard);
    StyleComboBoxLists(*this);
    connect(trialCard, &TrialCard::Announced, this, &RecordingPage::Announced);
    connect(trialCard, &TrialCard::Grown, this,
            [this, trialCard] { Q_EMIT RevealRequested(trialCard); });
}

RecordingPage::~RecordingPage() = default;

QString RecordingPage::PageId()
{
    return QStringLiteral("recording");
}

QString RecordingPage::Title() const
{
    return tr("Recording");
}

QString RecordingPage::Description() const
{
    return tr("Choose what is recorded, and how.");
}

QString RecordingPage::Problem() const
{
    return m_sourceCard->Problem();
}

void RecordingPage::FocusInput()
{
    m_sourceCard->FocusInput();
}

} // namespace Zentor::Desktop
