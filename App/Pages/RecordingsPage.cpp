// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "RecordingsPage.h"

#include <algorithm>

#include <QDesktopServices>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QStandardPaths>
#include <QUrl>

#include "Controls.h"
#include "HostInterfaces.h"
#include "RecordingDelegate.h"
#include "ShowInFolder.h"

namespace Zentor::Desktop {

using Schedule::Outcome;
using Schedule::RecordingEntry;
using Schedule::RecordingsList;

namespace {

/// Below it the page scrolls.
constexpr int LeastHeight = 300;
/// Long enough for a file to be closed.
constexpr int RepairEndMilliseconds = 3000;

/// Qt creates the trash, but not the folder that it is in.
bool MoveToTrash(const QString& file)
{
    QDir().mkpath(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    return QFile::moveToTrash(file);
}

/// What the recorder said last, without its name.
QString LastLine(const QByteArray& said)
{
    const QString line = QString::fromUtf8(said).trimmed().section(QLatin1Char('\n'), -1);
    const QLatin1String name("px-recorder: ");
    return line.startsWith(name) ? line.mid(name.size()) : line;
}

bool IsBroken(const RecordingEntry& entry)
{
    const bool hasCrashed =
        entry.reason == Schedule::Why::ProgramDied || entry.reason == Schedule::Why::RecorderDied;
    return hasCrashed && entry.file.endsWith(QLatin1String(".mkv"), Qt::CaseInsensitive);
}

/// Has \a heir take the focus from a \a button that is disabled: the next one, which would have it
/// otherwise, does something else.
void SetEnabled(QPushButton& button, bool isEnabled, QWidget& heir)
{
    if (!isEnabled && button.window()->focusWidget() == &button) {
        heir.setFocus(Qt::OtherFocusReason);
    }
    button.setEnabled(isEnabled);
}

} // namespace

RecordingsPage::RecordingsPage(const QString& recorder, QWidget* parent)
    : Page(PageId(), parent)
    , m_recorder(recorder)
    , m_pictures(recorder, RecordingPictures::UsualFolder())
{
    setObjectName(QStringLiteral("recordingsCard"));
    m_lookTimer.setSingleShot(true);
    m_lookTimer.setInterval(0);
    BuildWidgets();
    Connect();
    ConnectModel();
    ConnectRepair();
    Retranslate();
}

RecordingsPage::~RecordingsPage()
{
    m_repair.disconnect(this);
    if (m_repair.state() != QProcess::NotRunning) {
        // So that it leaves no half-finished copy behind.
        m_repair.terminate();
        m_repair.waitForFinished(RepairEndMilliseconds);
    }
}

QString RecordingsPage::PageId()
{
    return QStringLiteral("recordings");
}

void RecordingsPage::SetList(const std::shared_ptr<RecordingsList>& list)
{
    m_list = list;
    m_model.SetList(list);
    connect(list.get(), &RecordingsList::SaveProblemChanged, this,
            &RecordingsPage::ShowListProblem);
    ShowListProblem();
    ShowState();
}

QString RecordingsPage::Title() const
{
    return tr("Recordings");
}

QString RecordingsPage::Description() const
{
    return tr("What was recorded, and what was not.");
}

void RecordingsPage::SetRoom(int height)
{
    setFixedHeight(std::max(LeastHeight, height));
}

void RecordingsPage::BuildWidgets()
{
    m_listProblemLabel = CreateLabel(QStringLiteral("recordingsListProblemLabel"), this);
    m_listProblemLabel->hide();
    m_helpLabel = CreateLabel(QStringLiteral("recordingsHelpLabel"), this);
    CreateList();
    CreateButtons();
    m_problemLabel = CreateLabel(QStringLiteral("recordingsProblemLabel"), this);
    m_problemLabel->hide();

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(ControlSpacing);
    column->addWidget(m_listProblemLabel);
    column->addWidget(m_helpLabel, 0, Qt::AlignTop);
    column->addWidget(m_view, 1);
    column->addWidget(m_problemLabel);
    column->addWidget(m_buttons);
}

void RecordingsPage::CreateList()
{
    m_view = new QListView(this);
    m_view->setObjectName(QStringLiteral("recordingsList"));
    m_view->setModel(&m_model);
    m_view->setItemDelegate(new RecordingDelegate(m_view));
    // So that thousands of rows are laid out by the size of one.
    m_view->setUniformItemSizes(true);
    m_view->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_view->setContextMenuPolicy(Qt::CustomContextMenu);
    m_view->setMouseTracking(true);
}

void RecordingsPage::CreateButtons()
{
    m_buttons = new QWidget(this);
    m_openButton = CreateButton(QStringLiteral("openRecordingButton"), m_buttons);
    m_showButton = CreateButton(QStringLiteral("showRecordingButton"), m_buttons);
    m_repairButton = CreateButton(QStringLiteral("repairRecordingButton"), m_buttons);
    m_removeButton = CreateButton(QStringLiteral("removeRecordingButton"), m_buttons);
    auto* row = new QHBoxLayout(m_buttons);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(ControlSpacing);
    row->addWidget(m_openButton);
    row->addWidget(m_showButton);
    row->addWidget(m_repairButton);
    row->addStretch(1);
    row->addWidget(m_removeButton);
}

void RecordingsPage::Connect()
{
    connect(m_openButton, &QPushButton::clicked, this, &RecordingsPage::OpenCurrent);
    connect(m_showButton, &QPushButton::clicked, this, &RecordingsPage::ShowCurrentInFolder);
    connect(m_repairButton, &QPushButton::clicked, this, &RecordingsPage::RepairCurrent);
    connect(m_removeButton, &QPushButton::clicked, this, &RecordingsPage::RemoveCurrent);
    // By Enter and by a double click.
    connect(m_view, &QListView::activated, this, &RecordingsPage::OpenCurrent);
    connect(m_view, &QListView::customContextMenuRequested, this, &RecordingsPage::ShowMenu);
    const auto* remove =
        new QShortcut(QKeySequence(Qt::Key_Delete), m_view, nullptr, nullptr, Qt::WidgetShortcut);
    connect(remove, &QShortcut::activated, m_removeButton, &QPushButton::click);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& current) {
                // A list that receives the focus has a current row, which nobody would see.
                m_view->selectionModel()->select(current, QItemSelectionModel::ClearAndSelect);
                ShowProblem({});
                ShowState();
            });
    const auto look = [this] { m_lookTimer.start(); };
    connect(m_view->verticalScrollBar(), &QScrollBar::valueChanged, this, look);
    connect(m_view->verticalScrollBar(), &QScrollBar::rangeChanged, this, look);
    connect(&m_lookTimer, &QTimer::timeout, this, &RecordingsPage::LookAtVisibleRows);
}

