// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "TrialCard.h"

#include <QDesktopServices>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QUrl>

#include "Controls.h"
#include "HostInterfaces.h"
#include "RecordingSettings.h"
#include "SizeText.h"
#include "TrialRecording.h"

namespace Zentor::Desktop {

TrialCard::TrialCard(std::shared_ptr<PX::SettingsStore> store, QWidget* parent)
    : QFrame(parent)
    , m_store(std::move(store))
    , m_label(CreateLabel(QStringLiteral("trialLabel"), this))
    , m_button(CreateButton(QStringLiteral("trialButton"), this))
    , m_progressBar(new QProgressBar(this))
    , m_resultLabel(CreateLabel(QStringLiteral("trialResultLabel"), this))
{
    setObjectName(QStringLiteral("trialCard"));
    m_progressBar->setObjectName(QStringLiteral("trialProgressBar"));
    m_progressBar->setRange(0, TrialRecording::Seconds * 1000);
    m_progressBar->setTextVisible(false);
    m_progressBar->hide();
    m_resultLabel->hide();
    auto* row = new QHBoxLayout;
    row->setSpacing(2 * ControlSpacing);
    row->addWidget(m_label, 1);
    row->addWidget(m_button);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(ControlSpacing);
    column->addLayout(row);
    column->addWidget(m_progressBar);
    column->addWidget(m_resultLabel);
    connect(m_button, &QPushButton::clicked, this, &TrialCard::StartOrCancel);
    Retranslate();
}

TrialCard::~TrialCard() = default;

void TrialCard::Retranslate()
{
    m_label->setText(tr("See and hear what a recording with these settings is like."));
    m_button->setText(IsRunning() ? tr("Cancel") : tr("Try fi&ve seconds"));
    m_progressBar->setAccessibleName(tr("Trial recording"));
}

bool TrialCard::IsRunning() const
{
    return !m_progressBar->isHidden();
}

void TrialCard::StartOrCancel()
{
    if (IsRunning()) {
        m_trial.reset();
        Say(tr("The trial recording was cancelled."), false);
    } else {
        Start();
    }
}

void TrialCard::Start()
{
    m_trial = std::make_unique<TrialRecording>(Schedule::RecordingSettingsIn(*m_store), nullptr);
    connect(m_trial.get(), &TrialRecording::Progressed, this, &TrialCard::ShowProgress);
    connect(m_trial.get(), &TrialRecording::Finished, this, &TrialCard::Open);
    connect(m_trial.get(), &TrialRecording::Failed, this, &TrialCard::Fail);
    m_progressBar->setValue(0);
    m_progressBar->show();
    m_resultLabel->hide();
    Retranslate();
    Q_EMIT Grown();
}

void TrialCard::ShowProgress(int milliseconds)
{
    m_progressBar->setValue(milliseconds);
}

void TrialCard::Open(const QString& file, const QStringList& warnings)
{
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(file))) {
        Say(tr("The trial recording was made, but there is no program that opens it: %1")
                .arg(Isolated(file)),
            true);
    } else if (!warnings.isEmpty()) {
        Say(tr("The trial recording was made and opened. The recorder says: %1")
                .arg(Isolated(warnings.join(QLatin1Char('\n')))),
            true);
    } else {
        Say(tr("The trial recording was made and opened."), false);
    }
}

void TrialCard::Fail(const QString& reason)
{
    Say(reason.isEmpty()
            ? tr("The recorder px-recorder cannot be started. Is it installed completely?")
            : tr("Nothing could be recorded. The recorder says: %1").arg(Isolated(reason)),
        true);
}

void TrialCard::Say(const QString& text, bool isProblem)
{
    m_progressBar->hide();
    m_resultLabel->setText(text);
    Util::ApplyWidgetStyle(m_resultLabel,
                           isProblem ? QStringLiteral("Invalid") : QStringLiteral("Normal"),
                           "SubStyle");
    m_resultLabel->show();
    Retranslate();
    // Not when the user has gone on to another setting. The window may be behind the player.
    if (window()->focusWidget() == m_button) {
        Q_EMIT Grown();
    }
    Q_EMIT Announced(text);
}

void TrialCard::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        Retranslate();
        // What it says is in the language before.
        m_resultLabel->hide();
    }
    QFrame::changeEvent(event);
}

} // namespace Zentor::Desktop
