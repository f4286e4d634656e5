// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "HostInterfaces.h"

namespace Zentor::Desktop {

/// A label whose text may change each second. Screen readers read the text when they are asked to,
/// and are not told of its changes.
///
/// The accessible name is needed for that, and says what the text is about. It is read before the
/// text unless the text is a sentence.
class QuietLabel : public ZLabel {
    Q_OBJECT

public:
    explicit QuietLabel(const QString& objectName, QWidget* parent = nullptr);

    /// Sets the accessible name, of which screen readers are told when it is another one.
    void SetSubject(const QString& subject);

    /// What screen readers read.
    virtual QString SpokenText() const = 0;
};

} // namespace Zentor::Desktop
