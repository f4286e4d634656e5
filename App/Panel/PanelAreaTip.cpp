// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "PanelAreaTip.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPushButton>
#include <QScreen>

#include "RecordingSettings.h"
#include "ScreenPixels.h"

namespace Zentor::Desktop {

PanelAreaTip::PanelAreaTip(QWidget* panel, std::shared_ptr<PX::SettingsStore> store)
    : QObject(panel)
    , m_store(std::move(store))
    , m_parts(*panel)
{
    // The panel sets a tip of its own when the language changes.
    m_parts.selectedAreaInfoButton->installEventFilter(this);
    connect(m_store.get(), &PX::SettingsStore::Changed, this, &PanelAreaTip::Update);
    connect(qApp, &QGuiApplication::primaryScreenChanged, this, &PanelAreaTip::Update);
    Update();
}

PanelAreaTip::~PanelAreaTip() = default;

QString PanelAreaTip::Text() const
{
    const QRect area = Schedule::RecordingSettingsIn(*m_store).area;
    if (area.isNull()) {
        const QScreen* screen = QGuiApplication::primaryScreen();
        const QSize size = screen == nullptr ? QSize() : PixelsOf(*screen).size();
        return tr("No area has been selected yet: all of screen 1 (%1) is recorded. You can select "
                  "an area on the page \"Recording\".")
            .arg(PixelsText(size));
    }
    return tr("Records %1, the area that is selected on the page \"Recording\".")
        .arg(PixelsText(area));
}

void PanelAreaTip::Update()
{
    const QString text = Text();
    if (m_parts.selectedAreaInfoButton->toolTip() != text) {
        m_parts.selectedAreaInfoButton->setToolTip(text);
    }
    m_parts.selectedAreaInfoButton->setAccessibleName(text);
}

bool PanelAreaTip::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ToolTipChange) {
        Update();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace Zentor::Desktop