void RecordingsPage::ConnectModel()
{
    const auto change = [this] {
        ShowState();
        m_lookTimer.start();
    };
    connect(&m_model, &QAbstractItemModel::rowsInserted, this, change);
    connect(&m_model, &QAbstractItemModel::rowsRemoved, this, change);
    connect(&m_model, &QAbstractItemModel::modelReset, this, change);
    connect(&m_model, &QAbstractItemModel::dataChanged, this, change);
    connect(&m_pictures, &RecordingPictures::Made, &m_model, &RecordingsModel::SetPicture);
}

void RecordingsPage::ConnectRepair()
{
    m_repair.setStandardOutputFile(QProcess::nullDevice());
    connect(&m_repair, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
            [this](int code, QProcess::ExitStatus status) {
                FinishRepair(status == QProcess::NormalExit && code == EXIT_SUCCESS);
            });
    connect(&m_repair, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            FinishRepair(false);
        }
    });
}

void RecordingsPage::Retranslate()
{
    m_view->setAccessibleName(tr("Recordings"));
    m_helpLabel->setText(tr("Nothing has been recorded yet. Start a recording with the button "
                            "below, or plan one on the page Schedule; it is listed here then."));
    m_openButton->setText(tr("&Open"));
    m_showButton->setText(tr("Show in &folder"));
    m_repairButton->setText(tr("&Repair"));
    m_repairButton->setToolTip(
        tr("Adds what a crash has kept from the end of the file, so that players can seek in it."));
    m_model.Retranslate();
    ShowState();
}

QString RecordingsPage::RemovalText(bool hasFile) const
{
    return hasFile ? tr("Move to &trash") : tr("Remove from &list");
}

std::optional<int> RecordingsPage::CurrentRow() const
{
    const QModelIndex current = m_view->currentIndex();
    return current.isValid() ? std::optional(current.row()) : std::nullopt;
}

