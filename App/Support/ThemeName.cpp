// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "ThemeName.h"

namespace Zentor::Desktop {

QStringList ThemeNames()
{
    return {QStringLiteral("light"), QStringLiteral("dark")};
}

QString ThemeName(Theme theme)
{
    return ThemeNames().at(static_cast<int>(theme));
}

Theme ThemeFromName(const QString& name, Theme otherwise)
{
    const auto index = ThemeNames().indexOf(name);
    return index < 0 ? otherwise : static_cast<Theme>(index);
}

} // namespace Zentor::Desktop
