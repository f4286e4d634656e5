// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "GeneralPage.h"

#include <algorithm>

#include <QCheckBox>
#include <QComboBox>
#include <QDesktopServices>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QShowEvent>
#include <QUrl>

#include "Appearance.h"
#include "Application/SettingsManager.h"
#include "ApplicationSettings.h"
#include "AutostartEntry.h"
#include "BackgroundSettings.h"
#include "Controls.h"
#include "Languages.h"
#include "Log.h"
#include "Theme.h"

namespace Zentor::Desktop {
namespace {

/// The line below a choice that an option of the command line stands in for.
QLabel* CreateOfRunLabel(const QString& objectName, QWidget* parent)
{
    QLabel* label = CreateLabel(objectName, parent);
    label->hide();
    return label;
}

} // namespace

GeneralPage::GeneralPage(std::shared_ptr<PX::SettingsStore> store, QWidget* parent)
    : Page(PageId(), parent)
    , m_store(std::move(store))
{
    setObjectName(QStringLiteral("generalPage"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(CreateLookCard());
    column->addWidget(CreateBackgroundCard());
    column->addWidget(CreateQuestionsCard());
    column->addWidget(CreateSupportCard());
    Connect();
    ConnectBackground();
    Retranslate();
    StyleComboBoxLists(*this);
    ShowStored();
}

GeneralPage::~GeneralPage() = default;

QString GeneralPage::PageId()
{
    return QStringLiteral("general");
}

QString GeneralPage::Title() const
{
    return tr("General");
}

QString GeneralPage::Description() const
{
    return tr("Choose language and theme.");
}

QFrame* GeneralPage::CreateLookCard()
{
    QFrame* card = CreateCard(QStringLiteral("lookCard"), this);
    m_languageLabel = CreateLabel(QStringLiteral("languageLabel"), card);
    m_languageBox = CreateComboBox(QStringLiteral("languageBox"),
                                   QStringList{QString()} + LanguageCodes(), card);
    m_languageLabel->setBuddy(m_languageBox);
    m_languageOfRunLabel = CreateOfRunLabel(QStringLiteral("languageOfRunLabel"), card);
    m_themeLabel = CreateLabel(QStringLiteral("themeLabel"), card);
    m_themeBox =
        CreateComboBox(QStringLiteral("themeBox"), QStringList{QString()} + ThemeNames(), card);
    m_themeLabel->setBuddy(m_themeBox);
    m_themeOfRunLabel = CreateOfRunLabel(QStringLiteral("themeOfRunLabel"), card);

    auto* grid = new QGridLayout(card);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(ControlSpacing);
    grid->addWidget(m_languageLabel, 0, 0);
    grid->addWidget(m_languageBox, 0, 1);
    grid->addWidget(m_languageOfRunLabel, 1, 0, 1, 2);
    grid->addWidget(m_themeLabel, 2, 0);
    grid->addWidget(m_themeBox, 2, 1);
    grid->addWidget(m_themeOfRunLabel, 3, 0, 1, 2);
    grid->setColumnStretch(0, 1);
    return card;
}

QFrame* GeneralPage::CreateBackgroundCard()
{
    QFrame* card = CreateCard(QStringLiteral("backgroundCard"), this);
    m_autostartBox = new QCheckBox(card);
    m_autostartBox->setObjectName(QStringLiteral("autostartBox"));
    m_autostartProblemLabel = CreateLabel(QStringLiteral("autostartProblemLabel"), card);
    m_keepRunningBox = new QCheckBox(card);
    m_keepRunningBox->setObjectName(QStringLiteral("keepRunningBox"));
    m_keepRunningLabel = CreateLabel(QStringLiteral("keepRunningLabel"), card);

    auto* column = new QVBoxLayout(card);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(ControlSpacing);
    column->addWidget(m_autostartBox);
    column->addWidget(m_autostartProblemLabel);
    column->addWidget(m_keepRunningBox);
    column->addWidget(m_keepRunningLabel);
    return card;
}

QFrame* GeneralPage::CreateQuestionsCard()
{
    QFrame* card = CreateCard(QStringLiteral("questionsCard"), this);
    m_questionsLabel = CreateLabel(QStringLiteral("questionsLabel"), card);
    m_askAgainButton = CreateButton(QStringLiteral("askAgainButton"), card);

    auto* row = new QHBoxLayout(card);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2 * ControlSpacing);
    row->addWidget(m_questionsLabel, 1);
    row->addWidget(m_askAgainButton);
    return card;
}

QFrame* GeneralPage::CreateSupportCard()
{
    QFrame* card = CreateCard(QStringLiteral("supportCard"), this);
    m_supportLabel = CreateLabel(QStringLiteral("supportLabel"), card);
    m_openFolderButton = CreateButton(QStringLiteral("openFolderButton"), card);
    m_openLogButton = CreateButton(QStringLiteral("openLogButton"), card);
    m_problemLabel = CreateLabel(QStringLiteral("openProblemLabel"), card);
    m_problemLabel->hide();

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(ControlSpacing);
    buttons->addWidget(m_openFolderButton);
    buttons->addWidget(m_openLogButton);
    buttons->addStretch(1);
    auto* column = new QVBoxLayout(card);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(ControlSpacing);
    column->addWidget(m_supportLabel);
    column->addLayout(buttons);
    column->addWidget(m_problemLabel);
    return card;
}

void GeneralPage::Connect()
{
    connect(m_languageBox, qOverload<int>(&QComboBox::activated), this, [this](int index) {
        const QString code = m_languageBox->itemData(index).toString();
        ChangeApplicationSettings(*m_store, [&](auto& settings) { settings.language = code; });
        if (m_appearance != nullptr) {
            m_appearance->UseStoredLanguage();
        }
        ShowLookOfRun();
    });
    connect(m_themeBox, qOverload<int>(&QComboBox::activated), this, [this](int index) {
        const QString name = m_themeBox->itemData(index).toString();
        ChangeApplicationSettings(*m_store, [&](auto& settings) { settings.theme = name; });
        if (m_appearance != nullptr) {
            m_appearance->UseStoredTheme();
        }
        ShowLookOfRun();
    });
    connect(m_askAgainButton, &QPushButton::clicked, this, &GeneralPage::ForgetAnswers);
    connect(m_openFolderButton, &QPushButton::clicked, this,
            [this] { Open(QFileInfo(m_store->FilePath()).path()); });
    connect(m_openLogButton, &QPushButton::clicked, this, &GeneralPage::OpenLog);
    connect(m_store.get(), &PX::SettingsStore::Changed, this, &GeneralPage::ShowStored);
}

void GeneralPage::ConnectBackground()
{
    // Not toggled(), which tells of what is stored, too.
    connect(m_autostartBox, &QCheckBox::clicked, this, [this](bool isWanted) {
        ShowAutostart(AutostartEntry::OfThisProgram(m_store->FilePath()).Set(isWanted));
    });
    connect(m_keepRunningBox, &QCheckBox::clicked, this, [this](bool isWanted) {
        ChangeBackgroundSettings(*m_store,
                                 [&](auto& settings) { settings.keepRunning = isWanted; });
    });
}

void GeneralPage::RetranslateBackground()
{
    m_autostartBox->setText(tr("Start &with the desktop"));
    m_keepRunningBox->setText(tr("&Keep running when the window is closed"));
    m_keepRunningLabel->setText(
        tr("While tasks are pending or a recording runs, the program stays in the tray. Where "
           "there is none, its window is minimized."));
    m_keepRunningBox->setAccessibleDescription(m_keepRunningLabel->text());
}

void GeneralPage::Retranslate()
{
    RetranslateBackground();
    m_languageLabel->setText(tr("&Language:"));
    const QString ofSystem = LanguageFor({});
    m_languageBox->setItemText(0, tr("System default (%1)").arg(LanguageName(ofSystem)));
    for (int index = 1; index < m_languageBox->count(); ++index) {
        m_languageBox->setItemText(index, LanguageName(m_languageBox->itemData(index).toString()));
    }
    WidenToTexts(*m_languageBox);
    m_themeLabel->setText(tr("&Theme:"));
    m_themeBox->setItemText(0, tr("System default"));
    m_themeBox->setItemText(1, tr("Light"));
    m_themeBox->setItemText(2, tr("Dark"));
    WidenToTexts(*m_themeBox);
    m_askAgainButton->setText(tr("&Ask all questions again"));
    m_supportLabel->setText(
        tr("When something goes wrong, your settings and the log of this run help "
           "to find out why."));
    m_openFolderButton->setText(tr("Open settings &folder"));
    m_openLogButton->setText(tr("&Open log"));
}

void GeneralPage::ShowStored()
{
    const ApplicationSettings settings = ApplicationSettingsIn(*m_store);
    SelectValue(*m_languageBox, OfferedLanguage(settings.language));
    SelectValue(*m_themeBox, settings.theme);
    ShowLookOfRun();
    m_keepRunningBox->setChecked(BackgroundSettingsIn(*m_store).keepRunning);
    const auto& answers = m_store->Settings().confirmations;
    const bool isSomeForgone = std::find(answers.begin(), answers.end(), true) != answers.end();
    m_askAgainButton->setEnabled(isSomeForgone);
    m_questionsLabel->setText(
        isSomeForgone ? tr("Some questions are no longer asked.")
                      : tr("Every question is asked, for example before a task is deleted."));
}

void GeneralPage::Follow(Appearance& appearance)
{
    m_appearance = &appearance;
    ShowLookOfRun();
}

void GeneralPage::ShowLookOfRun()
{
    const Look look = m_appearance == nullptr ? Look() : m_appearance->LookOfRun();
    const auto show = [](QLabel& label, const QComboBox& box, const QString& value) {
        label.setText(
            tr("In this run: %1 (chosen at the start)").arg(box.itemText(box.findData(value))));
        label.setVisible(!value.isEmpty());
    };
    show(*m_languageOfRunLabel, *m_languageBox, look.language);
    show(*m_themeOfRunLabel, *m_themeBox, look.theme);
}

void GeneralPage::ShowLog()
{
    const QString log = LogFile();
    m_openLogButton->setEnabled(!log.isEmpty());
    m_openLogButton->setToolTip(
        (log.isEmpty() ? tr("There is no log of this run.") : QDir::toNativeSeparators(log))
            .toHtmlEscaped());
    m_openFolderButton->setToolTip(
        QDir::toNativeSeparators(QFileInfo(m_store->FilePath()).path()).toHtmlEscaped());
}

void GeneralPage::ShowAutostart(const QString& problem)
{
    m_autostartBox->setChecked(AutostartEntry::IsSet());
    m_autostartBox->setAccessibleDescription(problem);
    m_autostartProblemLabel->setText(problem);
    m_autostartProblemLabel->setVisible(!problem.isEmpty());
    if (!problem.isEmpty()) {
        Q_EMIT Announced(problem);
    }
}

void GeneralPage::ForgetAnswers()
{
    App::SettingsManager(m_store).ForgetAll();
    Q_EMIT Announced(tr("All questions will be asked again"));
}

void GeneralPage::OpenLog()
{
    const QString log = LogFile();
    if (log.isEmpty()) {
        ShowProblem(tr("There is no log of this run."));
    } else {
        Open(log);
    }
}

void GeneralPage::Open(const QString& path)
{
    // The desktop would be asked in vain, and not every desktop says so.
    const bool isOpened =
        QFileInfo::exists(path) && QDesktopServices::openUrl(QUrl::fromLocalFile(path));
    ShowProblem(isOpened ? QString() : tr("Cannot open %1").arg(QDir::toNativeSeparators(path)));
}

void GeneralPage::ShowProblem(const QString& problem)
{
    m_problemLabel->setText(problem);
    m_problemLabel->setVisible(!problem.isEmpty());
    if (!problem.isEmpty()) {
        Q_EMIT Announced(problem);
    }
}

void GeneralPage::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        Retranslate();
        ShowStored();
        ShowLog();
        ShowProblem({});
        ShowAutostart({});
    }
    Page::changeEvent(event);
}

void GeneralPage::showEvent(QShowEvent* event)
{
    ShowLog();
    if (!event->spontaneous()) {
        ShowProblem({});
        // The desktop's own settings may have changed it.
        ShowAutostart({});
    }
    Page::showEvent(event);
}

} // namespace Zentor::Desktop