RecordingsPage::Abilities RecordingsPage::AbilitiesOf(int row) const
{
    const RecordingEntry& entry = m_model.ItemAt(row).entry;
    const auto facts = m_model.FactsAt(row);
    Abilities abilities;
    abilities.hasFile = facts && facts->exists;
    abilities.isRemovable = entry.outcome != Outcome::Recording;
    abilities.isOpenable = abilities.hasFile;
    abilities.isShowable = !entry.file.isEmpty();
    abilities.isRepairable = abilities.hasFile && abilities.isRemovable && IsBroken(entry)
        && m_repair.state() == QProcess::NotRunning;
    return abilities;
}

void RecordingsPage::LookAtVisibleRows()
{
    if (!isVisible() || m_model.rowCount() == 0) {
        return;
    }
    const QRect seen = m_view->viewport()->rect();
    const int first = m_view->indexAt(seen.topLeft()).row();
    const QModelIndex end = m_view->indexAt(seen.bottomLeft());
    const int last = end.isValid() ? end.row() : m_model.rowCount() - 1;
    m_model.LookAt(first, last);
    QList<RecordingPictures::Source> sources;
    for (int row = std::max(first, 0); row <= last; ++row) {
        const RecordingEntry& entry = m_model.ItemAt(row).entry;
        const auto facts = m_model.FactsAt(row);
        const QModelIndex index = m_model.index(row);
        if (facts && facts->exists && entry.outcome != Outcome::Recording
            && index.data(RecordingsModel::PictureRole).value<QImage>().isNull()) {
            sources.append({entry.file, facts->changed});
        }
    }
    m_pictures.Want(sources);
}

void RecordingsPage::ShowState()
{
    const bool isEmpty = m_model.rowCount() == 0;
    m_helpLabel->setVisible(isEmpty);
    m_view->setVisible(!isEmpty);
    m_buttons->setVisible(!isEmpty);
    const auto row = CurrentRow();
    const Abilities abilities = row ? AbilitiesOf(*row) : Abilities();
    SetEnabled(*m_openButton, abilities.isOpenable, *m_view);
    SetEnabled(*m_showButton, abilities.isShowable, *m_view);
    SetEnabled(*m_repairButton, abilities.isRepairable, *m_view);
    SetEnabled(*m_removeButton, abilities.isRemovable, *m_view);
    m_removeButton->setText(RemovalText(!row || abilities.hasFile));
}

void RecordingsPage::ShowListProblem()
{
    QStringList problems{m_list->Notice(), m_list->SaveProblem()};
    problems.removeAll({});
    m_listProblemLabel->setText(problems.join(QLatin1Char('\n')));
    m_listProblemLabel->setVisible(!problems.isEmpty());
    if (!m_list->SaveProblem().isEmpty()) {
        Q_EMIT Announced(m_list->SaveProblem());
    }
}

