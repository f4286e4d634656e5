// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "SoundDeviceRow.h"

#include <cmath>

#include <QCheckBox>
#include <QHBoxLayout>
#include <QProgressBar>
#include <QStyleOptionButton>
#include <QStylePainter>

#include "Controls.h"

namespace Zentor::Desktop {
namespace {

/// What is quieter cannot be told from silence.
constexpr int QuietestDecibels = -60;
constexpr int LevelWidth = 120;

/// A check box that elides a text for which it has no room.
class ElidedCheckBox final : public QCheckBox {
public:
    explicit ElidedCheckBox(QWidget* parent)
        : QCheckBox(parent)
    {
        // By itself, a check box is never narrower than its text.
        setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    }

    QSize minimumSizeHint() const override
    {
        constexpr int letters = 8;
        return {fontMetrics().averageCharWidth() * letters, QCheckBox::minimumSizeHint().height()};
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QStylePainter painter(this);
        QStyleOptionButton option;
        initStyleOption(&option);
        const QRect room = style()->subElementRect(QStyle::SE_CheckBoxContents, &option, this);
        option.text = fontMetrics().elidedText(option.text, Qt::ElideMiddle, room.width(),
                                               Qt::TextShowMnemonic);
        painter.drawControl(QStyle::CE_CheckBox, option);
    }
};

} // namespace

SoundDeviceRow::SoundDeviceRow(const QString& name, QWidget* parent)
    : QWidget(parent)
    , m_name(name)
    , m_box(new ElidedCheckBox(this))
    , m_level(new QProgressBar(this))
{
    m_box->setObjectName(QStringLiteral("soundDeviceBox"));
    m_level->setObjectName(QStringLiteral("soundLevelBar"));
    m_level->setRange(QuietestDecibels, 0);
    m_level->setTextVisible(false);
    m_level->setFixedWidth(LevelWidth);
    ClearLevel();
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2 * ControlSpacing);
    row->addWidget(m_box, 1);
    row->addWidget(m_level);
}

void SoundDeviceRow::SetTitle(const QString& title, bool isPresent)
{
    QString text = isPresent ? title : tr("%1 (not connected)").arg(title);
    m_box->setText(text.replace(QLatin1Char('&'), QLatin1String("&&")));
    m_box->setToolTip(m_name.toHtmlEscaped());
    m_level->setAccessibleName(tr("Level of %1").arg(title));
}

void SoundDeviceRow::SetLevel(double decibels)
{
    m_level->setValue(qBound(QuietestDecibels, static_cast<int>(std::lround(decibels)), 0));
}

void SoundDeviceRow::ClearLevel()
{
    m_level->setValue(QuietestDecibels);
}

} // namespace Zentor::Desktop
