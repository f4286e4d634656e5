// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QTranslator>

namespace Zentor::Tests {

/// Another language: every text gets "~" in front, dates and clock readings get another format.
class MarkingTranslator final : public QTranslator {
public:
    MarkingTranslator() = default;
    /// Has the texts of \a context only.
    explicit MarkingTranslator(const char* context)
        : m_context(context)
    {
    }

    QString translate(const char* context, const char* source, const char* /*comment*/,
                      int /*count*/) const override
    {
        if (m_context != nullptr && qstrcmp(context, m_context) != 0) {
            return {};
        }
        const auto text = QString::fromLatin1(source);
        if (text == QLatin1String("hh:mm:ss")) {
            return QStringLiteral("hh.mm.ss");
        }
        if (text == QLatin1String("dd.MM.yyyy")) {
            return QStringLiteral("yyyy-MM-dd");
        }
        return QLatin1Char('~') + text;
    }

    bool isEmpty() const override { return false; }

private:
    const char* m_context = nullptr;
};

/// Switches between the language of the sources and the other one, and back in the end.
class LanguageSwitch {
public:
    LanguageSwitch() = default;
    /// The other language has the texts of \a context only.
    explicit LanguageSwitch(const char* context)
        : m_translator(context)
    {
    }
    ~LanguageSwitch()
    {
        if (m_isMarking) {
            Toggle();
        }
    }
    LanguageSwitch(const LanguageSwitch&) = delete;
    LanguageSwitch& operator=(const LanguageSwitch&) = delete;

    bool IsMarking() const { return m_isMarking; }

    void Toggle()
    {
        m_isMarking = !m_isMarking;
        if (m_isMarking) {
            QCoreApplication::installTranslator(&m_translator);
        } else {
            QCoreApplication::removeTranslator(&m_translator);
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
    }

private:
    MarkingTranslator m_translator;
    bool m_isMarking = false;
};

} // namespace Zentor::Tests
