// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

// What the panel asks for that is no widget of its own.
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QRegularExpressionValidator>
#include <QStorageInfo>
#include <QStyle>
#include <QVariant>

#include "HostInterfaces.h"

namespace Zentor {

namespace PX::UI {

void ClearAndFillPowerActionsComboBox(QComboBox* comboBox)
{
    comboBox->clear();
    // In the order of PowerAction: the index of an entry is its value.
    for (const char* name :
         {QT_TRANSLATE_NOOP("PowerAction", "Do nothing"),
          QT_TRANSLATE_NOOP("PowerAction", "Quit the application"),
          QT_TRANSLATE_NOOP("PowerAction", "Sleep"), QT_TRANSLATE_NOOP("PowerAction", "Hibernate"),
          QT_TRANSLATE_NOOP("PowerAction", "Restart"),
          QT_TRANSLATE_NOOP("PowerAction", "Shut down")}) {
        comboBox->addItem(QCoreApplication::translate("PowerAction", name));
    }
}

WheelEventsBlocker::WheelEventsBlocker(QWidget* watched)
    : QObject(watched)
{
    watched->installEventFilter(this);
}

bool WheelEventsBlocker::eventFilter(QObject* watched, QEvent* event)
{
    return event->type() == QEvent::Wheel || QObject::eventFilter(watched, event);
}

} // namespace PX::UI

namespace Util {

std::int64_t GetAvailableDiskSpace(const ioPath& path)
{
    // The folder may not be there yet: its nearest parent is on the same volume. A host with
    // network drives asks on another thread, with a timeout: this call may take as long as the
    // server does.
    QFileInfo folder(QDir::cleanPath(QString::fromStdString(path.ToUtf8())));
    while (!folder.exists() && !folder.isRoot() && folder.absolutePath() != folder.filePath()) {
        folder.setFile(folder.absolutePath());
    }
    const QStorageInfo volume(folder.absoluteFilePath());
    return volume.isValid() ? volume.bytesAvailable() : -1;
}

QValidator* GetFilenameValidator(QObject* parent)
{
    // Characters that at least one of the common file systems refuses within a name.
    static const QRegularExpression usable(QStringLiteral("[^\\\\/:*?\"<>|\\p{Cc}]*"));
    return new QRegularExpressionValidator(usable, parent);
}

void ApplyWidgetStyle(QWidget* widget, const QString& style, const char* property)
{
    // Called often, with the style that the widget has already.
    const QVariant current = widget->property(property);
    if (current.isValid() && current.toString() == style) {
        return;
    }
    widget->setProperty(property, style);
    // Qt applies a sheet to a widget once; a rule for the property's new value needs it again.
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
    // Frames take padding and border of the sheet on this event.
    QEvent change(QEvent::StyleChange);
    QApplication::sendEvent(widget, &change);
    widget->update();
}

} // namespace Util

} // namespace Zentor
