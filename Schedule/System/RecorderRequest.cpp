// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "System/RecorderRequest.h"

#include <QJsonArray>

#include "Protocol.h"

namespace Zentor::Schedule {
namespace {

QJsonObject SourceOf(const RecorderRequest& request)
{
    const bool isTest = request.source == RecorderRequest::Source::Test;
    const bool isFromPortal = IsFromPortal(request);
    QJsonObject source{{QStringLiteral("type"),
                        isTest             ? Capture::SourceType::Test
                            : isFromPortal ? Capture::SourceType::Portal
                                           : Capture::SourceType::X11}};
    if (!request.area.isNull()) {
        source.insert(QStringLiteral("x"), request.area.x());
        source.insert(QStringLiteral("y"), request.area.y());
        source.insert(QStringLiteral("w"), request.area.width());
        source.insert(QStringLiteral("h"), request.area.height());
    } else if (!isTest && !isFromPortal) {
        source.insert(QStringLiteral("screen"), request.screenIndex);
    }
    return source;
}

} // namespace

QJsonObject LineOf(const RecorderRequest& request)
{
    return {{QStringLiteral("cmd"), Capture::Command::Prepare},
            {QStringLiteral("file"), request.file},
            {QStringLiteral("source"), SourceOf(request)},
            {QStringLiteral("fps"), request.framesPerSecond},
            {QStringLiteral("quality"), NameOf(request.quality)},
            {QStringLiteral("pointer"), request.showPointer},
            {QStringLiteral("audio"), QJsonArray::fromStringList(request.soundDevices)},
            {QStringLiteral("mix"), request.mixSound},
            {QStringLiteral("reserve"), request.reserveBytes}};
}

bool IsFromPortal(const RecorderRequest& request)
{
    return request.source == RecorderRequest::Source::Portal
        || (request.source == RecorderRequest::Source::Desktop
            && !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"));
}

} // namespace Zentor::Schedule