void RecordingsPage::ShowMenu(const QPoint& place)
{
    const auto row = CurrentRow();
    if (!row || !m_view->indexAt(place).isValid()) {
        return;
    }
    const Abilities abilities = AbilitiesOf(*row);
    auto* menu = new QMenu(m_view);
    menu->setObjectName(QStringLiteral("recordingMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto add = [&](const QPushButton* button) {
        QAction* action = menu->addAction(button->text());
        action->setEnabled(button->isEnabled());
        connect(action, &QAction::triggered, button, &QPushButton::click);
    };
    add(m_openButton);
    add(m_showButton);
    if (abilities.isRepairable) {
        add(m_repairButton);
    }
    menu->addSeparator();
    add(m_removeButton);
    // Other than by the mouse, the place may be that of another row.
    const QRect item = m_view->visualRect(m_view->currentIndex());
    menu->popup(m_view->viewport()->mapToGlobal(item.contains(place) ? place : item.center()));
}

void RecordingsPage::OpenCurrent()
{
    const auto row = CurrentRow();
    if (!row) {
        return;
    }
    const QString file = m_model.ItemAt(*row).entry.file;
    // The desktop would be asked in vain, and not every desktop says so.
    const bool isOpened =
        QFileInfo(file).isFile() && QDesktopServices::openUrl(QUrl::fromLocalFile(file));
    ShowProblem(isOpened             ? QString()
                    : file.isEmpty() ? tr("There is no file of this recording.")
                                     : tr("Cannot open %1").arg(QDir::toNativeSeparators(file)));
}

void RecordingsPage::ShowCurrentInFolder()
{
    if (const auto row = CurrentRow()) {
        ShowInFolder(m_model.ItemAt(*row).entry.file, this);
    }
}

void RecordingsPage::RepairCurrent()
{
    const auto row = CurrentRow();
    if (!row || !AbilitiesOf(*row).isRepairable) {
        return;
    }
    const RecordingEntry& entry = m_model.ItemAt(*row).entry;
    m_repairedTitle = entry.title;
    ShowProblem({});
    Q_EMIT Announced(tr("Repairing: %1").arg(m_repairedTitle));
    m_repair.start(m_recorder, {QStringLiteral("--repair"), entry.file}, QIODevice::ReadOnly);
    ShowState();
}

void RecordingsPage::FinishRepair(bool isRepaired)
{
    if (isRepaired) {
        Q_EMIT Announced(tr("Repaired: %1").arg(m_repairedTitle));
    } else {
        const QString reason = LastLine(m_repair.readAllStandardError());
        ShowProblem(reason.isEmpty() ? tr("%1 could not be repaired").arg(m_repairedTitle)
                                     : reason);
    }
    m_model.ForgetFiles();
    m_lookTimer.start();
    ShowState();
}

void RecordingsPage::RemoveCurrent()
{
    const auto row = CurrentRow();
    if (!row || !AbilitiesOf(*row).isRemovable) {
        return;
    }
    // The list may change while the question is open, and the page may be destroyed.
    const RecordingsList::Item item = m_model.ItemAt(*row);
    const bool hasFile = AbilitiesOf(*row).hasFile;
    if (IsRemovalAccepted(item.entry.title, hasFile)) {
        Remove(item.id, hasFile ? item.entry.file : QString());
    }
}

/// False when the page was destroyed meanwhile.
bool RecordingsPage::IsRemovalAccepted(const QString& title, bool hasFile)
{
    const QPointer<RecordingsPage> self(this);
    const QString question = hasFile
        ? tr("The recording \"%1\" will be moved to the trash. Are you sure?").arg(title)
        : tr("\"%1\" will be removed from the list. Are you sure?").arg(title);
    const QPointer<Util::AlertBox> box(new Util::AlertBox(
        Util::AlertBox::Question, QString(), question, QMessageBox::Ok | QMessageBox::Cancel,
        window(), Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint));
    box->setObjectName(QStringLiteral("removeRecordingBox"));
    box->setTextFormat(Qt::PlainText);
    box->button(QMessageBox::Ok)->setText(hasFile ? tr("Move to trash") : tr("Remove"));
    const auto answer = box->Exec();
    delete box;
    return !self.isNull() && answer == QMessageBox::Ok;
}

void RecordingsPage::Remove(Id id, const QString& file)
{
    const int row = m_model.RowOf(id);
    if (row < 0) {
        return;
    }
    const QString title = m_model.ItemAt(row).entry.title;
    if (!file.isEmpty() && QFileInfo::exists(file) && !MoveToTrash(file)) {
        ShowProblem(tr("%1 could not be moved to the trash").arg(QDir::toNativeSeparators(file)));
        return;
    }
    m_list->Remove(id);
    Q_EMIT Announced(file.isEmpty() ? tr("Removed from the list: %1").arg(title)
                                    : tr("Moved to the trash: %1").arg(title));
}

void RecordingsPage::ShowProblem(const QString& problem)
{
    m_problemLabel->setText(problem);
    m_problemLabel->setVisible(!problem.isEmpty());
    if (!problem.isEmpty()) {
        Q_EMIT Announced(problem);
    }
}

void RecordingsPage::changeEvent(QEvent* event)
{
    if (m_removeButton != nullptr && event->type() == QEvent::LanguageChange) {
        Retranslate();
        ShowProblem({});
    }
    Page::changeEvent(event);
}

void RecordingsPage::showEvent(QShowEvent* event)
{
    // Others may have moved or deleted files meanwhile.
    m_model.ForgetFiles();
    m_lookTimer.start();
    Page::showEvent(event);
}

} // namespace Zentor::Desktop
