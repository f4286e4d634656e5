// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMessageBox>
#include <QTimer>

#include "Model.h"

namespace Zentor::Tests::RandomWalk {

/// Gives prepared answers to the boxes that come. One that comes without an answer is cancelled.
class BoxAnswers {
public:
    BoxAnswers();

    void Prepare(const std::vector<Answer>& answers);

    /// The boxes since Prepare(), as in "unsaved", "disk".
    QStringList TakeBoxes();

private:
    void Look();

    QTimer m_timer;
    std::vector<Answer> m_answers;
    QStringList m_boxes;
};

} // namespace Zentor::Tests::RandomWalk
