// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "AlertBoxBehaviour.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QScopedValueRollback>

namespace Zentor::Util {
namespace {

QHash<int, QString> StandardTexts()
{
    QDialogButtonBox box;
    for (int button = QDialogButtonBox::FirstButton; button <= QDialogButtonBox::LastButton;
         button <<= 1) {
        box.addButton(static_cast<QDialogButtonBox::StandardButton>(button));
    }
    QHash<int, QString> texts;
    const auto buttons = box.buttons();
    for (const auto* button : buttons) {
        texts.insert(box.standardButton(const_cast<QAbstractButton*>(button)), button->text());
    }
    return texts;
}

} // namespace

RejectOnClose::RejectOnClose(QMessageBox* box)
    : QObject(box)
    , m_box(box)
{
    box->installEventFilter(this);
}

bool RejectOnClose::eventFilter(QObject* watched, QEvent* event)
{
    const bool isEscape = event->type() == QEvent::KeyPress
        && static_cast<QKeyEvent*>(event)->matches(QKeySequence::Cancel);
    if (isEscape || event->type() == QEvent::Close) {
        m_box->reject();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

KeptButtonLabels::KeptButtonLabels(QDialogButtonBox* buttonBox)
    : QObject(buttonBox)
    , m_buttonBox(buttonBox)
{
    NoteStandardTexts();
    buttonBox->installEventFilter(this);
}

/// The buttons have their standard texts now. Those of all others are dear to find out, and hardly
/// ever needed: NoteAllStandardTexts() does so when a button is added.
void KeptButtonLabels::NoteStandardTexts()
{
    m_standardTexts.clear();
    const auto buttons = m_buttonBox->buttons();
    for (auto* button : buttons) {
        m_standardTexts.insert(m_buttonBox->standardButton(button), button->text());
    }
    m_hasAllTexts = false;
}

void KeptButtonLabels::NoteAllStandardTexts()
{
    m_standardTexts = StandardTexts();
    m_hasAllTexts = true;
}

KeptButtonLabels::Texts KeptButtonLabels::GivenTexts() const
{
    Texts texts;
    const auto buttons = m_buttonBox->buttons();
    for (auto* button : buttons) {
        const auto standard = m_buttonBox->standardButton(button);
        if (standard != QDialogButtonBox::NoButton
            && button->text() != m_standardTexts.value(standard)) {
            texts.insert(button, button->text());
        }
    }
    return texts;
}

bool KeptButtonLabels::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ChildAdded && !m_hasAllTexts
        && static_cast<QChildEvent*>(event)->child()->isWidgetType()) {
        NoteAllStandardTexts();
    }
    if (event->type() != QEvent::LanguageChange || m_isPassingOn) {
        return QObject::eventFilter(watched, event);
    }
    // The button box goes first: it resets the texts of all standard buttons.
    const Texts given = GivenTexts();
    {
        const QScopedValueRollback<bool> passingOn(m_isPassingOn, true);
        QCoreApplication::sendEvent(watched, event);
    }
    NoteStandardTexts();
    for (auto text = given.begin(); text != given.end(); ++text) {
        text.key()->setText(text.value());
    }
    return true;
}

} // namespace Zentor::Util
