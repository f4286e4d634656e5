// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <QCoreApplication>
#include <QDialog>

#include "SettingsDraft.h"

class QListWidget;
class QStackedWidget;

namespace Zentor::PX::Scheduler::UI {
class RecordSchedulerWidget;
}

/// A dialog with a list of pages, OK and Cancel. It shows and changes a draft, which OK stores.
class SettingsDialog final : public QDialog {
    Q_DECLARE_TR_FUNCTIONS(SettingsDialog)

public:
    explicit SettingsDialog(const std::shared_ptr<Zentor::PX::SettingsStore>& store,
                            QWidget* parent = nullptr);

    /// OK.
    void accept() override;

private:
    void AddPage(const QString& name, QWidget* page);
    QWidget* CreateGeneralPage();
    QWidget* CreateFilesPage();
    QWidget* CreateSchedulePage(const std::shared_ptr<Zentor::PX::SettingsStore>& store);
    bool SettleOpenTask();

    const std::shared_ptr<SettingsDraft> m_draft;
    QListWidget* const m_pageList;
    QStackedWidget* const m_pages;
    Zentor::PX::Scheduler::UI::RecordSchedulerWidget* m_panel = nullptr;
};
