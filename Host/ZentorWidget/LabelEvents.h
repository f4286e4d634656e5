// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class QLabel;

namespace Zentor {

/// Event filter of all labels together. A list has thousands of them, so a label has objects of its
/// own only while its text does not fit.
///
/// It aligns the text of a label by the layout direction and not by the direction of the text, so
/// that the texts of a column line up in any script: Qt puts an RTL text at the right edge of its
/// label in LTR layouts too, and digits at the left edge in RTL layouts. An alignment that was set
/// by others is left alone.
class LabelEvents final : public QObject {
    Q_OBJECT

public:
    /// Aligns \a label and filters its events from now on.
    static void Follow(QLabel& label);

    /// The text of \a label was set: elides it, or shows it whole again.
    static void OnTextSet(QLabel& label);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using QObject::QObject;
};

} // namespace Zentor
