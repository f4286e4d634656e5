// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <deque>
#include <map>

#include "RunnerPorts.h"

namespace Zentor::Tests {

/// A list of recordings in memory, which keeps the last few of each title.
class EntryBook {
public:
    using Id = Schedule::IRecordings::EntryId;

    Id Add(const Schedule::RecordingEntry& entry)
    {
        auto& entries = m_entries[entry.title];
        entries.push_back({++m_lastId, entry});
        constexpr std::size_t most = 40;
        if (entries.size() > most) {
            entries.pop_front();
        }
        return m_lastId;
    }

    void Update(Id id, const Schedule::RecordingEntry& entry)
    {
        for (Item& item : m_entries[entry.title]) {
            if (item.id == id) {
                item.entry = entry;
            }
        }
    }

    bool Contains(const QString& title, Schedule::Moment from, Schedule::Moment to) const
    {
        const auto entries = m_entries.find(title);
        if (entries == m_entries.end()) {
            return false;
        }
        for (const Item& item : entries->second) {
            if (item.entry.start >= from && item.entry.start <= to
                && item.entry.outcome != Schedule::Outcome::Missed) {
                return true;
            }
        }
        return false;
    }

    /// What is said of recordings that ran when the program died.
    void SettleRunning(Schedule::Outcome outcome)
    {
        for (auto& entries : m_entries) {
            for (Item& item : entries.second) {
                if (item.entry.outcome == Schedule::Outcome::Recording) {
                    item.entry.outcome = outcome;
                }
            }
        }
    }

    bool IsRunning() const
    {
        for (const auto& entries : m_entries) {
            for (const Item& item : entries.second) {
                if (item.entry.outcome == Schedule::Outcome::Recording) {
                    return true;
                }
            }
        }
        return false;
    }

private:
    struct Item {
        Id id;
        Schedule::RecordingEntry entry;
    };

    std::map<QString, std::deque<Item>> m_entries;
    Id m_lastId = 0;
};

} // namespace Zentor::Tests
