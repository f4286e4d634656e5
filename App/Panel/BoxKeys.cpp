// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "BoxKeys.h"

#include <algorithm>

#include <QCheckBox>
#include <QKeySequence>
#include <QMessageBox>

#include "QtNames.h"

namespace Zentor::Desktop {
namespace {

const QLatin1Char Mark('&');

/// Whether \a letter is on a key, and keeps its form when it is underlined.
bool IsPlainLetter(QChar letter)
{
    const auto script = letter.script();
    const bool isOnKey = script == QChar::Script_Latin || script == QChar::Script_Cyrillic
        || script == QChar::Script_Greek || script == QChar::Script_Hebrew;
    return isOnKey && letter.isLetter() && letter.joiningType() <= QChar::Joining_None;
}

bool IsJoinedLetter(QChar letter)
{
    return letter.isLetter() && letter.joiningType() > QChar::Joining_None;
}

/// Chooses the keys of one box.
class KeyChooser {
public:
    void Take(const QAbstractButton& button)
    {
        const QKeySequence key = QKeySequence::mnemonic(button.text());
        if (!key.isEmpty()) {
            m_taken += QChar(FirstKey(key)).toUpper();
        }
    }

    /// Gives \a button a key; \a usual is the letter for texts that have none that can be typed.
    void Give(QAbstractButton& button, QChar usual)
    {
        const QString text = button.text();
        if (text.isEmpty() || !QKeySequence::mnemonic(text).isEmpty()) {
            return;
        }
        const int place = FreePlace(text);
        button.setText(place < 0 ? WithAddedKey(text, usual) : QString(text).insert(place, Mark));
        Take(button);
    }

private:
    bool IsFree(QChar letter) const { return !m_taken.contains(letter.toUpper()); }

    /// Of the letters that may be underlined, those that begin a word come first; -1 for none.
    int FreePlace(const QString& text) const
    {
        int inside = -1;
        for (int place = 0; place < text.size(); ++place) {
            if (!IsPlainLetter(text.at(place)) || !IsFree(text.at(place))) {
                continue;
            }
            if (place == 0 || text.at(place - 1).isSpace()) {
                return place;
            }
            inside = inside < 0 ? place : inside;
        }
        return inside;
    }

    QString WithAddedKey(const QString& text, QChar usual) const
    {
        const auto* joined = std::find_if(text.begin(), text.end(), [this](QChar letter) {
            return IsJoinedLetter(letter) && IsFree(letter);
        });
        const bool hasJoined = joined != text.end();
        QChar key = hasJoined ? *joined : usual;
        while (!IsFree(key)) {
            key = QChar(key.unicode() + 1);
        }
        return text + (hasJoined ? QStringLiteral(" (&%1)") : QStringLiteral("(&%1)")).arg(key);
    }

    QString m_taken;
};

QChar UsualLetter(QMessageBox::ButtonRole role)
{
    switch (role) {
    case QMessageBox::YesRole:
        return QLatin1Char('Y');
    case QMessageBox::NoRole:
        return QLatin1Char('N');
    case QMessageBox::RejectRole:
        return QLatin1Char('C');
    default:
        return QLatin1Char('O');
    }
}

} // namespace

void GiveKeys(QMessageBox& box)
{
    const auto buttons = box.buttons();
    KeyChooser chooser;
    for (const QAbstractButton* button : buttons) {
        chooser.Take(*button);
    }
    for (QAbstractButton* button : buttons) {
        chooser.Give(*button, UsualLetter(box.buttonRole(button)));
    }
    if (QCheckBox* checkBox = box.checkBox()) {
        chooser.Give(*checkBox, QLatin1Char('A'));
    }
}

} // namespace Zentor::Desktop
