// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "PanelFormAssistant.h"

#include <cstdint>
#include <limits>

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTimeEdit>

#include "FreeStart.h"
#include "PXUserSettings/SettingsStore.h"

namespace Zentor::Desktop {
namespace {

using std::chrono::milliseconds;

/// The last second that a start can have.
QDateTime LastStart()
{
    return QDateTime::fromSecsSinceEpoch(std::numeric_limits<std::uint32_t>::max());
}

QLineEdit& TextOf(const QDateTimeEdit& editor)
{
    return *editor.findChild<QLineEdit*>();
}

void SelectSectionUnderCursor(QDateTimeEdit& editor)
{
    if (!TextOf(editor).hasSelectedText()) {
        editor.setSelectedSection(editor.currentSection());
    }
}

bool IsAllSelected(const QDateTimeEdit& editor)
{
    const QLineEdit& text = TextOf(editor);
    return text.hasSelectedText() && text.selectedText() == text.text();
}

/// Sets the reading that is on the clipboard. Returns whether there is one.
bool Paste(QDateTimeEdit& editor)
{
    const QString text = QGuiApplication::clipboard()->text().trimmed();
    const QString format = editor.displayFormat();
    if (qobject_cast<QTimeEdit*>(&editor) != nullptr) {
        for (const QString& candidate : {format, QStringLiteral("hh:mm:ss"),
                                         QStringLiteral("hh:mm"), QStringLiteral("hhmmss")}) {
            const QTime time = QTime::fromString(text, candidate);
            if (time.isValid()) {
                editor.setTime(time);
                return true;
            }
        }
        return false;
    }
    for (const QString& candidate : {format, QStringLiteral("yyyy-MM-dd")}) {
        const QDate date = QDate::fromString(text, candidate);
        if (date.isValid()) {
            editor.setDate(date);
            return true;
        }
    }
    return false;
}

} // namespace

PanelFormAssistant::PanelFormAssistant(QWidget* panel, std::shared_ptr<PX::SettingsStore> store)
    : QObject(panel)
    , m_store(std::move(store))
    , m_parts(*panel)
{
    for (QDateTimeEdit* editor : std::initializer_list<QDateTimeEdit*>{
             m_parts.dateField, m_parts.startField, m_parts.durationField,
             m_parts.limitedDurationField}) {
        editor->installEventFilter(this);
        TextOf(*editor).installEventFilter(this);
    }
    // The panel reacts to the click first: the form is open and filled by then.
    connect(m_parts.addButton, &QAbstractButton::clicked, this,
            &PanelFormAssistant::MoveToFreeStart);
    connect(m_parts.startField, &QDateTimeEdit::dateTimeChanged, this,
            &PanelFormAssistant::LimitStart);
    // While the form moves the start to another day, it lets no other moment in.
    connect(m_parts.dateField, &QDateTimeEdit::dateChanged, this, &PanelFormAssistant::LimitStart);
    m_parts.dateField->setMaximumDate(LastStart().date());
}

PanelFormAssistant::~PanelFormAssistant() = default;

void PanelFormAssistant::LimitStart()
{
    const QDateTime last = LastStart();
    if (m_parts.startField->dateTime() > last) {
        m_parts.startField->setTime(last.time());
    }
}

void PanelFormAssistant::MoveToFreeStart()
{
    using TimePoint = Time::IClock::time_point;
    const TimePoint start(milliseconds(m_parts.startField->dateTime().toMSecsSinceEpoch()));
    const milliseconds duration(m_parts.durationField->time().msecsSinceStartOfDay());
    const TimePoint free = FirstFreeStart(m_store->Settings().schedule, start, duration);
    if (free == start) {
        return;
    }
    const auto moment = QDateTime::fromMSecsSinceEpoch(
        std::chrono::duration_cast<milliseconds>(free.time_since_epoch()).count());
    m_parts.dateField->setDate(moment.date());
    // Not with its date: on a later day the editor would be held at the old minimum's clock
    // reading.
    m_parts.startField->setTime(moment.time());
}

bool PanelFormAssistant::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonRelease) {
        if (auto* editor = qobject_cast<QDateTimeEdit*>(watched->parent())) {
            SelectSectionUnderCursor(*editor);
        }
    }
    auto* editor = qobject_cast<QDateTimeEdit*>(watched);
    if (editor != nullptr && event->type() == QEvent::KeyPress) {
        const auto& key = *static_cast<QKeyEvent*>(event);
        if (key.matches(QKeySequence::Paste)) {
            return Paste(*editor);
        }
        const bool isDigit = key.text().size() == 1 && key.text().at(0).isDigit();
        if (isDigit && IsAllSelected(*editor)) {
            editor->setSelectedSection(editor->sectionAt(0));
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace Zentor::Desktop
