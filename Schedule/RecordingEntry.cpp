// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "RecordingEntry.h"

#include <algorithm>
#include <array>
#include <utility>

namespace Zentor::Schedule {
namespace {

const std::array<std::pair<Outcome, QString>, 6> Names{{
    {Outcome::Complete, QStringLiteral("complete")},
    {Outcome::Partial, QStringLiteral("partial")},
    {Outcome::Stopped, QStringLiteral("stopped")},
    {Outcome::Missed, QStringLiteral("missed")},
    {Outcome::Failed, QStringLiteral("failed")},
    {Outcome::Recording, QStringLiteral("recording")},
}};

} // namespace

QString NameOf(Outcome outcome)
{
    const auto* const found = std::find_if(Names.begin(), Names.end(),
                                           [&](const auto& name) { return name.first == outcome; });
    Q_ASSERT(found != Names.end());
    return found->second;
}

std::optional<Outcome> OutcomeOf(const QString& name)
{
    const auto* const found = std::find_if(Names.begin(), Names.end(),
                                           [&](const auto& entry) { return entry.second == name; });
    return found == Names.end() ? std::nullopt : std::optional(found->first);
}

} // namespace Zentor::Schedule
