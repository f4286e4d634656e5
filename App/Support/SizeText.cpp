// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "SizeText.h"

#include <QLocale>

namespace Zentor::Desktop {

QString Isolated(const QString& text)
{
    constexpr char16_t firstStrongIsolate = 0x2068;
    constexpr char16_t popDirectionalIsolate = 0x2069;
    return QChar(firstStrongIsolate) + text + QChar(popDirectionalIsolate);
}

namespace {

QString Formatted(std::int64_t bytes, int decimals)
{
    return Isolated(QLocale().formattedDataSize(bytes, decimals, QLocale::DataSizeSIFormat));
}

} // namespace

QString SizeText(std::int64_t bytes)
{
    return Formatted(bytes, 1);
}

QString RoundSizeText(std::int64_t bytes)
{
    std::int64_t unit = 1;
    while (bytes / unit >= 100) {
        unit *= 10;
    }
    const std::int64_t rounded = (bytes + unit / 2) / unit * unit;
    std::int64_t front = rounded;
    while (front >= 1000) {
        front /= 1000;
    }
    return Formatted(rounded, front < 10 ? 1 : 0);
}

} // namespace Zentor::Desktop
