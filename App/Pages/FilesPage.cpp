// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "FilesPage.h"

#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShowEvent>

#include "Controls.h"
#include "HostInterfaces.h"
#include "PXUserSettings/SettingsStore.h"
#include "SizeText.h"

namespace Zentor::Desktop {
namespace {

std::int64_t FreeSpace(const QString& folder)
{
    ioPath path;
    path = folder.toStdString();
    return Util::GetAvailableDiskSpace(path);
}

/// The path that \a text stands for, written the way Qt does.
QString PathOf(const QString& text)
{
    const QString trimmed = text.trimmed();
    return trimmed.isEmpty() ? QString() : QDir::cleanPath(QDir::fromNativeSeparators(trimmed));
}

/// The folder that exists of those that lead to \a path, which does not.
QString NearestFolder(const QString& path)
{
    QString parent = path;
    do {
        parent = QFileInfo(parent).path();
    } while (!QFileInfo::exists(parent));
    return parent;
}

} // namespace

FilesPage::FilesPage(std::shared_ptr<PX::SettingsStore> store, QWidget* parent)
    : Page(PageId(), parent)
    , m_store(std::move(store))
{
    setObjectName(QStringLiteral("filesCard"));
    BuildWidgets();
    Connect();
    Retranslate();
    ShowStored();
}

FilesPage::~FilesPage() = default;

QString FilesPage::PageId()
{
    return QStringLiteral("files");
}

QString FilesPage::Title() const
{
    return tr("Files");
}

QString FilesPage::Description() const
{
    return tr("Choose where recordings are kept.");
}

void FilesPage::BuildWidgets()
{
    m_folderLabel = CreateLabel(QStringLiteral("resultsFolderLabel"), this);
    m_folderEdit = new QLineEdit(this);
    m_folderEdit->setObjectName(QStringLiteral("resultsFolderEdit"));
    m_folderLabel->setBuddy(m_folderEdit);
    m_browseButton = CreateButton(QStringLiteral("browseButton"), this);
    m_problemLabel = CreateLabel(QStringLiteral("folderProblemLabel"), this);
    m_problemLabel->hide();
    m_freeSpaceLabel = CreateLabel(QStringLiteral("freeSpaceLabel"), this);

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(ControlSpacing);
    grid->addWidget(m_folderLabel, 0, 0, 1, 2);
    grid->addWidget(m_folderEdit, 1, 0);
    grid->addWidget(m_browseButton, 1, 1);
    grid->addWidget(m_problemLabel, 2, 0, 1, 2);
    grid->addWidget(m_freeSpaceLabel, 3, 0, 1, 2);
    grid->setColumnStretch(0, 1);
}

void FilesPage::Connect()
{
    connect(m_folderEdit, &QLineEdit::editingFinished, this, &FilesPage::Apply);
    connect(m_browseButton, &QPushButton::clicked, this, &FilesPage::Browse);
}

void FilesPage::Retranslate()
{
    m_folderLabel->setText(tr("&Folder for recordings:"));
    m_folderEdit->setAccessibleName(tr("Folder for recordings"));
    m_browseButton->setText(tr("&Browse..."));
    m_browseButton->setAccessibleName(tr("Browse for the folder for recordings"));
}

void FilesPage::Browse()
{
    const QString chosen = QFileDialog::getExistingDirectory(this, tr("Folder for recordings"),
                                                             m_store->Settings().resultsFolderPath);
    if (!chosen.isEmpty()) {
        m_folderEdit->setText(QDir::toNativeSeparators(chosen));
        Apply();
    }
}

void FilesPage::Apply()
{
    const QString path = EnteredPath();
    if (path == m_store->Settings().resultsFolderPath) {
        ShowStored();
        return;
    }
    const QString problem = ProblemOf(path);
    if (!problem.isEmpty()) {
        ShowProblem(problem);
        return;
    }
    m_store->Change([&](PX::UserSettings& settings) { settings.resultsFolderPath = path; });
    ShowStored();
}

QString FilesPage::Problem() const
{
    return ProblemOf(EnteredPath());
}

QString FilesPage::EnteredPath() const
{
    // What was typed wrongly is forgotten when the page is left.
    return isVisible() ? PathOf(m_folderEdit->text()) : m_store->Settings().resultsFolderPath;
}

void FilesPage::FocusInput()
{
    m_folderEdit->setFocus(Qt::OtherFocusReason);
}

/// Why recordings cannot be kept in \a path, or nothing.
QString FilesPage::ProblemOf(const QString& path)
{
    if (path.isEmpty() || QDir::isRelativePath(path)) {
        return tr("Enter the full path of a folder.");
    }
    const QFileInfo folder(path);
    if (!folder.exists()) {
        const QFileInfo parent(NearestFolder(path));
        return parent.isDir() && parent.isWritable() ? QString()
                                                     : tr("This folder cannot be created.");
    }
    if (!folder.isDir()) {
        return tr("This is a file, not a folder.");
    }
    return folder.isWritable() ? QString() : tr("You are not allowed to write into this folder.");
}

void FilesPage::ShowStored()
{
    const QString shown = QDir::toNativeSeparators(m_store->Settings().resultsFolderPath);
    // Setting the same text would move the cursor of whoever is typing.
    if (m_folderEdit->text() != shown) {
        m_folderEdit->setText(shown);
    }
    ShowProblem(ProblemOf(m_store->Settings().resultsFolderPath));
    ShowFreeSpace();
}

void FilesPage::ShowFreeSpace()
{
    const QString path = m_store->Settings().resultsFolderPath;
    const std::int64_t bytes = FreeSpace(path);
    QStringList lines;
    if (!QFileInfo::exists(path)) {
        lines << tr("This folder does not exist yet. It will be created with the first recording.");
    }
    lines << (bytes < 0 ? tr("The free space of this folder is unknown.")
                        : tr("Free space: %1").arg(SizeText(bytes)));
    m_freeSpaceLabel->setText(lines.join(QLatin1Char('\n')));
}

void FilesPage::ShowProblem(const QString& problem)
{
    const bool good = problem.isEmpty();
    Util::ApplyWidgetStyle(m_folderEdit,
                           good ? QStringLiteral("Normal") : QStringLiteral("Invalid"), "SubStyle");
    m_folderEdit->setAccessibleDescription(problem);
    m_problemLabel->setText(problem);
    m_problemLabel->setVisible(!good);
    m_freeSpaceLabel->setVisible(good);
}

void FilesPage::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        Retranslate();
        ShowStored();
    }
    Page::changeEvent(event);
}

void FilesPage::showEvent(QShowEvent* event)
{
    // Free space changes while nobody looks. A window that is merely restored shows itself anew
    // too, but what the user has typed so far is left alone then.
    if (event->spontaneous()) {
        ShowFreeSpace();
    } else {
        ShowStored();
    }
    Page::showEvent(event);
}

} // namespace Zentor::Desktop
