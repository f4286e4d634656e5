// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "SourceCard.h"

#include <limits>

#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QSignalBlocker>
#include <QSpinBox>

#include "AreaOutline.h"
#include "AreaPicker.h"
#include "Controls.h"
#include "HostInterfaces.h"
#include "RecordingSettings.h"
#include "ScreenPixels.h"
#include "SizeText.h"

namespace Zentor::Desktop {
namespace {

using Schedule::ChangeRecordingSettings;
using Schedule::RecordingSettings;
using Schedule::RecordingSettingsIn;

/// What belongs to the area stands below the text of its button.
constexpr int FieldIndent = 20;
constexpr int FarthestPixel = std::numeric_limits<qint16>::max();

QRect FirstScreen()
{
    return PixelsOf(*QGuiApplication::primaryScreen());
}

/// What is recorded as the selected area.
QRect AreaIn(const RecordingSettings& settings)
{
    return settings.area.isNull() ? FirstScreen() : settings.area;
}

} // namespace

SourceCard::SourceCard(std::shared_ptr<PX::SettingsStore> store, QWidget* parent)
    : QFrame(parent)
    , m_store(std::move(store))
{
    setObjectName(QStringLiteral("sourceCard"));
    BuildWidgets();
    Connect();
    ConnectArea();
    Retranslate();
}

SourceCard::~SourceCard() = default;

void SourceCard::BuildWidgets()
{
    // In the order of Tab.
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(ControlSpacing);
    column->addLayout(CreateScreenRow());
    m_areaButton = new QRadioButton(this);
    m_areaButton->setObjectName(QStringLiteral("recordAreaButton"));
    column->addWidget(m_areaButton, 0, Qt::AlignLeading);
    column->addLayout(CreateAreaFields());
    column->addLayout(CreateAreaButtons());
    m_noteLabel = CreateLabel(QStringLiteral("areaNoteLabel"), this);
    column->addWidget(m_noteLabel);
    m_problemLabel = CreateLabel(QStringLiteral("sourceProblemLabel"), this);
    column->addWidget(m_problemLabel);
}

QLayout* SourceCard::CreateScreenRow()
{
    m_screenButton = new QRadioButton(this);
    m_screenButton->setObjectName(QStringLiteral("recordScreenButton"));
    m_screenBox = CreateComboBox(QStringLiteral("recordedScreenBox"), {}, this);
    auto* row = new QHBoxLayout;
    row->setSpacing(2 * ControlSpacing);
    row->addWidget(m_screenButton);
    row->addStretch(1);
    row->addWidget(m_screenBox);
    return row;
}

QLayout* SourceCard::CreateAreaButtons()
{
    m_pickButton = CreateButton(QStringLiteral("pickAreaButton"), this);
    m_outlineButton = CreateButton(QStringLiteral("outlineAreaButton"), this);
    auto* row = new QHBoxLayout;
    row->setSpacing(ControlSpacing);
    row->addSpacing(FieldIndent);
    row->addWidget(m_pickButton);
    row->addWidget(m_outlineButton);
    row->addStretch(1);
    return row;
}

QSpinBox* SourceCard::CreateField(const QString& objectName, int lowest)
{
    auto* field = new QSpinBox(this);
    field->setObjectName(objectName);
    field->setRange(lowest, FarthestPixel);
    field->setSingleStep(2);
    // A number that is half typed is none that should be stored.
    field->setKeyboardTracking(false);
    new PX::UI::WheelEventsBlocker(field);
    return field;
}

QLayout* SourceCard::CreateAreaFields()
{
    m_xField = CreateField(QStringLiteral("areaXField"), -FarthestPixel);
    m_yField = CreateField(QStringLiteral("areaYField"), -FarthestPixel);
    m_widthField = CreateField(QStringLiteral("areaWidthField"), AreaPicker::Smallest);
    m_heightField = CreateField(QStringLiteral("areaHeightField"), AreaPicker::Smallest);
    auto* grid = new QGridLayout;
    grid->setSpacing(ControlSpacing);
    grid->setColumnMinimumWidth(0, FieldIndent);
    grid->setColumnStretch(5, 1);
    const auto add = [&](QLabel*& label, const char* name, QSpinBox* field, int place) {
        label = CreateLabel(QLatin1String(name), this);
        label->setWordWrap(false);
        label->setBuddy(field);
        const int row = place / 2;
        const int column = 1 + 2 * (place % 2);
        grid->addWidget(label, row, column);
        grid->addWidget(field, row, column + 1);
    };
    add(m_xLabel, "areaXLabel", m_xField, 0);
    add(m_yLabel, "areaYLabel", m_yField, 1);
    add(m_widthLabel, "areaWidthLabel", m_widthField, 2);
    add(m_heightLabel, "areaHeightLabel", m_heightField, 3);
    return grid;
}

void SourceCard::Connect()
{
    const auto store = [this](RecordingSettings::Source source) {
        ChangeRecordingSettings(*m_store, [&](auto& settings) { settings.source = source; });
    };
    connect(m_screenButton, &QRadioButton::clicked, this,
            [store] { store(RecordingSettings::Source::Screen); });
    connect(m_areaButton, &QRadioButton::clicked, this,
            [store] { store(RecordingSettings::Source::Area); });
    connect(m_screenBox, qOverload<int>(&QComboBox::activated), this, [this](int index) {
        ChangeRecordingSettings(*m_store, [&](auto& settings) {
            settings.screenIndex = m_screenBox->itemData(index).toInt();
            settings.source = RecordingSettings::Source::Screen;
        });
    });
    connect(m_store.get(), &PX::SettingsStore::Changed, this, &SourceCard::ShowStored);
    connect(qApp, &QGuiApplication::screenAdded, this, &SourceCard::ShowStored);
    // The screen is in the list until the signal has been sent.
    connect(qApp, &QGuiApplication::screenRemoved, this, &SourceCard::ShowStored,
            Qt::QueuedConnection);
    connect(qApp, &QGuiApplication::primaryScreenChanged, this, &SourceCard::ShowStored);
}

void SourceCard::ConnectArea()
{
    for (QSpinBox* field : {m_xField, m_yField, m_widthField, m_heightField}) {
        connect(field, qOverload<int>(&QSpinBox::valueChanged), this, &SourceCard::StoreFields);
    }
    connect(m_pickButton, &QPushButton::clicked, this, &SourceCard::PickArea);
    connect(m_outlineButton, &QPushButton::clicked, this,
            [this] { ShowAreaOutline(AreaIn(RecordingSettingsIn(*m_store)), this); });
}

void SourceCard::Retranslate()
{
    m_screenButton->setText(tr("Record a s&creen"));
    m_screenBox->setAccessibleName(tr("Screen that is recorded"));
    m_areaButton->setText(tr("Record the selected &area"));
    m_xLabel->setText(tr("&Left:"));
    m_yLabel->setText(tr("&Top:"));
    m_widthLabel->setText(tr("&Width:"));
    m_heightLabel->setText(tr("&Height:"));
    m_xField->setAccessibleName(tr("Left edge of the area in pixels"));
    m_yField->setAccessibleName(tr("Top edge of the area in pixels"));
    m_widthField->setAccessibleName(tr("Width of the area in pixels"));
    m_heightField->setAccessibleName(tr("Height of the area in pixels"));
    m_pickButton->setText(tr("Choose o&n the screen..."));
    m_outlineButton->setText(tr("Show &outline"));
    ShowStored();
}

void SourceCard::ShowStored()
{
    const RecordingSettings settings = RecordingSettingsIn(*m_store);
    const bool isArea = settings.source == RecordingSettings::Source::Area;
    (isArea ? m_areaButton : m_screenButton)->setChecked(true);
    FillScreens();
    ShowArea();
    ShowProblem();
}

void SourceCard::FillScreens()
{
    const int chosen = RecordingSettingsIn(*m_store).screenIndex;
    const auto screens = QGuiApplication::screens();
    QStringList texts;
    QStringList indices;
    for (int index = 0; index < screens.size(); ++index) {
        const QScreen& screen = *screens.at(index);
        const QString size = PixelsText(PixelsOf(screen).size());
        // Not every platform has names for its screens.
        texts << (screen.name().isEmpty()
                      ? tr("Screen %1, %2").arg(index + 1).arg(size)
                      : tr("%1: %2, %3").arg(index + 1).arg(Isolated(screen.name()), size));
        indices << QString::number(index);
    }
    if (chosen >= screens.size()) {
        texts << tr("Screen %1 (not connected)").arg(chosen + 1);
        indices << QString::number(chosen);
    }
    OfferValues(*m_screenBox, texts, indices, QString::number(chosen));
}

void SourceCard::ShowArea()
{
    const RecordingSettings settings = RecordingSettingsIn(*m_store);
    const QRect area = AreaIn(settings);
    const auto show = [](QSpinBox* field, int value) {
        const QSignalBlocker blocker(field);
        field->setValue(value);
    };
    show(m_xField, area.x());
    show(m_yField, area.y());
    show(m_widthField, area.width());
    show(m_heightField, area.height());
    m_noteLabel->setText(
        settings.area.isNull()
            ? tr("No area has been selected yet: all of screen 1 is recorded instead, also by "
                 "tasks with \"Selected area\".")
            : tr("Tasks with \"Selected area\" record this area, too."));
}

QString SourceCard::Problem() const
{
    const RecordingSettings settings = RecordingSettingsIn(*m_store);
    if (settings.source == RecordingSettings::Source::Screen) {
        return settings.screenIndex < QGuiApplication::screens().size()
            ? QString()
            : tr("The screen that is to be recorded is not connected.");
    }
    return IsOnAScreen(AreaIn(settings)) ? QString()
                                         : tr("The selected area is not on any screen.");
}

void SourceCard::ShowProblem()
{
    const QString problem = Problem();
    const bool isArea = m_areaButton->isChecked();
    const QString style = QStringLiteral("Invalid");
    const QString normal = QStringLiteral("Normal");
    for (QSpinBox* field : {m_xField, m_yField, m_widthField, m_heightField}) {
        Util::ApplyWidgetStyle(field, isArea && !problem.isEmpty() ? style : normal, "SubStyle");
        SetDescription(field, isArea ? problem : QString());
    }
    SetDescription(m_screenBox, isArea ? QString() : problem);
    m_problemLabel->setText(problem);
    m_problemLabel->setVisible(!problem.isEmpty());
}

void SourceCard::FocusInput()
{
    QWidget* input = m_screenBox;
    if (m_areaButton->isChecked()) {
        input = m_xField;
    }
    input->setFocus(Qt::OtherFocusReason);
}

void SourceCard::StoreFields()
{
    // Recordings are of even size.
    const auto even = [](int length) { return length - length % 2; };
    StoreArea({m_xField->value(), m_yField->value(), even(m_widthField->value()),
               even(m_heightField->value())});
}

void SourceCard::StoreArea(const QRect& area)
{
    ChangeRecordingSettings(*m_store, [&](auto& settings) { settings.area = area; });
}

void SourceCard::PickArea()
{
    if (!m_picker.isNull()) {
        return;
    }
    m_picker = new AreaPicker(RecordingSettingsIn(*m_store).area, this);
    const auto end = [this] {
        m_picker->deleteLater();
        m_picker.clear();
        window()->activateWindow();
    };
    connect(m_picker, &AreaPicker::Cancelled, this, end);
    connect(m_picker, &AreaPicker::Taken, this, [this, end](const QRect& area) {
        ChangeRecordingSettings(*m_store, [&](auto& settings) {
            settings.area = area;
            settings.source = RecordingSettings::Source::Area;
        });
        end();
    });
}

void SourceCard::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        Retranslate();
    }
    QFrame::changeEvent(event);
}

} // namespace Zentor::Desktop
