// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "PictureCard.h"

#include <algorithm>

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QScreen>

#include "Controls.h"
#include "DiskBudget.h"
#include "RecordingSettings.h"
#include "ScreenPixels.h"
#include "SizeText.h"

namespace Zentor::Desktop {
namespace {

using namespace std::chrono_literals;
using Schedule::ChangeRecordingSettings;
using Schedule::RecordingSettings;
using Schedule::RecordingSettingsIn;
using Quality = RecordingSettings::Quality;

const QStringList FrameRates{QStringLiteral("10"), QStringLiteral("15"), QStringLiteral("24"),
                             QStringLiteral("25"), QStringLiteral("30"), QStringLiteral("50"),
                             QStringLiteral("60")};

/// The size of what is recorded by hand, in pixels.
QSize RecordedSize(const RecordingSettings& settings)
{
    const auto screens = QGuiApplication::screens();
    if (settings.source == RecordingSettings::Source::Area && !settings.area.isNull()) {
        const QSize seen = settings.area.intersected(PixelsOfAllScreens()).size();
        return seen.isEmpty() ? settings.area.size() : seen;
    }
    const int index =
        settings.source == RecordingSettings::Source::Screen ? settings.screenIndex : 0;
    // A screen that is not connected may be as large as the first one.
    return PixelsOf(*screens.value(index, screens.constFirst())).size();
}

QString SizeOfHour(RecordingSettings settings, Quality quality)
{
    settings.quality = quality;
    const auto shape = Schedule::ShapeOf(settings, RecordedSize(settings));
    return RoundSizeText(Schedule::TypicalBytes({shape, 1h}));
}

} // namespace

PictureCard::PictureCard(std::shared_ptr<PX::SettingsStore> store, QWidget* parent)
    : QFrame(parent)
    , m_store(std::move(store))
{
    setObjectName(QStringLiteral("pictureCard"));
    BuildWidgets();
    Connect();
    Retranslate();
}

PictureCard::~PictureCard() = default;

void PictureCard::BuildWidgets()
{
    m_frameRateBox = CreateComboBox(QStringLiteral("frameRateBox"), {}, this);
    m_qualityBox =
        CreateComboBox(QStringLiteral("qualityBox"), {QString(), QString(), QString()}, this);
    m_containerBox = CreateComboBox(QStringLiteral("containerBox"),
                                    {QStringLiteral("mkv"), QStringLiteral("mp4")}, this);
    m_pointerBox = new QCheckBox(this);
    m_pointerBox->setObjectName(QStringLiteral("showPointerBox"));

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(ControlSpacing);
    m_frameRateLabel = AddRow(*grid, QStringLiteral("frameRateLabel"), m_frameRateBox);
    m_qualityLabel = AddRow(*grid, QStringLiteral("qualityLabel"), m_qualityBox);
    m_containerLabel = AddRow(*grid, QStringLiteral("containerLabel"), m_containerBox);
    grid->addWidget(m_pointerBox, grid->rowCount(), 0, 1, 2, Qt::AlignLeading);
    grid->setColumnStretch(0, 1);
}

QLabel* PictureCard::AddRow(QGridLayout& grid, const QString& labelName, QComboBox* box)
{
    QLabel* label = CreateLabel(labelName, this);
    label->setBuddy(box);
    const int row = grid.rowCount();
    grid.addWidget(label, row, 0);
    grid.addWidget(box, row, 1);
    return label;
}

void PictureCard::Connect()
{
    connect(m_frameRateBox, qOverload<int>(&QComboBox::activated), this, [this](int index) {
        const int rate = m_frameRateBox->itemData(index).toInt();
        ChangeRecordingSettings(*m_store, [&](auto& settings) { settings.framesPerSecond = rate; });
    });
    connect(m_qualityBox, qOverload<int>(&QComboBox::activated), this, [this](int index) {
        ChangeRecordingSettings(
            *m_store, [&](auto& settings) { settings.quality = static_cast<Quality>(index); });
    });
    connect(m_containerBox, qOverload<int>(&QComboBox::activated), this, [this](int index) {
        const QString container = m_containerBox->itemData(index).toString();
        ChangeRecordingSettings(*m_store, [&](auto& settings) { settings.container = container; });
    });
    connect(m_pointerBox, &QCheckBox::clicked, this, [this](bool isShown) {
        ChangeRecordingSettings(*m_store, [&](auto& settings) { settings.showPointer = isShown; });
    });
    connect(m_store.get(), &PX::SettingsStore::Changed, this, &PictureCard::ShowStored);
    connect(qApp, &QGuiApplication::screenAdded, this, &PictureCard::ShowQualities);
    // The screen is in the list until the signal has been sent.
    connect(qApp, &QGuiApplication::screenRemoved, this, &PictureCard::ShowQualities,
            Qt::QueuedConnection);
}

void PictureCard::Retranslate()
{
    m_frameRateLabel->setText(tr("&Frames per second:"));
    m_qualityLabel->setText(tr("&Quality:"));
    m_containerLabel->setText(tr("Fil&e format:"));
    m_containerBox->setItemText(0, tr("Matroska (.mkv)"));
    m_containerBox->setItemText(1, tr("MP4 (.mp4)"));
    WidenToTexts(*m_containerBox);
    m_pointerBox->setText(tr("Record the mouse &pointer"));
    ShowStored();
}

void PictureCard::ShowStored()
{
    const RecordingSettings settings = RecordingSettingsIn(*m_store);
    FillFrameRates();
    ShowQualities();
    m_qualityBox->setCurrentIndex(static_cast<int>(settings.quality));
    SelectValue(*m_containerBox, settings.container);
    m_pointerBox->setChecked(settings.showPointer);
}

void PictureCard::FillFrameRates()
{
    const QString stored = QString::number(RecordingSettingsIn(*m_store).framesPerSecond);
    QStringList rates = FrameRates;
    if (!rates.contains(stored)) {
        const auto isHigher = [&](const QString& rate) { return rate.toInt() > stored.toInt(); };
        rates.insert(std::find_if(rates.begin(), rates.end(), isHigher), stored);
    }
    OfferValues(*m_frameRateBox, rates, rates, stored);
}

void PictureCard::ShowQualities()
{
    const RecordingSettings settings = RecordingSettingsIn(*m_store);
    const std::pair<Quality, QString> texts[] = {{Quality::Small, tr("Small: about %1 an hour")},
                                                 {Quality::Normal, tr("Normal: about %1 an hour")},
                                                 {Quality::High, tr("High: about %1 an hour")}};
    for (const auto& [quality, text] : texts) {
        m_qualityBox->setItemText(static_cast<int>(quality),
                                  text.arg(SizeOfHour(settings, quality)));
    }
    WidenToTexts(*m_qualityBox);
}

void PictureCard::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        Retranslate();
    }
    QFrame::changeEvent(event);
}

} // namespace Zentor::Desktop
