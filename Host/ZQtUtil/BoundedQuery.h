// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace Zentor::Util {

/// Query with a timeout, for questions that may hang in the operating system.
///
/// Each question runs on a thread of its own. One that hangs keeps its thread until it is answered;
/// so that such threads do not pile up, its subject is not asked about again meanwhile, and only a
/// few subjects may hang at a time.
class BoundedQuery {
public:
    /// Answers with a number, negative when there is no answer. Must not throw.
    using Question = std::function<std::int64_t()>;

    /// Waits up to \a timeout for each answer.
    explicit BoundedQuery(std::chrono::milliseconds timeout);
    ~BoundedQuery();
    BoundedQuery(const BoundedQuery&) = delete;
    BoundedQuery& operator=(const BoundedQuery&) = delete;

    /// The answer to \a question, negative when it did not come in time or was not asked.
    /// \a question may still be running after the return, and after the end of this object.
    std::int64_t Ask(const std::string& subject, Question question);

private:
    class Subjects;
    std::chrono::milliseconds m_timeout;
    std::shared_ptr<Subjects> m_subjects;
};

} // namespace Zentor::Util
