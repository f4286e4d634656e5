// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

// The least that a host has to implement: every declaration of HostInterfaces.h, in its plainest
// form.
#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QRegularExpressionValidator>
#include <QStyle>

#include "HostInterfaces.h"

namespace Zentor {

ioPath& ioPath::operator=(const std::string& utf8Path)
{
    m_utf8Path = utf8Path;
    return *this;
}

std::string ioPath::ToUtf8() const
{
    return m_utf8Path;
}

ZFrame::ZFrame(QWidget* parent, Qt::WindowFlags flags)
    : QFrame(parent, flags)
{
}

ZLabel::ZLabel(QWidget* parent, Qt::WindowFlags flags)
    : QLabel(parent, flags)
{
}

void ZLabel::setOriginalText(const QString& text)
{
    setText(text);
}

QString ZLabel::originalText() const
{
    return text();
}

namespace Time {

IClock::time_point SystemClock::Now() const
{
    return time_point(
        std::chrono::duration_cast<duration>(std::chrono::system_clock::now().time_since_epoch()));
}

IClock::time_point SystemClock::FromTimeT(std::int64_t seconds) const
{
    return time_point(std::chrono::seconds(seconds));
}

} // namespace Time

namespace PX {

struct SchedulerHelper::Private {
    std::vector<RecordTime> records;
};

SchedulerHelper::SchedulerHelper()
    : d(std::make_unique<Private>())
{
}

SchedulerHelper::~SchedulerHelper() = default;

int SchedulerHelper::AddRecord(const RecordTime& record)
{
    d->records.push_back(record);
    return static_cast<int>(d->records.size()) - 1;
}

void SchedulerHelper::RemoveRecord(const QString& title)
{
    for (auto record = d->records.begin(); record != d->records.end(); ++record) {
        if (record->title == title) {
            d->records.erase(record);
            return;
        }
    }
}

void SchedulerHelper::ClearSchedule()
{
    d->records.clear();
}

bool SchedulerHelper::DoesTitleAlreadyExists(const QString& /*title*/) const
{
    return false;
}

bool SchedulerHelper::DoesCaptureTimeIntersected(const RecordTime& /*record*/) const
{
    return false;
}

std::vector<RecordTime> SchedulerHelper::GetPreparedSchedule() const
{
    return d->records;
}

std::uint64_t SchedulerHelper::GetRecordCount() const
{
    return d->records.size();
}

namespace UI {

void ClearAndFillPowerActionsComboBox(QComboBox* comboBox)
{
    comboBox->clear();
    comboBox->addItems({QStringLiteral("Do nothing"), QStringLiteral("Shut down")});
}

WheelEventsBlocker::WheelEventsBlocker(QWidget* watched)
    : QObject(watched)
{
    watched->installEventFilter(this);
}

bool WheelEventsBlocker::eventFilter(QObject* /*watched*/, QEvent* event)
{
    return event->type() == QEvent::Wheel;
}

} // namespace UI

} // namespace PX

namespace Util {

AlertBox::AlertBox(Level /*level*/, const QString& title, const QString& text,
                   QMessageBox::StandardButtons buttons, QWidget* parent, Qt::WindowFlags flags)
    : QMessageBox(QMessageBox::NoIcon, title, text, buttons, parent, flags)
{
}

QMessageBox::StandardButton AlertBox::Exec()
{
    // Nothing of the box is touched after this: it may have been deleted. The result is 0 then, as
    // when it was rejected by no button.
    const auto answer = static_cast<StandardButton>(exec());
    return answer == NoButton ? Cancel : answer;
}

std::int64_t GetAvailableDiskSpace(const ioPath& /*path*/)
{
    return -1;
}

QValidator* GetFilenameValidator(QObject* parent)
{
    return new QRegularExpressionValidator(parent);
}

void ApplyWidgetStyle(QWidget* widget, const QString& style, const char* property)
{
    widget->setProperty(property, style);
    // A style sheet is not applied anew because of a property.
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
}

void bindWidgets(QWidget* /*label*/, QAbstractButton* /*button*/) { }

QFrame* createSpacer(QWidget* parent, const QString& objectName)
{
    auto* spacer = new QFrame(parent);
    spacer->setObjectName(objectName);
    return spacer;
}

} // namespace Util

namespace App {

ConfirmationAlertBox::ConfirmationAlertBox(std::shared_ptr<ISettingsManager> settingsManager,
                                           Level level, const QString& title, const QString& text,
                                           QMessageBox::StandardButtons buttons, QWidget* parent,
                                           Qt::WindowFlags flags)
    : AlertBox(level, title, text, buttons, parent, flags)
    , m_settingsManager(std::move(settingsManager))
{
}

void ConfirmationAlertBox::SetConfirmationId(const QString& confirmationId)
{
    m_confirmationId = confirmationId;
}

void ConfirmationAlertBox::SetConfirmationText(const QString& text)
{
    setCheckBox(new QCheckBox(text, this));
}

QMessageBox::StandardButton ConfirmationAlertBox::Exec()
{
    return AlertBox::Exec();
}

} // namespace App

} // namespace Zentor
