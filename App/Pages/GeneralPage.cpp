#include "GeneralPage.h"

#include <algorithm>

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

#include "Application/SettingsManager.h"
#include "Languages.h"
#include "Log.h"
#include "Page.h"
#include "PXUserSettings/SettingsStore.h"
#include "Theme.h"

namespace Zentor::Desktop {
namespace {

constexpr int spacing = 8;

QFrame* CreateCard(const QString& objectName, QWidget* parent)
{
    auto* card = new QFrame(parent);
    card->setObjectName(objectName);
    return card;
}

QPushButton* CreateButton(const QString& objectName, QWidget* parent)
{
    auto* button = new QPushButton(parent);
    button->setObjectName(objectName);
    // Lets Enter press it when it has the focus.
    button->setAutoDefault(true);
    return button;
}

/// A box with one entry for each of \a values, whose texts are set later.
QComboBox* CreateBox(const QString& objectName, const QStringList& values, QWidget* parent)
{
    auto* box = new QComboBox(parent);
    box->setObjectName(objectName);
    box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    for (const QString& value : values) {
        box->addItem(QString(), value);
    }
    box->setMaxVisibleItems(box->count());
    // Whoever scrolls the page does not mean to change what lies under the mouse by chance.
    new PX::UI::WheelEventsBlocker(box);
    return box;
}

/// Makes \a box as wide as its longest text. By itself it goes by the ink of the letters, which is
/// less than what they take.
void MakeRoom(QComboBox& box)
{
    const QFontMetrics metrics = box.fontMetrics();
    int widest = 0;
    for (int index = 0; index < box.count(); ++index) {
        widest = std::max(widest, metrics.horizontalAdvance(box.itemText(index)));
    }
    box.setMinimumContentsLength(1 + widest / metrics.horizontalAdvance(QLatin1Char('X')));
}

/// Selects \a value or, where it is none of the box's, the first entry, which stands for no choice.
void Select(QComboBox& box, const QString& value)
{
    box.setCurrentIndex(std::max(0, box.findData(value)));
}

} // namespace

GeneralPage::GeneralPage(std::shared_ptr<PX::SettingsStore> store, QWidget* parent)
    : QWidget(parent)
    , m_store(std::move(store))
{
    setObjectName(QStringLiteral("generalPage"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(CreateLookCard());
    column->addWidget(CreateQuestionsCard());
    column->addWidget(CreateSupportCard());
    Connect();
    Retranslate();
    ShowStored();
}

GeneralPage::~GeneralPage() = default;

QFrame* GeneralPage::CreateLookCard()
{
    QFrame* card = CreateCard(QStringLiteral("lookCard"), this);
    m_languageLabel = CreateLabel(QStringLiteral("languageLabel"), card);
    m_languageBox =
        CreateBox(QStringLiteral("languageBox"), QStringList{QString()} + LanguageCodes(), card);
    m_languageLabel->setBuddy(m_languageBox);
    m_themeLabel = CreateLabel(QStringLiteral("themeLabel"), card);
    m_themeBox = CreateBox(QStringLiteral("themeBox"),
                           {QString(), ThemeName(Theme::Light), ThemeName(Theme::Dark)}, card);
    m_themeLabel->setBuddy(m_themeBox);

    auto* grid = new QGridLayout(card);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(spacing);
    grid->addWidget(m_languageLabel, 0, 0);
    grid->addWidget(m_languageBox, 0, 1);
    grid->addWidget(m_themeLabel, 1, 0);
    grid->addWidget(m_themeBox, 1, 1);
    grid->setColumnStretch(0, 1);
    return card;
}

QFrame* GeneralPage::CreateQuestionsCard()
{
    QFrame* card = CreateCard(QStringLiteral("questionsCard"), this);
    m_questionsLabel = CreateLabel(QStringLiteral("questionsLabel"), card);
    m_askAgainButton = CreateButton(QStringLiteral("askAgainButton"), card);

    auto* row = new QHBoxLayout(card);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2 * spacing);
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
    buttons->setSpacing(spacing);
    buttons->addWidget(m_openFolderButton);
    buttons->addWidget(m_openLogButton);
    buttons->addStretch(1);
    auto* column = new QVBoxLayout(card);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(spacing);
    column->addWidget(m_supportLabel);
    column->addLayout(buttons);
    column->addWidget(m_problemLabel);
    return card;
}

void GeneralPage::Connect()
{
    connect(m_languageBox, qOverload<int>(&QComboBox::activated), this, [this](int index) {
        const QString code = m_languageBox->itemData(index).toString();
        m_store->Change([&](PX::UserSettings& settings) { settings.language = code; });
    });
    connect(m_themeBox, qOverload<int>(&QComboBox::activated), this, [this](int index) {
        const QString name = m_themeBox->itemData(index).toString();
        m_store->Change([&](PX::UserSettings& settings) { settings.theme = name; });
    });
    connect(m_askAgainButton, &QPushButton::clicked, this, &GeneralPage::ForgetAnswers);
    connect(m_openFolderButton, &QPushButton::clicked, this,
            [this] { Open(QFileInfo(m_store->FilePath()).path()); });
    connect(m_openLogButton, &QPushButton::clicked, this, &GeneralPage::OpenLog);
    connect(m_store.get(), &PX::SettingsStore::Changed, this, &GeneralPage::ShowStored);
}

void GeneralPage::Retranslate()
{
    m_languageLabel->setText(tr("&Language:"));
    const QString ofSystem = LanguageFor({});
    m_languageBox->setItemText(0, tr("System default (%1)").arg(LanguageName(ofSystem)));
    for (int index = 1; index < m_languageBox->count(); ++index) {
        m_languageBox->setItemText(index, LanguageName(m_languageBox->itemData(index).toString()));
    }
    MakeRoom(*m_languageBox);
    m_themeLabel->setText(tr("&Theme:"));
    m_themeBox->setItemText(0, tr("System default"));
    m_themeBox->setItemText(1, tr("Light"));
    m_themeBox->setItemText(2, tr("Dark"));
    MakeRoom(*m_themeBox);
    m_askAgainButton->setText(tr("&Ask all questions again"));
    m_supportLabel->setText(
        tr("When something goes wrong, your settings and the log of this run help "
           "to find out why."));
    m_openFolderButton->setText(tr("Open settings &folder"));
    m_openLogButton->setText(tr("&Open log"));
}

void GeneralPage::ShowStored()
{
    const PX::UserSettings& settings = m_store->Settings();
    Select(*m_languageBox, settings.language);
    Select(*m_themeBox, settings.theme);
    const auto& answers = settings.confirmations;
    const bool isSomeForgone = std::find(answers.begin(), answers.end(), true) != answers.end();
    m_askAgainButton->setEnabled(isSomeForgone);
    m_questionsLabel->setText(
        isSomeForgone ? tr("Some questions are no longer asked.")
                      : tr("Every question is asked, for example before a task is deleted."));
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

void GeneralPage::ForgetAnswers()
{
    App::SettingsManager(m_store).ForgetAll();
    Q_EMIT Happened(tr("All questions will be asked again"));
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
        Q_EMIT Happened(problem);
    }
}

void GeneralPage::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        Retranslate();
        ShowStored();
        ShowLog();
        ShowProblem({});
    }
    QWidget::changeEvent(event);
}

void GeneralPage::showEvent(QShowEvent* event)
{
    ShowLog();
    if (!event->spontaneous()) {
        ShowProblem({});
    }
    QWidget::showEvent(event);
}

} // namespace Zentor::Desktop
