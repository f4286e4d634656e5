// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include <QJsonObject>

#include "RecordingRequest.h"

namespace Zentor::Capture {

/// What the line "prepare" asks for. Nothing, and \a problem says why, when a member has a value
/// that it cannot have. Members that are unknown are ignored.
std::optional<RecordingRequest> ReadRequest(const QJsonObject& line, QString* problem);

/// The number \a name of the line, rounded down; 0 when there is none that can be counted with.
std::int64_t NumberIn(const QJsonObject& line, const char* name);

/// The quality of that name.
std::optional<Quality> QualityNamed(const QString& name);
/// The source of that name: "x11", "portal" or "test".
std::optional<RecordingRequest::Source> SourceNamed(const QString& name);

} // namespace Zentor::Capture
