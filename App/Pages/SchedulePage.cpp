// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "SchedulePage.h"

#include <QDateTimeEdit>
#include <QEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include "Application/SettingsManager.h"
#include "CalendarLook.h"
#include "Controls.h"
#include "PanelAnnouncer.h"
#include "PanelAreaTip.h"
#include "PanelFormAssistant.h"
#include "PanelFormKeys.h"
#include "PanelFormMemory.h"
#include "PanelFormTimer.h"
#include "PanelListHeight.h"
#include "PanelListKeys.h"
#include "PanelMouse.h"
#include "PanelNameGuard.h"
#include "PanelQuestions.h"
#include "PanelTaskDetails.h"
#include "PanelTaskRemover.h"
#include "PXUserSettings/StoredSettings.h"
#include "RadioGroupTabStop.h"
#include "RecordSchedulerWidget.h"

namespace Zentor::Desktop {

using PX::Scheduler::UI::RecordSchedulerWidget;

SchedulePage::SchedulePage(std::shared_ptr<PX::SettingsStore> store,
                           std::shared_ptr<App::ILookAndFeelManager> lookAndFeel, QWidget* parent)
    : Page(PageId(), parent)
    , m_store(std::move(store))
    , m_lookAndFeel(std::move(lookAndFeel))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSizeConstraint(QLayout::SetMinAndMaxSize);
    m_taskRemover = new PanelTaskRemover(m_store, this);
    CreatePanel();
}

SchedulePage::~SchedulePage()
{
    // The form is hidden once more when the panel is deleted, which is no news.
    delete m_announcer;
}

QString SchedulePage::PageId()
{
    return QStringLiteral("schedule");
}

QString SchedulePage::Title() const
{
    return tr("Schedule");
}

QString SchedulePage::Description() const
{
    return tr("Choose when a recording stops by itself, and which recordings start by themselves.");
}

void SchedulePage::CreatePanel()
{
    const auto consent =
        std::make_shared<DeletionConsent>(std::make_shared<App::SettingsManager>(m_store));
    m_panel = new RecordSchedulerWidget(m_lookAndFeel, consent, this);
    m_panel->setObjectName(QStringLiteral("recordSchedulerWidget"));
    m_panel->SetSchedulerSettings(std::make_shared<PX::StoredSchedulerSettings>(m_store));
    m_panel->SetCaptureFinishActionSettings(
        std::make_shared<PX::StoredCaptureFinishActionSettings>(m_store));
    m_panel->SetPathSettings(std::make_shared<PX::StoredPathsSettings>(m_store));
    m_panel->SetSettingsWatcher(std::make_shared<PX::StoringSettingsWatcher>(m_store));
    StyleComboBoxLists(*m_panel);
    connect(m_panel, &RecordSchedulerWidget::OpenFilesSettingsRequested, this,
            &SchedulePage::FilesRequested);
    m_parts = std::make_unique<PanelParts>(*m_panel);
    m_taskRemover->SetPanel(m_panel, consent);
    m_listHeight = new PanelListHeight(m_panel);
    m_listHeight->SetPanelHeight(m_room);
    layout()->addWidget(m_panel);
}

void SchedulePage::Restore()
{
    m_panel->RestoreSettings();
    AssistPanel();
    RetranslatePanel();
}

