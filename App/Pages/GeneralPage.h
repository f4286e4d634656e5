// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include "Page.h"

class QCheckBox;
class QComboBox;
class QFrame;
class QLabel;
class QPushButton;

namespace Zentor::PX {
class SettingsStore;
}

namespace Zentor::Desktop {

class Appearance;

/// The page "General": language and theme, life without a window, the questions that are no longer
/// asked, and where settings and log are.
///
/// A choice is stored at once. Appearance takes it over from the settings. Whether the program
/// starts with the desktop is not in the settings, but in an AutostartEntry.
class GeneralPage final : public Page {
    Q_OBJECT

public:
    GeneralPage(std::shared_ptr<PX::SettingsStore> store, QWidget* parent);
    ~GeneralPage() override;

    /// Shows what \a appearance, which outlives the page, was told at the start, until something is
    /// chosen here.
    void Follow(Appearance& appearance);

    /// The Id() of this page.
    static QString PageId();

    QString Title() const override;
    QString Description() const override;

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    QFrame* CreateLookCard();
    QFrame* CreateBackgroundCard();
    QFrame* CreateQuestionsCard();
    QFrame* CreateSupportCard();
    void Connect();
    void ConnectBackground();
    void Retranslate();
    void RetranslateBackground();
    void ShowStored();
    void ShowLookOfRun();
    void ShowLog();
    /// Whether the program starts with the desktop, and \a problem with setting that.
    void ShowAutostart(const QString& problem);
    void ForgetAnswers();
    void OpenLog();
    /// Shows \a path, a folder or a file, in the desktop's program for it.
    void Open(const QString& path);
    void ShowProblem(const QString& problem);

    std::shared_ptr<PX::SettingsStore> m_store;
    Appearance* m_appearance = nullptr;
    QLabel* m_languageLabel = nullptr;
    QComboBox* m_languageBox = nullptr;
    QLabel* m_languageOfRunLabel = nullptr;
    QLabel* m_themeLabel = nullptr;
    QComboBox* m_themeBox = nullptr;
    QLabel* m_themeOfRunLabel = nullptr;
    QCheckBox* m_autostartBox = nullptr;
    QLabel* m_autostartProblemLabel = nullptr;
    QCheckBox* m_keepRunningBox = nullptr;
    QLabel* m_keepRunningLabel = nullptr;
    QLabel* m_questionsLabel = nullptr;
    QPushButton* m_askAgainButton = nullptr;
    QLabel* m_supportLabel = nullptr;
    QPushButton* m_openFolderButton = nullptr;
    QPushButton* m_openLogButton = nullptr;
    QLabel* m_problemLabel = nullptr;
};

} // namespace Zentor::Desktop
