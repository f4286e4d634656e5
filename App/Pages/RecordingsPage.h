// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <optional>

#include <QProcess>
#include <QTimer>

#include "Page.h"
#include "RecordingPictures.h"
#include "RecordingsModel.h"

class QLabel;
class QListView;
class QMenu;
class QPushButton;

namespace Zentor::Desktop {

/// The page "Recordings": what was recorded, missed and failed, newest first, and what can be done
/// with it.
class RecordingsPage final : public Page {
    Q_OBJECT

public:
    /// \a recorder is the program that repairs recordings and makes pictures of them.
    RecordingsPage(const QString& recorder, QWidget* parent);
    ~RecordingsPage() override;

    /// The Id() of this page.
    static QString PageId();

    /// Shows \a list, which has been opened. Call it once; the page is empty before.
    void SetList(const std::shared_ptr<Schedule::RecordingsList>& list);

    QString Title() const override;
    QString Description() const override;

    /// Gives the list the height that is left.
    void SetRoom(int height) override;

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    using Id = Schedule::RecordingsList::Id;

    /// What can be done with a recording now.
    struct Abilities {
        bool isOpenable = false;
        bool isShowable = false;
        bool isRepairable = false;
        bool isRemovable = false;
        /// Whether there is a file to be moved to the trash.
        bool hasFile = false;
    };

    void BuildWidgets();
    void CreateList();
    void CreateButtons();
    void Connect();
    void ConnectModel();
    void ConnectRepair();
    void Retranslate();
    QString RemovalText(bool hasFile) const;
    std::optional<int> CurrentRow() const;
    Abilities AbilitiesOf(int row) const;
    void LookAtVisibleRows();
    void ShowState();
    void ShowListProblem();
    void ShowMenu(const QPoint& place);
    void OpenCurrent();
    void ShowCurrentInFolder();
    void RepairCurrent();
    void FinishRepair(bool isRepaired);
    void RemoveCurrent();
    bool IsRemovalAccepted(const QString& title, bool hasFile);
    void Remove(Id id, const QString& file);
    void ShowProblem(const QString& problem);

    std::shared_ptr<Schedule::RecordingsList> m_list;
    const QString m_recorder;
    RecordingsModel m_model;
    RecordingPictures m_pictures;
    QProcess m_repair;
    QString m_repairedTitle;
    /// Gathers what makes other rows visible.
    QTimer m_lookTimer;
    QLabel* m_listProblemLabel = nullptr;
    QListView* m_view = nullptr;
    QLabel* m_helpLabel = nullptr;
    QWidget* m_buttons = nullptr;
    QPushButton* m_openButton = nullptr;
    QPushButton* m_showButton = nullptr;
    QPushButton* m_repairButton = nullptr;
    QPushButton* m_removeButton = nullptr;
    QLabel* m_problemLabel = nullptr;
};

} // namespace Zentor::Desktop