void SchedulePage::AssistPanel()
{
    const auto* listKeys = new PanelListKeys(m_panel);
    const auto* questions = new PanelQuestions(m_panel);
    connect(listKeys, &PanelListKeys::DeleteButtonReleased, questions, &PanelQuestions::Expect);
    new PanelTaskDetails(m_panel, m_store);
    new PanelAreaTip(m_panel, m_store);
    new PanelFormAssistant(m_panel, m_store);
    new PanelFormKeys(m_panel);
    new PanelFormTimer(m_panel);
    m_formMemory = new PanelFormMemory(m_panel, m_store);
    new RadioGroupTabStop(m_parts->modeGroup);
    new RadioGroupTabStop(m_parts->areaGroup);
    new PanelMouse(m_panel);
    m_calendarLook = new CalendarLook(m_parts->dateField->calendarWidget());
    m_announcer = new PanelAnnouncer(m_panel, m_store);
    connect(m_announcer, &PanelAnnouncer::Announced, this, &SchedulePage::Announced);
    connect(m_announcer, &PanelAnnouncer::ProblemChanged, this, &SchedulePage::ProblemChanged);
    connect(m_taskRemover, &PanelTaskRemover::RemovingChanged, m_announcer,
            &PanelAnnouncer::SetQuiet);
    const auto* nameGuard = new PanelNameGuard(m_panel);
    connect(nameGuard, &PanelNameGuard::RefusalChanged, m_announcer, &PanelAnnouncer::SetRefusal);
}

void SchedulePage::RebuildPanel()
{
    // While a panel is restored it stores the schedule anew, task by task. That is no news.
    delete m_announcer;
    delete m_panel;
    CreatePanel();
    // Now: the layout would show it only later.
    m_panel->show();
    Restore();
    OrderTabs();
}

void SchedulePage::OrderTabs()
{
    const auto isStop = [](const QWidget* widget) {
        return widget->focusPolicy() != Qt::NoFocus && widget->focusProxy() == nullptr;
    };
    // A new panel is the last in the chain, its stops in order. The few that belong behind it are
    // moved, not the many of its tasks.
    QList<QWidget*> followers;
    QWidget* widget = m_tabPredecessor->nextInFocusChain();
    for (; !m_panel->isAncestorOf(widget) && widget != m_tabPredecessor;
         widget = widget->nextInFocusChain()) {
        if (isStop(widget)) {
            followers << widget;
        }
    }
    QWidget* last = nullptr;
    for (; m_panel->isAncestorOf(widget); widget = widget->nextInFocusChain()) {
        last = isStop(widget) ? widget : last;
    }
    for (QWidget* follower : qAsConst(followers)) {
        setTabOrder(last, follower);
        last = follower;
    }
}

void SchedulePage::RetranslatePanel()
{
    m_parts->list->setAccessibleName(tr("Recording schedule"));
    // Which days are the weekend is a matter of the language, too.
    m_calendarLook->Update();
}

void SchedulePage::SetRoom(int height)
{
    m_room = height;
    m_listHeight->SetPanelHeight(height);
}

void SchedulePage::RemoveTask(const PX::RecordTime& task)
{
    m_taskRemover->Remove(task);
}

bool SchedulePage::ValidateSettings()
{
    const QPointer<SchedulePage> self(this);
    const bool isReady = m_panel->ValidateSettings();
    return !self.isNull() && isReady;
}

bool SchedulePage::HasUnfinishedInput() const
{
    return m_parts->IsFormVisible();
}

bool SchedulePage::FinishInput()
{
    if (!HasUnfinishedInput()) {
        return true;
    }
    const QPointer<SchedulePage> self(this);
    m_parts->backButton->click();
    return !self.isNull() && !HasUnfinishedInput();
}

void SchedulePage::RememberInput()
{
    m_formMemory->Remember();
}

void SchedulePage::KeepInput()
{
    m_formMemory->Keep();
}

void SchedulePage::FocusInput()
{
    m_parts->nameField->setFocus(Qt::OtherFocusReason);
}

void SchedulePage::changeEvent(QEvent* event)
{
    // Both arrive for the first time while the page is still being built.
    if (IsBuilt() && event->type() == QEvent::LanguageChange) {
        RetranslatePanel();
        // A form is left as the user has it; it is closed before the page with the languages is
        // shown.
        if (!m_store->Settings().schedule.empty() && !HasUnfinishedInput()) {
            RebuildPanel();
        }
    }
    if (IsBuilt() && event->type() == QEvent::PaletteChange) {
        m_calendarLook->Update();
    }
    Page::changeEvent(event);
}

} // namespace Zentor::Desktop
