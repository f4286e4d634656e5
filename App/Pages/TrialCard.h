// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <QFrame>

class QLabel;
class QProgressBar;
class QPushButton;

namespace Zentor::PX {
class SettingsStore;
}

namespace Zentor::Desktop {

class TrialRecording;

/// The part of the page "Recording" that records some seconds with what is stored, and opens the
/// result.
class TrialCard final : public QFrame {
    Q_OBJECT

public:
    TrialCard(std::shared_ptr<PX::SettingsStore> store, QWidget* parent);
    ~TrialCard() override;

Q_SIGNALS:
    /// The trial is over, as \a text says.
    void Announced(const QString& text);
    /// More is shown in the card, which the user is still at.
    void Grown();

protected:
    void changeEvent(QEvent* event) override;

private:
    void Retranslate();
    void StartOrCancel();
    void Start();
    void ShowProgress(int milliseconds);
    void Open(const QString& file, const QStringList& warnings);
    void Fail(const QString& reason);
    /// Says how it went, and makes the card ready for another trial.
    void Say(const QString& text, bool isProblem);
    bool IsRunning() const;

    std::shared_ptr<PX::SettingsStore> m_store;
    QLabel* m_label;
    QPushButton* m_button;
    QProgressBar* m_progressBar;
    QLabel* m_resultLabel;
    /// Kept until the next one: the player reads its file.
    std::unique_ptr<TrialRecording> m_trial;
};

} // namespace Zentor::Desktop
