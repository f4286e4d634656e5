// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>
#include <QProxyStyle>
#include <QStyleFactory>

namespace Zentor::Tests {

/// A base style for the style sheet that counts how often widgets are polished.
class CountingStyle final : public QProxyStyle {
public:
    /// Takes the place of the base style of the application, whose style sheet stays. The
    /// application owns it.
    static CountingStyle* Install()
    {
        auto* style = new CountingStyle;
        QApplication::setStyle(style);
        return style;
    }

    using QProxyStyle::polish;
    void polish(QWidget* widget) override
    {
        ++m_polishes;
        QProxyStyle::polish(widget);
    }

    /// Polishes since the last take.
    int TakePolishes() { return std::exchange(m_polishes, 0); }

private:
    CountingStyle()
        : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
    {
    }

    int m_polishes = 0;
};

} // namespace Zentor::Tests
