// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "RecordingRequest.h"

namespace Zentor::Capture {

bool HasKnownEnding(const QString& file)
{
    return file.endsWith(QLatin1String(".mkv"), Qt::CaseInsensitive)
        || file.endsWith(QLatin1String(".mp4"), Qt::CaseInsensitive);
}

RecordingRequest::Source UsualSource()
{
    return qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ? RecordingRequest::Source::X11
                                                          : RecordingRequest::Source::Portal;
}

} // namespace Zentor::Capture
