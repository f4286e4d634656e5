// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "RecorderArguments.h"

namespace Zentor::Schedule {
namespace {

QStringList SourceArguments(const RecordingSettings& settings)
{
    if (settings.source == RecordingSettings::Source::Screen) {
        return {QStringLiteral("--screen"), QString::number(settings.screenIndex)};
    }
    const QRect& area = settings.area;
    if (area.isNull()) {
        return {QStringLiteral("--screen"), QStringLiteral("0")};
    }
    // As one argument: an area to the left of the main screen starts with a minus.
    return {QStringLiteral("--area=%1,%2,%3,%4")
                .arg(area.x())
                .arg(area.y())
                .arg(area.width())
                .arg(area.height())};
}

} // namespace

QStringList RecorderArguments(const RecordingSettings& settings, const QString& file, int seconds)
{
    QStringList arguments{QStringLiteral("--file"),     file,
                          QStringLiteral("--fps"),      QString::number(settings.framesPerSecond),
                          QStringLiteral("--quality"),  NameOf(settings.quality),
                          QStringLiteral("--reserve"),  QString::number(settings.reserveBytes),
                          QStringLiteral("--duration"), QString::number(seconds)};
    arguments << SourceArguments(settings);
    for (const QString& device : settings.soundDevices) {
        arguments << QStringLiteral("--sound=") + device;
    }
    if (settings.mixSound) {
        arguments << QStringLiteral("--mix");
    }
    if (!settings.showPointer) {
        arguments << QStringLiteral("--no-pointer");
    }
    return arguments;
}

} // namespace Zentor::Schedule
