// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <QPointer>

#include "Page.h"
#include "PanelAnnouncer.h"
#include "PanelParts.h"

namespace Zentor {
namespace App {
class ILookAndFeelManager;
}
namespace PX {
class SettingsStore;
struct RecordTime;
namespace Scheduler::UI {
class RecordSchedulerWidget;
}
} // namespace PX
} // namespace Zentor

namespace Zentor::Desktop {

class CalendarLook;
class PanelFormMemory;
class PanelListHeight;
class PanelTaskRemover;

/// The page "Schedule": the scheduler panel on the settings of the application, with what it lacks
/// for the keyboard, the mouse and screen readers.
///
/// A panel writes the rows of its list once. When the language changes, the page builds a new panel
/// in the place of the old one, which has nothing that is not stored.
class SchedulePage final : public Page {
    Q_OBJECT

public:
    /// Apply a theme before: a panel takes the width of its table from it while it is built.
    SchedulePage(std::shared_ptr<PX::SettingsStore> store,
                 std::shared_ptr<App::ILookAndFeelManager> lookAndFeel, QWidget* parent);
    ~SchedulePage() override;

    /// The Id() of this page.
    static QString PageId();

    /// Fills the panel from the settings. Call it once, when the page has its place in a window: a
    /// row that is moved to another parent is polished anew.
    void Restore();

    QString Title() const override;
    QString Description() const override;

    /// Gives the list the height that is left.
    void SetRoom(int height) override;

    /// Whether the task form is on screen.
    bool HasUnfinishedInput() const override;
    bool FinishInput() override;
    void FocusInput() override;
    /// Stores an unfinished task, with which the form opens at the next start.
    void RememberInput();

    /// Stores a form that is open, and opens it anew when the window, which is about to be hidden,
    /// is shown again.
    void KeepInput();

    /// Places a new panel behind \a widget, which must outlive the page, in the tab order.
    void SetTabPredecessor(QWidget* widget) { m_tabPredecessor = widget; }

    /// Takes \a task, which is done, out of the list without a word, and without disturbing what
    /// the user does: an open form, the focus and what is in view stay. While a box is open, after
    /// that. Does nothing when there is no such task any more.
    void RemoveTask(const PX::RecordTime& task);

    /// Whether a recording may start. The panel asks the user where it has to; the page may be
    /// destroyed meanwhile, and the answer is false then.
    bool ValidateSettings();

Q_SIGNALS:
    /// The user wants to choose another folder for the recordings.
    void FilesRequested();
    /// The task form cannot be used as it is, and \a problem says why; empty when nothing is wrong
    /// any more or the form is closed. Not sent again for the same problem.
    void ProblemChanged(const QString& problem);

protected:
    void changeEvent(QEvent* event) override;

private:
    void CreatePanel();
    void AssistPanel();
    void RebuildPanel();
    void OrderTabs();
    void RetranslatePanel();
    bool IsBuilt() const { return !m_announcer.isNull(); }

    std::shared_ptr<PX::SettingsStore> m_store;
    std::shared_ptr<App::ILookAndFeelManager> m_lookAndFeel;
    PX::Scheduler::UI::RecordSchedulerWidget* m_panel = nullptr;
    std::unique_ptr<PanelParts> m_parts;
    QPointer<PanelAnnouncer> m_announcer;
    CalendarLook* m_calendarLook = nullptr;
    PanelFormMemory* m_formMemory = nullptr;
    PanelListHeight* m_listHeight = nullptr;
    PanelTaskRemover* m_taskRemover = nullptr;
    int m_room = 0;
    QWidget* m_tabPredecessor = nullptr;
};

} // namespace Zentor::Desktop
