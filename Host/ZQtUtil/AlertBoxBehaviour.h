// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialogButtonBox>
#include <QHash>
#include <QMessageBox>

namespace Zentor::Util {

/// Event filter by which Escape and closing reject a message box, also one without a button for it.
class RejectOnClose final : public QObject {
    Q_OBJECT

public:
    /// Filters the events of \a box, which becomes the owner.
    explicit RejectOnClose(QMessageBox* box);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QMessageBox* m_box;
};

/// Event filter that keeps custom texts of standard buttons when the language changes. Buttons with
/// their standard text are translated by Qt.
class KeptButtonLabels final : public QObject {
    Q_OBJECT

public:
    /// Filters the events of \a buttonBox, which becomes the owner.
    explicit KeptButtonLabels(QDialogButtonBox* buttonBox);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using Texts = QHash<QAbstractButton*, QString>;

    void NoteStandardTexts();
    void NoteAllStandardTexts();
    Texts GivenTexts() const;

    QDialogButtonBox* m_buttonBox;
    /// The texts that standard buttons have in the current language: of the buttons in the box, or
    /// of all.
    QHash<int, QString> m_standardTexts;
    bool m_hasAllTexts = false;
    bool m_isPassingOn = false;
};

} // namespace Zentor::Util
