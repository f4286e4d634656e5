// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "SettingsDialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QStackedWidget>

#include "Application/LookAndFeelManager.h"
#include "Application/PlainStyle.h"
#include "Application/SettingsManager.h"
#include "RecordSchedulerWidget.h"

using namespace Zentor;
using PX::Scheduler::UI::RecordSchedulerWidget;

namespace {

// Its place in the list.
constexpr int FilesPage = 1;

} // namespace

SettingsDialog::SettingsDialog(const std::shared_ptr<PX::SettingsStore>& store, QWidget* parent)
    : QDialog(parent)
    , m_draft(std::make_shared<SettingsDraft>(store))
    , m_pageList(new QListWidget(this))
    , m_pages(new QStackedWidget(this))
{
    setWindowTitle(tr("Settings"));
    AddPage(tr("General"), CreateGeneralPage());
    AddPage(tr("Files"), CreateFilesPage());
    AddPage(tr("Schedule"), CreateSchedulePage(store));
    m_pageList->setFixedWidth(m_pageList->sizeHintForColumn(0) * 2);
    connect(m_pageList, &QListWidget::currentRowChanged, m_pages, &QStackedWidget::setCurrentIndex);
    m_pageList->setCurrentRow(0);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &SettingsDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &SettingsDialog::reject);

    auto* grid = new QGridLayout(this);
    grid->addWidget(m_pageList, 0, 0);
    grid->addWidget(m_pages, 0, 1);
    grid->addWidget(buttons, 1, 0, 1, 2);
}

void SettingsDialog::accept()
{
    if (SettleOpenTask()) {
        m_draft->Commit();
        QDialog::accept();
    }
}

void SettingsDialog::AddPage(const QString& name, QWidget* page)
{
    m_pageList->addItem(name);
    m_pages->addWidget(page);
}

/// Stands for the pages that the program has had before.
QWidget* SettingsDialog::CreateGeneralPage()
{
    auto* page = new QWidget(m_pages);
    (new QVBoxLayout(page))->addWidget(new QCheckBox(tr("Start with the desktop"), page));
    page->layout()->setAlignment(Qt::AlignTop);
    return page;
}

QWidget* SettingsDialog::CreateFilesPage()
{
    auto* page = new QWidget(m_pages);
    auto* folder = new QLineEdit(m_draft->GetResultsFolderPath(), page);
    connect(folder, &QLineEdit::textChanged, this,
            [this](const QString& path) { m_draft->SetResultsFolderPath(path); });
    (new QFormLayout(page))->addRow(tr("Recordings:"), folder);
    return page;
}

QWidget* SettingsDialog::CreateSchedulePage(const std::shared_ptr<PX::SettingsStore>& store)
{
    // The rest of the program keeps the look that it has: the sheet is set on this page alone, and
    // before the panel is built in it.
    auto* page = new QWidget(m_pages);
    App::ApplyPlainStyle(*page);

    // Answers that the user wants remembered are stored at once, as in any message box.
    m_panel = new RecordSchedulerWidget(std::make_shared<App::LookAndFeelManager>(),
                                        std::make_shared<App::SettingsManager>(store), page);
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_panel);

    m_panel->SetSchedulerSettings(std::static_pointer_cast<PX::SchedulerSettings>(m_draft));
    m_panel->SetCaptureFinishActionSettings(
        std::static_pointer_cast<PX::CaptureFinishActionSettings>(m_draft));
    m_panel->SetPathSettings(std::static_pointer_cast<PX::PathsSettings>(m_draft));
    m_panel->SetSettingsWatcher(std::static_pointer_cast<PX::ISettingsWatcher>(m_draft));
    m_panel->RestoreSettings();

    // "Choose another folder", in the alert about too little disk space.
    connect(m_panel, &RecordSchedulerWidget::OpenFilesSettingsRequested, this,
            [this] { m_pageList->setCurrentRow(FilesPage); });
    return page;
}

/// A task that is in the form but not created yet would be lost without a word: ValidateSettings()
/// asks the user about it. On another page there is none, as the panel drops it when it is shown
/// again. Returns whether the dialog may close.
bool SettingsDialog::SettleOpenTask()
{
    const auto* form = m_panel->findChild<QWidget*>(QStringLiteral("createRecordTaskWidget"));
    return !form->isVisible() || m_panel->ValidateSettings();
}
