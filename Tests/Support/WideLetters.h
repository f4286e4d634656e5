// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QTranslator>

namespace Zentor::Tests {

/// A language that has every text: its Latin letters are replaced by wide ones, "Date" becomes
/// "Ｄａｔｅ". What still has plain letters on screen has not been translated.
class WideLetters final : public QTranslator {
public:
    QString translate(const char* /*context*/, const char* source, const char* /*comment*/,
                      int /*count*/) const override
    {
        auto text = QString::fromUtf8(source);
        if (IsFormat(text)) {
            return text;
        }
        constexpr ushort fromPlainToWide = 0xFEE0;
        for (QChar& character : text) {
            if (character.unicode() < 0x80 && character.isLetter()) {
                character = QChar(character.unicode() + fromPlainToWide);
            }
        }
        return text;
    }

    bool isEmpty() const override { return false; }

private:
    /// Whether Qt reads \a text, not the user: a format of a date, a clock reading or the like.
    static bool IsFormat(const QString& text)
    {
        return text == QLatin1String("hh:mm:ss") || text == QLatin1String("dd.MM.yyyy");
    }
};

} // namespace Zentor::Tests
