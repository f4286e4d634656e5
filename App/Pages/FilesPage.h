// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include "Page.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace Zentor::PX {
class SettingsStore;
}

namespace Zentor::Desktop {

/// The page "Files": in which folder recordings are kept, and how much room is left there.
class FilesPage final : public Page {
    Q_OBJECT

public:
    FilesPage(std::shared_ptr<PX::SettingsStore> store, QWidget* parent);
    ~FilesPage() override;

    /// The Id() of this page.
    static QString PageId();

    QString Title() const override;
    QString Description() const override;

    /// Stores the folder that stands in the field. A path that cannot be a results folder is marked
    /// and not stored.
    void Apply() override;
    /// What is wrong with the folder that stands in the field or, on a hidden page, is stored.
    QString Problem() const override;
    void FocusInput() override;

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void BuildWidgets();
    void Connect();
    void Retranslate();
    void Browse();
    /// What stands in the field or, on a hidden page, is stored.
    QString EnteredPath() const;
    static QString ProblemOf(const QString& path);
    /// Shows the stored folder and its free space, or why it cannot be used.
    void ShowStored();
    void ShowFreeSpace();
    /// Shows \a problem beside the marked field, or takes the mark away when it is empty.
    void ShowProblem(const QString& problem);

    std::shared_ptr<PX::SettingsStore> m_store;
    QLabel* m_folderLabel = nullptr;
    QLineEdit* m_folderEdit = nullptr;
    QPushButton* m_browseButton = nullptr;
    QLabel* m_problemLabel = nullptr;
    QLabel* m_freeSpaceLabel = nullptr;
};

} // namespace Zentor::Desktop
