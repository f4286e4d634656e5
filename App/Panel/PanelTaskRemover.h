// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <vector>

#include <QObject>
#include <QPointer>

#include "HostInterfaces.h"
#include "PanelParts.h"

class QAbstractButton;

namespace Zentor::PX {
class SettingsStore;
}

namespace Zentor::Desktop {

/// Remembered answers as another manager keeps them; for some moments, the answer that tasks are
/// deleted without a question.
class DeletionConsent final : public App::ISettingsManager {
public:
    explicit DeletionConsent(std::shared_ptr<App::ISettingsManager> answers);

    bool IsConfirmed(const QString& confirmationId) const override;
    void SetConfirmed(const QString& confirmationId, bool confirmed) override;

    void SetGiven(bool isGiven) { m_isGiven = isGiven; }

private:
    const std::shared_ptr<App::ISettingsManager> m_answers;
    bool m_isGiven = false;
};

/// Takes tasks that are done out of the list of a panel. The user, who did not ask for it, is not
/// disturbed: an open form stays as it is, and so does what of the list is in view; the focus moves
/// only when it was in the row that leaves. While a box waits for an answer nothing is taken out.
class PanelTaskRemover final : public QObject {
    Q_OBJECT

public:
    /// \a store is the one that the panel stores its schedule in.
    PanelTaskRemover(std::shared_ptr<PX::SettingsStore> store, QObject* parent);
    ~PanelTaskRemover() override;

    /// Works on \a panel, whose questions \a consent answers, until it is told of another one.
    void SetPanel(QWidget* panel, std::shared_ptr<DeletionConsent> consent);

    /// Removes \a task as soon as no box is open, whatever the settings have by then. Does nothing
    /// when the settings have no such task now: none of this title with this start.
    void Remove(const PX::RecordTime& task);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// From now on tasks that are over leave the list, or none is left that is to leave it.
    void RemovingChanged(bool isRemoving);

private:
    void RemoveAll();
    void WaitForAnswer(QWidget* box);
    void RemoveNow(QAbstractButton& button);
    bool IsListed(const QPointer<QAbstractButton>& button) const;
    QAbstractButton* ButtonOf(const PX::RecordTime& task) const;
    void CheckForm() const;

    const std::shared_ptr<PX::SettingsStore> m_store;
    std::shared_ptr<DeletionConsent> m_consent;
    std::unique_ptr<PanelParts> m_parts;
    /// The delete buttons of what is to be removed.
    std::vector<QPointer<QAbstractButton>> m_buttons;
    QMetaObject::Connection m_answer;
};

} // namespace Zentor::Desktop
