// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "BoundedQuery.h"

#include <future>
#include <mutex>
#include <set>
#include <system_error>
#include <thread>

#include <glog/logging.h>

namespace Zentor::Util {
namespace {

constexpr std::int64_t NoAnswer = -1;
constexpr std::size_t MaxUnanswered = 4;

} // namespace

/// The subjects that are being asked about; shared with the threads, which may outlive the query.
class BoundedQuery::Subjects {
public:
    /// Whether \a subject may be asked about now; if so, it counts as being asked about.
    bool Add(const std::string& subject)
    {
        const std::lock_guard lock(m_mutex);
        return m_subjects.size() < MaxUnanswered && m_subjects.insert(subject).second;
    }

    void Remove(const std::string& subject)
    {
        const std::lock_guard lock(m_mutex);
        m_subjects.erase(subject);
    }

private:
    std::mutex m_mutex;
    std::set<std::string> m_subjects;
};

BoundedQuery::BoundedQuery(std::chrono::milliseconds timeout)
    : m_timeout(timeout)
    , m_subjects(std::make_shared<Subjects>())
{
}

BoundedQuery::~BoundedQuery() = default;

std::int64_t BoundedQuery::Ask(const std::string& subject, Question question)
{
    if (!m_subjects->Add(subject)) {
        return NoAnswer;
    }
    std::promise<std::int64_t> promise;
    auto answer = promise.get_future();
    try {
        std::thread([subjects = m_subjects, subject, question = std::move(question),
                     promise = std::move(promise)]() mutable {
            const std::int64_t value = question();
            subjects->Remove(subject);
            promise.set_value(value);
        }).detach();
    } catch (const std::system_error& error) {
        m_subjects->Remove(subject);
        LOG(WARNING) << "Zentor::Util::BoundedQuery::Ask: error=" << error.what()
                     << "; subject=" << subject;
        return NoAnswer;
    }
    if (answer.wait_for(m_timeout) != std::future_status::ready) {
        LOG(WARNING) << "Zentor::Util::BoundedQuery::Ask: error=no answer in time; patience="
                     << m_timeout.count() << " ms; subject=" << subject;
        return NoAnswer;
    }
    return answer.get();
}

} // namespace Zentor::Util
